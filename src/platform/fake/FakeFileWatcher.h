#pragma once

#include "platform/FileWatcher.h"

#include <utility>

namespace dyeworks {

/// Notices nothing by itself.
class FakeFileWatcher : public FileWatcher {
public:
    void watch(const std::vector<std::string>& paths) override { watched = paths; }
    void setListener(std::function<void()> listener) override { listener_ = std::move(listener); }

    [[nodiscard]] int patience() const override { return patienceToHave; }

    void happen() {
        if (listener_)
            listener_();
    }

    std::vector<std::string> watched;
    int patienceToHave = 250;

private:
    std::function<void()> listener_;
};

} // namespace dyeworks

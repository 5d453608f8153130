#pragma once

#include "platform/FileWatcher.h"

#include <QObject>

class QThread;

namespace dyeworks {

class Files;

/// Watches files and the folders that they stand in: a file that is put in another one's place, or comes
/// back, is seen by its folder alone. Links are watched where they stand and where they lead. All of that
/// happens on a thread of its own, since file systems may not answer.
class QtFileWatcher : public QObject, public FileWatcher {
    Q_OBJECT

public:
    /// `files`, which any thread may ask, must outlive the watcher.
    explicit QtFileWatcher(const Files& files);
    ~QtFileWatcher() override;

    void watch(const std::vector<std::string>& paths) override;
    void setListener(std::function<void()> listener) override { listener_ = std::move(listener); }

private:
    class Watched;

    const Files& files_;
    std::function<void()> listener_;
    QThread* thread_ = nullptr;  ///< Begins with the first file.
    Watched* watched_ = nullptr; ///< Lives on that.
};

} // namespace dyeworks

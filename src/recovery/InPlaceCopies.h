#pragma once

#include "platform/Files.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>

namespace dyeworks {

class StateFolder;

/// Keeps what is written in place in the state folder until it is written, as a `RecoveryItem`: should the
/// program be killed meanwhile, the next start offers it.
class InPlaceCopies : public SafetyCopies {
public:
    /// Told of a file that is no longer whole. What it was to hold stays kept until it can be written there,
    /// or the program ends in order.
    using Broken = std::function<void(const std::string& path, FileError why)>;

    /// `folder` must outlive it. It is the one of the installed files while it lives. `written` is called
    /// after every file that they have written.
    InPlaceCopies(StateFolder& folder, Broken broken, std::function<void()> written);
    ~InPlaceCopies() override;
    InPlaceCopies(const InPlaceCopies&) = delete;
    InPlaceCopies& operator=(const InPlaceCopies&) = delete;

    [[nodiscard]] bool keep(const std::string& path, FilePieces pieces) override;
    void release(const std::string& path) override;
    void broken(const std::string& path, FileError why) override;
    void written() override;

private:
    StateFolder& folder_;
    Broken broken_;
    std::function<void()> written_;
    std::map<std::string, std::string> names_; ///< Of what is kept, by paths.
    std::uint64_t latest_ = 0;
};

} // namespace dyeworks

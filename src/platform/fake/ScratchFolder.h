#pragma once

#include <string>

namespace dyeworks {

/// A fresh folder of the host, removed with everything in it when it goes. The process's current directory
/// is then what it was before.
class ScratchFolder {
public:
    /// Ends the program when the host gives no folder: no test could say anything without one.
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    /// Host path without a trailing separator.
    [[nodiscard]] const std::string& path() const noexcept { return path_; }

    /// Makes a folder in it where there is none yet. Its host path.
    std::string subfolder(const std::string& name) const;

private:
    std::string path_;
    std::string directoryBefore_;
};

} // namespace dyeworks

#pragma once

#include "platform/posix/PosixFiles.h"
#include "platform/qt/WindowContext.h"

#include <chrono>
#include <functional>
#include <future>
#include <map>
#include <optional>
#include <string>

namespace dyeworks {

/// Files whose writing keeps the program alive: what takes a while, as on a disk that does not answer, is
/// waited for in a dialog with Stop, as long as there may be dialogs and on the thread of the windows. Once
/// stopped, writing goes on where nobody waits for it, but what was there is not replaced any more. Paths
/// that are shown take the spelling that they have on the disk, unless that does not answer.
class PatientFiles : public PosixFiles {
public:
    /// `windows` must outlive it.
    PatientFiles(const WindowContext& windows, DriveLookup drives, std::string programFolder);

    [[nodiscard]] bool answers(const std::string& path) const override;
    /// What was found is believed for a while.
    [[nodiscard]] std::string displayPath(const std::string& path) const override;
    /// As in the base; `Other` when it was stopped. The pieces are copied for the time of writing.
    [[nodiscard]] std::optional<FileError> writePieces(const std::string& path, FilePieces pieces) override;

private:
    [[nodiscard]] bool mayWait() const;
    [[nodiscard]] bool wait(const std::string& path, const std::function<bool()>& isDone) const;

    using Clock = std::chrono::steady_clock;

    /// A path as it is shown.
    struct Spelt {
        std::string latest; ///< Empty: nothing has ever answered.
        Clock::time_point asked;
        std::future<std::string> answer; ///< Valid as long as it is waited for.
    };

    const WindowContext& windows_;
    mutable std::map<std::string, Spelt> spelt_; ///< By paths.
};

} // namespace dyeworks

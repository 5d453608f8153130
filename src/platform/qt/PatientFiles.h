#pragma once

#include "platform/posix/PosixFiles.h"
#include "platform/qt/WindowContext.h"

namespace dyeworks {

/// Files whose writing keeps the program alive: what takes a while, as on a disk that does not answer, is
/// waited for in a dialog with Stop. Once stopped, writing goes on where nobody waits for it, but what was
/// there is not replaced any more.
class PatientFiles : public PosixFiles {
public:
    /// `windows` must outlive it.
    PatientFiles(const WindowContext& windows, DriveLookup drives, std::string programFolder);

    /// As in the base; `Other` when it was stopped. The pieces are copied for the time of writing.
    [[nodiscard]] std::optional<FileError> writePieces(const std::string& path, FilePieces pieces) override;

private:
    const WindowContext& windows_;
};

} // namespace dyeworks

#pragma once

#include "platform/posix/Descriptor.h"

#include <array>
#include <string>
#include <sys/types.h>

namespace dyeworks {

/// A file in `folder` that takes another file's place once it is complete. Where the file system can, it has
/// no name until then, so that nothing is left of it when the program is killed; elsewhere it has a short
/// hidden one, is locked as long as it is written, and goes at the end of its life.
class TemporaryFile {
public:
    enum class Name { None, Hidden };

    /// `folder` must outlive it. `None` becomes `Hidden` where it is not to be had.
    TemporaryFile(int folder, mode_t mode, Name name) noexcept;
    ~TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    /// 0, or the error number of what failed, as all below.
    [[nodiscard]] int error() const noexcept { return error_; }
    [[nodiscard]] int get() const noexcept { return file_.get(); }
    /// Gives a file without a name one; there are systems that refuse that.
    [[nodiscard]] int makeNamed() noexcept;
    [[nodiscard]] int close() noexcept { return file_.close(); }
    /// Puts the file, which has a name, in the place of `name` in the same folder.
    [[nodiscard]] int place(const std::string& name) noexcept;

private:
    void makeName() noexcept;
    void create(mode_t mode) noexcept;

    int folder_;
    std::array<char, 64> name_{};
    Descriptor file_;
    int error_ = 0;
    bool named_ = false;
};

/// Removes the temporary files in the folder whose writers have died. A folder is looked through again after
/// ten seconds at the earliest.
void removeAbandonedFiles(int folder) noexcept;

} // namespace dyeworks

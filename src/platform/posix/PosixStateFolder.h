#pragma once

#include "platform/StateFolder.h"
#include "platform/posix/Descriptor.h"

#include <mutex>
#include <string>

namespace dyeworks {

/// A folder in the user's state folder ($XDG_STATE_HOME), locked as long as the program
/// runs.
class PosixStateFolder : public StateFolder {
public:
    /// `base` is the host folder that the folders of all runs stand in; it need not exist.
    explicit PosixStateFolder(std::string base);

    /// The user's own: "orrery-dyeworks/recovery" in $XDG_STATE_HOME or, without that, in "~/.local/state".
    [[nodiscard]] static std::string usersBase();

    [[nodiscard]] std::string location() const override { return base_; }
    [[nodiscard]] std::optional<FileError> write(const std::string& name, FilePieces pieces) override;
    void remove(const std::string& name) override;
    void discard() override;
    [[nodiscard]] std::vector<std::unique_ptr<LeftState>> left() override;

private:
    [[nodiscard]] std::optional<FileError> make();
    [[nodiscard]] std::string folder() const;

    void forget(const std::string& lost);

    std::string base_;
    mutable std::mutex mutex_; ///< For what follows.
    std::string folder_;       ///< Empty as long as it has not been made.
    Descriptor lock_;
};

} // namespace dyeworks

#pragma once

#include "platform/Files.h"

#include <cstdint>
#include <optional>
#include <string>

namespace dyeworks {

/// What the owner of a file, such as a document, knows of it: the version that it has read or written last,
/// and what others have made of the file since. A version that differs in its stamp alone, as after a
/// "touch", is the same; to tell, its contents are remembered as a number once there is time to read them.
class KnownFile {
public:
    enum class State {
        Same,        ///< What the owner has read or written, or the owner has no file.
        Unsettled,   ///< Something is being done to it: it is to be looked at again in a moment.
        Changed,     ///< It holds something else.
        Removed,     ///< There is no such file any more.
        Back,        ///< It had been removed and is there again as it was.
        BackChanged, ///< It had been removed and is there again with something else in it.
    };

    /// Of an owner without a file.
    KnownFile() = default;
    /// Of an owner that has just written the file or is about to read it: then what it reads is the version
    /// that is known, or a later one, which will be found to be a change.
    explicit KnownFile(const std::string& path);
    /// Of an owner that an earlier run has left, and which knows the version `known`; nothing: there was no
    /// file. What has become of it since is found by `look`.
    KnownFile(const std::string& path, const std::optional<FileStamp>& known);

    /// As a full path; empty without a file.
    [[nodiscard]] const std::string& path() const noexcept { return path_; }
    [[nodiscard]] bool isAt(const std::string& path) const;
    /// The version that is known; nothing: there was no file.
    [[nodiscard]] const std::optional<FileStamp>& known() const noexcept { return known_; }

    /// Looks at the file. Something new is told once it has been the same at two looks in a row.
    State look();
    /// As it was last seen.
    [[nodiscard]] State state() const noexcept { return state_; }
    [[nodiscard]] bool isMissing() const noexcept { return state_ == State::Removed; }
    /// Whether the owner has yet to say what is to become of it.
    [[nodiscard]] bool asks() const noexcept;
    /// What the owner has is to stay as it is, whatever the file is now. It asks again for a later version.
    void keep() noexcept { answered_ = true; }

    /// Whether the file there may be replaced by what the owner has. Where it is a version that the owner
    /// knows nothing of, the user is asked.
    [[nodiscard]] bool mayBeReplaced(const std::string& path);

    /// Remembers the contents of the version that is known, as long as that is what the file holds; costs
    /// reading it once. False when there was nothing to do.
    bool rememberContents();

private:
    using Contents = std::uint64_t;

    [[nodiscard]] std::optional<Contents> contentsOf(const std::optional<FileStamp>& stamp) const;
    void judge();

    std::string path_;
    std::optional<FileStamp> known_; ///< Nothing: there was no file.
    std::optional<Contents> knownContents_;
    bool contentsTried_ = false;
    std::optional<FileStamp> seen_; ///< At the last look.
    std::optional<Contents> seenContents_;
    State state_ = State::Same;
    bool judged_ = true;
    bool answered_ = false; ///< What was last judged.
};

} // namespace dyeworks

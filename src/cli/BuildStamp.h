#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace dyeworks {

/// By what a file is known again without being read.
struct BuildStamp {
    std::uint64_t size = 0;
    std::int64_t time = 0;   ///< When it was last changed, in nanoseconds.
    std::uint64_t inode = 0; ///< Another file may be put in its place with the times of the old one.

    bool operator==(const BuildStamp&) const = default;
};

/// Nothing for what is no regular file. Follows links.
[[nodiscard]] std::optional<BuildStamp> stampOf(const std::string& path);

/// The same of a file that is going to be read, for the next time: one that was changed just now may change
/// again without looking different, so that its stamp is made one that no file has.
[[nodiscard]] BuildStamp settled(BuildStamp stamp);

} // namespace dyeworks

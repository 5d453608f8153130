#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace dyeworks {

/// An absolute path in the program's form, taken apart.
struct ProgramPath {
    enum class Root {
        Host,  ///< "\"
        Drive, ///< "c:\"
        Server ///< "\\server\share", or "\\server" when nothing follows
    };

    Root root = Root::Host;
    std::string rootText = "\\";
    std::vector<std::string> parts; ///< Without empty ones, "." and "..".

    [[nodiscard]] std::string text() const;
};

constexpr bool isSeparator(char c) {
    return c == '\\' || c == '/';
}

/// True for a path that starts at a root: with a separator or a drive ("c:", with or without a separator
/// behind it).
bool isRooted(std::string_view path);

/// Takes `path` apart. A path without root continues `currentDirectory`, which must have one. ".." stops at
/// the root. "c:name" is "c:\name": a drive has no current directory of its own.
ProgramPath parseProgramPath(std::string_view path, std::string_view currentDirectory);

/// True when `name` matches `pattern`, case-blind: "*" stands for any number of characters, "?" for one.
/// "*.*" matches every name, with a full stop or without.
bool matchesWildcard(std::string_view pattern, std::string_view name);

} // namespace dyeworks

#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace dyeworks {

/// What a program or library says of itself.
struct VersionRecord {
    std::array<std::uint16_t, 4> fileVersion{}; ///< First to fourth part.
    /// Named strings ("ProductName") by language block: eight hexadecimal digits, language and code page
    /// ("040904E4" is English, "041104B0" Japanese).
    std::map<std::string, std::map<std::string, std::string>> strings;
};

class VersionInfo {
public:
    virtual ~VersionInfo() = default;

    /// Nothing when the file is missing, is no library or carries no version information.
    [[nodiscard]] virtual std::optional<VersionRecord> read(const std::string& path) const = 0;

    /// The running program's own record.
    [[nodiscard]] virtual VersionRecord program() const = 0;
};

} // namespace dyeworks

#pragma once

#include "framework/Shortcuts.h"
#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace dyeworks {

/// Far more than all commands with many keys take.
inline constexpr std::size_t kLargestShortcutFile = std::size_t{256} << 10U;

/// All commands with their keys, as lines that a person can read and change: "57603 = Ctrl+S" below a comment
/// with the command's English name, after a line that tells the version.
[[nodiscard]] std::string shortcutFile(const Shortcuts& shortcuts);

struct ReadShortcuts {
    Shortcuts shortcuts; ///< Commands that the file does not name have the keys given, unless it needs those.
    std::int32_t unknown = 0; ///< Commands that this program does not have, which are passed over.
};

struct ShortcutFileError {
    enum class Kind {
        NotShortcuts,
        NewerVersion,
        Line,     ///< No command, or no "=".
        Keys,     ///< `keys` are none.
        Reserved, ///< `keys` cannot be given away.
        Twice     ///< `keys`, or the command without any, were there before.
    };
    Kind kind = Kind::NotShortcuts;
    std::int32_t line = 0; ///< Counted from 1.
    std::string keys;
};

/// A file as it is written above. All of it is read, or nothing.
[[nodiscard]] Result<ReadShortcuts, ShortcutFileError> parseShortcutFile(std::span<const std::byte> bytes);

/// What is wrong, for people.
[[nodiscard]] std::string describe(const ShortcutFileError& error);

} // namespace dyeworks

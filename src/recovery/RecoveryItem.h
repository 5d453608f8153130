#pragma once

#include "platform/Files.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace dyeworks {

/// What is kept of a document that has unsaved changes, but for its contents.
struct RecoveryItem {
    enum class Kind {
        Palette, ///< Contents: colour type and entries (`packPalette`).
        Image,   ///< Contents: a bitmap file.
        Project, ///< Contents: what the project's file would hold.
        File ///< Contents: the bytes of the file, of any of the three kinds, whose writing may have broken
             ///< off.
    };
    Kind kind = Kind::Image;
    std::string path; ///< Of its file; of a palette without one its key; else empty.
    std::string title;
    std::int64_t time = 0;       ///< When it was kept, in seconds since 1970 (UTC).
    std::string attachedName;    ///< Of an image: the key of its palette, or empty.
    std::int32_t firstEntry = 0; ///< Of an image.
    /// The version of its file that the document knew, or that there was none; nothing of that when it is
    /// not told.
    bool tellsFile = false;
    std::optional<FileStamp> file{};

    bool operator==(const RecoveryItem&) const = default;
};

/// The bytes that stand before the contents in the item's file.
[[nodiscard]] std::string recoveryHeader(const RecoveryItem& item);

/// An item and where its contents stand in the file.
struct ReadRecoveryItem {
    RecoveryItem item;
    std::span<const std::byte> contents;
};
/// Nothing for a file that is none, or of a version that is not known.
[[nodiscard]] std::optional<ReadRecoveryItem> parseRecoveryItem(std::span<const std::byte> file);

} // namespace dyeworks

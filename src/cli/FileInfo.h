#pragma once

#include "cli/FileKind.h"
#include "core/ColourType.h"
#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace dyeworks {

/// What there is to know of a file at first sight.
struct FileInfo {
    FileKind kind = FileKind::Unknown;
    std::string format; ///< "tmf", "tlf", "tpf", "png", "bmp", "gpl", "pal", "act" or "hex".
    std::int64_t bytes = 0;

    struct Texels {
        std::int32_t width = 0;
        std::int32_t height = 0;
        std::int32_t bits = 0; ///< Of an index; 0 where pixels are colours themselves.
        std::int64_t used = 0; ///< Different indices, or colours.
    };
    std::optional<Texels> texels;

    struct Entries {
        std::int32_t count = 0;
        std::int32_t different = 0;
        std::optional<ColourType> type; ///< Of a palette of ours, also one inside a PNG file.
        std::optional<std::int32_t> bank;
    };
    std::optional<Entries> entries;

    std::optional<std::int64_t> pictures; ///< Of a project.
};

/// Looks at a file's bytes; otherwise a sentence for the user that does not name the file.
[[nodiscard]] Result<FileInfo, std::string> inspect(std::span<const std::byte> file, const std::string& name);

} // namespace dyeworks

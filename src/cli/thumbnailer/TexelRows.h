#pragma once

#include "core/TmfFormat.h"
#include "platform/Result.h"
#include "platform/posix/HostFile.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace dyeworks {

/// The texels of an image (TMF), read row by row, so that the largest image takes the memory of one row.
class TexelRows {
public:
    /// Behind the header of an open file, which was read from it and must outlive this. A sentence for the
    /// user when there is no image of these sides, none with texels, or when the file is too short for it.
    [[nodiscard]] static Result<TexelRows, std::string> behind(std::span<const std::byte> header,
                                                               HostFileReader& file);

    [[nodiscard]] std::int32_t width() const noexcept { return header_.width; } ///< At least 1.
    [[nodiscard]] std::int32_t height() const noexcept { return header_.height; }
    [[nodiscard]] std::int32_t bits() const noexcept { return header_.bits; }

    /// Reads the next row, the bottom one first, and none beyond the top one. `values`, one for each texel of
    /// a row, becomes their indices. False when the file ends or cannot be read.
    [[nodiscard]] bool next(std::span<std::uint8_t> values);
    /// Goes on behind so many rows that nobody looks at.
    [[nodiscard]] bool skip(std::int32_t count);

private:
    TexelRows(const TmfHeader& header, HostFileReader& file);

    TmfHeader header_;
    TmfRowLayout layout_;
    HostFileReader* file_;
    std::vector<std::byte> row_;
};

} // namespace dyeworks

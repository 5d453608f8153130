#pragma once

#include "core/TlutData.h"
#include "core/TmfImage.h"
#include "interchange/InterchangeError.h"
#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace dyeworks {

/// How an image and its palette become C source or raw bytes.
struct SourceOptions {
    std::string name;           ///< Made valid with `identifierOf`.
    std::int32_t alignment = 8; ///< Of the arrays, in bytes: 1 (none asked for) or a power of 2 up to 4096.
    bool withTexels = true;
    bool withPalette = true;
    bool wholePalette = false; ///< Else only the bank that an image of 4 bits uses.
};

/// Texels as the machine reads them: rows from the top, the first of two texels in the high half of a byte,
/// each row padded to a whole byte. NoTexels for an image of neither 4 nor 8 bits.
[[nodiscard]] Result<std::vector<std::byte>, InterchangeError> rawTexels(const TmfImage& image);
/// The entries, 16 bits big-endian.
[[nodiscard]] std::vector<std::byte> rawPalette(const TlutData& palette, std::int32_t first,
                                                std::int32_t count);

/// Texels, then palette, each from an offset that is a multiple of the alignment; zeroes between.
[[nodiscard]] Result<std::vector<std::byte>, InterchangeError> rawBytes(const TmfImage& image,
                                                                        const TlutData* palette,
                                                                        std::int32_t firstEntry,
                                                                        const SourceOptions& options);

/// Entries of a palette that go out with an image.
struct ChosenEntries {
    std::int32_t first = 0;
    std::int32_t count = 0; ///< 0 for no palette.
};

/// Those that the options ask for; never more than there are.
[[nodiscard]] ChosenEntries chosenEntries(const TmfImage& image, const TlutData* palette,
                                          std::int32_t firstEntry, const SourceOptions& options);

/// Bytes of a row of an image of 4 or 8 bits, without what pads it in memory.
[[nodiscard]] constexpr std::int64_t rawRowBytes(const TmfImage& image) noexcept {
    return (std::int64_t{image.width} * image.bits + 7) / 8;
}

} // namespace dyeworks

#pragma once

#include "core/TlutData.h"
#include "core/TmfImage.h"
#include "interchange/InterchangeError.h"
#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
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

/// A name that C and C++ take for an array: letters, digits and "_" of `text`, every run of others a "_",
/// with a "_" before a leading digit or behind a keyword. "texture" when nothing is left.
[[nodiscard]] std::string identifierOf(std::string_view text);

/// Texels as the machine reads them: rows from the top, the first of two texels in the high half of a byte,
/// each row padded to a whole byte. NoTexels for an image of neither 4 nor 8 bits.
[[nodiscard]] Result<std::vector<std::byte>, InterchangeError> rawTexels(const TmfImage& image);
/// The entries, 16 bits big-endian.
[[nodiscard]] std::vector<std::byte> rawPalette(const TlutData& palette, std::int32_t first,
                                                std::int32_t count);

/// A header that defines everything (`.h` alone), C99 and C++.
[[nodiscard]] Result<std::string, InterchangeError> headerWithData(const TmfImage& image,
                                                                   const TlutData* palette,
                                                                   std::int32_t firstEntry,
                                                                   const SourceOptions& options);
/// A header that declares it and a source (`.c`) that defines it and includes the header as `headerName`.
struct SourcePair {
    std::string header;
    std::string source;
};
[[nodiscard]] Result<SourcePair, InterchangeError>
headerAndSource(const TmfImage& image, const TlutData* palette, std::int32_t firstEntry,
                const SourceOptions& options, std::string_view headerName);
/// Texels, then palette, each from an offset that is a multiple of the alignment; zeroes between.
[[nodiscard]] Result<std::vector<std::byte>, InterchangeError> rawBytes(const TmfImage& image,
                                                                        const TlutData* palette,
                                                                        std::int32_t firstEntry,
                                                                        const SourceOptions& options);

} // namespace dyeworks

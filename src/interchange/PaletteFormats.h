#pragma once

#include "core/TlutData.h"
#include "interchange/InterchangeError.h"
#include "interchange/PaletteColours.h"
#include "platform/Result.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The formats behind PaletteFile.h. A reader answers no colours where the file has none; a writer is given 1
// to 256 colours and writes their alpha where `hasAlpha` and the format has a place for it.

namespace dyeworks {

inline constexpr std::size_t kMostPaletteColours = 65536;

using PaletteResult = Result<PaletteColours, InterchangeError>;

inline constexpr std::string_view kGimpHeader = "GIMP Palette";
[[nodiscard]] PaletteResult readGimpPalette(std::string_view text);
[[nodiscard]] std::string writeGimpPalette(const PaletteColours& colours);

inline constexpr std::string_view kJascHeader = "JASC-PAL";
[[nodiscard]] PaletteResult readJascPalette(std::string_view text);
[[nodiscard]] std::string writeJascPalette(const PaletteColours& colours);

[[nodiscard]] PaletteResult readHexPalette(std::string_view text);
[[nodiscard]] std::string writeHexPalette(const PaletteColours& colours);

[[nodiscard]] PaletteResult readActPalette(std::span<const std::byte> file);
[[nodiscard]] std::vector<std::byte> writeActPalette(const PaletteColours& colours);

/// Of a picture of direct colours: its different ones as they come, at most 256 (TooManyColours).
[[nodiscard]] PaletteResult readPngPalette(std::span<const std::byte> file);
/// The image shows each entry of the palette, which has 1 to 256, once.
[[nodiscard]] Result<std::vector<std::byte>, InterchangeError> writePngPalette(const TlutData& palette);

} // namespace dyeworks

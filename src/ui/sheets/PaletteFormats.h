#pragma once

#include "interchange/PaletteFile.h"
#include "platform/Text.h"

#include <array>
#include <string>

namespace dyeworks {

/// In the order in which they are offered.
inline constexpr std::array kPaletteFormats{PaletteFormat::Gimp, PaletteFormat::Jasc, PaletteFormat::Act,
                                            PaletteFormat::Hex, PaletteFormat::Png};

/// What people call it.
[[nodiscard]] StringId nameOf(PaletteFormat format);
/// Of its files, with the full stop.
[[nodiscard]] std::string endingOf(PaletteFormat format);
/// For a file dialog: files of this format alone, or of all, first together and then each for itself.
[[nodiscard]] std::string filterOf(PaletteFormat format);
[[nodiscard]] std::string filterOfAllPalettes();

} // namespace dyeworks

#pragma once

#include <cstdint>

namespace dyeworks {

/// How the 16 bits of a palette entry are laid out, bit 15 the most significant. Other values reach the
/// program in damaged records and are kept as they are.
enum class ColourType : std::uint32_t {
    Rgba = 0, ///< Bits 15-11 red, 10-6 green, 5-1 blue, 0 alpha.
    Ia = 1    ///< Bits 15-8 intensity, 7-0 alpha.
};

/// "16bit RGBA" or "16bit IA"; empty for any other value.
const char* label(ColourType type);

} // namespace dyeworks

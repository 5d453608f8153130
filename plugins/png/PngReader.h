#pragma once

#include <QString>

#include <array>
#include <cstdint>

namespace dyeworks::plugins {

/// What a PNG file says before its pixels.
struct PngHeader {
    std::int32_t width = 0; ///< At least 1.
    std::int32_t height = 0;
    /// Bytes of a pixel as they are handed over: 1 is grey, or the index when `indexed`; 2 grey and alpha; 3
    /// red, green and blue; 4 these and alpha.
    int channels = 0;
    bool indexed = false;
    int colourCount = 0;                                    ///< Of an indexed file, 1 to 256.
    std::array<std::array<std::uint8_t, 4>, 256> colours{}; ///< Red, green, blue, alpha.
};

/// Who takes the pixels.
class PngSink {
public:
    virtual ~PngSink() = default;

    /// Called once, before all rows. Empty to go on; otherwise why not, which becomes the result of
    /// `readPng`.
    [[nodiscard]] virtual QString begin(const PngHeader& header) = 0;
    /// `count` pixels of row y, the top one being 0: at the columns first, first + step and so on. The rows
    /// of an interlaced file come in parts.
    virtual void take(std::int32_t y, std::int32_t first, std::int32_t step, std::int32_t count,
                      const std::uint8_t* pixels) noexcept = 0;
};

/// Reads a PNG file of any kind in one pass. Channels of 16 bits come down to 8, the colour that stands for
/// transparency becomes alpha; gamma and colour profiles are left alone. Empty when the whole file was read;
/// otherwise why it was not, in the user's language.
[[nodiscard]] QString readPng(const QString& path, PngSink& sink);

} // namespace dyeworks::plugins

#pragma once

#include "cli/LoadedPicture.h"
#include "paint/Rect.h"
#include "platform/Result.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace dyeworks {

/// Pixels 0xffRRGGBB, row by row from the top.
struct PixelSheet {
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::vector<std::uint32_t> pixels;

    /// Sizes it and fills it with a colour. False when it would be larger than a picture can be.
    [[nodiscard]] bool make(Size size, std::uint32_t colour);
};

/// How an image is shown.
struct RenderLook {
    std::int32_t zoom = 1;
    bool grid = false;
    bool alphaView = false;    ///< Alpha as greys in place of the colours.
    bool checkerboard = false; ///< Shines through what is transparent.
};

/// By value, 0xffRRGGBB, what the image's texels are shown in.
[[nodiscard]] std::array<std::uint32_t, 256> displayColours(const LoadedPicture& picture,
                                                            bool alphaView = false);

/// The image as a view with this look shows it, without what surrounds it. Without a palette its values are
/// greys. Otherwise a sentence for the user.
[[nodiscard]] Result<PixelSheet, std::string> render(const LoadedPicture& picture, const RenderLook& look);

/// What it is drawn over where nothing of it is seen: squares of 8 pixels.
[[nodiscard]] std::uint32_t checkerboardAt(std::int32_t x, std::int32_t y) noexcept;

} // namespace dyeworks

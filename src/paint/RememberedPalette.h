#pragma once

#include <string>

namespace dyeworks {

/// The key of the palette that the image of this file was attached to when its view closed last; "" when it
/// was to none, or nothing is remembered.
[[nodiscard]] std::string rememberedPalette(const std::string& imagePath);

} // namespace dyeworks

#pragma once

#include "paint/TextureCanvas.h"

#include <cstdint>
#include <memory>
#include <string>

namespace dyeworks {

/// The image in the colours of the palette, as opening both and attaching one to the other would show it;
/// null when either file cannot be read or the image is above 64 MiB. Nobody is told.
[[nodiscard]] std::unique_ptr<TextureCanvas>
readPicture(const std::string& imagePath, const std::string& palettePath, std::int32_t paletteNumber);

} // namespace dyeworks

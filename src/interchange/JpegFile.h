#pragma once

#include "platform/PictureReader.h"

namespace dyeworks {

/// Whether the bytes begin as a JPEG file does.
[[nodiscard]] bool isJpeg(std::span<const std::byte> file) noexcept;

/// Reads a JPEG file, baseline or progressive, of greys, colours or four inks, as a picture of direct
/// colours, turned as its Exif block tells. Colour profiles are left alone. A file that is cut off is refused
/// as a whole; one whose pixels are damaged gives what the library makes of them.
[[nodiscard]] Result<Picture, PictureError> readJpeg(std::span<const std::byte> file);

} // namespace dyeworks

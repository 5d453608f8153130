#pragma once

#include "platform/Picture.h"

#include <cstddef>
#include <span>

namespace dyeworks {

/// How the picture is to be turned and mirrored to be seen, as the application segment of a JPEG file says
/// (tag "Orientation" of Exif 2.3, 1 to 8). 1, as it stands, where it says nothing.
[[nodiscard]] int exifTurn(std::span<const std::byte> segment) noexcept;

/// A picture of direct colours, turned so.
[[nodiscard]] Picture turned(Picture picture, int turn);

} // namespace dyeworks

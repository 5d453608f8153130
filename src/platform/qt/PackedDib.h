#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace dyeworks {

/// A BMP file whose bitmap is `dib`, a packed one: header, masks, colour table and pixel rows without gaps.
/// The file is the 14 bytes of its header and then the bytes of `dib`, unchanged. Nothing when there is no
/// header of a known size or the colour table does not fit.
[[nodiscard]] std::optional<std::vector<std::byte>> bmpFromDib(std::span<const std::byte> dib);

/// The packed bitmap in a BMP file. A gap that the file leaves before its pixel rows is taken out; all other
/// bytes are as they stand in the file. Nothing when `bmp` is no BMP file or is cut off before its pixels.
[[nodiscard]] std::optional<std::vector<std::byte>> dibFromBmp(std::span<const std::byte> bmp);

} // namespace dyeworks

#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace dyeworks {

/// A BMP file whose bitmap is `dib`, a packed one: header, colour table and pixel rows without gaps. The file
/// is the 14 bytes of its header and then the bytes of `dib`, unchanged. Nothing when `dib` is compressed,
/// has no header of a known size or ends before its rows.
[[nodiscard]] std::optional<std::vector<std::byte>> bmpFromDib(std::span<const std::byte> dib);

/// The packed bitmap in a BMP file: the bytes behind the file header, with colours and rows found as in a
/// file that is opened. A gap before the rows is taken out, and black is filled in for colours that the
/// header announces and the file leaves out. Nothing when `bmp` is no BMP file, is compressed, or ends before
/// its rows.
[[nodiscard]] std::optional<std::vector<std::byte>> dibFromBmp(std::span<const std::byte> bmp);

} // namespace dyeworks

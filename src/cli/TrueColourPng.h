#pragma once

#include "platform/Picture.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace dyeworks {

/// A PNG file of opaque pixels, 0xffRRGGBB, row by row from the top. Empty when there is no memory for it.
[[nodiscard]] std::string trueColourPng(std::int32_t width, std::int32_t height,
                                        std::span<const std::uint32_t> pixels);
/// The same of a picture of direct colours, with their alpha.
[[nodiscard]] std::string trueColourPng(const Picture& picture);

} // namespace dyeworks

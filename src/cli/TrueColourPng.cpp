#include "cli/TrueColourPng.h"

#include <png.h>

namespace dyeworks {

std::string trueColourPng(std::int32_t width, std::int32_t height, std::span<const std::uint32_t> pixels) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width);
    image.height = static_cast<png_uint_32>(height);
    image.format = PNG_FORMAT_RGB;
    std::string rows;
    rows.reserve(pixels.size() * 3);
    for (const std::uint32_t pixel : pixels) {
        rows += static_cast<char>(pixel >> 16U & 255U);
        rows += static_cast<char>(pixel >> 8U & 255U);
        rows += static_cast<char>(pixel & 255U);
    }
    png_alloc_size_t size = 0;
    if (png_image_write_to_memory(&image, nullptr, &size, 0, rows.data(), 0, nullptr) == 0)
        return {};
    std::string file(size, '\0');
    if (png_image_write_to_memory(&image, file.data(), &size, 0, rows.data(), 0, nullptr) == 0)
        return {};
    file.resize(size);
    return file;
}

} // namespace dyeworks

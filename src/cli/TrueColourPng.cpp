#include "cli/TrueColourPng.h"

#include <png.h>

namespace dyeworks {

namespace {

std::string pngOf(std::int32_t width, std::int32_t height, png_uint_32 format, const void* rows) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width);
    image.height = static_cast<png_uint_32>(height);
    image.format = format;
    png_alloc_size_t size = 0;
    if (png_image_write_to_memory(&image, nullptr, &size, 0, rows, 0, nullptr) == 0)
        return {};
    std::string file(size, '\0');
    if (png_image_write_to_memory(&image, file.data(), &size, 0, rows, 0, nullptr) == 0)
        return {};
    file.resize(size);
    return file;
}

} // namespace

std::string trueColourPng(std::int32_t width, std::int32_t height, std::span<const std::uint32_t> pixels) {
    std::string rows;
    rows.reserve(pixels.size() * 3);
    for (const std::uint32_t pixel : pixels) {
        rows += static_cast<char>(pixel >> 16U & 255U);
        rows += static_cast<char>(pixel >> 8U & 255U);
        rows += static_cast<char>(pixel & 255U);
    }
    return pngOf(width, height, PNG_FORMAT_RGB, rows.data());
}

std::string trueColourPng(const Picture& picture) {
    static_assert(sizeof(Colour) == 4 && offsetof(Colour, alpha) == 3, "pixels as the library takes them");
    return pngOf(picture.width, picture.height, PNG_FORMAT_RGBA, picture.pixels.data());
}

} // namespace dyeworks

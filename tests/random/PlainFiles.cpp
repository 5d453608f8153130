#include "PlainFiles.h"

#include <array>
#include <cstddef>

namespace dyeworks {

namespace {

constexpr std::size_t kHeader = 64;

std::string big(std::uint32_t value) {
    std::string bytes;
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes += static_cast<char>(value >> shift & 0xFFU);
    return bytes;
}

std::uint32_t bigAt(const std::string& bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value = value << 8 | static_cast<std::uint8_t>(bytes[at + i]);
    return value;
}

} // namespace

PlainTable PlainTable::fresh(int type, int count, int alpha) {
    static constexpr std::array<std::uint16_t, 16> kColours{0x0000, 0x7800, 0x03C0, 0x7BC0, 0x001E, 0x781E,
                                                            0x03DE, 0x7BDE, 0xBDEE, 0xF800, 0x07C0, 0xFFC0,
                                                            0x003E, 0xF83E, 0x07FE, 0xFFFE};
    PlainTable table{type, {}};
    for (int i = 0; i < count; ++i) {
        const int colour = type == 0 ? kColours[static_cast<std::size_t>(i % 16)] | (alpha & 1)
                                     : ((i + 1) * 256 / count - 1) << 8 | (alpha & 255);
        table.entries.push_back(static_cast<std::uint16_t>(colour));
    }
    return table;
}

std::vector<std::uint8_t> PlainTable::shown(std::size_t entry) const {
    const unsigned value = entries[entry];
    const auto byte = [](unsigned shown) { return static_cast<std::uint8_t>(shown); };
    if (type == 1)
        return {byte(value >> 8), byte(value >> 8), byte(value >> 8)};
    return {byte((value >> 11) * 8), byte((value >> 6 & 31U) * 8), byte((value >> 1 & 31U) * 8)};
}

int PlainTable::alpha(std::size_t entry) const {
    return type == 1 ? entries[entry] & 255 : entries[entry] % 2 * 255;
}

std::uint32_t PlainTable::cell(std::size_t entry) const {
    const std::uint32_t value = entries[entry];
    if (type == 1)
        return (value & 255U) << 24 | (value >> 8) * 0x10101U;
    const auto widened = [](std::uint32_t five) { return five << 3 | five >> 2; };
    return (value % 2 * 255U) << 24 | widened(value >> 1 & 31U) << 16 | widened(value >> 6 & 31U) << 8 |
           widened(value >> 11);
}

/// Red is the intensity, and of alpha the lowest bit stays.
void PlainTable::setCell(std::size_t entry, std::uint32_t value) {
    const std::uint32_t red = value & 255U;
    const std::uint32_t green = value >> 8 & 255U;
    const std::uint32_t blue = value >> 16 & 255U;
    const std::uint32_t alpha = value >> 24;
    entries[entry] = static_cast<std::uint16_t>(
        type == 1 ? red << 8 | alpha : red >> 3 << 11 | green >> 3 << 6 | blue >> 3 << 1 | (alpha & 1U));
}

/// By red, green, blue and alpha, which count 3, 6, 1 and 4; what is transparent is like nothing that is not.
std::size_t PlainTable::nearestInBank(std::size_t entry, std::size_t bank) const {
    const auto distance = [this, entry](std::size_t other) {
        const int away = alpha(entry) - alpha(other);
        double sum = 4.0 * away * away + ((alpha(entry) == 0) == (alpha(other) == 0) ? 0 : 1e9);
        for (std::size_t i = 0; i < 3; ++i) {
            const int step = shown(entry)[i] - shown(other)[i];
            sum += (i == 0 ? 3.0 : i == 1 ? 6.0 : 1.0) * step * step;
        }
        return sum;
    };
    if (entry / 16 == bank)
        return entry % 16;
    std::size_t nearest = 0;
    for (std::size_t i = 1; i < 16; ++i) {
        if (distance(16 * bank + i) < distance(16 * bank + nearest))
            nearest = i;
    }
    return nearest;
}

std::string imageFile(const PlainImage& image) {
    std::string bytes =
        big(image.bits == 4 ? 0x00120200U : 0x00120300U) + big(static_cast<std::uint32_t>(image.width)) +
        big(static_cast<std::uint32_t>(image.height)) + big(static_cast<std::uint32_t>(image.bits));
    bytes.resize(kHeader);
    for (std::int32_t y = image.height - 1; y >= 0; --y) {
        for (std::int32_t x = 0; x < image.width; x += 8 / image.bits) {
            const std::uint32_t first = image.at({x, y});
            bytes += static_cast<char>(image.bits == 8 ? first : first << 4 | image.at({x + 1, y}));
        }
    }
    while (bytes.size() % 4 != 0)
        bytes += '\0';
    return bytes;
}

std::string paletteFile(const PlainTable& table) {
    std::string bytes = big(table.entries.size() == 16 ? 0x00200100U : 0x00200200U) +
                        big(static_cast<std::uint32_t>(table.entries.size())) +
                        big(static_cast<std::uint32_t>(table.type));
    bytes.resize(kHeader);
    for (const unsigned entry : table.entries) {
        bytes += static_cast<char>(entry >> 8);
        bytes += static_cast<char>(entry & 0xFFU);
    }
    return bytes;
}

PlainImage readImageFile(const std::string& bytes) {
    PlainImage image = PlainImage::blank(static_cast<std::int32_t>(bigAt(bytes, 4)),
                                         static_cast<std::int32_t>(bigAt(bytes, 8)),
                                         static_cast<std::int32_t>(bigAt(bytes, 12)));
    std::size_t at = kHeader;
    for (std::int32_t y = image.height - 1; y >= 0; --y) {
        for (std::int32_t x = 0; x < image.width; x += 8 / image.bits) {
            const auto byte = static_cast<std::uint8_t>(bytes[at++]);
            image.put({x, y}, image.bits == 8 ? byte : byte >> 4U);
            if (image.bits == 4)
                image.put({x + 1, y}, byte);
        }
    }
    return image;
}

PlainTable readPaletteFile(const std::string& bytes) {
    PlainTable table{static_cast<int>(bigAt(bytes, 8)), {}};
    for (std::size_t at = kHeader; at < bytes.size(); at += 2) {
        table.entries.push_back(static_cast<std::uint16_t>(static_cast<std::uint8_t>(bytes[at]) << 8 |
                                                           static_cast<std::uint8_t>(bytes[at + 1])));
    }
    return table;
}

} // namespace dyeworks

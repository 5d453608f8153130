#pragma once

#include "platform/LittleEndian.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace dyeworks {

/// A BMP file to be spoilt. Pixel rows hold 1, 2, 3 ... in byte order.
struct BmpFile {
    std::uint32_t headerSize = 40;
    std::int32_t width = 4;
    std::int32_t height = 2;
    std::uint16_t bits = 8;
    std::uint32_t compression = 0;
    std::uint32_t coloursUsed = 0;
    std::uint32_t colours = 256; ///< Entries there, each with blue, green, red = its number.
    std::size_t gap = 0;         ///< Bytes between colours and rows.
    std::size_t rowBytes = 8;

    [[nodiscard]] std::vector<std::byte> bytes() const {
        const std::size_t colourSize = headerSize == 12 ? 3 : 4;
        const std::size_t tableAt = 14 + headerSize;
        const std::size_t rowsAt = tableAt + colours * colourSize + gap;
        std::vector<std::byte> file(rowsAt + rowBytes);
        writeU16(file, 0, 0x4D42);
        writeU32(file, 2, static_cast<std::uint32_t>(file.size()));
        writeU32(file, 10, static_cast<std::uint32_t>(rowsAt));
        writeU32(file, 14, headerSize);
        if (headerSize == 12) {
            writeU16(file, 18, static_cast<std::uint32_t>(width));
            writeU16(file, 20, static_cast<std::uint32_t>(height));
            writeU16(file, 22, 1);
            writeU16(file, 24, bits);
        } else {
            writeU32(file, 18, static_cast<std::uint32_t>(width));
            writeU32(file, 22, static_cast<std::uint32_t>(height));
            writeU16(file, 26, 1);
            writeU16(file, 28, bits);
            writeU32(file, 30, compression);
            writeU32(file, 38, 2835);
            writeU32(file, 46, coloursUsed);
        }
        for (std::size_t i = 0; i < colours; ++i) {
            for (std::size_t channel = 0; channel < 3; ++channel)
                file[tableAt + i * colourSize + channel] = static_cast<std::byte>(i);
        }
        for (std::size_t i = 0; i < rowBytes; ++i)
            file[rowsAt + i] = static_cast<std::byte>(i + 1);
        return file;
    }
};

} // namespace dyeworks

#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>

namespace dyeworks {

class TextureCanvas;

// From 8 bits to 4 and back. An image of 4 bits shows one bank, 16 entries, of a palette of 256.

/// A colour as it is told from others; 8 bits a channel.
struct ShownColour {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    std::uint8_t alpha = 255;
};

/// How many texels of an 8-bit canvas have each index. All 0 for any other depth.
using IndexCounts = std::array<std::int64_t, 256>;
[[nodiscard]] IndexCounts countIndexes(const TextureCanvas& canvas);

/// The one of `banks` banks that most texels lie in; the first of several.
[[nodiscard]] std::int32_t fullestBank(const IndexCounts& counts, std::int32_t banks);
/// How many texels lie in other banks.
[[nodiscard]] std::int64_t countOutside(const IndexCounts& counts, std::int32_t bank);

/// What each of 256 indexes becomes within the bank, 0 to 15: those of the bank keep their place in it,
/// others take the nearest of its colours, the first of several. What is transparent stays so, and what is
/// not does not become so, where the bank allows it.
using IndexMap = std::array<std::uint8_t, 256>;
[[nodiscard]] IndexMap nearestInBank(std::span<const ShownColour, 256> colours, std::int32_t bank);

/// A 4-bit canvas of an 8-bit one, its indexes mapped, its colours those of the bank. Null for any other
/// depth and when there is no memory for it.
[[nodiscard]] std::unique_ptr<TextureCanvas> inFourBits(const TextureCanvas& canvas, const IndexMap& map,
                                                        std::int32_t bank);
/// An 8-bit canvas of a 4-bit one, index n becoming entry n of the bank (0 to 15). Null as above.
[[nodiscard]] std::unique_ptr<TextureCanvas> inEightBits(const TextureCanvas& canvas, std::int32_t bank);

} // namespace dyeworks

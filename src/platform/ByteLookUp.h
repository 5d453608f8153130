#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace dyeworks {

/// What each byte becomes.
using ByteTable = std::array<std::uint8_t, 256>;

/// Puts what the table has for it in the place of every byte.
void lookUp(std::span<std::uint8_t> bytes, const ByteTable& table);

using ByteLookUp = void (*)(std::span<std::uint8_t> bytes, const ByteTable& table);
/// All ways to do that on this processor, which do the same; the fastest, which `lookUp` goes, first.
[[nodiscard]] std::vector<ByteLookUp> byteLookUps();

} // namespace dyeworks

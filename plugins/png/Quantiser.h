#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace dyeworks::plugins {

/// Colours as palette entries have them; every value of 16 bits is one.
constexpr std::size_t kEntryValues = 65536;

/// How a picture's colours come down to a palette's.
struct Reduction {
    std::vector<std::uint16_t> entries;             ///< As many as were allowed, or fewer.
    std::array<std::uint8_t, kEntryValues> index{}; ///< Of each colour that occurs: its entry.
};

/// Reduces colours to at most `room` (2 to 256) entries of the colour type. `counts` says how often each
/// colour occurs; 0 is what all fully transparent texels are counted as, and gets an entry of its own, the
/// first. Colours that fit are kept as they are, in ascending order. Others are divided as in Wu, "Color
/// quantization by dynamic programming and principal analysis" (1992): the group with the largest squared
/// error is cut in two along the channel of its largest variance, where the two parts' errors are the least.
/// The same counts always give the same entries.
[[nodiscard]] Reduction reduceColours(std::span<const std::uint32_t, kEntryValues> counts,
                                      std::uint32_t colourType, std::size_t room);

} // namespace dyeworks::plugins

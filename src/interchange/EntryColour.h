#pragma once

#include "core/ColourType.h"
#include "core/TlutData.h"
#include "platform/Picture.h"

#include <cstdint>
#include <vector>

namespace dyeworks {

/// What the display shows of a palette entry: five bits are widened by three zeroes below, an intensity is
/// grey. The alpha bit becomes 0 or 255, an IA entry's alpha stays. Black for an unknown type.
[[nodiscard]] Colour colourOf(ColourType type, std::uint16_t entry) noexcept;
/// The same of the palette's entry `index`; opaque black outside of it.
[[nodiscard]] Colour colourOf(const TlutData& palette, std::int64_t index) noexcept;

/// The entry of a colour: the five bits of each channel that were widened to it, by zeroes or by repeating
/// the upper ones; of a colour that none gives so, the nearest that the display shows. Greys of an IA entry
/// are weighted as in ITU-R BT.601, which leaves greys as they are; alpha of an RGBA entry is set from 128
/// on.
[[nodiscard]] std::uint16_t entryOf(ColourType type, Colour colour) noexcept;

/// Whether an entry is exactly this colour, alpha included, with its five bits widened by zeroes or by their
/// upper bits.
[[nodiscard]] bool isExact(ColourType type, Colour colour) noexcept;

/// The colour type of a new palette for these colours: intensity and alpha where all of them are grey and
/// 5-5-5-1 would lose some of their steps; else RGBA.
[[nodiscard]] ColourType colourTypeFor(const std::vector<Colour>& colours) noexcept;

} // namespace dyeworks

#pragma once

#include "palette/EntryMap.h"
#include "palette/EntryRange.h"

#include <array>
#include <bitset>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace dyeworks {

struct TlutData;

/// What gives entries other places without changing a picture.
enum class EntryOperation {
    Move,       ///< The range goes elsewhere, what lies between moves up.
    Swap,       ///< The range changes places with one of the same length.
    Sort,       ///< The entries of the range come into an order.
    MergeTwins, ///< Texels of equal entries all take the first of them; the others become free.
    Compact     ///< Entries that no texel has go to the end of the range.
};

enum class EntrySortKey {
    Lightness, ///< From dark to light.
    Hue,       ///< Greys first, from dark to light; then from red by yellow, green and blue.
    Use,       ///< What most texels have comes first.
    Value      ///< The 16 bits as a number.
};

/// How many texels have each entry.
using EntryCounts = std::array<std::uint64_t, EntryMap::kMostEntries>;
/// Of the entries of a palette.
using EntrySet = std::bitset<EntryMap::kMostEntries>;

struct EntryOrder {
    EntryOperation operation = EntryOperation::Sort;
    EntryRange range{0, 0};
    std::int32_t target = 0; ///< Move, Swap: where the first entry of the range goes.
    EntrySortKey key = EntrySortKey::Lightness;
    bool reversed = false;    ///< Sort: the other way round; what is equal keeps its order.
    bool insideBanks = false; ///< Sort, MergeTwins, Compact: each bank of 16 entries by itself.
    EntrySet kept = 0;        ///< Sort, MergeTwins, Compact: these stay, and so do their texels.
};

/// Where the entries go. Nothing when range or target do not lie in the palette, and when ranges that are to
/// be swapped overlap. `use` is read by Use and Compact.
[[nodiscard]] std::optional<EntryMap> mapOf(const EntryOrder& order, const TlutData& table,
                                            const EntryCounts& use);

/// Reads entries as a person writes them, "0, 5, 16-31"; none for an empty text. Nothing for any other text
/// and for entries from `count` on.
[[nodiscard]] std::optional<EntrySet> parseEntries(std::string_view text, std::int32_t count);

} // namespace dyeworks

#include "interchange/ColourReduction.h"

#include "interchange/ColourHistogram.h"
#include "interchange/EntryMatcher.h"
#include "interchange/PaletteSearch.h"
#include "interchange/PixelMatch.h"
#include "interchange/WorkProgress.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <iterator>
#include <new>

namespace dyeworks {

namespace {

/// A new palette, of which locked entries have their places; the others take the first that are free.
class NewPalette {
public:
    explicit NewPalette(const ReductionOptions& options)
        : slots_(static_cast<std::size_t>(options.colours)) {
        for (const LockedEntry& locked : options.locked) {
            assert(locked.index >= 0 && locked.index < options.colours);
            slots_[static_cast<std::size_t>(locked.index)] = {locked.entry, true, true};
        }
    }

    [[nodiscard]] std::size_t freeSlots() const noexcept {
        return static_cast<std::size_t>(std::ranges::count(slots_, false, &Slot::taken));
    }

    /// Where the entry went: there must be a free slot.
    std::size_t add(std::uint16_t entry) noexcept {
        const auto slot = std::ranges::find(slots_, false, &Slot::taken);
        *slot = {entry, true, false};
        return static_cast<std::size_t>(slot - slots_.begin());
    }

    [[nodiscard]] bool isLocked(std::size_t index) const noexcept { return slots_[index].locked; }

    [[nodiscard]] std::vector<std::uint16_t> locked() const {
        std::vector<std::uint16_t> entries;
        for (const Slot& slot : slots_)
            if (slot.locked)
                entries.push_back(slot.entry);
        return entries;
    }

    /// Up to the last that is taken.
    [[nodiscard]] std::vector<std::uint16_t> entries() const {
        const auto end = std::ranges::find(slots_.rbegin(), slots_.rend(), true, &Slot::taken).base();
        std::vector<std::uint16_t> entries;
        std::transform(slots_.begin(), end, std::back_inserter(entries),
                       [](const Slot& slot) { return slot.entry; });
        return entries;
    }

private:
    struct Slot {
        std::uint16_t entry = 0;
        bool taken = false;
        bool locked = false;
    };
    std::vector<Slot> slots_;
};

bool contains(const std::vector<std::uint16_t>& entries, std::uint16_t entry) {
    return std::ranges::find(entries, entry) != entries.end();
}

/// Entries for the cells, as far as there is room for them, from dark to light.
void fill(NewPalette& palette, ColourType type, const std::vector<ColourCell>& cells,
          WorkProgress& progress) {
    const std::vector<std::uint16_t> locked = palette.locked();
    std::vector<std::uint16_t> entries;
    for (const ColourCell& cell : cells)
        if (!contains(locked, cell.entry))
            entries.push_back(cell.entry);
    if (entries.size() > palette.freeSlots())
        entries = searchPalette(type, cells, palette.freeSlots(), locked, progress);
    std::ranges::sort(entries);
    std::ranges::stable_sort(entries, {}, [&](std::uint16_t entry) { return entryPoints(type)[entry].x; });
    for (const std::uint16_t entry : entries)
        palette.add(entry);
}

/// Entries that no pixel has in the end make room for those behind them.
void dropUnused(ReducedPicture& reduced, const NewPalette& palette, const ReductionOptions& options) {
    std::array<bool, 256> used{};
    for (const std::uint8_t index : reduced.indices)
        used[index] = true;
    NewPalette smaller(options);
    std::array<std::uint8_t, 256> moved{};
    for (std::size_t i = 0; i < reduced.entries.size(); ++i) {
        if (palette.isLocked(i))
            moved[i] = static_cast<std::uint8_t>(i);
        else if (used[i])
            moved[i] = static_cast<std::uint8_t>(smaller.add(reduced.entries[i]));
    }
    if (smaller.entries() == reduced.entries)
        return;
    reduced.entries = smaller.entries();
    for (std::uint8_t& index : reduced.indices)
        index = moved[index];
}

ReducedPicture reduce(const Picture& picture, const ReductionOptions& options, WorkProgress& progress) {
    progress.stage(0, 200);
    const ColourType type = options.colourType;
    const ColourHistogram histogram = histogramOf(picture, type, options.alphaThreshold, progress);
    NewPalette palette(options);
    const bool hasTransparent =
        std::ranges::any_of(palette.locked(), [](std::uint16_t entry) { return (entry & 1U) == 0; });
    if (histogram.transparent && !hasTransparent && palette.freeSlots() > 0)
        palette.add(0);
    progress.stage(200, 500);
    fill(palette, type, histogram.cells, progress);

    ReducedPicture reduced{{}, palette.entries()};
    if (progress.stopped())
        return reduced;
    progress.stage(500, 1000);
    EntryMatcher matcher(type, reduced.entries, options.dither != Dither::None);
    reduced.indices = matchPixels(picture, matcher, options, progress);
    dropUnused(reduced, palette, options);
    return reduced;
}

ReducedPicture match(const Picture& picture, std::span<const std::uint16_t> entries,
                     const ReductionOptions& options, WorkProgress& progress) {
    EntryMatcher matcher(options.colourType, entries, options.dither != Dither::None);
    return {matchPixels(picture, matcher, options, progress), {entries.begin(), entries.end()}};
}

/// What `work` gives, unless it was stopped or the memory was not enough.
template <class Work>
Result<ReducedPicture, InterchangeError> answerOf(const Progress& told, Work work) {
    WorkProgress progress(told);
    try {
        ReducedPicture reduced = work(progress);
        if (!progress.stopped())
            return reduced;
    } catch (const std::bad_alloc&) {
        return InterchangeError{InterchangeError::Kind::NoMemory, {}, 0, 0};
    }
    return InterchangeError{InterchangeError::Kind::Cancelled, {}, 0, 0};
}

} // namespace

Result<ReducedPicture, InterchangeError>
reduceColours(const Picture& picture, const ReductionOptions& options, const Progress& progress) {
    assert(options.colours >= 1 && options.colours <= 256);
    return answerOf(progress, [&](WorkProgress& work) { return reduce(picture, options, work); });
}

Result<ReducedPicture, InterchangeError> matchColours(const Picture& picture,
                                                      std::span<const std::uint16_t> entries,
                                                      const ReductionOptions& options,
                                                      const Progress& progress) {
    assert(!entries.empty() && entries.size() <= 256);
    return answerOf(progress, [&](WorkProgress& work) { return match(picture, entries, options, work); });
}

} // namespace dyeworks

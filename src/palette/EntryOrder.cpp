#include "palette/EntryOrder.h"

#include "core/TlutData.h"
#include "palette/EntryShade.h"
#include "palette/NumberText.h"

#include <algorithm>
#include <vector>

namespace dyeworks {

namespace {

/// Below this a colour is seen as a grey, whose hue means nothing.
constexpr double kLeastChroma = 4;

using Entries = std::vector<std::int32_t>;

/// The entries that change places with each other, group by group.
std::vector<Entries> groupsOf(const EntryOrder& order) {
    std::vector<Entries> groups;
    std::int32_t bank = -1;
    for (std::int32_t entry = order.range.first; entry <= order.range.last; ++entry) {
        const std::int32_t itsBank = order.insideBanks ? entry / kBankSize : 0;
        if (itsBank != bank)
            groups.emplace_back();
        bank = itsBank;
        if (!order.kept.test(static_cast<std::size_t>(entry)))
            groups.back().push_back(entry);
    }
    return groups;
}

std::uint64_t useOf(const EntryCounts& use, std::int32_t entry) {
    return use[static_cast<std::size_t>(entry)];
}

/// What an entry is compared by, the first number before the second.
std::array<double, 2> weightOf(const EntryOrder& order, const TlutData& table, const EntryCounts& use,
                               std::int32_t entry) {
    const std::uint16_t value = table.getEntry(entry);
    switch (order.key) {
    case EntrySortKey::Use:
        return {-static_cast<double>(useOf(use, entry)), 0};
    case EntrySortKey::Value:
        return {static_cast<double>(value), 0};
    default:
        break;
    }
    const EntryShade shade = shadeOf(table.colourType, value);
    if (order.key == EntrySortKey::Lightness)
        return {shade.lightness, 0};
    return {shade.chroma < kLeastChroma ? -1 : shade.hue, shade.lightness};
}

void placeSorted(EntryMap& map, const Entries& places, const EntryOrder& order, const TlutData& table,
                 const EntryCounts& use) {
    struct Weighed {
        std::array<double, 2> weight;
        std::int32_t entry;
    };
    std::vector<Weighed> entries;
    for (const std::int32_t entry : places)
        entries.push_back({weightOf(order, table, use, entry), entry});
    std::ranges::stable_sort(entries, [&](const Weighed& one, const Weighed& other) {
        return order.reversed ? other.weight < one.weight : one.weight < other.weight;
    });
    for (std::size_t i = 0; i < places.size(); ++i)
        map.set(entries[i].entry, places[i]);
}

void placeUsedFirst(EntryMap& map, const Entries& places, const EntryCounts& use) {
    Entries entries = places;
    std::stable_partition(entries.begin(), entries.end(),
                          [&](std::int32_t entry) { return useOf(use, entry) > 0; });
    for (std::size_t i = 0; i < places.size(); ++i)
        map.set(entries[i], places[i]);
}

/// A twin that is kept may be the one that takes the others' texels.
void mergeTwins(EntryMap& map, const EntryOrder& order, const TlutData& table) {
    for (std::int32_t entry = order.range.first; entry <= order.range.last; ++entry) {
        if (order.kept.test(static_cast<std::size_t>(entry)))
            continue;
        std::int32_t twin = order.range.first;
        if (order.insideBanks)
            twin = std::max(twin, entry / kBankSize * kBankSize);
        while (table.getEntry(twin) != table.getEntry(entry))
            ++twin;
        map.set(entry, twin);
    }
}

void move(EntryMap& map, EntryRange range, std::int32_t target) {
    const std::int32_t length = range.last - range.first + 1;
    for (std::int32_t entry = range.first; entry <= range.last; ++entry)
        map.set(entry, target + entry - range.first);
    for (std::int32_t entry = target; entry < range.first; ++entry)
        map.set(entry, entry + length);
    for (std::int32_t entry = range.last + 1; entry < target + length; ++entry)
        map.set(entry, entry - length);
}

void swapRanges(EntryMap& map, EntryRange range, std::int32_t target) {
    for (std::int32_t i = 0; i <= range.last - range.first; ++i) {
        map.set(range.first + i, target + i);
        map.set(target + i, range.first + i);
    }
}

} // namespace

std::optional<EntryMap> mapOf(const EntryOrder& order, const TlutData& table, const EntryCounts& use) {
    const auto [first, last] = order.range;
    if (first < 0 || first > last || last >= table.count || table.count > EntryMap::kMostEntries)
        return std::nullopt;
    EntryMap map(table.count);
    switch (order.operation) {
    case EntryOperation::Move:
    case EntryOperation::Swap: {
        if (order.target < 0 || order.target + last - first >= table.count)
            return std::nullopt;
        if (order.operation == EntryOperation::Move) {
            move(map, order.range, order.target);
            break;
        }
        const std::int32_t distance = order.target < first ? first - order.target : order.target - first;
        if (distance != 0 && distance <= last - first)
            return std::nullopt;
        swapRanges(map, order.range, order.target);
        break;
    }
    case EntryOperation::Sort:
        for (const Entries& places : groupsOf(order))
            placeSorted(map, places, order, table, use);
        break;
    case EntryOperation::MergeTwins:
        mergeTwins(map, order, table);
        break;
    case EntryOperation::Compact:
        for (const Entries& places : groupsOf(order))
            placeUsedFirst(map, places, use);
        break;
    }
    return map;
}

std::optional<EntrySet> parseEntries(std::string_view text, std::int32_t count) {
    EntrySet entries;
    const auto trimmed = [](std::string_view part) {
        const std::size_t first = part.find_first_not_of(' ');
        return first == std::string_view::npos ? std::string_view()
                                               : part.substr(first, part.find_last_not_of(' ') - first + 1);
    };
    const auto number = [&](std::string_view part) -> std::optional<std::int32_t> {
        part = trimmed(part);
        const bool digits = !part.empty() && part.find_first_not_of("0123456789") == std::string_view::npos;
        const auto value = digits ? parseNumber(part) : std::nullopt;
        return value && *value < count ? value : std::nullopt;
    };
    for (text = trimmed(text); !text.empty();) {
        const std::size_t comma = std::min(text.find(','), text.size());
        const std::string_view part = text.substr(0, comma);
        const std::size_t dash = std::min(part.find('-'), part.size());
        const auto first = number(part.substr(0, dash));
        const auto last = dash == part.size() ? first : number(part.substr(dash + 1));
        if (!first || !last || *first > *last)
            return std::nullopt;
        for (std::int32_t entry = *first; entry <= *last; ++entry)
            entries.set(static_cast<std::size_t>(entry));
        text = trimmed(text.substr(std::min(comma + 1, text.size())));
    }
    return entries;
}

} // namespace dyeworks

#include "png/Quantiser.h"

#include "dyeworks/plugin.h"

#include <algorithm>
#include <cmath>

namespace dyeworks::plugins {

namespace {

constexpr std::size_t kMaxChannels = 3;

/// Where the channels of an entry are; all that count in its colour.
struct Layout {
    std::size_t channels;
    std::array<int, kMaxChannels> shift;
    unsigned mask;
    std::uint16_t constant; ///< Bits that every colour has but the transparent one.

    [[nodiscard]] unsigned channel(std::uint16_t value, std::size_t at) const {
        return value >> shift.at(at) & mask;
    }
};

constexpr Layout kRgba{3, {11, 6, 1}, 31, 1};
constexpr Layout kIa{2, {8, 0, 0}, 255, 0};

struct Colour {
    std::uint16_t value;
    std::uint32_t count;
};

/// Sums over some colours, from which their squared error follows.
struct Sums {
    double count = 0;
    std::array<double, kMaxChannels> sum{};
    std::array<double, kMaxChannels> squares{};

    void add(const Layout& layout, const Colour& colour) {
        count += colour.count;
        for (std::size_t at = 0; at < layout.channels; ++at) {
            const double value = layout.channel(colour.value, at);
            sum[at] += value * colour.count;
            squares[at] += value * value * colour.count;
        }
    }
    [[nodiscard]] Sums without(const Sums& part) const {
        Sums rest = *this;
        rest.count -= part.count;
        for (std::size_t at = 0; at < kMaxChannels; ++at) {
            rest.sum[at] -= part.sum[at];
            rest.squares[at] -= part.squares[at];
        }
        return rest;
    }
    [[nodiscard]] double error(std::size_t at) const { return squares[at] - sum[at] * sum[at] / count; }
    [[nodiscard]] double error() const {
        double all = 0;
        for (std::size_t at = 0; at < kMaxChannels; ++at)
            all += error(at);
        return all;
    }
};

struct Group {
    std::span<Colour> colours;
    Sums sums;
    double error = 0;
};

Group groupOf(const Layout& layout, std::span<Colour> colours) {
    Group group{colours, {}, 0};
    for (const Colour& colour : colours)
        group.sums.add(layout, colour);
    group.error = colours.size() == 1 ? 0 : group.sums.error();
    return group;
}

/// Cuts a group of at least two colours; it keeps one part, the result is the other.
Group cut(const Layout& layout, Group& group) {
    std::size_t axis = 0;
    for (std::size_t at = 1; at < layout.channels; ++at) {
        if (group.sums.error(at) > group.sums.error(axis))
            axis = at;
    }
    std::ranges::sort(group.colours, [&](const Colour& a, const Colour& b) {
        const unsigned left = layout.channel(a.value, axis);
        const unsigned right = layout.channel(b.value, axis);
        return left != right ? left < right : a.value < b.value;
    });
    std::size_t best = 1;
    double least = -1;
    Sums lower;
    for (std::size_t i = 1; i < group.colours.size(); ++i) {
        lower.add(layout, group.colours[i - 1]);
        const double error = lower.error() + group.sums.without(lower).error();
        if (least < 0 || error < least) {
            least = error;
            best = i;
        }
    }
    Group upper = groupOf(layout, group.colours.subspan(best));
    group = groupOf(layout, group.colours.first(best));
    return upper;
}

std::uint16_t meanOf(const Layout& layout, const Sums& sums) {
    unsigned value = layout.constant;
    for (std::size_t at = 0; at < layout.channels; ++at)
        value |= static_cast<unsigned>(std::lround(sums.sum.at(at) / sums.count)) << layout.shift.at(at);
    return static_cast<std::uint16_t>(value);
}

} // namespace

Reduction reduceColours(std::span<const std::uint32_t, kEntryValues> counts, std::uint32_t colourType,
                        std::size_t room) {
    const Layout& layout = colourType == DW_COLOUR_IA ? kIa : kRgba;
    Reduction result;
    result.entries.reserve(room);
    if (counts[0] != 0)
        result.entries.push_back(0);
    room -= result.entries.size();

    std::vector<Colour> colours;
    for (std::size_t value = 1; value < kEntryValues; ++value) {
        if (counts[value] != 0)
            colours.push_back({static_cast<std::uint16_t>(value), counts[value]});
    }
    std::vector<Group> groups;
    groups.reserve(room);
    if (colours.size() <= room) {
        for (Colour& colour : colours)
            groups.push_back(groupOf(layout, {&colour, 1}));
    } else {
        groups.push_back(groupOf(layout, colours));
        while (groups.size() < room) {
            const auto worst = std::ranges::max_element(groups, {}, &Group::error);
            groups.push_back(cut(layout, *worst));
        }
    }
    for (const Group& group : groups) {
        for (const Colour& colour : group.colours)
            result.index[colour.value] = static_cast<std::uint8_t>(result.entries.size());
        result.entries.push_back(meanOf(layout, group.sums));
    }
    return result;
}

} // namespace dyeworks::plugins

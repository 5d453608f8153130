#include "palette/AttachedImage.h"

#include <bitset>

namespace dyeworks {

FollowPlan planFollowing(const AttachedImage& image, const EntryMap& map) {
    FollowPlan plan;
    std::bitset<256> placed;
    std::bitset<256> taken;
    const auto place = [&](std::size_t value, std::size_t to) {
        plan.values[value] = static_cast<std::uint8_t>(to);
        placed.set(value);
        taken.set(to);
    };
    const auto values = static_cast<std::size_t>(image.values);
    for (std::size_t value = 0; value < values; ++value) {
        const std::int32_t entry = image.firstEntry + static_cast<std::int32_t>(value);
        if (entry >= map.count()) {
            plan.beyond += image.texels[value];
            place(value, value);
            continue;
        }
        const std::int32_t to = map.to(entry) - image.firstEntry;
        plan.affected = plan.affected || map.to(entry) != entry;
        if (to >= 0 && to < image.values)
            place(value, static_cast<std::size_t>(to));
        else
            plan.leaving += image.texels[value];
    }
    // Values that no texel has may go anywhere. They take what is left, so that the way back is a map, too.
    std::size_t left = 0;
    for (std::size_t value = 0; value < plan.values.size(); ++value) {
        if (placed.test(value))
            continue;
        if (value >= values || !map.isPermutation()) {
            place(value, value);
            continue;
        }
        while (taken.test(left))
            ++left;
        place(value, left);
    }
    return plan;
}

EntryCounts useOfEntries(const std::vector<AttachedImage>& images, std::int32_t count) {
    EntryCounts use{};
    for (const AttachedImage& image : images) {
        for (std::int32_t value = 0; value < image.values; ++value) {
            const std::int32_t entry = image.firstEntry + value;
            if (entry >= 0 && entry < count)
                use[static_cast<std::size_t>(entry)] += image.texels[static_cast<std::size_t>(value)];
        }
    }
    return use;
}

} // namespace dyeworks

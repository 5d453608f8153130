#include "palette/EntryOrderPlan.h"

#include "core/TlutData.h"

#include <algorithm>

namespace dyeworks {

bool EntryOrderPlan::leavesBank() const {
    return std::ranges::any_of(images, [](const Image& image) { return image.follows.leaving > 0; });
}

bool EntryOrderPlan::canBeDone() const {
    return map && map->moved() > 0 && !leavesBank();
}

EntryOrderPlan planOf(const EntryOrder& order, const TlutData& table,
                      const std::vector<AttachedImage>& images) {
    EntryOrderPlan plan;
    plan.map = mapOf(order, table, useOfEntries(images, table.count));
    const EntryMap map = plan.map.value_or(EntryMap(table.count));
    for (const AttachedImage& image : images)
        plan.images.push_back({image.name, planFollowing(image, map), image.firstEntry / 16});
    return plan;
}

bool showBanks(const std::vector<AttachedImage>& images, const TlutData& table) {
    return std::ranges::any_of(images,
                               [&](const AttachedImage& image) { return image.values < table.count; });
}

} // namespace dyeworks

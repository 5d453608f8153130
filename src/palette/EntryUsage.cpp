#include "palette/EntryUsage.h"

#include "core/TlutData.h"
#include "palette/EntryFormat.h"
#include "platform/StringId.h"
#include "platform/Text.h"

#include <algorithm>

namespace dyeworks {

namespace {

/// The first entry of [begin, end) that has the value of entry `index` and is another one.
std::optional<std::int32_t> twinOf(const TlutData& table, std::int32_t index, std::int32_t begin,
                                   std::int32_t end) {
    for (std::int32_t i = begin; i < end; ++i) {
        if (i != index && table.getEntry(i) == table.getEntry(index))
            return i;
    }
    return std::nullopt;
}

} // namespace

std::vector<EntryRemark> entryRemarks(const TlutData& table, const EntryCounts& usage, std::int32_t group) {
    const std::int32_t entries = std::clamp(table.count, 0, EntryMap::kMostEntries);
    std::vector<EntryRemark> remarks(static_cast<std::size_t>(entries));
    for (std::int32_t i = 0; i < entries; ++i) {
        const auto at = static_cast<std::size_t>(i);
        const std::int32_t begin = i / group * group;
        const std::uint64_t texels = usage[at];
        remarks[at] = {texels, twinOf(table, i, begin, std::min(begin + group, table.count)),
                       texels != 0 && highestValue(table.colourType, Channel::Alpha) &&
                           table.getAlpha(i) == 0};
    }
    return remarks;
}

std::string describe(const EntryRemark& remark) {
    std::string said = remark.isUnused()    ? text(StringId::UsageNone)
                       : remark.texels == 1 ? text(StringId::UsageOneTexel)
                                            : text(StringId::UsageTexels, {std::to_string(remark.texels)});
    if (remark.twin)
        said += text(StringId::UsageTwin, {std::to_string(*remark.twin)});
    if (remark.isClear)
        said += text(StringId::UsageClear);
    return said;
}

} // namespace dyeworks

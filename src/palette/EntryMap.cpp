#include "palette/EntryMap.h"

#include "core/TlutData.h"

#include <algorithm>
#include <bitset>
#include <cassert>

namespace dyeworks {

EntryMap::EntryMap(std::int32_t count)
    : count_(count) {
    assert(count >= 0 && count <= kMostEntries);
    for (std::int32_t entry = 0; entry < count; ++entry)
        set(entry, entry);
}

bool EntryMap::isPermutation() const {
    std::bitset<kMostEntries> taken;
    for (std::int32_t entry = 0; entry < count_; ++entry)
        taken.set(static_cast<std::size_t>(to(entry)));
    return static_cast<std::int32_t>(taken.count()) == count_;
}

std::int32_t EntryMap::moved() const {
    std::int32_t number = 0;
    for (std::int32_t entry = 0; entry < count_; ++entry)
        number += to(entry) != entry ? 1 : 0;
    return number;
}

void EntryMap::applyTo(TlutData& table) const {
    assert(table.count == count_);
    if (!isPermutation())
        return;
    std::array<std::uint16_t, kMostEntries> before{};
    std::copy_n(table.entries, count_, before.begin());
    for (std::int32_t entry = 0; entry < count_; ++entry)
        table.entries[to(entry)] = before[static_cast<std::size_t>(entry)];
}

} // namespace dyeworks

#include "framework/CommandUsage.h"

#include "framework/CommandTable.h"
#include "platform/Platform.h"

#include <algorithm>
#include <sstream>
#include <string>

namespace dyeworks {

namespace {

constexpr const char* kUsageSection = "Command Search";
constexpr const char* kUsageEntry = "Used";

/// A command of its own, which is the same tomorrow.
bool isSingle(CommandId id) {
    const CommandRow* const row = findCommand(id);
    return row != nullptr && row->last == 0;
}

} // namespace

void CommandUsage::load() {
    used_.clear();
    // "32777:5 57603:2"
    std::istringstream in(platform().profile().textOr(kUsageSection, kUsageEntry, {}));
    Used used{};
    char colon = 0;
    while (used_.size() < kMost && in >> used.id >> colon >> used.count) {
        if (colon == ':' && isSingle(used.id) && rank(used.id) == 0)
            used_.push_back({used.id, std::clamp(used.count, 1U, kHighest - 1)});
    }
}

void CommandUsage::add(CommandId id) {
    if (!isSingle(id))
        return;
    Used used{id, 0};
    const auto known = std::ranges::find(used_, id, &Used::id);
    if (known != used_.end()) {
        used = *known;
        used_.erase(known);
    }
    ++used.count;
    used_.insert(used_.begin(), used);
    if (used_.size() > kMost)
        used_.resize(kMost);
    if (used.count >= kHighest) {
        for (Used& each : used_)
            each.count = (each.count + 1) / 2;
    }
    save();
}

std::size_t CommandUsage::rank(CommandId id) const {
    const auto known = std::ranges::find(used_, id, &Used::id);
    if (known == used_.end())
        return 0;
    const auto before = static_cast<std::size_t>(known - used_.begin());
    return std::size_t{known->count} * kMost + kMost - before;
}

void CommandUsage::save() const {
    std::ostringstream out;
    for (const Used& each : used_)
        out << (&each == &used_.front() ? "" : " ") << each.id << ':' << each.count;
    platform().profile().setText(kUsageSection, kUsageEntry, out.str());
}

} // namespace dyeworks

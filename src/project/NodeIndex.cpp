#include "project/NodeIndex.h"

#include "project/ProjectTree.h"

namespace dyeworks {

ProjectNode* NodeIndex::find(const Nodes& siblings, std::u32string_view folded) {
    if (!complete_) {
        first_.reserve(siblings.size());
        complete_ = true;
        for (const std::unique_ptr<ProjectNode>& node : siblings)
            added(*node, true);
    }
    const auto found = first_.find(folded);
    return found == first_.end() ? nullptr : found->second;
}

void NodeIndex::added(ProjectNode& node, bool isLast) {
    if (!complete_ || first_.try_emplace(node.folded, &node).second)
        return;
    if (isLast)
        hasDoubles_ = true;
    else
        clear();
}

void NodeIndex::removing(const ProjectNode& node) {
    if (hasDoubles_)
        clear();
    else
        first_.erase(node.folded);
}

void NodeIndex::clear() {
    first_.clear();
    complete_ = false;
    hasDoubles_ = false;
}

} // namespace dyeworks

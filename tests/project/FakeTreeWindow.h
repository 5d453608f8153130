#pragma once

#include "project/CTPFTreeView.h"
#include "project/ProjectTreeWindow.h"

#include <optional>
#include <set>

namespace dyeworks {

/// A window that remembers what is expanded, and selects what it is told to.
class FakeTreeWindow : public ProjectTreeWindow {
public:
    [[nodiscard]] bool isExpanded(const ProjectNode& node) const override { return expanded.contains(&node); }
    void expand(const ProjectNode& node) override { expanded.insert(&node); }
    void select(const ProjectNode* node) override { view->SelectionChanged(node); }
    [[nodiscard]] std::optional<WindowPlacement> placement() const override { return place; }
    void setPlacement(const WindowPlacement& placement) override { place = placement; }

    CTPFTreeView* view = nullptr;
    std::set<const ProjectNode*> expanded;
    std::optional<WindowPlacement> place;
};

} // namespace dyeworks

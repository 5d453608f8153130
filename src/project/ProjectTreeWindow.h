#pragma once

#include "framework/WindowPlacement.h"
#include "project/ProjectTree.h"

#include <optional>

namespace dyeworks {

/// What the view of a project's tree asks of the window that shows it.
class ProjectTreeWindow {
public:
    virtual ~ProjectTreeWindow() = default;

    [[nodiscard]] virtual bool isExpanded(const ProjectNode& node) const = 0;
    virtual void expand(const ProjectNode& node) = 0;
    /// Selects the node, null for none. The view is told of it as when the user does it.
    virtual void select(const ProjectNode* node) = 0;

    /// Where the frame stands; nothing while it cannot be told.
    [[nodiscard]] virtual std::optional<WindowPlacement> placement() const = 0;
    virtual void setPlacement(const WindowPlacement& placement) = 0;
};

} // namespace dyeworks

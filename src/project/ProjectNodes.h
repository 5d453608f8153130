#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>

namespace dyeworks {

/// A node below its parent: its index among the parent's children, or its path or text.
using NodePlace = std::variant<std::uint32_t, std::string>;

/// A tree whose nodes plug-ins add, rename and remove. Node paths are as "\Project\Notes\first".
class ProjectNodes {
public:
    virtual ~ProjectNodes() = default;

    /// Adds a node below `parent` (none, or one that is not there: at the top). `place`: 0 is first, k behind
    /// child number k counted from 0, a text behind the child called so, the empty text last; what is not
    /// there makes it first. False when the node could not be added.
    virtual bool AddNode(const std::string& text, std::int32_t image,
                         const std::optional<std::string>& parent, const NodePlace& place) = 0;
    /// False when there is no such node.
    virtual bool RenameNode(const std::string& text, const NodePlace& node,
                            const std::optional<std::string>& parent) = 0;
    /// With all that is below it. False when there is no such node.
    virtual bool RemoveNode(const NodePlace& node, const std::optional<std::string>& parent) = 0;
};

} // namespace dyeworks

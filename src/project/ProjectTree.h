#pragma once

#include "project/NodeIndex.h"
#include "project/ProjectNodes.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace dyeworks {

/// A node of a project's tree.
struct ProjectNode {
    std::string text;
    std::int32_t image = 0;        ///< Index of its icon.
    ProjectNode* parent = nullptr; ///< Null at the top.
    std::vector<std::unique_ptr<ProjectNode>> children;
    std::u32string folded;   ///< The text as it compares without regard to case.
    mutable NodeIndex index; ///< Of the children.
};

/// Told what becomes of a tree, before and after. Rows count from 0; a null parent stands for the top.
class ProjectTreeListener {
public:
    virtual ~ProjectTreeListener() = default;
    virtual void nodesComing(const ProjectNode* parent, std::size_t first, std::size_t count) = 0;
    virtual void nodesCame() = 0;
    virtual void nodesGoing(const ProjectNode* parent, std::size_t first, std::size_t count) = 0;
    virtual void nodesWent() = 0;
    virtual void nodeRenamed(const ProjectNode& node) = 0;
};

/// The nodes of a project's tree. A node's path is a "\" and the texts from the top node down to it, with "\"
/// between them: "\Project\Picture\sky". Paths find nodes whatever their case.
class ProjectTree {
public:
    /// A node added behind this many siblings stands at the end.
    static constexpr std::size_t kEnd = static_cast<std::size_t>(-1);

    /// The listener must outlive the tree; null for none.
    void setListener(ProjectTreeListener* listener) noexcept { listener_ = listener; }

    /// Of a node's children, or of the nodes at the top for null.
    [[nodiscard]] const std::vector<std::unique_ptr<ProjectNode>>&
    childrenOf(const ProjectNode* parent) const;
    [[nodiscard]] std::size_t rowOf(const ProjectNode& node) const;

    /// Puts the node's path in front of `path`, which callers begin with an empty one. False for no node and
    /// for one that does not stand below the first top node.
    [[nodiscard]] bool GetNodePath(const ProjectNode* node, std::string& path) const;
    /// The node that the path leads to from `start` (null: the top), read from `position` on, which then is
    /// behind what was read. Null when there is none. Behind an empty path it is `start` itself.
    [[nodiscard]] ProjectNode* FindNode(const std::string& path, std::size_t& position,
                                        ProjectNode* start) const;
    [[nodiscard]] ProjectNode* FindNode(const std::string& path, ProjectNode* start = nullptr) const;

    /// As in `ProjectNodes`. Never null.
    ProjectNode* AddNode(const std::string& text, std::int32_t image,
                         const std::optional<std::string>& parent, const NodePlace& place);
    bool RenameNode(const std::string& text, const NodePlace& node, const std::optional<std::string>& parent);
    bool RemoveNode(const NodePlace& node, const std::optional<std::string>& parent);

    /// The node that `RenameNode` and `RemoveNode` would take; null for none.
    [[nodiscard]] ProjectNode* nodeAt(const NodePlace& place, const std::optional<std::string>& parent) const;

    /// Adds a node at the row among the parent's children, at the end if there are fewer.
    ProjectNode& insert(ProjectNode* parent, std::size_t row, const std::string& text, std::int32_t image);
    void remove(ProjectNode& node);
    /// Makes nodes of these texts and this icon, without any below them, all children of the parent. Those at
    /// the front and at the back that are so already stay.
    void setChildren(ProjectNode& parent, const std::vector<std::string>& texts, std::int32_t image);

    // The selected node; null for none, as after it was removed.
    void setSelected(const ProjectNode* node) noexcept { selected_ = node; }
    [[nodiscard]] const ProjectNode* selected() const noexcept { return selected_; }
    /// What the selected node is, and its path, empty when none is selected.
    void ClassifyNode(bool& isProject, bool& isPicture, std::string& path) const;

private:
    using Children = NodeIndex::Nodes;

    [[nodiscard]] Children& listOf(ProjectNode* parent) {
        return parent == nullptr ? top_ : parent->children;
    }
    [[nodiscard]] NodeIndex& indexOf(const ProjectNode* parent) const {
        return parent == nullptr ? topIndex_ : parent->index;
    }
    [[nodiscard]] ProjectNode* parentFor(const std::optional<std::string>& path) const;
    [[nodiscard]] std::size_t rowFor(const NodePlace& place, ProjectNode* parent) const;
    void insertAll(ProjectNode* parent, std::size_t row, Children nodes);
    void removeRows(ProjectNode* parent, std::size_t first, std::size_t count);
    [[nodiscard]] static std::unique_ptr<ProjectNode> newNode(ProjectNode* parent, const std::string& text,
                                                              std::int32_t image);

    Children top_;
    mutable NodeIndex topIndex_;
    const ProjectNode* selected_ = nullptr;
    ProjectTreeListener* listener_ = nullptr;
};

/// Whether the node is `ancestor` or stands below it.
[[nodiscard]] bool isWithin(const ProjectNode* node, const ProjectNode* ancestor);

/// What a node is, by its path.
struct NodeKind {
    bool isProject = false; ///< The project itself.
    bool isPicture = false; ///< The node of all pictures, one of them, or one whose text begins like it.
};
[[nodiscard]] NodeKind kindOfNode(std::string_view path);

} // namespace dyeworks

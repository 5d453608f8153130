#include "project/ProjectTree.h"

#include "platform/TextCase.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace dyeworks {

namespace {

constexpr char kSeparator = '\\';

} // namespace

const std::vector<std::unique_ptr<ProjectNode>>& ProjectTree::childrenOf(const ProjectNode* parent) const {
    return parent == nullptr ? top_ : parent->children;
}

std::size_t ProjectTree::rowOf(const ProjectNode& node) const {
    const Children& siblings = childrenOf(node.parent);
    const auto found = std::ranges::find(siblings, &node, &std::unique_ptr<ProjectNode>::get);
    return static_cast<std::size_t>(found - siblings.begin());
}

bool ProjectTree::GetNodePath(const ProjectNode* node, std::string& path) const {
    const ProjectNode* top = node;
    for (; node != nullptr; node = node->parent) {
        path.insert(0, kSeparator + node->text);
        top = node;
    }
    return top != nullptr && top == top_.front().get();
}

ProjectNode* ProjectTree::FindNode(const std::string& path, std::size_t& position, ProjectNode* start) const {
    while (position < path.size()) {
        if (path[position] == kSeparator) {
            ++position;
            start = nullptr;
            continue;
        }
        const std::size_t end = std::min(path.find(kSeparator, position), path.size());
        const std::u32string wanted = foldedCase(std::string_view(path).substr(position, end - position));
        start = indexOf(start).find(childrenOf(start), wanted);
        if (start == nullptr)
            return nullptr;
        if (end == path.size()) {
            position = end;
            return start;
        }
        position = end + 1;
    }
    return start;
}

ProjectNode* ProjectTree::FindNode(const std::string& path, ProjectNode* start) const {
    std::size_t position = 0;
    return FindNode(path, position, start);
}

ProjectNode* ProjectTree::parentFor(const std::optional<std::string>& path) const {
    return path ? FindNode(*path) : nullptr;
}

std::size_t ProjectTree::rowFor(const NodePlace& place, ProjectNode* parent) const {
    const Children& siblings = childrenOf(parent);
    if (const auto* const index = std::get_if<std::uint32_t>(&place))
        return *index == 0 || *index >= siblings.size() ? 0 : std::size_t{*index} + 1;
    const std::string& text = std::get<std::string>(place);
    if (text.empty())
        return siblings.size();
    const ProjectNode* const before = FindNode(text, parent);
    return before == nullptr || before->parent != parent ? 0 : rowOf(*before) + 1;
}

ProjectNode* ProjectTree::AddNode(const std::string& text, std::int32_t image,
                                  const std::optional<std::string>& parent, const NodePlace& place) {
    ProjectNode* const above = parentFor(parent);
    return &insert(above, rowFor(place, above), text, image);
}

ProjectNode* ProjectTree::nodeAt(const NodePlace& place, const std::optional<std::string>& parent) const {
    ProjectNode* const above = parentFor(parent);
    const auto* const index = std::get_if<std::uint32_t>(&place);
    if (index == nullptr)
        return FindNode(std::get<std::string>(place), above);
    const Children& siblings = childrenOf(above);
    return *index < siblings.size() ? siblings[*index].get() : nullptr;
}

bool ProjectTree::RenameNode(const std::string& text, const NodePlace& node,
                             const std::optional<std::string>& parent) {
    ProjectNode* const found = nodeAt(node, parent);
    if (found == nullptr)
        return false;
    NodeIndex& index = indexOf(found->parent);
    index.removing(*found);
    found->text = text;
    found->folded = foldedCase(text);
    index.added(*found, false);
    if (listener_ != nullptr)
        listener_->nodeRenamed(*found);
    return true;
}

bool ProjectTree::RemoveNode(const NodePlace& node, const std::optional<std::string>& parent) {
    ProjectNode* const found = nodeAt(node, parent);
    if (found == nullptr)
        return false;
    remove(*found);
    return true;
}

ProjectNode& ProjectTree::insert(ProjectNode* parent, std::size_t row, const std::string& text,
                                 std::int32_t image) {
    const std::size_t place = std::min(row, childrenOf(parent).size());
    Children added;
    added.push_back(newNode(parent, text, image));
    insertAll(parent, place, std::move(added));
    return *childrenOf(parent)[place];
}

void ProjectTree::remove(ProjectNode& node) {
    removeRows(node.parent, rowOf(node), 1);
}

void ProjectTree::setChildren(ProjectNode& parent, const std::vector<std::string>& texts,
                              std::int32_t image) {
    const Children& before = parent.children;
    const auto stays = [image](const std::unique_ptr<ProjectNode>& node, const std::string& text) {
        return node->text == text && node->image == image && node->children.empty();
    };
    const std::size_t most = std::min(before.size(), texts.size());
    std::size_t front = 0;
    while (front < most && stays(before[front], texts[front]))
        ++front;
    std::size_t back = 0;
    while (back < most - front && stays(before[before.size() - 1 - back], texts[texts.size() - 1 - back]))
        ++back;
    if (before.size() > front + back)
        removeRows(&parent, front, before.size() - front - back);
    Children added;
    added.reserve(texts.size() - front - back);
    for (std::size_t i = front; i < texts.size() - back; ++i)
        added.push_back(newNode(&parent, texts[i], image));
    if (!added.empty())
        insertAll(&parent, front, std::move(added));
}

void ProjectTree::insertAll(ProjectNode* parent, std::size_t row, Children nodes) {
    Children& siblings = listOf(parent);
    if (listener_ != nullptr)
        listener_->nodesComing(parent, row, nodes.size());
    NodeIndex& index = indexOf(parent);
    const bool atEnd = row == siblings.size();
    for (const std::unique_ptr<ProjectNode>& node : nodes)
        index.added(*node, atEnd);
    siblings.insert(siblings.begin() + static_cast<std::ptrdiff_t>(row),
                    std::make_move_iterator(nodes.begin()), std::make_move_iterator(nodes.end()));
    if (listener_ != nullptr)
        listener_->nodesCame();
}

void ProjectTree::removeRows(ProjectNode* parent, std::size_t first, std::size_t count) {
    Children& siblings = listOf(parent);
    if (listener_ != nullptr)
        listener_->nodesGoing(parent, first, count);
    const auto begin = siblings.begin() + static_cast<std::ptrdiff_t>(first);
    const auto end = begin + static_cast<std::ptrdiff_t>(count);
    // The listener may have selected another node.
    for (auto node = begin; node != end; ++node) {
        if (isWithin(selected_, node->get()))
            selected_ = nullptr;
        indexOf(parent).removing(**node);
    }
    siblings.erase(begin, end);
    if (listener_ != nullptr)
        listener_->nodesWent();
}

void ProjectTree::ClassifyNode(bool& isProject, bool& isPicture, std::string& path) const {
    path.clear();
    // The path counts also where it does not begin at the first top node.
    static_cast<void>(GetNodePath(selected_, path));
    const NodeKind kind = kindOfNode(path);
    isProject = kind.isProject;
    isPicture = kind.isPicture;
}

std::unique_ptr<ProjectNode> ProjectTree::newNode(ProjectNode* parent, const std::string& text,
                                                  std::int32_t image) {
    auto node = std::make_unique<ProjectNode>();
    node->text = text;
    node->image = image;
    node->parent = parent;
    node->folded = foldedCase(text);
    return node;
}

bool isWithin(const ProjectNode* node, const ProjectNode* ancestor) {
    while (node != nullptr && node != ancestor)
        node = node->parent;
    return node != nullptr;
}

NodeKind kindOfNode(std::string_view path) {
    constexpr std::string_view kProject = "\\Project";
    constexpr std::string_view kPicture = "\\Picture";
    if (!beginsIgnoringCase(path, kProject))
        return {};
    path.remove_prefix(kProject.size());
    return {path.empty(), beginsIgnoringCase(path, kPicture)};
}

} // namespace dyeworks

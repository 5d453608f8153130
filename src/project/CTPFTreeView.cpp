#include "project/CTPFTreeView.h"

#include "platform/Platform.h"
#include "platform/TextCase.h"
#include "project/CTPFDocument.h"

#include <algorithm>
#include <vector>

namespace dyeworks {

namespace {

constexpr std::string_view kPictures = "\\Project\\Picture\\";
constexpr const char* kCountEntry = "count";

/// What a node command is for the pictures, and for the project itself; 0 for none.
constexpr CommandId pictureCommand(NodeCommand command) {
    switch (command) {
    case NodeCommand::Add:
        return ID_PICTURE_ADD;
    case NodeCommand::Edit:
        return ID_PICTURE_CHANGE;
    case NodeCommand::Remove:
        return ID_PICTURE_REMOVE;
    case NodeCommand::Property:
        break;
    }
    return 0;
}
constexpr CommandId projectCommand(NodeCommand command) {
    return command == NodeCommand::Property ? ID_PROJECT_PROPERTY : 0;
}

std::string sectionOf(const std::string& key) {
    return "Settings\\ProjectTree\\" + key;
}

} // namespace

CTPFTreeView::CTPFTreeView(CTPFDocument& document, ProjectTreeWindow& window)
    : document_(document)
    , window_(window) {
    addNodeCommand<NodeCommand::Add>(ID_NODE_ADD);
    addNodeCommand<NodeCommand::Edit>(ID_NODE_EDIT);
    addNodeCommand<NodeCommand::Remove>(ID_NODE_REMOVE);
    addNodeCommand<NodeCommand::Property>(ID_NODE_PROPERTY);
    document_.addView(*this);
}

CTPFTreeView::~CTPFTreeView() {
    document_.removeView(*this);
}

void CTPFTreeView::InitialUpdate() {
    ProjectNode& project = tree_.insert(nullptr, ProjectTree::kEnd, "Project", kProjectImage);
    pictureNode_ = &tree_.insert(&project, ProjectTree::kEnd, "Picture", kPicturesImage);
    window_.expand(project);
    document_.host().projectPlugIns().TPF_OnUpdateNodes(document_.plugInHandles());
    update(nullptr, CTPFDocument::kHintPictures);
    restoreWindow();
}

std::string CTPFTreeView::settingsKey() const {
    return platform().files().fullPath(document_.pathName());
}

void CTPFTreeView::restoreWindow() {
    const std::string key = settingsKey();
    if (key.empty())
        return;
    const std::optional<WindowPlacement> placement = readWindowPlacement(key);
    if (!placement)
        return;
    window_.setPlacement(*placement);
    const Profile& profile = platform().profile();
    const std::string section = sectionOf(key);
    const int count = profile.integer(section, kCountEntry, 0);
    for (int i = 0; i < count; ++i) {
        const std::optional<std::string> path = profile.text(section, std::to_string(i));
        // Settings that were damaged may tell of more than there are.
        if (!path)
            break;
        if (const ProjectNode* const node = tree_.FindNode(*path))
            window_.expand(*node);
    }
}

/// Calls `visit` with the nodes that no closed node hides, from above to below.
template <typename Visit>
void CTPFTreeView::forEachVisible(Visit visit) const {
    std::vector<const ProjectNode*> waiting;
    const auto push = [&](const std::vector<std::unique_ptr<ProjectNode>>& nodes) {
        for (auto node = nodes.rbegin(); node != nodes.rend(); ++node)
            waiting.push_back(node->get());
    };
    push(tree_.topNodes());
    while (!waiting.empty()) {
        const ProjectNode& node = *waiting.back();
        waiting.pop_back();
        visit(node);
        if (window_.isExpanded(node))
            push(node.children);
    }
}

void CTPFTreeView::Closing() {
    const std::string key = settingsKey();
    const std::optional<WindowPlacement> placement = window_.placement();
    if (key.empty() || !placement)
        return;
    writeWindowPlacement(key, *placement);
    Profile& profile = platform().profile();
    const std::string section = sectionOf(key);
    int count = 0;
    forEachVisible([&](const ProjectNode& node) {
        std::string path;
        if (window_.isExpanded(node) && tree_.GetNodePath(&node, path))
            profile.setText(section, std::to_string(count++), path);
    });
    profile.setInteger(section, kCountEntry, count);
}

void CTPFTreeView::update(DocumentView* /*sender*/, int hint) {
    if (hint == CTPFDocument::kHintPictures && pictureNode_ != nullptr)
        fillPictures();
    chooseSelectedPicture();
}

/// The selection stays on its picture, and moves to the next one when that is gone.
void CTPFTreeView::fillPictures() {
    const bool selectedIsPicture = selected_ != nullptr && selected_->parent == pictureNode_;
    const std::string text = selectedIsPicture ? selected_->text : std::string();
    const std::size_t row = selectedIsPicture ? tree_.rowOf(*selected_) : 0;
    if (selectedIsPicture)
        selected_ = nullptr;
    tree_.replaceChildren(*pictureNode_, document_.pictureNames(), kPictureImage);
    if (!selectedIsPicture)
        return;
    const auto& pictures = pictureNode_->children;
    const auto same = std::ranges::find(pictures, text, [](const auto& node) { return node->text; });
    if (same != pictures.end())
        window_.select(same->get());
    else
        window_.select(pictures.empty() ? pictureNode_ : pictures[std::min(row, pictures.size() - 1)].get());
}

void CTPFTreeView::chooseSelectedPicture() {
    std::string path;
    if (!tree_.GetNodePath(selected_, path) || path.size() <= kPictures.size() ||
        !equalIgnoringCase(path.substr(0, kPictures.size()), kPictures))
        return;
    document_.host().SelectPicture(path.substr(kPictures.size()));
}

void CTPFTreeView::SelectionChanged(const ProjectNode* node) {
    selected_ = node;
    update(nullptr, CTPFDocument::kHintSelection);
}

void CTPFTreeView::DoubleClicked() {
    std::string path;
    if (tree_.GetNodePath(selected_, path))
        document_.OnNodeDoubleClick(path);
}

std::optional<std::string> CTPFTreeView::dragData() const {
    std::string path;
    std::string text;
    if (!tree_.GetNodePath(selected_, path) || !document_.NodeToString(path, text))
        return std::nullopt;
    return text;
}

std::uint32_t CTPFTreeView::DragOver(const ProjectNode* node, const std::optional<std::string>& data,
                                     std::uint32_t keyState) const {
    std::string path;
    return tree_.GetNodePath(node, path) ? document_.DragOverNode(path, data, keyState) : drop_effect::kNone;
}

bool CTPFTreeView::Drop(const ProjectNode* node, const std::optional<std::string>& data,
                        std::uint32_t effect) {
    std::string path;
    return tree_.GetNodePath(node, path) && document_.DropOnNode(path, data, effect);
}

bool CTPFTreeView::AddNode(const std::string& text, std::int32_t image,
                           const std::optional<std::string>& parent, const NodePlace& place) {
    return tree_.AddNode(text, image, parent, place) != nullptr;
}

bool CTPFTreeView::RenameNode(const std::string& text, const NodePlace& node,
                              const std::optional<std::string>& parent) {
    return tree_.RenameNode(text, node, parent);
}

bool CTPFTreeView::RemoveNode(const NodePlace& node, const std::optional<std::string>& parent) {
    if (!tree_.RemoveNode(node, parent))
        return false;
    if (!tree_.holds(selected_))
        selected_ = nullptr;
    if (!tree_.holds(pictureNode_))
        pictureNode_ = nullptr;
    return true;
}

void CTPFTreeView::ClassifyNode(bool& isProject, bool& isPicture, std::string& path) const {
    path.clear();
    static_cast<void>(tree_.GetNodePath(selected_, path));
    const NodeKind kind = kindOfNode(path);
    isProject = kind.isProject;
    isPicture = kind.isPicture;
}

template <NodeCommand kCommand>
void CTPFTreeView::addNodeCommand(CommandId id) {
    on(id, &CTPFTreeView::OnNodeCommand<kCommand>, &CTPFTreeView::OnUpdateNodeCommand<kCommand>);
}

template <NodeCommand kCommand>
void CTPFTreeView::OnNodeCommand() {
    bool isProject = false;
    bool isPicture = false;
    std::string path;
    ClassifyNode(isProject, isPicture, path);
    CommandId command = isProject ? projectCommand(kCommand) : 0;
    if (isPicture)
        command = pictureCommand(kCommand);
    if (command == 0) {
        document_.host().projectPlugIns().TPF_OnCommand(document_.plugInHandles(), path, kCommand);
        return;
    }
    // The bar may show another picture since the pictures last changed.
    chooseSelectedPicture();
    document_.host().runCommand(command);
}

template <NodeCommand kCommand>
void CTPFTreeView::OnUpdateNodeCommand(CommandUi& ui) {
    bool isProject = false;
    bool isPicture = false;
    std::string path;
    ClassifyNode(isProject, isPicture, path);
    if (isProject)
        ui.enabled = projectCommand(kCommand) != 0;
    else if (isPicture)
        ui.enabled = pictureCommand(kCommand) != 0;
    else
        ui.enabled = selected_ != nullptr && document_.host().projectPlugIns().TPF_QueryCommand(
                                                 document_.plugInHandles(), path, kCommand);
}

} // namespace dyeworks

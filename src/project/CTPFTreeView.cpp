#include "project/CTPFTreeView.h"

#include "platform/Platform.h"
#include "platform/StringId.h"
#include "platform/TextCase.h"
#include "project/CTPFDocument.h"
#include "project/PictureName.h"

#include <algorithm>
#include <vector>

namespace dyeworks {

namespace {

constexpr const char* kCountEntry = "count";
/// Expanded nodes that are remembered; damaged settings may tell of more than there are.
constexpr int kMostExpanded = 65536;

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

/// Whether a view and its project are still there: while a plug-in asks the user, either may be closed.
class StillThere {
public:
    StillThere(const DocumentView& view, const CTPFDocument& document)
        : host_(document.host())
        , document_(&document)
        , view_(&view) {}

    bool operator()() const {
        return host_.projectDocument() == document_ &&
               std::ranges::find(document_->views(), view_) != document_->views().end();
    }

private:
    const ProjectHost& host_;
    const CTPFDocument* document_;
    const DocumentView* view_;
};

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
    projectNode_ = &tree_.insert(nullptr, ProjectTree::kEnd, "Project", kProjectImage);
    pictureNode_ = &tree_.insert(projectNode_, ProjectTree::kEnd, "Picture", kPicturesImage);
    window_.expand(*projectNode_);
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
    const int count = std::min(profile.integer(section, kCountEntry, 0), kMostExpanded);
    for (int i = 0; i < count; ++i) {
        const std::optional<std::string> path = profile.text(section, std::to_string(i));
        const ProjectNode* const node = path ? tree_.FindNode(*path) : nullptr;
        if (node != nullptr)
            window_.expand(*node);
    }
}

/// Calls `visit` with the nodes that no closed node hides, from the project's on.
template <typename Visit>
void CTPFTreeView::forEachVisible(Visit visit) const {
    if (projectNode_ == nullptr)
        return;
    std::vector<const ProjectNode*> waiting;
    const auto push = [&](const std::vector<std::unique_ptr<ProjectNode>>& nodes, std::size_t first) {
        for (std::size_t i = nodes.size(); i > first; --i)
            waiting.push_back(nodes[i - 1].get());
    };
    push(tree_.childrenOf(projectNode_->parent), tree_.rowOf(*projectNode_));
    while (!waiting.empty()) {
        const ProjectNode& node = *waiting.back();
        waiting.pop_back();
        visit(node);
        if (window_.isExpanded(node))
            push(node.children, 0);
    }
}

void CTPFTreeView::Closing() {
    const std::string key = settingsKey();
    if (key.empty())
        return;
    if (const std::optional<WindowPlacement> placement = window_.placement())
        writeWindowPlacement(key, *placement);
    Profile& profile = platform().profile();
    const std::string section = sectionOf(key);
    int count = 0;
    forEachVisible([&](const ProjectNode& node) {
        if (count == kMostExpanded || !window_.isExpanded(node))
            return;
        std::string path;
        // Also of nodes beside the first top node, for which it is false.
        static_cast<void>(GetNodePath(&node, path));
        profile.setText(section, std::to_string(count++), path);
    });
    profile.setInteger(section, kCountEntry, count);
}

void CTPFTreeView::update(DocumentView* /*sender*/, int hint) {
    if (hint == CTPFDocument::kHintPictures && pictureNode_ != nullptr)
        fillPictures();
    if (hint == CTPFDocument::kHintPlugIns)
        remakePlugInNodes();
    chooseSelectedPicture();
}

/// The nodes of plug-ins that have ended make room for their new ones; what was expanded is so again.
void CTPFTreeView::remakePlugInNodes() {
    std::vector<std::string> expanded;
    forEachVisible([&](const ProjectNode& node) {
        if (std::string path; window_.isExpanded(node) && GetNodePath(&node, path))
            expanded.push_back(path);
    });
    const auto removeOthers = [this](const ProjectNode* parent, const ProjectNode* kept) {
        for (std::size_t i = tree_.childrenOf(parent).size(); i > 0; --i) {
            if (ProjectNode& node = *tree_.childrenOf(parent)[i - 1]; &node != kept)
                tree_.remove(node);
        }
    };
    if (projectNode_ != nullptr) {
        removeOthers(projectNode_, pictureNode_);
        removeOthers(nullptr, projectNode_);
    }
    document_.host().projectPlugIns().TPF_OnUpdateNodes(document_.plugInHandles());
    for (const std::string& path : expanded) {
        if (const ProjectNode* const node = tree_.FindNode(path))
            window_.expand(*node);
    }
}

/// The selection stays on its picture, and moves to the next one when that is gone.
void CTPFTreeView::fillPictures() {
    const std::optional<std::string> picture = selectedPicture();
    const std::size_t row = picture ? tree_.rowOf(*tree_.selected()) : 0;
    tree_.setChildren(*pictureNode_, document_.pictureNames(), kPictureImage);
    if (!picture || selectPicture(*picture))
        return;
    const auto& pictures = pictureNode_->children;
    window_.select(pictures.empty() ? pictureNode_ : pictures[std::min(row, pictures.size() - 1)].get());
}

/// Nothing unless a child of the picture node is selected.
std::optional<std::string> CTPFTreeView::selectedPicture() const {
    const ProjectNode* const node = tree_.selected();
    if (node == nullptr || pictureNode_ == nullptr || node->parent != pictureNode_)
        return std::nullopt;
    return node->text;
}

bool CTPFTreeView::selectPicture(const std::string& name) {
    if (selectedPicture() == name)
        return true;
    if (pictureNode_ == nullptr)
        return false;
    const auto& pictures = pictureNode_->children;
    const auto same = std::ranges::find(pictures, name, [](const auto& node) { return node->text; });
    if (same == pictures.end())
        return false;
    window_.select(same->get());
    return true;
}

void CTPFTreeView::chooseSelectedPicture() {
    std::string path;
    if (GetNodePath(tree_.selected(), path) && beginsIgnoringCase(path, kBelowPictures))
        document_.host().SelectPicture(path.substr(kBelowPictures.size()));
}

void CTPFTreeView::SelectionChanged(const ProjectNode* node) {
    tree_.setSelected(node);
    update(nullptr, CTPFDocument::kHintSelection);
}

void CTPFTreeView::DoubleClicked() {
    std::string path;
    if (GetNodePath(tree_.selected(), path))
        document_.OnNodeDoubleClick(path);
}

std::optional<std::string> CTPFTreeView::dragData() const {
    std::string path;
    std::string text;
    if (!GetNodePath(tree_.selected(), path) || !document_.NodeToString(path, text))
        return std::nullopt;
    return text;
}

std::uint32_t CTPFTreeView::DragOver(const ProjectNode* node, const std::optional<std::string>& data,
                                     std::uint32_t keyState) const {
    std::string path;
    return GetNodePath(node, path) ? document_.DragOverNode(path, data, keyState) : drop_effect::kNone;
}

bool CTPFTreeView::Drop(const ProjectNode* node, const std::optional<std::string>& data,
                        std::uint32_t effect) {
    std::string path;
    if (!GetNodePath(node, path))
        return false;
    const std::optional<std::string> picture = selectedPicture();
    const StillThere isThere(*this, document_);
    const bool dropped = document_.DropOnNode(path, data, effect);
    // A picture that was moved had to go before it could come again.
    if (picture && isThere())
        selectPicture(*picture);
    return dropped;
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
    const ProjectNode* const going = tree_.nodeAt(node, parent);
    if (going == nullptr)
        return false;
    for (ProjectNode** kept : {&projectNode_, &pictureNode_}) {
        if (isWithin(*kept, going))
            *kept = nullptr;
    }
    return tree_.RemoveNode(node, parent);
}

template <NodeCommand kCommand>
void CTPFTreeView::addNodeCommand(CommandId id) {
    on(id, &CTPFTreeView::OnNodeCommand<kCommand>, &CTPFTreeView::OnUpdateNodeCommand<kCommand>);
}

/// What is added below a node is shown there.
void CTPFTreeView::runPlugInCommand(const std::string& path, NodeCommand command) {
    const auto find = [&] {
        std::size_t position = 0;
        return FindNode(path, position, nullptr);
    };
    const ProjectNode* node = find();
    const std::size_t before = node == nullptr ? 0 : node->children.size();
    const StillThere isThere(*this, document_);
    document_.host().projectPlugIns().TPF_OnCommand(document_.plugInHandles(), path, command);
    if (!isThere())
        return;
    node = find();
    if (node != nullptr && node->children.size() > before)
        window_.expand(*node);
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
        runPlugInCommand(path, kCommand);
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
        ui.require(projectCommand(kCommand) != 0, StringId::WhyNodeCannot);
    else if (isPicture)
        ui.require(pictureCommand(kCommand) != 0, StringId::WhyNodeCannot);
    else
        ui.require(tree_.selected() != nullptr && document_.host().projectPlugIns().TPF_QueryCommand(
                                                      document_.plugInHandles(), path, kCommand),
                   tree_.selected() == nullptr ? StringId::WhyNoNode : StringId::WhyNodeCannot);
}

} // namespace dyeworks

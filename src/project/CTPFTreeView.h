#pragma once

#include "framework/CommandTarget.h"
#include "framework/DocumentView.h"
#include "project/ProjectPlugIns.h"
#include "project/ProjectTree.h"
#include "project/ProjectTreeWindow.h"

#include <cstdint>
#include <optional>
#include <string>

namespace dyeworks {

class CTPFDocument;

/// The view of a project: the tree of its nodes, what the commands do with the selected one, and what may be
/// dragged where. Works through the window that shows it and needs no widget.
class CTPFTreeView : public CommandTarget, public DocumentView, public ProjectNodes {
public:
    // The icons of nodes, by their index.
    static constexpr std::int32_t kImageCount = 9;
    static constexpr std::int32_t kPicturesImage = 0;
    static constexpr std::int32_t kProjectImage = 4;
    static constexpr std::int32_t kPictureImage = 5;

    /// Joins the document's views until it is destroyed. Both must outlive the view.
    CTPFTreeView(CTPFDocument& document, ProjectTreeWindow& window);
    ~CTPFTreeView() override;
    CTPFTreeView(const CTPFTreeView&) = delete;
    CTPFTreeView& operator=(const CTPFTreeView&) = delete;

    [[nodiscard]] CTPFDocument& document() const noexcept { return document_; }
    [[nodiscard]] ProjectTree& tree() noexcept { return tree_; }
    [[nodiscard]] const ProjectTree& tree() const noexcept { return tree_; }

    // What the window tells the view.
    /// Once, when it can be asked: makes the nodes, and brings back what was expanded when the project was
    /// open last, and where the window stood.
    void InitialUpdate();
    /// The window is about to close; it still stands where it stood.
    void Closing();
    void SelectionChanged(const ProjectNode* node);
    /// Selects the node of the picture. False when there is none.
    bool selectPicture(const std::string& name);
    void DoubleClicked();

    /// The text that a drag of the selected node carries; nothing when it cannot be dragged.
    [[nodiscard]] std::optional<std::string> dragData() const;
    /// What dropping the data on the node (null for none) would do.
    [[nodiscard]] std::uint32_t DragOver(const ProjectNode* node, const std::optional<std::string>& data,
                                         std::uint32_t keyState) const;
    bool Drop(const ProjectNode* node, const std::optional<std::string>& data, std::uint32_t effect);

    void update(DocumentView* sender, int hint) override;

    [[nodiscard]] virtual bool GetNodePath(const ProjectNode* node, std::string& path) const {
        return tree_.GetNodePath(node, path);
    }
    [[nodiscard]] ProjectNode* FindNode(const std::string& path, std::size_t& position,
                                        ProjectNode* start) const {
        return tree_.FindNode(path, position, start);
    }
    bool AddNode(const std::string& text, std::int32_t image, const std::optional<std::string>& parent,
                 const NodePlace& place) override;
    bool RenameNode(const std::string& text, const NodePlace& node,
                    const std::optional<std::string>& parent) override;
    bool RemoveNode(const NodePlace& node, const std::optional<std::string>& parent) override;
    void ClassifyNode(bool& isProject, bool& isPicture, std::string& path) const {
        tree_.ClassifyNode(isProject, isPicture, path);
    }

private:
    void fillPictures();
    void remakePlugInNodes();
    [[nodiscard]] std::optional<std::string> selectedPicture() const;
    void chooseSelectedPicture();
    void restoreWindow();
    [[nodiscard]] std::string settingsKey() const;
    template <typename Visit>
    void forEachVisible(Visit visit) const;

    template <NodeCommand kCommand>
    void addNodeCommand(CommandId id);
    void runPlugInCommand(const std::string& path, NodeCommand command);
    template <NodeCommand kCommand>
    void OnNodeCommand();
    template <NodeCommand kCommand>
    void OnUpdateNodeCommand(CommandUi& ui);

    CTPFDocument& document_;
    ProjectTreeWindow& window_;
    ProjectTree tree_;
    // Null also when a plug-in has removed them.
    ProjectNode* projectNode_ = nullptr;
    ProjectNode* pictureNode_ = nullptr;
};

} // namespace dyeworks

#pragma once

#include "framework/widgets/FrameView.h"
#include "project/CTPFTreeView.h"
#include "project/ProjectTreeWindow.h"
#include "project/widgets/ProjectTreeModel.h"

#include <QTreeView>

#include <cstdint>
#include <optional>
#include <string>

namespace dyeworks {

/// The widget of a project's tree.
class ProjectTreeWidget : public QTreeView, public FrameView, private ProjectTreeWindow {
    Q_OBJECT

public:
    /// The document must outlive the widget.
    explicit ProjectTreeWidget(CTPFDocument& document, QWidget* parent = nullptr);
    ~ProjectTreeWidget() override;

    [[nodiscard]] CTPFTreeView& view() noexcept { return view_; }

    CommandTarget& commandTarget() override { return view_; }
    DocumentView& documentView() override { return view_; }
    void initialUpdate(ChildFrame& frame) override;
    void closing(ChildFrame& frame) override;

Q_SIGNALS:
    void contextMenuRequested(const QPoint& global);

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                                       const QEvent* event) const override;
    void startDrag(Qt::DropActions supported) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    [[nodiscard]] bool isExpanded(const ProjectNode& node) const override;
    void expand(const ProjectNode& node) override;
    void select(const ProjectNode* node) override;
    [[nodiscard]] std::optional<WindowPlacement> placement() const override;
    void setPlacement(const WindowPlacement& placement) override;

    /// The node on whose row the point of the viewport lies, other than on the button that opens it.
    [[nodiscard]] QModelIndex rowAt(const QPoint& point) const;
    void dragSelected();
    std::optional<std::uint32_t> dragOver(QDropEvent& event);
    void setDropMark(const QModelIndex& index);
    [[nodiscard]] QString tipOf(const QModelIndex& index) const;
    [[nodiscard]] QString pictureTip(const std::string& name) const;

    ChildFrame* frame_ = nullptr;
    std::uint64_t drag_ = 0;         ///< Another one whenever a drag comes or is over.
    bool asking_ = false;            ///< While a plug-in is asked what may be dropped.
    QPersistentModelIndex dropMark_; ///< The node that a drop would go to.
    CTPFTreeView view_;
    ProjectTreeModel model_;
};

} // namespace dyeworks

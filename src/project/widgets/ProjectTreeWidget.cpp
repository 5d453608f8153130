#include "project/widgets/ProjectTreeWidget.h"

#include "framework/widgets/ChildFrame.h"
#include "framework/widgets/MenuBuilder.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "project/CTPFDocument.h"
#include "project/PathHelpers.h"
#include "project/PictureImage.h"
#include "project/widgets/CNodeDropSource.h"
#include "project/widgets/PictureThumbnail.h"

#include <QApplication>
#include <QBuffer>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMimeData>
#include <QPainter>
#include <QPointer>
#include <QToolTip>
#include <QUrl>

#include <algorithm>

namespace dyeworks {

namespace {

constexpr int kMarkHeight = 2;
constexpr QSize kIconSize{16, 16};
/// Of the picture in a tip, in pixels of a ratio of 1.
constexpr QSize kTipRoom{128, 128};
constexpr std::string_view kPictures = "\\Project\\Picture\\";

std::optional<std::string> textOf(const QMimeData* data) {
    if (data == nullptr || !data->hasText())
        return std::nullopt;
    return data->text().toStdString();
}

bool carriesFiles(const QMimeData& data) {
    return std::ranges::any_of(data.urls(), &QUrl::isLocalFile);
}

std::uint32_t keysOf(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? drag_key::kShift : 0U) |
           (modifiers.testFlag(Qt::ControlModifier) ? drag_key::kControl : 0U);
}

QString imageTag(const QImage& image, qreal devicePixelRatio) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    if (image.isNull() || !image.save(&buffer, "PNG"))
        return {};
    const QSize size = (QSizeF(image.size()) / devicePixelRatio).toSize();
    return QStringLiteral("<br><img width=\"%1\" height=\"%2\" src=\"data:image/png;base64,%3\">")
        .arg(QString::number(size.width()), QString::number(size.height()),
             QString::fromLatin1(bytes.toBase64()));
}

} // namespace

ProjectTreeWidget::ProjectTreeWidget(CTPFDocument& document, QWidget* parent)
    : QTreeView(parent)
    , view_(document, *this)
    , model_(view_.tree()) {
    setObjectName(QStringLiteral("projectTree"));
    setAccessibleName(QString::fromStdString(text(StringId::BarProject)));
    setModel(&model_);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setIconSize(kIconSize);
    setUniformRowHeights(true);
    setEditTriggers(NoEditTriggers);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(false);
    setFrameShape(NoFrame);
    // What is hidden is not selected: commands would act on it.
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& closed) {
        if (isWithin(view_.tree().selected(), ProjectTreeModel::nodeOf(closed)))
            setCurrentIndex(closed);
    });
}

ProjectTreeWidget::~ProjectTreeWidget() {
    // Before the nodes go.
    setModel(nullptr);
}

void ProjectTreeWidget::initialUpdate(ChildFrame& frame) {
    frame_ = &frame;
    view_.InitialUpdate();
}

void ProjectTreeWidget::closing(ChildFrame& /*frame*/) {
    view_.Closing();
    frame_ = nullptr;
}

bool ProjectTreeWidget::isExpanded(const ProjectNode& node) const {
    // To find the row of each of many pictures would take a while.
    return !node.children.empty() && QTreeView::isExpanded(model_.indexOf(&node));
}

void ProjectTreeWidget::expand(const ProjectNode& node) {
    QTreeView::expand(model_.indexOf(&node));
}

void ProjectTreeWidget::select(const ProjectNode* node) {
    setCurrentIndex(model_.indexOf(node));
}

std::optional<WindowPlacement> ProjectTreeWidget::placement() const {
    return frame_ == nullptr ? std::nullopt : std::optional(frame_->placement());
}

void ProjectTreeWidget::setPlacement(const WindowPlacement& placement) {
    if (frame_ != nullptr)
        frame_->setPlacement(placement);
}

void ProjectTreeWidget::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTreeView::currentChanged(current, previous);
    // The focus alone makes the first node the current one, without showing it as selected.
    selectionModel()->select(current, QItemSelectionModel::ClearAndSelect);
    view_.SelectionChanged(ProjectTreeModel::nodeOf(current));
}

/// Whatever keys are held, one node is selected, and it is the current one.
QItemSelectionModel::SelectionFlags ProjectTreeWidget::selectionCommand(const QModelIndex& index,
                                                                        const QEvent* /*event*/) const {
    return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

QModelIndex ProjectTreeWidget::rowAt(const QPoint& point) const {
    const QModelIndex index = indexAt(point);
    if (!index.isValid() || !model_.hasChildren(index))
        return index;
    const int left = visualRect(index).left();
    const bool onButton = index.parent().isValid() && point.x() < left && point.x() >= left - indentation();
    return onButton ? QModelIndex() : index;
}

void ProjectTreeWidget::mousePressEvent(QMouseEvent* event) {
    // The right button selects as well, for the menu that follows.
    if (const QModelIndex index = rowAt(event->position().toPoint()); index.isValid())
        setCurrentIndex(index);
    QTreeView::mousePressEvent(event);
}

void ProjectTreeWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    QTreeView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && rowAt(event->position().toPoint()).isValid())
        view_.DoubleClicked();
}

void ProjectTreeWidget::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        view_.DoubleClicked();
    else
        QTreeView::keyPressEvent(event);
}

bool ProjectTreeWidget::event(QEvent* event) {
    // A letter leads to the node that begins with it, not to a command of the program.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        const Qt::KeyboardModifiers beside = key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier);
        if (beside == Qt::NoModifier && !key.text().isEmpty() && key.text().front().isPrint()) {
            event->accept();
            return true;
        }
    }
    return QTreeView::event(event);
}

void ProjectTreeWidget::contextMenuEvent(QContextMenuEvent* event) {
    Q_EMIT contextMenuRequested(contextMenuPlace(*event, *viewport()));
}

bool ProjectTreeWidget::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip)
        return QTreeView::viewportEvent(event);
    const auto& help = *static_cast<QHelpEvent*>(event);
    const QModelIndex index = indexAt(help.pos());
    const QString tip = tipOf(index);
    if (tip.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(help.globalPos(), tip, viewport(), visualRect(index));
    return true;
}

QString ProjectTreeWidget::tipOf(const QModelIndex& index) const {
    std::string path;
    if (!view_.GetNodePath(ProjectTreeModel::nodeOf(index), path))
        return {};
    if (kindOfNode(path).isProject)
        return QString::fromStdString(displayPath(view_.document().pathName()));
    return path.starts_with(kPictures) ? pictureTip(path.substr(kPictures.size())) : QString();
}

/// The picture's name, its files and how it looks.
QString ProjectTreeWidget::pictureTip(const std::string& name) const {
    const CTPFFile& file = view_.document().projectFile();
    PictureEntry entry;
    if (!file.GetPicture(name, entry))
        return {};
    std::string image;
    std::string palette;
    QImage thumbnail;
    if (PathSearch(image, file.tmfDir, entry.tmfFile, true) &&
        PathSearch(palette, file.tlfDir, entry.tlfFile, true)) {
        if (const auto canvas = readPicture(image, palette, entry.paletteNo))
            thumbnail = thumbnailOf(*canvas, kTipRoom * devicePixelRatioF());
    }
    return QStringLiteral("<b>%1</b><br>%2 + %3 (%4)%5")
        .arg(QString::fromStdString(name).toHtmlEscaped(),
             QString::fromStdString(displayPath(entry.tmfFile)).toHtmlEscaped(),
             QString::fromStdString(displayPath(entry.tlfFile)).toHtmlEscaped(),
             QString::number(entry.paletteNo), imageTag(thumbnail, devicePixelRatioF()));
}

/// Queued: Qt's own view goes on with this widget when this returns, which may be gone when the drag is over.
void ProjectTreeWidget::startDrag(Qt::DropActions /*supported*/) {
    QMetaObject::invokeMethod(
        qApp,
        [self = QPointer(this)] {
            if (self != nullptr)
                self->dragSelected();
        },
        Qt::QueuedConnection);
}

void ProjectTreeWidget::dragSelected() {
    const QPointer<ProjectTreeWidget> self(this);
    const std::optional<std::string> text = view_.dragData();
    if (text && self != nullptr)
        (new CNodeDropSource(*this, *text))->DoDragDrop();
}

void ProjectTreeWidget::dragEnterEvent(QDragEnterEvent* event) {
    ++drag_;
    setDropMark({});
    // A move follows at once and finds out what may be dropped. Files are for the main window to open.
    event->setAccepted(!carriesFiles(*event->mimeData()));
}

void ProjectTreeWidget::dragMoveEvent(QDragMoveEvent* event) {
    // For the scrolling at the edges; what it thinks of the drop does not count.
    QTreeView::dragMoveEvent(event);
    dragOver(*event);
}

void ProjectTreeWidget::dragLeaveEvent(QDragLeaveEvent* event) {
    ++drag_;
    QTreeView::dragLeaveEvent(event);
    setDropMark({});
}

void ProjectTreeWidget::dropEvent(QDropEvent* event) {
    // The data go with the drag, which may be over before a plug-in has answered.
    const std::optional<std::string> dragged = textOf(event->mimeData());
    const QPoint point = event->position().toPoint();
    const QPointer<ProjectTreeWidget> self(this);
    const std::optional<std::uint32_t> effect = dragOver(*event);
    if (!effect)
        return;
    // The view scrolls no more, and the mark goes.
    QDragLeaveEvent over;
    dragLeaveEvent(&over);
    const ProjectNode* const node = ProjectTreeModel::nodeOf(rowAt(point));
    const bool dropped = *effect != drop_effect::kNone && view_.Drop(node, dragged, *effect);
    if (self != nullptr && !dropped)
        event->ignore();
}

/// What a drop here would do, which the event is answered with. Nothing when the drag was over, and perhaps
/// the widget gone, before a plug-in had answered: its event is not to be touched then.
std::optional<std::uint32_t> ProjectTreeWidget::dragOver(QDropEvent& event) {
    const QModelIndex index = rowAt(event.position().toPoint());
    // Between nodes the mark stays where it was.
    if (index.isValid())
        setDropMark(index);
    std::uint32_t effect = drop_effect::kNone;
    // A plug-in that has asked the user is not asked again for every move meanwhile.
    if (!asking_) {
        const QPointer<ProjectTreeWidget> self(this);
        const std::uint64_t drag = drag_;
        asking_ = true;
        effect = view_.DragOver(ProjectTreeModel::nodeOf(index), textOf(event.mimeData()),
                                keysOf(event.modifiers()));
        if (self == nullptr)
            return std::nullopt;
        asking_ = false;
        if (drag != drag_)
            return std::nullopt;
    }
    event.setDropAction(CNodeDropSource::GiveFeedback(effect));
    event.setAccepted(effect != drop_effect::kNone);
    return effect;
}

void ProjectTreeWidget::setDropMark(const QModelIndex& index) {
    if (dropMark_ == index)
        return;
    dropMark_ = index;
    viewport()->update();
}

void ProjectTreeWidget::paintEvent(QPaintEvent* event) {
    QTreeView::paintEvent(event);
    if (!dropMark_.isValid())
        return;
    const QRect row = visualRect(dropMark_);
    QPainter painter(viewport());
    // White takes every colour to its opposite.
    painter.setCompositionMode(QPainter::CompositionMode_Difference);
    painter.fillRect(0, row.bottom(), viewport()->width(), kMarkHeight, Qt::white);
}

} // namespace dyeworks

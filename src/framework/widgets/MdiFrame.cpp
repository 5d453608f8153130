#include "framework/widgets/MdiFrame.h"

#include "framework/DocumentTemplate.h"
#include "framework/widgets/ChildFrame.h"
#include "framework/widgets/MenuBuilder.h"
#include "framework/widgets/WindowListMenu.h"
#include "platform/StringId.h"

#include <QAction>
#include <QCloseEvent>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>

#include <algorithm>

namespace dyeworks {

MdiFrame::MdiFrame()
    : area_(new QMdiArea(this)) {
    area_->setViewMode(QMdiArea::SubWindowView);
    area_->setActivationOrder(QMdiArea::StackingOrder);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    area_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setCentralWidget(area_);
    connect(area_, &QMdiArea::subWindowActivated, this, &MdiFrame::childActivated);

    on(ID_WINDOW_NEW, &MdiFrame::OnWindowNew, &MdiFrame::OnUpdateWindowNew);
    on(ID_WINDOW_CASCADE, &MdiFrame::OnWindowCascade, &MdiFrame::OnUpdateWindow);
    on(ID_WINDOW_TILE_HORZ, &MdiFrame::OnWindowTileHorz, &MdiFrame::OnUpdateWindow);
    on(ID_WINDOW_TILE_VERT, &MdiFrame::OnWindowTileVert, &MdiFrame::OnUpdateWindow);
    on(ID_WINDOW_ARRANGE, &MdiFrame::OnWindowArrange, &MdiFrame::OnUpdateWindowArrange);
}

MdiFrame::~MdiFrame() {
    // While they go, child frames still find a whole main frame, and nobody is told of activations, nor that
    // a document has one window less in its title.
    area_->disconnect(this);
    for (ChildFrame* child : childFrames())
        disconnect(child, &QWidget::windowTitleChanged, nullptr, nullptr);
    for (ChildFrame* child : childFrames())
        delete child;
}

ChildFrame& MdiFrame::addChild(std::unique_ptr<ChildFrame> child) {
    // Until this window shows, nobody has given the area the size that the frame fits itself into. Drawing a
    // spot of the window makes up for that.
    if (!isVisible())
        static_cast<void>(grab(QRect(0, 0, 1, 1)));
    ChildFrame& frame = *child;
    area_->addSubWindow(child.release());
    connect(&frame, &QWidget::windowTitleChanged, this, &MdiFrame::OnUpdateFrameTitle);
    connect(&frame, &QMdiSubWindow::windowStateChanged, this, &MdiFrame::OnUpdateFrameTitle);
    if (frame.view() != nullptr)
        frame.view()->initialUpdate(frame);
    // A view that restored its window has chosen how it shows.
    if (!frame.isVisible())
        frame.show();
    return frame;
}

ChildFrame* MdiFrame::activeChild() const {
    if (QMdiSubWindow* current = area_->currentSubWindow())
        return qobject_cast<ChildFrame*>(current);
    // The area has none for a moment while another program comes to the front.
    auto* const last = qobject_cast<ChildFrame*>(activated_.data());
    return last != nullptr && last->document() != nullptr ? last : nullptr;
}

std::vector<ChildFrame*> MdiFrame::childFrames() const {
    std::vector<ChildFrame*> frames;
    for (QMdiSubWindow* window : area_->subWindowList(QMdiArea::StackingOrder)) {
        if (auto* frame = qobject_cast<ChildFrame*>(window))
            frames.push_back(frame);
    }
    // The list begins at the bottom of the stack.
    std::ranges::reverse(frames);
    const auto active = std::ranges::find(frames, activeChild());
    if (active != frames.end())
        std::rotate(frames.begin(), active, active + 1);
    return frames;
}

ChildFrame* MdiFrame::frameOf(const CDocument& document) const {
    const std::vector<ChildFrame*> frames = childFrames();
    const auto found = std::ranges::find(frames, &document, &ChildFrame::document);
    return found == frames.end() ? nullptr : *found;
}

void MdiFrame::activateChild(ChildFrame& child) {
    if (child.isMinimized())
        child.showNormal();
    area_->setActiveSubWindow(&child);
}

std::vector<CommandTarget*> MdiFrame::commandTargets() {
    std::vector<CommandTarget*> targets;
    ChildFrame* child = activeChild();
    if (child != nullptr && child->view() != nullptr)
        targets = {&child->view()->commandTarget(), child->document(), child};
    targets.push_back(this);
    return targets;
}

void MdiFrame::setCaption(const QString& caption) {
    caption_ = caption;
    MdiFrame::OnUpdateFrameTitle();
}

bool MdiFrame::closeChildren() {
    const std::vector<ChildFrame*> frames = childFrames();
    return std::ranges::all_of(frames, [](ChildFrame* frame) { return frame->close(); });
}

void MdiFrame::closeChildrenUnasked() {
    for (ChildFrame* child : childFrames())
        child->closeUnasked();
}

void MdiFrame::closeEvent(QCloseEvent* event) {
    if (closeChildren())
        QMainWindow::closeEvent(event);
    else
        event->ignore();
}

void MdiFrame::OnWindowNew() {
    CDocument& document = *activeChild()->document();
    document.documentTemplate()->newWindow(document);
}

void MdiFrame::OnUpdateWindowNew(CommandUi& ui) {
    const ChildFrame* child = activeChild();
    const CDocument* document = child == nullptr ? nullptr : child->document();
    ui.require(document != nullptr && document->documentTemplate() != nullptr, StringId::WhyNoDocument);
}

void MdiFrame::OnWindowCascade() {
    for (ChildFrame* child : childFrames()) {
        if (child->isMaximized())
            child->showNormal();
    }
    area_->cascadeSubWindows();
}

void MdiFrame::OnWindowTileHorz() {
    tile(TileDirection::Horizontal);
}

void MdiFrame::OnWindowTileVert() {
    tile(TileDirection::Vertical);
}

void MdiFrame::OnWindowArrange() {
    arrangeMinimized();
}

void MdiFrame::OnUpdateWindow(CommandUi& ui) {
    ui.require(!childFrames().empty(), StringId::WhyNoDocument);
}

void MdiFrame::OnUpdateWindowArrange(CommandUi& ui) {
    ui.require(!childFrames().empty(), StringId::WhyNoDocument);
    ui.require(std::ranges::any_of(childFrames(), &QWidget::isMinimized), StringId::WhyNoMinimized);
}

void MdiFrame::childActivated() {
    // Not the signal's argument, which may be null while another window of the program is active.
    ChildFrame* child = activeChild();
    activated_ = child;
    OnUpdateFrameTitle();
    const bool ownMenus = child != nullptr && child->document() != nullptr && !child->menus().empty();
    showMenus(ownMenus ? child->menus() : menus_);
    if (child != nullptr && child->view() != nullptr)
        child->view()->activated(*child);
    Q_EMIT activeChildChanged(child);
}

void MdiFrame::setMenus(std::span<const MenuItem> menus, CommandActions& actions) {
    menus_ = menus;
    actions_ = &actions;
    showMenus(menus);
}

void MdiFrame::showMenus(std::span<const MenuItem> menus) {
    if (menus.data() == shownMenus_)
        return;
    shownMenus_ = menus.data();
    QMenuBar& bar = *menuBar();
    bar.clear();
    std::vector<QMenu*>& made = madeMenus_[menus.data()];
    if (!made.empty()) {
        for (QMenu* menu : made)
            bar.addMenu(menu);
        return;
    }
    fillMenuBar(bar, menus, *actions_);
    for (std::size_t i = 0; i < menus.size(); ++i) {
        QMenu* menu = made.emplace_back(bar.actions().at(static_cast<qsizetype>(i))->menu());
        if (std::ranges::find(menus[i].items, kWindowList.id, &MenuItem::id) != menus[i].items.end())
            appendWindowList(*menu, *this);
    }
}

void MdiFrame::OnUpdateFrameTitle() {
    const ChildFrame* child = activeChild();
    const bool titled = child != nullptr && child->document() != nullptr;
    if (!titled || child->isMaximized())
        setWindowTitle(caption_);
    // Qt itself adds the title of a maximized child whose title bar it has merged into ours.
    if (titled && (!child->isMaximized() || windowTitle() == caption_))
        setWindowTitle(QStringLiteral("%1 - %2").arg(caption_, child->windowTitle()));
}

void MdiFrame::tile(TileDirection direction) {
    std::vector<ChildFrame*> frames = childFrames();
    std::erase_if(frames, &QWidget::isMinimized);
    for (ChildFrame* child : frames) {
        if (child->isMaximized())
            child->showNormal();
    }
    const int icons = arrangeMinimized();
    const QSize room = area_->viewport()->size() - QSize(0, icons);
    const std::vector<TilePlace> places =
        tilePlaces(static_cast<int>(frames.size()), room.width(), room.height(), direction);
    for (std::size_t i = 0; i < frames.size(); ++i)
        frames[i]->setGeometry(places[i].x, places[i].y, places[i].width, places[i].height);
}

int MdiFrame::arrangeMinimized() {
    const QRect room = area_->viewport()->rect();
    int x = 0;
    int bottom = room.height();
    int rowHeight = 0;
    for (ChildFrame* child : childFrames()) {
        if (!child->isMinimized())
            continue;
        if (x > 0 && x + child->width() > room.width()) {
            x = 0;
            bottom -= rowHeight;
            rowHeight = 0;
        }
        child->move(x, bottom - child->height());
        x += child->width();
        rowHeight = std::max(rowHeight, child->height());
    }
    return room.height() - bottom + rowHeight;
}

} // namespace dyeworks

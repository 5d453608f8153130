#include "ui/CMainFrame.h"

#include "core/PaletteSet.h"
#include "framework/widgets/ChildFrame.h"
#include "framework/widgets/ContextMenuKey.h"
#include "framework/widgets/ControlHelp.h"
#include "framework/widgets/MenuBuilder.h"
#include "framework/widgets/WidgetPlacement.h"
#include "paint/BackgroundPicture.h"
#include "paint/CDyeworksDoc.h"
#include "paint/widgets/BackgroundPainter.h"
#include "paint/widgets/CChildFrame.h"
#include "paint/widgets/ImageView.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "project/CTPFDocument.h"
#include "project/widgets/CTPFChildFrame.h"
#include "project/widgets/ProjectTreeWidget.h"
#include "ui/BarLayout.h"
#include "ui/BrushBar.h"
#include "ui/CProjectBar.h"
#include "ui/CurrentProject.h"
#include "ui/FindingsDock.h"
#include "ui/FullScreen.h"
#include "ui/MainFrameHost.h"
#include "ui/MainMenus.h"
#include "ui/NoPaletteHint.h"
#include "ui/PaneWalk.h"
#include "ui/StatusPanes.h"
#include "ui/palettebar/CPaletteBar.h"
#include "ui/sheets/SheetControls.h"

#include <QAction>
#include <QCloseEvent>
#include <QDropEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QMenu>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QUrl>

#include <memory>
#include <vector>

namespace dyeworks {

namespace {

constexpr const char* kPlacementEntry = "WindowPos";

constexpr double kShareOfScreen = 0.9; // The rest is for the title bar and the desktop's panels.

/// Number of the project bar's button that names and opens the chosen picture.
constexpr CommandId IDC_PICTURE_BUTTON = 1045; // NOLINT(readability-identifier-naming)

/// The local files that are dragged, as the program writes paths.
std::vector<std::string> filesIn(const QMimeData& data) {
    std::vector<std::string> paths;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            paths.push_back(platform().files().fromHostPath(url.toLocalFile().toStdString()));
    }
    return paths;
}

/// Whoever drags to move would delete the files once they are taken.
void takeAsCopy(QDropEvent& event) {
    event.setDropAction(Qt::CopyAction);
    event.accept();
}

} // namespace

CMainFrame::CMainFrame(MainFrameHost& host)
    : host_(host)
    , actions_(host.router())
    , printing_(*this, [this] { return activeImageView(); })
    , searching_(*this, actions_, host.router(),
                 [this] { return host_.currentProject().document() != nullptr; }) {
    setObjectName(QStringLiteral("IDR_MAINFRAME"));
    setAcceptDrops(true);
    new ContextMenuKey(this);
    new ControlHelp(this);
    new BackgroundPainter(area(), BackgroundPicture::read(BackgroundPicture::kFileName));
    area().setWhatsThis(shown(StringId::HelpDocumentArea));
    describeCommands();
    setMenus(mainMenu(), actions_);
    makeToolBar("ID_VIEW_TOOLBAR", ID_VIEW_TOOLBAR, StringId::BarTool, StringId::HelpToolBar, toolBarItems());
    panes_ = new StatusPanes(*statusBar());
    addBar(ID_VIEW_STATUS_BAR, *statusBar());
    makeToolBar("ID_VIEW_VIEWBAR", ID_VIEW_VIEWBAR, StringId::BarView, StringId::HelpViewBar, viewBarItems());
    // All in one row would be wider than the window is at first.
    addToolBarBreak(Qt::TopToolBarArea);
    makeToolBar("ID_VIEW_DRAWBAR", ID_VIEW_DRAWBAR, StringId::BarDraw, StringId::HelpDrawBar, drawBarItems());
    makePaletteBar();
    makeProjectBar();
    makeBrushBar();
    makeFindings();
    makeBanksBar();
    makeUndoList();
    actions_.addTo(*this);
    // An icon takes the place of the mark that says whether the bar is shown.
    for (const MenuItem& item : barsMenu())
        actions_.action(item.id)->setIconVisibleInMenu(false);
    on(ID_HELP_INDEX, &CMainFrame::OnHelpIndex);
    on(ID_DEFAULT_HELP, &CMainFrame::OnHelpIndex);
    on(ID_HELP, &CMainFrame::OnHelp);
    on(ID_CONTEXT_HELP, &CMainFrame::OnContextHelp);
    onRange(ID_PANE_NEXT, ID_PANE_PREVIOUS, &CMainFrame::OnWalkPanes);
    nameWhatQtMakes();
    fullScreen_ = new FullScreen(*this, *paletteBar_);
    on(ID_VIEW_FULL_SCREEN, &CMainFrame::OnFullScreen, &CMainFrame::OnUpdateFullScreen);
    on(ID_VIEW_RESET_LAYOUT, &CMainFrame::OnResetLayout);
    on(ID_VIEW_CELLS_ONLY, &CMainFrame::OnCellsOnly, &CMainFrame::OnUpdateCellsOnly);
    fitBarsToScreen();
    new NoPaletteHint(*this, *panes_);
    firstLayout_ = saveState();
    restoreBarLayout(*this, *paletteBar_);
    CMainFrame::OnUpdateFrameTitle();
    restorePlacement();
}

CMainFrame::~CMainFrame() {
    // It asks this window where the keys go, also while the rest of the widgets ends.
    delete undoList_;
}

void CMainFrame::makeToolBar(const char* name, CommandId id, StringId title, StringId help,
                             std::span<const MenuItem> items) {
    QToolBar* bar = addToolBar(shown(title));
    bar->setObjectName(QString::fromLatin1(name));
    bar->setWhatsThis(shown(help));
    fillToolBar(*bar, items, actions_);
    addBar(id, *bar);
}

/// The button that opens what a narrow tool bar has no room for.
void CMainFrame::nameWhatQtMakes() {
    for (const QToolBar* bar : findChildren<QToolBar*>()) {
        if (auto* more = bar->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button")))
            more->setAccessibleName(
                QString::fromStdString(text(StringId::MoreOfBar, {bar->windowTitle().toStdString()})));
    }
}

void CMainFrame::makePaletteBar() {
    paletteBar_ = new CPaletteBar(host_.paletteBarHost(), actions_, *this);
    // Also told when the main window comes to the front with the image that was active before.
    connect(this, &MdiFrame::activeChildChanged, paletteBar_,
            [bar = paletteBar_] { bar->state().ImageChanged(); });
    acceptFiles(*paletteBar_);
    on(ID_VIEW_PALETTEBAR, &CMainFrame::OnTogglePaletteBar, &CMainFrame::OnUpdatePaletteBar);
}

void CMainFrame::acceptFiles(QWidget& bar) {
    bar.setAcceptDrops(true);
    bar.installEventFilter(this);
    // A field would take the files' names for text.
    for (QLineEdit* field : bar.findChildren<QLineEdit*>())
        field->installEventFilter(this);
}

void CMainFrame::makeProjectBar() {
    projectBar_ = new CProjectBar(host_.currentProject(), actions_);
    addToolBar(Qt::TopToolBarArea, projectBar_);
    addBar(ID_VIEW_PROJECTBAR, *projectBar_);
    on(IDC_PICTURE_BUTTON, &CMainFrame::OnPictureButton, &CMainFrame::OnUpdatePictureButton);
}

void CMainFrame::makeBrushBar() {
    auto* bar = new BrushBar;
    fillToolBar(*bar, brushBarItems(), actions_);
    connect(actions_.action(ID_BRUSH_ROUND), &QAction::enabledChanged, bar, &BrushBar::enableSize);
    // In a row of its own, which is there only while the bar is.
    addToolBarBreak(Qt::TopToolBarArea);
    addToolBar(Qt::TopToolBarArea, bar);
    addBar(ID_VIEW_BRUSHBAR, *bar);
    bar->hide();
}

void CMainFrame::makeFindings() {
    findings_ = new FindingsDock;
    addDockWidget(Qt::BottomDockWidgetArea, findings_);
    addBar(ID_VIEW_FINDINGS, *findings_);
    findings_->hide();
}

void CMainFrame::makeBanksBar() {
    banksBar_ = new BanksBar(*this);
    addDockWidget(Qt::RightDockWidgetArea, banksBar_);
    addBar(ID_VIEW_BANKSBAR, *banksBar_);
    banksBar_->hide();
    connect(this, &MdiFrame::activeChildChanged, banksBar_, &BanksBar::showAnew);
    connect(paletteBar_, &CPaletteBar::shownAnew, banksBar_, &BanksBar::showAnew);
}

CDyeworksDoc* CMainFrame::activeImage() const {
    ImageView* const view = activeImageView();
    return view == nullptr ? nullptr : &view->view().document();
}

const PaletteSet& CMainFrame::openPalettes() const {
    return *host_.paletteBarHost().paletteSet();
}

void CMainFrame::chooseBank(std::int32_t number) {
    const CDyeworksDoc* const image = activeImage();
    if (image == nullptr || !image->IsAttached())
        return;
    // The bar gives banks to images of the palette that it shows.
    PaletteSet& palettes = *host_.paletteBarHost().paletteSet();
    if (image->attachedName() != palettes.currentKey)
        palettes.setCurrent(image->attachedName());
    SetPaletteBarNumber(number);
}

void CMainFrame::attachActiveTo(const std::string& key) {
    host_.paletteBarHost().paletteSet()->setCurrent(key);
    actions_.run(ID_IMAGE_ATTACH);
}

void CMainFrame::imageChanged(const CDyeworksDoc& image, const std::optional<Rect>& texels) {
    banksBar_->imageChanged(image, texels);
    undoList_->refreshSoon();
}

void CMainFrame::palettePreviewed(const std::string& key, const TextureLookupTable& palette) {
    banksBar_->palettePreviewed(key, palette);
}

void CMainFrame::OnUpdatePictureButton(CommandUi& ui) {
    ui.enabled = !host_.currentProject().picture().empty();
}

QMenu* CMainFrame::createPopupMenu() {
    auto* menu = new QMenu(this);
    fillMenu(*menu, barsMenu(), actions_);
    return menu;
}

void CMainFrame::restorePlacement() {
    resize(kFirstSize.boundedTo(screen()->availableSize() * kShareOfScreen));
    std::optional<WindowPlacement> placement = readWindowPlacement(kPlacementEntry);
    if (!placement)
        return;
    // The program starts with its window in sight, however it was left.
    placement->showCommand = (placement->flags & WindowPlacement::kRestoreToMaximized) != 0
                                 ? WindowPlacement::kShowMaximized
                                 : WindowPlacement::kShowNormal;
    setWindowPlacement(*this, *placement);
}

void CMainFrame::savePlacement() const {
    WindowPlacement placement = windowPlacement(*this);
    if (isMaximized())
        placement.flags |= WindowPlacement::kRestoreToMaximized;
    writeWindowPlacement(kPlacementEntry, placement);
}

void CMainFrame::openImageWindow(CDyeworksDoc& document) {
    auto view = std::make_unique<ImageView>(document);
    ImageView& image = *view;
    image.setWhatsThis(shown(StringId::HelpImageView));
    auto child = std::make_unique<CChildFrame>(document, std::move(view), image);
    child->setMenus(imageMenu());
    connect(&image, &ImageView::contextMenuRequested, this,
            [this, &document](CDyeworksView::ContextMenu which, const QPoint& global) {
                std::vector<MenuItem> items;
                if (!document.IsAttached()) {
                    items.assign(noPaletteMenu().begin(), noPaletteMenu().end());
                    items.push_back(kSeparator);
                }
                items.insert(items.end(), imageContextMenu(which).begin(), imageContextMenu(which).end());
                popUpMenu(items, global);
            });
    // The palette that an image is attached to is part of its title, and its bank is what the bar shows.
    connect(child.get(), &QWidget::windowTitleChanged, paletteBar_,
            [bar = paletteBar_] { bar->state().ImageChanged(); });
    addChild(std::move(child));
}

void CMainFrame::openProjectWindow(CTPFDocument& document) {
    auto tree = std::make_unique<ProjectTreeWidget>(document);
    ProjectTreeWidget& view = *tree;
    view.setWhatsThis(shown(StringId::HelpProjectTree));
    auto child = std::make_unique<CTPFChildFrame>(document, std::move(tree), view);
    child->setMenus(projectMenu());
    connect(&view, &ProjectTreeWidget::contextMenuRequested, this,
            [this](const QPoint& global) { popUpMenu(nodeMenu(), global); });
    addChild(std::move(child));
}

void CMainFrame::popUpMenu(std::span<const MenuItem> items, const QPoint& place) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fillMenu(*menu, items, actions_);
    menu->popup(place);
}

void CMainFrame::activateWindowOf(const CDocument& document) {
    if (ChildFrame* child = frameOf(document))
        activateChild(*child);
}

ImageView* CMainFrame::activeImageView() const {
    const ChildFrame* child = activeChild();
    return child == nullptr ? nullptr : qobject_cast<ImageView*>(child->widget());
}

void CMainFrame::OnWalkPanes(CommandId id) {
    std::vector<QWidget*> panes{activeChild()};
    for (QToolBar* bar : findChildren<QToolBar*>(Qt::FindDirectChildrenOnly))
        panes.push_back(bar);
    panes.insert(panes.end(), {findings_, banksBar_, undoList_, paletteBar_});
    walkPanes(panes, id == ID_PANE_PREVIOUS);
}

void CMainFrame::SetStatusText(const std::string& text, int pane, unsigned flags) {
    panes_->setText(text, pane, flags);
}

void CMainFrame::ProjectChanged() {
    projectBar_->Refresh();
    OnUpdateFrameTitle();
}

void CMainFrame::SelectPicture(const std::string& name) {
    projectBar_->SelectPicture(name);
}

void CMainFrame::RefreshPaletteBar() {
    paletteBar_->state().RefreshFromPalette();
}

void CMainFrame::FillPaletteBarList() {
    paletteBar_->state().tabsChanged();
}

std::int32_t CMainFrame::GetPaletteBarFirstEntry() const {
    return paletteBar_->state().cells().GetFirstEntry();
}

std::int32_t CMainFrame::GetPaletteBarCell() const {
    return paletteBar_->state().cells().current();
}

void CMainFrame::SelectPaletteBarCell(std::int32_t cell) {
    paletteBar_->state().SelectCell(cell);
}

void CMainFrame::SetPaletteBarNumber(std::int32_t number) {
    paletteBar_->state().SetPaletteNumber(number);
}

QPixmap CMainFrame::picture() {
    QPixmap whole = grab();
    if (paletteBar_->isShown()) {
        QPainter painter(&whole);
        painter.drawPixmap(mapFromGlobal(paletteBar_->pos()), paletteBar_->grab());
    }
    return whole;
}

void CMainFrame::OnUpdateFrameTitle() {
    QString caption = shown(StringId::ApplicationTitle);
    if (const CTPFDocument* project = host_.currentProject().document()) {
        // "[*]" is Qt's mark for a changed document, doubled it is itself.
        caption +=
            QStringLiteral(" @ ") +
            QString::fromStdString(project->title()).replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
    }
    setCaption(caption);
}

bool CMainFrame::OnClose() {
    if (!host_.SaveAllModified())
        return false;
    keepLayout();
    return true;
}

void CMainFrame::keepLayout() {
    if (!fullScreen_->isOn()) {
        savePlacement();
        saveBarLayout(*this, *paletteBar_);
    }
    host_.SaveOpenDocuments();
}

void CMainFrame::closeEvent(QCloseEvent* event) {
    event->ignore();
    // Questions let events through, another wish to close among them.
    if (closing_)
        return;
    closing_ = true;
    const bool agreed = OnClose();
    closing_ = false;
    if (!agreed)
        return;
    closeChildrenUnasked();
    MdiFrame::closeEvent(event);
}

void CMainFrame::setVisible(bool visible) {
    if (!visible)
        paletteBar_->hide();
    MdiFrame::setVisible(visible);
    // Only above a window that is there already will it float.
    if (visible)
        paletteBar_->setShown(paletteBar_->isShown());
}

// A bar that floats is a window of its own, so that what is dropped on it does not come to this one.
bool CMainFrame::eventFilter(QObject* watched, QEvent* event) {
    const bool isDrop = event->type() == QEvent::Drop;
    if (isDrop || event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove) {
        auto* drop = static_cast<QDropEvent*>(event);
        if (!filesIn(*drop->mimeData()).empty()) {
            if (isDrop)
                dropEvent(drop);
            else
                takeAsCopy(*drop);
            return true;
        }
    }
    return MdiFrame::eventFilter(watched, event);
}

void CMainFrame::dragEnterEvent(QDragEnterEvent* event) {
    if (!filesIn(*event->mimeData()).empty())
        takeAsCopy(*event);
}

void CMainFrame::dropEvent(QDropEvent* event) {
    takeAsCopy(*event);
    for (const std::string& path : filesIn(*event->mimeData()))
        host_.OpenDocumentFile(path);
}

} // namespace dyeworks

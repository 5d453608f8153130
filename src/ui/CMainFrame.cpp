#include "ui/CMainFrame.h"

#include "framework/widgets/ChildFrame.h"
#include "framework/widgets/MenuBuilder.h"
#include "paint/CDyeworksDoc.h"
#include "paint/widgets/ImageView.h"
#include "platform/Platform.h"
#include "ui/CDyeworksApp.h"
#include "ui/MainMenus.h"
#include "ui/PalettePanel.h"

#include <QCloseEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMenu>
#include <QMimeData>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>
#include <QUrl>

#include <memory>

namespace dyeworks {

namespace {

constexpr const char* kLayoutSection = "Window";
constexpr const char* kGeometryEntry = "Geometry";
constexpr const char* kStateEntry = "State";
constexpr const char* kStatusBarEntry = "StatusBar"; // Which the state of the bars leaves out.

constexpr double kShareOfScreen = 0.9; // The rest is for the title bar and the desktop's panels.

constexpr int kPanelColumns = 18; // 16 swatches and the panel's margins.

constexpr int kPositionPaneWidth = 96;
constexpr int kSizePaneWidth = 120;

QByteArray storedBytes(const char* entry) {
    return QByteArray::fromBase64(
        QByteArray::fromStdString(platform().profile().textOr(kLayoutSection, entry, "")));
}

void storeBytes(const char* entry, const QByteArray& bytes) {
    platform().profile().setText(kLayoutSection, entry, bytes.toBase64().toStdString());
}

/// The local files that are dragged, as the program writes paths.
std::vector<std::string> filesIn(const QMimeData& data) {
    std::vector<std::string> paths;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile())
            paths.push_back(platform().files().fromHostPath(url.toLocalFile().toStdString()));
    }
    return paths;
}

} // namespace

CMainFrame::CMainFrame(CDyeworksApp& application)
    : application_(application)
    , actions_(application.router())
    , printing_(*this)
    , palettePanel_(new PalettePanel(application, actions_.action(ID_PALETTE_OPEN), this)) {
    setObjectName(QStringLiteral("IDR_MAINFRAME"));
    setCaption(QString::fromStdString(text(StringId::ApplicationTitle)));
    setAcceptDrops(true);
    setMenus(mainMenu(), actions_);
    makeToolBar("ID_VIEW_TOOLBAR", ID_VIEW_TOOLBAR, StringId::BarTool, toolBarItems());
    makeToolBar("ID_VIEW_VIEWBAR", ID_VIEW_VIEWBAR, StringId::BarView, viewBarItems());
    makeToolBar("ID_VIEW_DRAWBAR", ID_VIEW_DRAWBAR, StringId::BarDraw, drawBarItems());
    addDockWidget(Qt::RightDockWidgetArea, palettePanel_);
    addBar(ID_VIEW_PALETTEBAR, *palettePanel_);
    makeStatusBar();
    actions_.addTo(*this);
    restoreLayout();
    connect(this, &MdiFrame::activeChildChanged, palettePanel_, &PalettePanel::currentPaletteChanged);
}

CMainFrame::~CMainFrame() = default;

void CMainFrame::makeToolBar(const char* name, CommandId id, StringId title,
                             std::span<const MenuItem> items) {
    QToolBar* bar = addToolBar(QString::fromStdString(text(title)));
    bar->setObjectName(QString::fromLatin1(name));
    fillToolBar(*bar, items, actions_);
    addBar(id, *bar);
}

void CMainFrame::addBar(CommandId id, QWidget& bar) {
    bars_[id] = &bar;
    onRange(id, id, &CMainFrame::OnToggleBar, &CMainFrame::OnUpdateBar);
}

void CMainFrame::OnToggleBar(CommandId id) {
    QWidget& bar = *bars_.at(id);
    bar.setVisible(bar.isHidden());
}

void CMainFrame::OnUpdateBar(CommandUi& ui) {
    ui.checked = !bars_.at(ui.id)->isHidden();
}

QMenu* CMainFrame::createPopupMenu() {
    auto* menu = new QMenu(this);
    fillMenu(*menu, barsMenu(), actions_);
    return menu;
}

void CMainFrame::makeStatusBar() {
    const auto addPane = [this](const char* name, int width, const char* initialText) {
        auto* pane = new QLabel(QString::fromLatin1(initialText));
        pane->setObjectName(QString::fromLatin1(name));
        pane->setMinimumWidth(width);
        statusBar()->addPermanentWidget(pane);
        return pane;
    };
    addBar(ID_VIEW_STATUS_BAR, *statusBar());
    panes_ = {addPane("ID_INDICATOR_POSITION", kPositionPaneWidth, "(0, 0)"),
              addPane("ID_INDICATOR_SIZE", kSizePaneWidth, "(0, 0) 4bit")};
}

void CMainFrame::restoreLayout() {
    if (!restoreGeometry(storedBytes(kGeometryEntry)))
        resize(kFirstSize.boundedTo(screen()->availableSize() * kShareOfScreen));
    // As wide as a palette of 256 colours likes to be.
    if (!restoreState(storedBytes(kStateEntry)))
        resizeDocks({palettePanel_}, {kPanelColumns * fontMetrics().height()}, Qt::Horizontal);
    statusBar()->setVisible(platform().profile().integer(kLayoutSection, kStatusBarEntry, 1) != 0);
}

void CMainFrame::saveLayout() const {
    storeBytes(kGeometryEntry, saveGeometry());
    storeBytes(kStateEntry, saveState());
    platform().profile().setInteger(kLayoutSection, kStatusBarEntry, statusBar()->isHidden() ? 0 : 1);
}

void CMainFrame::openImageWindow(CDyeworksDoc& document) {
    auto view = std::make_unique<ImageView>(document);
    ImageView& shown = *view;
    auto child = std::make_unique<ChildFrame>(document, std::move(view), shown);
    child->setMenus(imageMenu());
    // The palette that an image is attached to is part of its title, and its bank is what the panel shows.
    connect(child.get(), &QWidget::windowTitleChanged, palettePanel_, &PalettePanel::currentPaletteChanged);
    addChild(std::move(child));
}

void CMainFrame::activateWindowOf(const CDocument& document) {
    if (ChildFrame* child = frameOf(document))
        activateChild(*child);
}

ImageView* CMainFrame::activeImageView() const {
    const ChildFrame* child = activeChild();
    return child == nullptr ? nullptr : qobject_cast<ImageView*>(child->widget());
}

void CMainFrame::SetStatusText(const std::string& text, int pane) {
    if (pane == 0)
        statusBar()->showMessage(QString::fromStdString(text));
    else
        panes_.at(static_cast<std::size_t>(pane - 1))->setText(QString::fromStdString(text));
}

void CMainFrame::closeEvent(QCloseEvent* event) {
    if (!application_.SaveAllModified()) {
        event->ignore();
        return;
    }
    saveLayout();
    closeChildrenUnasked();
    MdiFrame::closeEvent(event);
}

void CMainFrame::changeEvent(QEvent* event) {
    // The area keeps the background that it was made with.
    if (event->type() == QEvent::PaletteChange)
        area().setBackground(palette().brush(QPalette::Dark));
    MdiFrame::changeEvent(event);
}

void CMainFrame::dragEnterEvent(QDragEnterEvent* event) {
    if (!filesIn(*event->mimeData()).empty())
        event->acceptProposedAction();
}

void CMainFrame::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    application_.OpenFiles(filesIn(*event->mimeData()), false);
}

} // namespace dyeworks

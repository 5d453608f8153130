#include "viewer/ViewerWindow.h"

#include "common/Say.h"
#include "viewer/ViewerView.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QMainWindow>
#include <QToolBar>
#include <QVBoxLayout>
#include <QWindow>

#include <utility>

namespace dyeworks::plugins {

namespace {

/// Between the windows, and to the edge of the program's; twice that leaves its status bar free.
constexpr int kGap = 24;

/// The program's main window; null when it has none.
QWidget* programWindow() {
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        if (qobject_cast<QMainWindow*>(widget) != nullptr && widget->isVisible())
            return widget;
    }
    return nullptr;
}

} // namespace

ViewerWindow::ViewerWindow(int number)
    // Only dialogs stay over the window that they belong to.
    : QWidget(nullptr, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                           Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint)
    , number_(number)
    , view_(new ViewerView(this)) {
    setObjectName(QString::fromLatin1("Preview%1").arg(number));
    setWindowTitle(say("Preview %1", "プレビュー %1").arg(number));
    // The pen stays with the program, which also ends without asking whether previews are open.
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);

    view_->setAccessibleName(say("Picture", "画像"));
    view_->setToolTip(say("The image as it is edited; the wheel zooms", "編集中の画像 (ホイールでズーム)"));

    auto* const bar = new QToolBar(this);
    bar->setAccessibleName(say("Preview tools", "プレビューのツール"));
    makeTilesBox(*bar);
    makeZoomBox(*bar);
    QAction* const zoomOut =
        makeButton(*bar, say("Zoom out", "縮小"), QString(QChar(0x2212)), say("Zoom out (-)", "縮小 (-)"));
    zoomOut->setShortcut(Qt::Key_Minus);
    connect(zoomOut, &QAction::triggered, view_, [this] { view_->zoomOut(); });
    QAction* const zoomIn =
        makeButton(*bar, say("Zoom in", "拡大"), QString(QLatin1Char('+')), say("Zoom in (+)", "拡大 (+)"));
    zoomIn->setShortcuts({Qt::Key_Plus, Qt::Key_Equal});
    connect(zoomIn, &QAction::triggered, view_, [this] { view_->zoomIn(); });
    QAction* const alpha =
        makeButton(*bar, say("Alpha", "アルファ"), say("Alpha", "アルファ"),
                   say("Show transparency over a checkerboard (A)", "透明度を市松模様の上に表示 (A)"));
    alpha->setShortcut(Qt::Key_A);
    alpha->setCheckable(true);
    alpha->setChecked(view_->showsAlpha());
    connect(alpha, &QAction::toggled, view_, [this](bool on) { view_->setShowsAlpha(on); });

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(view_, 1);
    view_->setFocus();
}

void ViewerWindow::makeTilesBox(QToolBar& bar) {
    auto* const box = new QComboBox(&bar);
    box->setObjectName(QString::fromLatin1("Tiles"));
    box->setAccessibleName(say("Tiling", "タイル"));
    box->setToolTip(say("How often the picture is repeated", "画像を並べる数"));
    for (int tiles = 1; tiles <= ViewerView::kMaxTiles; ++tiles)
        box->addItem(QString::fromUtf8("%1 × %1").arg(tiles), tiles);
    connect(box, &QComboBox::currentIndexChanged, view_,
            [this, box] { view_->setTiles(box->currentData().toInt()); });
    bar.addWidget(box);
}

void ViewerWindow::makeZoomBox(QToolBar& bar) {
    zoomBox_ = new QComboBox(&bar);
    zoomBox_->setObjectName(QString::fromLatin1("Zoom"));
    zoomBox_->setAccessibleName(say("Zoom", "ズーム"));
    zoomBox_->setToolTip(say("Pixels of a texel, or as large as fits", "1 テクセルの大きさ、または自動"));
    zoomBox_->addItem(say("Automatic", "自動"), ViewerView::kAutomatic);
    for (int zoom = 1; zoom <= ViewerView::kMaxZoom; ++zoom)
        zoomBox_->addItem(QString::fromUtf8("%1 %").arg(zoom * 100), zoom);
    connect(zoomBox_, &QComboBox::currentIndexChanged, view_,
            [this] { view_->setZoom(zoomBox_->currentData().toInt()); });
    view_->zoomChanged = [this] { zoomBox_->setCurrentIndex(zoomBox_->findData(view_->zoom())); };
    bar.addWidget(zoomBox_);
}

QAction* ViewerWindow::makeButton(QToolBar& bar, const QString& name, const QString& shown,
                                  const QString& tip) {
    QAction* const action = bar.addAction(shown);
    action->setToolTip(tip);
    bar.widgetForAction(action)->setAccessibleName(name);
    return action;
}

void ViewerWindow::goOverProgram() {
    QWidget* const program = programWindow();
    static_cast<void>(winId());
    windowHandle()->setTransientParent(program == nullptr ? nullptr : program->windowHandle());
    if (program == nullptr || testAttribute(Qt::WA_Moved))
        return;
    adjustSize();
    move(program->geometry().bottomRight() - QPoint(number_ * (width() + kGap), height() + 2 * kGap));
}

bool ViewerWindow::showPicture(const PlugInPicture& picture) {
    if (!view_->show(picture)) {
        hide();
        return false;
    }
    if (!isVisible()) {
        goOverProgram();
        show();
    }
    return true;
}

void ViewerWindow::dismiss() {
    closedByUser_ = false;
    hide();
}

bool ViewerWindow::takeClosedByUser() {
    return std::exchange(closedByUser_, false);
}

void ViewerWindow::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Cancel))
        close();
    else
        QWidget::keyPressEvent(event);
}

void ViewerWindow::closeEvent(QCloseEvent* event) {
    closedByUser_ = true;
    QWidget::closeEvent(event);
}

} // namespace dyeworks::plugins

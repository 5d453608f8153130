#include "ui/FullScreen.h"

#include "platform/StringId.h"
#include "ui/palettebar/CPaletteBar.h"
#include "ui/sheets/SheetControls.h"

#include <QDockWidget>
#include <QKeyEvent>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

#include <chrono>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::chrono::seconds kHintTime{4};

} // namespace

FullScreen::FullScreen(QMainWindow& frame, CPaletteBar& paletteBar)
    : QObject(&frame)
    , frame_(frame)
    , paletteBar_(paletteBar) {
    frame.installEventFilter(this);
}

void FullScreen::enter() {
    if (on_)
        return;
    on_ = true;
    docked_ = frame_.saveState();
    statusBarShown_ = !frame_.statusBar()->isHidden();
    paletteBarShown_ = paletteBar_.isShown();
    for (QToolBar* bar : frame_.findChildren<QToolBar*>(Qt::FindDirectChildrenOnly))
        bar->hide();
    for (QDockWidget* dock : frame_.findChildren<QDockWidget*>(Qt::FindDirectChildrenOnly))
        dock->hide();
    frame_.menuBar()->hide();
    frame_.statusBar()->hide();
    paletteBar_.setShown(false);
    frame_.setWindowState(frame_.windowState() | Qt::WindowFullScreen);
    showHint();
}

void FullScreen::leave() {
    if (!on_)
        return;
    frame_.setWindowState(frame_.windowState() & ~Qt::WindowFullScreen);
    bringBarsBack();
}

void FullScreen::bringBarsBack() {
    if (!std::exchange(on_, false))
        return;
    delete frame_.findChild<QLabel*>(QStringLiteral("fullScreenHint"));
    frame_.menuBar()->show();
    frame_.restoreState(docked_);
    frame_.statusBar()->setVisible(statusBarShown_);
    paletteBar_.setShown(paletteBarShown_);
}

/// Without menus nobody would find the way back.
void FullScreen::showHint() {
    auto* hint = new QLabel(shown(StringId::FullScreenHint), &frame_);
    hint->setObjectName(QStringLiteral("fullScreenHint"));
    hint->setAutoFillBackground(true);
    hint->setBackgroundRole(QPalette::ToolTipBase);
    hint->setForegroundRole(QPalette::ToolTipText);
    hint->setFrameStyle(QFrame::Box | QFrame::Plain);
    hint->setMargin(hint->fontMetrics().height() / 2);
    hint->adjustSize();
    const int gap = hint->fontMetrics().height();
    hint->move(gap, gap);
    hint->show();
    // It ends with the hint, however soon that goes.
    auto* const end = new QTimer(hint);
    connect(end, &QTimer::timeout, hint, &QObject::deleteLater);
    end->start(kHintTime);
}

bool FullScreen::eventFilter(QObject* watched, QEvent* event) {
    if (!on_)
        return false;
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        leave();
        return true;
    }
    // The desktop has keys of its own for it.
    if (event->type() == QEvent::WindowStateChange && !frame_.isFullScreen())
        bringBarsBack();
    return QObject::eventFilter(watched, event);
}

} // namespace dyeworks

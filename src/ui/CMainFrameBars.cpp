#include "ui/BarLayout.h"
#include "ui/CMainFrame.h"
#include "ui/CProjectBar.h"
#include "ui/FullScreen.h"
#include "ui/palettebar/CPaletteBar.h"

#include <QScreen>
#include <QStyle>
#include <QToolBar>

namespace dyeworks {

void CMainFrame::addBar(CommandId id, QWidget& bar) {
    bars_[id] = &bar;
    acceptFiles(bar);
    onRange(id, id, &CMainFrame::OnToggleBar, &CMainFrame::OnUpdateBar);
}

void CMainFrame::OnToggleBar(CommandId id) {
    QWidget& bar = *bars_.at(id);
    bar.setVisible(bar.isHidden());
}

void CMainFrame::OnUpdateBar(CommandUi& ui) {
    ui.checked = !bars_.at(ui.id)->isHidden();
}

void CMainFrame::OnTogglePaletteBar() {
    paletteBar_->setShown(!paletteBar_->isShown());
}

void CMainFrame::OnUpdatePaletteBar(CommandUi& ui) {
    ui.checked = paletteBar_->isShown();
}

void CMainFrame::OnFullScreen() {
    if (fullScreen_->isOn()) {
        fullScreen_->leave();
        return;
    }
    // Until it is left again, what the settings say is how it was before.
    keepLayout();
    fullScreen_->enter();
}

void CMainFrame::OnUpdateFullScreen(CommandUi& ui) {
    ui.checked = fullScreen_->isOn();
}

void CMainFrame::OnResetLayout() {
    fullScreen_->leave();
    resetBarLayout(*this, *paletteBar_, firstLayout_);
}

void CMainFrame::OnCellsOnly() {
    paletteBar_->setCellsOnly(!paletteBar_->cellsOnly());
}

void CMainFrame::OnUpdateCellsOnly(CommandUi& ui) {
    ui.checked = paletteBar_->cellsOnly();
}

/// Buttons that a bar has no room for hide behind its end, where nobody looks for them.
void CMainFrame::fitBarsToScreen() {
    int together = 0;
    for (const char* const name : {"ID_VIEW_DRAWBAR", "ID_VIEW_PROJECTBAR"})
        together += findChild<QToolBar*>(QString::fromLatin1(name))->sizeHint().width();
    if (together <= screen()->availableSize().width())
        return;
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    setIconSize({side, side});
    insertToolBarBreak(projectBar_);
}

} // namespace dyeworks

#include "core/PaletteSet.h"
#include "framework/PathText.h"
#include "framework/widgets/ChildFrame.h"
#include "paint/CDyeworksDoc.h"
#include "paint/widgets/ImageView.h"
#include "platform/StringId.h"
#include "ui/BarLayout.h"
#include "ui/CMainFrame.h"
#include "ui/CProjectBar.h"
#include "ui/FullScreen.h"
#include "ui/MainFrameHost.h"
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

void CMainFrame::makeUndoList() {
    undoList_ = new UndoListDock(*this);
    addDockWidget(Qt::RightDockWidgetArea, undoList_);
    addBar(ID_VIEW_UNDO_LIST, *undoList_);
    undoList_->hide();
    connect(this, &MdiFrame::activeChildChanged, undoList_, &UndoListDock::refreshSoon);
    connect(paletteBar_, &CPaletteBar::shownAnew, undoList_, &UndoListDock::refreshSoon);
}

JointDocument* CMainFrame::stepsOf(StepOwner owner) {
    if (owner == StepOwner::Image) {
        CDyeworksDoc* const image = activeImage();
        return image == nullptr ? nullptr : &image->jointSide();
    }
    TextureLookupTable* const palette = host_.paletteBarHost().paletteSet()->lookup("");
    return palette == nullptr ? nullptr : &palette->jointSide();
}

std::string CMainFrame::nameOf(StepOwner owner) {
    const JointDocument* const document = stepsOf(owner);
    return document == nullptr ? std::string() : std::string(fileNameOf(document->jointName()));
}

void CMainFrame::goTo(StepOwner owner, std::int32_t position) {
    if (owner == StepOwner::Palette) {
        paletteBar_->state().goTo(position);
        return;
    }
    CDyeworksDoc& image = *activeImage();
    if (image.floatingPieces().empty())
        image.GoTo(position);
    else
        SetStatusText(text(StringId::UndoListFloats), 0);
}

std::optional<StepOwner> CMainFrame::ownerAt(const QWidget* widget) {
    if (widget == nullptr)
        return std::nullopt;
    if (paletteBar_->isAncestorOf(widget))
        return StepOwner::Palette;
    // The window that it is in need not be the active one yet.
    for (; widget != nullptr; widget = widget->parentWidget()) {
        if (qobject_cast<const ImageView*>(widget) != nullptr)
            return StepOwner::Image;
    }
    return std::nullopt;
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

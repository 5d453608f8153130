#include "ui/palettebar/CPaletteBar.h"

#include "core/PaletteSet.h"
#include "framework/widgets/CommandActions.h"
#include "framework/widgets/MenuBuilder.h"
#include "ui/palettebar/PaletteBarMenu.h"
#include "ui/sheets/SheetControls.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QMenu>
#include <QVBoxLayout>

#include <string>

namespace dyeworks {

CPaletteBar::CPaletteBar(PaletteBarHost& host, CommandActions& actions, QWidget& owner)
    : QWidget(&owner, Qt::Tool | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint)
    , host_(host)
    , actions_(actions)
    , controls_(new CPaletteBarControls(host, actions))
    , menu_(new QMenu(this)) {
    setObjectName(QStringLiteral("ID_VIEW_PALETTEBAR"));
    setWindowTitle(shown(StringId::BarPalette));
    setWhatsThis(shown(StringId::HelpPaletteBar));
    // The keys stay with the document when the bar comes up.
    setAttribute(Qt::WA_ShowWithoutActivating);
    on(ID_PALETTE_EDIT, &CPaletteBar::OnEditPalette, &CPaletteBar::OnUpdateEditPalette);
    on(ID_PALETTE_COPY, &CPaletteBar::OnCopyPalette, &CPaletteBar::OnUpdateCopyPalette);
    on(ID_PALETTE_PASTE, &CPaletteBar::OnPastePalette, &CPaletteBar::OnUpdatePastePalette);
    on(ID_PALETTE_UNDO, &CPaletteBar::OnUndo, &CPaletteBar::OnUpdateUndo);
    on(ID_PALETTE_REDO, &CPaletteBar::OnRedo, &CPaletteBar::OnUpdateRedo);
    fillMenu(*menu_, paletteBarMenu(), actions);

    auto* layout = new QVBoxLayout(this);
    const int margin = fontMetrics().height() / 3;
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(controls_);
    // A letter with Alt must not come to a text field, which would take it for text.
    for (QWidget* each : controls_->findChildren<QWidget*>())
        each->installEventFilter(this);
    resize(sizeHint());
    tabsChanged();
    RefreshFromPalette();
}

void CPaletteBar::setShown(bool shown) {
    shown_ = shown;
    setVisible(shown && parentWidget()->isVisible());
}

void CPaletteBar::tabsChanged() {
    std::vector<std::string> keys;
    if (PaletteSet* const set = host_.paletteSet())
        set->listKeys(keys);
    controls_->state().RebuildTabs(keys);
}

void CPaletteBar::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    controls_->state().SetShown(true);
}

void CPaletteBar::hideEvent(QHideEvent* event) {
    controls_->state().SetShown(false);
    QWidget::hideEvent(event);
}

void CPaletteBar::closeEvent(QCloseEvent* event) {
    shown_ = false;
    QWidget::closeEvent(event);
}

void CPaletteBar::contextMenuEvent(QContextMenuEvent* event) {
    if (!controls_->state().hasPalette())
        return;
    menu_->popup(contextMenuPlace(*event, *this));
}

void CPaletteBar::OnEditPalette() {
    controls_->state().EditPalette();
}

void CPaletteBar::OnUpdateEditPalette(CommandUi& ui) {
    ui.enabled = controls_->state().CanEditPalette();
}

void CPaletteBar::OnCopyPalette() {
    controls_->state().CopyPalette();
}

void CPaletteBar::OnUpdateCopyPalette(CommandUi& ui) {
    ui.enabled = controls_->state().CanCopyPalette();
}

void CPaletteBar::OnPastePalette() {
    controls_->state().PastePalette();
}

void CPaletteBar::OnUpdatePastePalette(CommandUi& ui) {
    ui.enabled = controls_->state().CanPastePalette();
}

void CPaletteBar::OnUndo() {
    controls_->state().Undo();
}

void CPaletteBar::OnUpdateUndo(CommandUi& ui) {
    ui.enabled = controls_->state().CanUndo();
}

void CPaletteBar::OnRedo() {
    controls_->state().Redo();
}

void CPaletteBar::OnUpdateRedo(CommandUi& ui) {
    ui.enabled = controls_->state().CanRedo();
}

} // namespace dyeworks

#include "ui/palettebar/CPaletteBar.h"

#include "framework/widgets/CommandActions.h"
#include "framework/widgets/MenuBuilder.h"
#include "platform/StringId.h"
#include "ui/palettebar/PaletteBarMenu.h"
#include "ui/sheets/SheetControls.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QMenu>
#include <QVBoxLayout>

namespace dyeworks {

CPaletteBar::CPaletteBar(PaletteBarHost& host, CommandActions& actions, QWidget& owner)
    : QWidget(&owner, Qt::Tool | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint)
    , actions_(actions)
    , controls_(new CPaletteBarControls(host, actions))
    , menu_(new QMenu(this)) {
    setObjectName(QStringLiteral("ID_VIEW_PALETTEBAR"));
    setWindowTitle(shown(StringId::BarPalette));
    setWhatsThis(shown(StringId::HelpPaletteBar));
    // The keys stay with the document when the bar comes up.
    setAttribute(Qt::WA_ShowWithoutActivating);
    fillMenu(*menu_, paletteBarMenu(), actions);
    connect(controls_, &CPaletteBarControls::shownAnew, this, &CPaletteBar::shownAnew);
    connect(controls_, &CPaletteBarControls::entriesDropped, this, &CPaletteBar::entriesDropped);

    auto* layout = new QVBoxLayout(this);
    const int margin = fontMetrics().height() / 3;
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(controls_);
    // A letter with Alt must not come to a text field, which would take it for text.
    for (QWidget* each : controls_->findChildren<QWidget*>())
        each->installEventFilter(this);
    resize(sizeHint());
}

void CPaletteBar::setCellsOnly(bool only) {
    if (only == cellsOnly())
        return;
    controls_->setCellsOnly(only);
    const QSize least = controls_->minimumSizeHint().grownBy(layout()->contentsMargins());
    layout()->activate();
    resize(only ? least : compactSize());
}

QSize CPaletteBar::compactSize() const {
    return controls_->compactSize().grownBy(layout()->contentsMargins());
}

void CPaletteBar::setBar(QWidget* bar) {
    if (bar_ != nullptr) {
        bar_->hide();
        bar_->deleteLater();
    }
    bar_ = bar;
    if (bar != nullptr)
        static_cast<QBoxLayout*>(layout())->insertWidget(0, bar);
}

void CPaletteBar::setShown(bool shown) {
    shown_ = shown;
    setVisible(shown && parentWidget()->isVisible());
}

void CPaletteBar::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    state().editor().SetShown(true);
}

void CPaletteBar::hideEvent(QHideEvent* event) {
    state().editor().SetShown(false);
    QWidget::hideEvent(event);
}

void CPaletteBar::closeEvent(QCloseEvent* event) {
    shown_ = false;
    QWidget::closeEvent(event);
}

void CPaletteBar::contextMenuEvent(QContextMenuEvent* event) {
    if (!state().palette().exists())
        return;
    menu_->popup(contextMenuPlace(*event, *this));
}

} // namespace dyeworks

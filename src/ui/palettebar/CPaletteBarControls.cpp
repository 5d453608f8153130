#include "ui/palettebar/CPaletteBarControls.h"

#include "framework/widgets/CommandActions.h"
#include "framework/widgets/CommandIcon.h"
#include "framework/widgets/IntegerField.h"
#include "platform/StringId.h"
#include "ui/controls/CSwatchGrid.h"
#include "ui/palettebar/CPaletteBarChannel.h"
#include "ui/palettebar/PaletteBarWidgets.h"
#include "ui/sheets/AdjustEntriesSheet.h"
#include "ui/sheets/CIaPaletteDialog.h"
#include "ui/sheets/CRgbaPaletteDialog.h"
#include "ui/sheets/ColourControls.h"
#include "ui/sheets/SheetControls.h"

#include <QAction>
#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QStyle>
#include <QTabBar>

#include <algorithm>

namespace dyeworks {

namespace {

template <typename Dialog>
std::optional<std::uint16_t> ask(QWidget* parent, std::uint16_t start) {
    Dialog dialog(parent);
    dialog.SetValue(start);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.GetValue();
}

} // namespace

CPaletteBarControls::~CPaletteBarControls() {
    // A field that has the focus loses it, and tells so, when nothing of this class is left.
    for (QWidget* each : findChildren<QWidget*>())
        each->disconnect(this);
}

void CPaletteBarControls::valuesChanged() {
    for (const auto& channel : channels_)
        channel->showValue();
    showEntry();
    showBank();
    const QSignalBlocker quietRgb(rgb_);
    const QSignalBlocker quietAlpha(alpha_);
    (state_.viewMode() == ViewMode::Alpha ? alpha_ : rgb_)->setChecked(true);
    const QSignalBlocker quietPreview(preview_);
    preview_->setChecked(state_.editor().preview());
    Q_EMIT shownAnew();
}

void CPaletteBarControls::showRemarks(std::vector<EntryRemark> remarks) {
    if (remarks == remarks_)
        return;
    remarks_ = std::move(remarks);
    showGlyphs();
    grid_->describeAgain();
}

void CPaletteBarControls::selectEntries(EntryRange range) {
    grid_->selectRun(static_cast<std::int16_t>(range.first), static_cast<std::int16_t>(range.last));
}

void CPaletteBarControls::showGlyphs() {
    for (std::int16_t cell = 0; cell < grid_->cellCount(); ++cell) {
        const auto at = static_cast<std::size_t>(cell);
        const EntryRemark* const remark = at < remarks_.size() ? &remarks_[at] : nullptr;
        int glyphs = 0;
        if (remark != nullptr)
            glyphs = (remark->isUnused() ? CSwatchGrid::kUnusedGlyph : 0) |
                     (remark->twin ? CSwatchGrid::kTwinGlyph : 0) |
                     (remark->isClear ? CSwatchGrid::kClearGlyph : 0);
        grid_->setCellGlyphs(cell, static_cast<std::int16_t>(glyphs));
    }
}

QString CPaletteBarControls::cellTip(int cell) const {
    return QString::fromStdString(state_.tips().ofCell(cell) + remarkOf(cell));
}

/// What is remarked of an entry, to follow another text.
std::string CPaletteBarControls::remarkOf(int cell) const {
    const auto at = static_cast<std::size_t>(cell);
    return at < remarks_.size() ? ": " + describe(remarks_[at]) : std::string();
}

void CPaletteBarControls::showEntry() {
    const EntryEditor& editor = state_.editor();
    edit_->setColour(colourOf(editor.colour(state_.viewMode())));
    edit_->setEnabled(editor.canAsk());
    cell_->setText(QString::number(state_.cells().current()));
    showText(*entry_, editor.entry().text());
    const bool wrong = editor.textIsWrong();
    // To find its first icon, the desktop's theme is searched, which takes longer than all else of the bar.
    if (wrong && mark_->icon().isNull())
        mark_->setIcon(style()->standardIcon(QStyle::SP_MessageBoxWarning));
    mark_->setVisible(wrong);
    const QString tip = shown(wrong ? StringId::PaletteEntryWrong : StringId::PaletteEntryTip);
    entry_->setToolTip(tip);
    entry_->setAccessibleDescription(tip);
    apply_->setEnabled(editor.CanApply());
}

void CPaletteBarControls::showBank() {
    const PaletteCells& cells = state_.cells();
    const std::int32_t bank = cells.paletteNumber();
    number_->setEnabled(cells.inBankMode());
    numberLabel_->setEnabled(cells.inBankMode());
    grid_->setBankRow(cells.inBankMode() ? static_cast<std::int16_t>(bank) : CSwatchGrid::kNone);
    const QSignalBlocker quiet(number_);
    if (number_->value() != bank)
        number_->setValue(bank);
}

void CPaletteBarControls::layoutChanged() {
    const bool any = state_.palette().exists();
    tabs_->setEnabled(any);
    emptyNotice_->setVisible(!any);
    // Though it shows nothing then, it would take its share of the height.
    static_cast<QBoxLayout*>(layout())->setStretchFactor(body_, any ? 1 : 0);
    gridArea_->setVisible(any);
    fields_->setVisible(any && !cellsOnly_);
    stripRow_->setVisible(state_.strip().isVisible() && !cellsOnly_);
    for (const auto& channel : channels_)
        channel->showLayout(state_.palette().colourType());
    // Where no control has a tip of its own.
    setToolTip(QString::fromStdString(state_.tips().of({})));
    updateGeometry();
    arrange();
    // Cells may have gone and come again since.
    showGlyphs();
}

void CPaletteBarControls::tabsChanged() {
    const QSignalBlocker quiet(tabs_);
    const auto& tabs = state_.tabs().all();
    const auto count = static_cast<int>(tabs.size());
    while (tabs_->count() > count)
        tabs_->removeTab(tabs_->count() - 1);
    while (tabs_->count() < count)
        tabs_->addTab(QString());
    for (int i = 0; i < count; ++i) {
        const PaletteTabs::Tab& tab = tabs[static_cast<std::size_t>(i)];
        const QString title = QString::fromStdString(tab.title);
        tabs_->setTabText(i, QString(title).replace(QLatin1Char('&'), QStringLiteral("&&")));
        tabs_->setTabToolTip(i, QString::fromStdString(state_.tabs().tip(i, state_.tips())));
        tabs_->setTabIcon(i, tab.unsaved ? signIcon(QStringLiteral("unsaved")) : QIcon());
        tabs_->setAccessibleTabName(i, tab.unsaved ? shown(StringId::PaletteTabUnsaved, {tab.title}) : title);
    }
    tabs_->setCurrentIndex(state_.tabs().current());
    // Hidden, the tab bar keeps a new height to itself.
    tabs_->updateGeometry();
    Q_EMIT shownAnew();
}

std::optional<std::uint16_t> CPaletteBarControls::askEntry(ColourType type, std::uint16_t start) {
    return type == ColourType::Ia ? ask<CIaPaletteDialog>(dialogOwner(), start)
                                  : ask<CRgbaPaletteDialog>(dialogOwner(), start);
}

QWidget* CPaletteBarControls::dialogOwner() const {
    return isVisible() ? window() : window()->parentWidget();
}

bool CPaletteBarControls::askAdjustment(RangeAdjustment& adjustment) {
    AdjustEntriesSheet sheet(adjustment, dialogOwner(), window());
    return sheet.exec() == QDialog::Accepted;
}

void CPaletteBarControls::setCellsOnly(bool only) {
    cellsOnly_ = only;
    layoutChanged();
}

QSize CPaletteBarControls::smallestCells() const {
    // As small as they are beside the fields.
    const int side = compactSize_.width() - body_->spacing() - fields_->minimumSizeHint().width();
    return {side, heightOfOthers() + side};
}

void CPaletteBarControls::resizeEvent(QResizeEvent*) {
    arrange();
}

/// Height of what stands above and below the cells and the fields.
int CPaletteBarControls::heightOfOthers() const {
    int height = contentsMargins().top() + contentsMargins().bottom();
    for (const QWidget* each : {static_cast<const QWidget*>(tabs_), static_cast<const QWidget*>(stripRow_)}) {
        if (!each->isHidden())
            height += each->sizeHint().height() + layout()->spacing();
    }
    return height;
}

QSize CPaletteBarControls::smallestBeside() const {
    const QSize cells = gridArea_->minimumSizeHint();
    const QSize fields = fields_->minimumSizeHint();
    return {cells.width() + body_->spacing() + fields.width(),
            heightOfOthers() + std::max(cells.height(), fields.height())};
}

QSize CPaletteBarControls::smallestAbove() const {
    const QSize cells = gridArea_->minimumSizeHint();
    const QSize fields = fields_->minimumSizeHint();
    return {std::max({cells.width(), fields.width(),
                      stripRow_->isHidden() ? 0 : stripRow_->minimumSizeHint().width()}),
            heightOfOthers() + cells.height() + body_->spacing() + fields.height()};
}

QSize CPaletteBarControls::minimumSizeHint() const {
    if (cellsOnly_)
        return smallestCells();
    const QSize beside = smallestBeside();
    const QSize above = smallestAbove();
    return {std::min(beside.width(), above.width()),
            width() >= beside.width() ? beside.height() : above.height()};
}

void CPaletteBarControls::arrange() {
    if (cellsOnly_) {
        gridArea_->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        updateGeometry();
        return;
    }
    const QSize fields = fields_->minimumSizeHint();
    const int room = height() - heightOfOthers();
    const int sideBeside = std::min(width() - fields.width() - body_->spacing(), room);
    const int sideAbove = std::min(width(), room - fields.height() - body_->spacing());
    const bool beside = width() >= smallestBeside().width() && sideBeside >= sideAbove;
    body_->setDirection(beside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    // No more than a square, nor than the cells can fill; the rest makes the bars of the channels longer.
    const QSize smallest = gridArea_->minimumSizeHint();
    const int side = std::min(beside ? room : width(), 2 * gridArea_->sizeHint().width());
    gridArea_->setMaximumSize(beside ? QSize(std::max(side, smallest.width()), QWIDGETSIZE_MAX)
                                     : QSize(QWIDGETSIZE_MAX, std::max(side, smallest.height())));
    updateGeometry();
}

} // namespace dyeworks

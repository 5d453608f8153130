#include "ui/PalettePanel.h"

#include "core/PaletteSet.h"
#include "platform/Files.h"
#include "platform/Text.h"
#include "ui/controls/CSwatchGrid.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStackedWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <string>
#include <vector>

namespace dyeworks {

namespace {

// The size that 256 colours like to have, in heights of a letter: 16 swatches each way, and what stands
// around.
constexpr int kColumns = 18;
constexpr int kRows = 23;

QString shown(StringId id) {
    return QString::fromStdString(text(id));
}

/// 0xAABBGGRR of 0xAARRGGBB.
constexpr std::uint32_t cellValueOf(std::uint32_t colour) {
    return (colour & 0xff00ff00U) | (colour & 0xffU) << 16U | (colour >> 16U & 0xffU);
}

} // namespace

PalettePanel::PalettePanel(PalettePanelHost& host, QAction* openPalette, QWidget& owner)
    : QWidget(&owner, Qt::Tool | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint)
    , host_(host)
    , pages_(new QStackedWidget(this)) {
    setObjectName(QStringLiteral("ID_VIEW_PALETTEBAR"));
    setWindowTitle(shown(StringId::BarPalette));
    setWhatsThis(shown(StringId::HelpPaletteBar));
    // The keys stay with the document when the panel comes up.
    setAttribute(Qt::WA_ShowWithoutActivating);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(pages_);
    pages_->addWidget(makeEmptyPage(openPalette));
    pages_->addWidget(makePalettePage());
    resize(sizeHint());
    tabsChanged();
    currentPaletteChanged();
}

PalettePanel::~PalettePanel() = default;

void PalettePanel::setShown(bool shown) {
    shown_ = shown;
    setVisible(shown && parentWidget()->isVisible());
}

QSize PalettePanel::sizeHint() const {
    const int letter = fontMetrics().height();
    return QWidget::sizeHint().expandedTo({kColumns * letter, kRows * letter});
}

void PalettePanel::closeEvent(QCloseEvent* event) {
    shown_ = false;
    QWidget::closeEvent(event);
}

QWidget* PalettePanel::makeEmptyPage(QAction* openPalette) {
    auto* page = new QWidget;
    auto* layout = new QVBoxLayout(page);
    auto* notice = new QLabel(shown(StringId::NoPaletteOpen));
    notice->setWordWrap(true);
    notice->setAlignment(Qt::AlignCenter);
    auto* open = new QToolButton;
    open->setDefaultAction(openPalette);
    open->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    open->setFocusPolicy(Qt::StrongFocus);
    layout->addStretch();
    layout->addWidget(notice);
    layout->addWidget(open, 0, Qt::AlignHCenter);
    layout->addStretch();
    return page;
}

QWidget* PalettePanel::makePalettePage() {
    auto* page = new QWidget;
    palettes_ = new QComboBox;
    palettes_->setObjectName(QStringLiteral("IDC_PALETTE_TABS"));
    palettes_->setAccessibleName(shown(StringId::OpenPalettes));
    palettes_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    palettes_->setMinimumContentsLength(12);
    connect(palettes_, &QComboBox::activated, this, &PalettePanel::choosePalette);

    grid_ = new CSwatchGrid;
    grid_->setObjectName(QStringLiteral("IDC_PALETTE_GRID"));
    grid_->setAccessibleName(shown(StringId::PaletteColours));
    grid_->setDescriber([this](int cell) {
        const TextureLookupTable* palette = currentPalette();
        return palette == nullptr ? QString()
                                  : QString::fromStdString(PalettePanelState::describe(*palette, cell));
    });
    connect(grid_, &CSwatchGrid::clicked, this, [this] { chooseCell(grid_->marker(CSwatchGrid::kCurrent)); });

    entry_ = new QLabel;
    entry_->setObjectName(QStringLiteral("IDC_PALETTE_ENTRY"));
    entry_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    entry_->setToolTip(shown(StringId::CurrentEntry));
    entry_->setAccessibleDescription(shown(StringId::CurrentEntry));

    bankRow_ = new QWidget;
    auto* bankLayout = new QHBoxLayout(bankRow_);
    bankLayout->setContentsMargins(0, 0, 0, 0);
    bank_ = new QSpinBox;
    bank_->setObjectName(QStringLiteral("IDC_PALETTE_NUMBER"));
    bank_->setRange(0, PalettePanelState::kLastBank);
    bank_->setToolTip(shown(StringId::PaletteBankTip));
    auto* bankLabel = new QLabel(shown(StringId::PaletteBank));
    bankLabel->setBuddy(bank_);
    bankLayout->addWidget(bankLabel);
    bankLayout->addWidget(bank_);
    bankLayout->addStretch();
    connect(bank_, &QSpinBox::valueChanged, this, &PalettePanel::chooseBank);

    auto* layout = new QVBoxLayout(page);
    layout->addWidget(palettes_);
    layout->addWidget(grid_);
    layout->addWidget(entry_);
    layout->addWidget(bankRow_);
    layout->addStretch(1);
    return page;
}

const TextureLookupTable* PalettePanel::currentPalette() const {
    PaletteSet* set = host_.paletteSet();
    return set == nullptr ? nullptr : set->lookup("");
}

void PalettePanel::tabsChanged() {
    PaletteSet* set = host_.paletteSet();
    std::vector<std::string> keys;
    if (set != nullptr)
        set->listKeys(keys);
    const QSignalBlocker quiet(palettes_);
    palettes_->clear();
    for (std::string& key : keys) {
        std::string title;
        set->getTitle(key, title);
        palettes_->addItem(QString::fromStdString(title));
        const int index = palettes_->count() - 1;
        palettes_->setItemData(index, QString::fromStdString(displayPath(key)), Qt::ToolTipRole);
        if (key == set->currentKey)
            palettes_->setCurrentIndex(index);
    }
    palettes_->setToolTip(palettes_->currentData(Qt::ToolTipRole).toString());
}

void PalettePanel::currentPaletteChanged() {
    const TextureLookupTable* palette = currentPalette();
    state_.show(palette, host_.panelImage());
    pages_->setCurrentIndex(palette == nullptr ? 0 : 1);
    showColours(palette);
    bankRow_->setVisible(state_.inBankMode());
    showCell();
}

void PalettePanel::showColours(const TextureLookupTable* palette) {
    const std::vector<std::uint32_t> colours =
        palette == nullptr ? std::vector<std::uint32_t>() : PalettePanelState::colours(*palette);
    const auto count = static_cast<std::int16_t>(colours.size());
    const auto columns = static_cast<std::int16_t>(state_.columns());
    grid_->setCellCount(count);
    grid_->setCellLayout(columns, columns == 0 ? columns : static_cast<std::int16_t>(count / columns));
    for (std::int16_t cell = 0; cell < count; ++cell)
        grid_->setCellValue(cell, cellValueOf(colours[static_cast<std::size_t>(cell)]));
    grid_->describeAgain();
}

void PalettePanel::showCell() {
    const TextureLookupTable* palette = currentPalette();
    grid_->setMarker(CSwatchGrid::kCurrent, static_cast<std::int16_t>(state_.cell()));
    grid_->setBankMode(state_.inBankMode());
    grid_->setBankRow(static_cast<std::int16_t>(state_.bank()));
    entry_->setText(palette == nullptr
                        ? QString()
                        : QString::fromStdString(PalettePanelState::describe(*palette, state_.cell())));
    const QSignalBlocker quiet(bank_);
    bank_->setValue(state_.bank());
}

void PalettePanel::selectCell(std::int32_t cell) {
    state_.selectCell(cell);
    showCell();
}

void PalettePanel::choosePalette(int index) {
    PaletteSet* set = host_.paletteSet();
    std::string key;
    if (set == nullptr || !set->keyAt(index, key) || !set->selectCurrent(key))
        return;
    palettes_->setToolTip(palettes_->currentData(Qt::ToolTipRole).toString());
    currentPaletteChanged();
}

void PalettePanel::chooseCell(int cell) {
    if (state_.chooseCell(cell))
        host_.bankChosen(state_.firstEntry());
    showCell();
}

void PalettePanel::chooseBank(int bank) {
    if (state_.chooseBank(bank))
        host_.bankChosen(state_.firstEntry());
    showCell();
}

} // namespace dyeworks

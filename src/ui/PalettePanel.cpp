#include "ui/PalettePanel.h"

#include "core/PaletteSet.h"
#include "platform/Files.h"
#include "platform/Text.h"
#include "ui/controls/SwatchGrid.h"

#include <QAction>
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

QString shown(StringId id) {
    return QString::fromStdString(text(id));
}

} // namespace

PalettePanel::PalettePanel(PalettePanelHost& host, QAction* openPalette, QWidget* parent)
    : QDockWidget(shown(StringId::BarPalette), parent)
    , host_(host)
    , pages_(new QStackedWidget(this)) {
    setObjectName(QStringLiteral("ID_VIEW_PALETTE_BAR"));
    pages_->addWidget(makeEmptyPage(openPalette));
    pages_->addWidget(makePalettePage());
    setWidget(pages_);
    tabsChanged();
    currentPaletteChanged();
}

PalettePanel::~PalettePanel() = default;

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

    grid_ = new SwatchGrid;
    grid_->setObjectName(QStringLiteral("IDC_PALETTE_GRID"));
    grid_->setAccessibleName(shown(StringId::PaletteColours));
    grid_->setDescriber([this](int cell) {
        const TextureLookupTable* palette = currentPalette();
        return palette == nullptr ? QString()
                                  : QString::fromStdString(PalettePanelState::describe(*palette, cell));
    });
    connect(grid_, &SwatchGrid::cellChosen, this, &PalettePanel::chooseCell);

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
    if (palette != nullptr)
        grid_->setColours(PalettePanelState::colours(*palette), state_.columns());
    else
        grid_->setColours({}, 0);
    bankRow_->setVisible(state_.inBankMode());
    showCell();
}

void PalettePanel::showCell() {
    const TextureLookupTable* palette = currentPalette();
    grid_->setCurrentCell(state_.cell());
    grid_->setMarkedRow(state_.inBankMode() ? state_.bank() : SwatchGrid::kNone);
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

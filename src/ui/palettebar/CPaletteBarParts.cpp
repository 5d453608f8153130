#include "core/EntryText.h"
#include "core/TextureLookupTable.h"
#include "framework/widgets/CommandActions.h"
#include "framework/widgets/IntegerField.h"
#include "platform/StringId.h"
#include "ui/controls/CSwatchGrid.h"
#include "ui/palettebar/CPaletteBarChannel.h"
#include "ui/palettebar/CPaletteBarControls.h"
#include "ui/palettebar/PaletteBarWidgets.h"
#include "ui/sheets/ColourControls.h"
#include "ui/sheets/SheetControls.h"

#include <QAction>
#include <QBoxLayout>
#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QToolButton>

namespace dyeworks {

namespace {

constexpr IntegerField::Range kBanks{0, kLastBank};

void describe(QWidget& widget, StringId name, StringId tip) {
    widget.setAccessibleName(shown(name));
    widget.setToolTip(shown(tip));
}

QPushButton* endButton(const PaletteBarId& id, const QString& caption, StringId tip) {
    auto* button = new QPushButton(caption);
    identify(*button, id);
    describe(*button, tip, tip);
    button->setFixedWidth(4 * button->fontMetrics().horizontalAdvance(QLatin1Char('<')));
    return button;
}

} // namespace

CPaletteBarControls::CPaletteBarControls(PaletteBarHost& host, CommandActions& actions)
    : actions_(actions)
    , state_(host, *this)
    , commands_(state_, host, *this)
    , rangeCommands_(state_, host, *this)
    , body_(new QBoxLayout(QBoxLayout::LeftToRight)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    const int gap = fontMetrics().height() / 3;
    layout->setSpacing(gap);
    body_->setSpacing(gap);
    makeTabs();
    layout->addWidget(tabs_);
    layout->addWidget(emptyNotice_ = makeEmptyNotice(), 1);
    layout->addLayout(body_, 1);
    body_->addWidget(gridArea_ = makeGrid(), 1);
    body_->addWidget(fields_ = makeFields());
    layout->addWidget(stripRow_ = makeStrip());
    // Before anything is hidden for the palette that is shown.
    const int others = heightOfOthers() + 2 * fontMetrics().height();
    preferredSize_ = {gridArea_->sizeHint().width() + gap + fields_->sizeHint().width(),
                      others + std::max(gridArea_->sizeHint().height(), fields_->sizeHint().height())};
    // Cells that can still be told apart; the grid is empty now and asks for no room.
    const int side = gridArea_->sizeHint().height() * 2 / 3;
    const QSize fields = fields_->minimumSizeHint();
    compactSize_ = {side + gap + fields.width(), others + std::max(side, fields.height())};
    gridControl_ = std::make_unique<PaletteGridControl>(*grid_);
    stripControl_ = std::make_unique<PaletteGridControl>(*strip_);
    state_.Start(*gridControl_, *stripControl_);
}

void CPaletteBarControls::makeTabs() {
    tabs_ = new QTabBar;
    identify(*tabs_, IDC_PALETTE_TABS);
    tabs_->setAccessibleName(shown(StringId::OpenPalettes));
    tabs_->setExpanding(false);
    tabs_->setDrawBase(true);
    tabs_->setUsesScrollButtons(true);
    tabs_->setElideMode(Qt::ElideNone);
    // No higher than the text, so that the bar keeps its height when a palette is edited.
    const int dot = fontMetrics().ascent();
    tabs_->setIconSize({dot, dot});
    connect(tabs_, &QTabBar::currentChanged, this, [this](int index) { state_.TabChosen(index); });
}

QWidget* CPaletteBarControls::makeEmptyNotice() {
    auto* page = new QWidget;
    auto* notice = new QLabel(shown(StringId::NoPaletteOpen));
    notice->setWordWrap(true);
    notice->setAlignment(Qt::AlignCenter);
    auto* layout = new QVBoxLayout(page);
    layout->addStretch();
    layout->addWidget(notice);
    // Below each other, which fits into the smallest bar.
    for (const CommandId id : {ID_PALETTE_NEW, ID_PALETTE_OPEN}) {
        // Not a button with the command's own tip: the one that no palette is open is to show here too.
        const QAction* const command = actions_.action(id);
        auto* button = new QPushButton(command->icon(), command->text());
        connect(button, &QPushButton::clicked, this, [this, id] { actions_.run(id); });
        layout->addWidget(button, 0, Qt::AlignHCenter);
    }
    layout->addStretch();
    return page;
}

QWidget* CPaletteBarControls::makeGrid() {
    grid_ = new CSwatchGrid;
    identify(*grid_, IDC_PALETTE_GRID);
    grid_->setAccessibleName(shown(StringId::PaletteColours));
    grid_->setDescriber([this](int cell) { return cellTip(cell); });
    grid_->setNamer([this](int cell) {
        const auto& palette = state_.palette();
        return palette.exists()
                   ? QString::fromStdString(toldEntry(palette.get()->table, cell) + remarkOf(cell))
                   : cellTip(cell);
    });
    grid_->setSelectionDescriber([](const CSwatchGrid::Selected& selected) {
        const bool isRun = selected.count == selected.last - selected.first + 1;
        return isRun ? shown(StringId::RangeSelected,
                             {std::to_string(selected.first), std::to_string(selected.last)})
                     : shown(StringId::BlockSelected, {std::to_string(selected.count)});
    });
    connect(grid_, &CSwatchGrid::clicked, this, [this] { state_.GridClicked(); });
    connect(grid_, &CSwatchGrid::doubleClicked, this, [this] { actions_.run(ID_PALETTE_EDIT); });
    grid_->setMovable(true);
    connect(grid_, &CSwatchGrid::runDropped, this, &CPaletteBarControls::entriesDropped);
    connect(grid_, &CSwatchGrid::cellsPasted, this, [this] { state_.GridChanged(); });
    return new PaletteGridArea(*grid_);
}

QWidget* CPaletteBarControls::makeFields() {
    auto* fields = new QWidget;
    auto* layout = new QVBoxLayout(fields);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(body_->spacing());
    layout->addLayout(makeButtons());
    layout->addLayout(makeViewRow());
    layout->addLayout(makeEntryRow());
    layout->addWidget(makeChannels());
    layout->addStretch(1);
    return fields;
}

QBoxLayout* CPaletteBarControls::makeButtons() {
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    row->addWidget(commandButton(actions_, ID_PALETTE_COPY, "ID_PALETTE_COPY"));
    row->addWidget(commandButton(actions_, ID_PALETTE_PASTE, "ID_PALETTE_PASTE"));
    row->addSpacing(body_->spacing());
    row->addWidget(commandButton(actions_, ID_PALETTE_UNDO, "ID_PALETTE_UNDO"));
    row->addWidget(commandButton(actions_, ID_PALETTE_REDO, "ID_PALETTE_REDO"));
    row->addSpacing(body_->spacing());
    row->addWidget(commandButton(actions_, ID_IMAGE_ATTACH, "ID_IMAGE_ATTACH"));
    row->addStretch(1);
    row->addWidget(commandButton(actions_, ID_PALETTE_CLOSE, "ID_PALETTE_CLOSE"));
    return row;
}

QBoxLayout* CPaletteBarControls::makeViewRow() {
    rgb_ = new QRadioButton(shown(StringId::PaletteViewRgb));
    identify(*rgb_, IDC_VIEW_RGB);
    rgb_->setToolTip(shown(StringId::PaletteViewRgbTip));
    alpha_ = new QRadioButton(shown(StringId::PaletteViewAlpha));
    identify(*alpha_, IDC_VIEW_ALPHA);
    alpha_->setToolTip(shown(StringId::PaletteViewAlphaTip));
    connect(rgb_, &QRadioButton::toggled, this,
            [this](bool rgb) { state_.ViewModeChosen(rgb ? ViewMode::Rgb : ViewMode::Alpha); });

    number_ = new IntegerField(kBanks, kBanks, 0);
    identify(*number_, IDC_PALETTE_NUMBER_SPIN);
    identify(*number_->findChild<QLineEdit*>(), IDC_PALETTE_NUMBER);
    describe(*number_, StringId::PaletteBankTip, StringId::PaletteBankTip);
    number_->setFixedWidth(number_->sizeHint().width());
    numberLabel_ = new QLabel(shown(StringId::PaletteBank));
    numberLabel_->setBuddy(number_);
    connect(number_, &IntegerField::edited, this,
            [this] { state_.NumberTyped(number_->findChild<QLineEdit*>()->text().toStdString()); });
    connect(number_, &IntegerField::editingFinished, this, [this] {
        if (window()->focusWidget() != number_)
            showBank();
    });

    auto* row = new QHBoxLayout;
    row->addWidget(rgb_);
    row->addWidget(alpha_);
    row->addStretch(1);
    row->addWidget(numberLabel_);
    row->addWidget(number_);
    return row;
}

QBoxLayout* CPaletteBarControls::makeEntryRow() {
    const int letter = fontMetrics().height();
    edit_ = new ColourButton;
    identify(*edit_, {ID_PALETTE_EDIT, "ID_PALETTE_EDIT"});
    edit_->setMinimumWidth(2 * letter);
    const QAction* const command = actions_.action(ID_PALETTE_EDIT);
    edit_->setToolTip(command->toolTip());
    edit_->setAccessibleName(command->toolTip());
    connect(edit_, &ColourButton::clicked, this, [this] { actions_.run(ID_PALETTE_EDIT); });

    cell_ = new QLabel;
    cell_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    cell_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("255")));
    cell_->setToolTip(shown(StringId::PaletteCellTip));

    entry_ = new QLineEdit;
    identify(*entry_, IDC_ENTRY);
    entry_->setAccessibleName(shown(StringId::PaletteEntryName));
    entry_->setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 2 * letter);
    mark_ = entry_->addAction(QIcon(), QLineEdit::TrailingPosition);
    mark_->setText(shown(StringId::PaletteEntryWrong));
    connect(entry_, &QLineEdit::textEdited, this,
            [this](const QString& typed) { state_.editor().EntryTyped(typed.toStdString()); });

    preview_ = new QCheckBox(shown(StringId::PalettePreview));
    identify(*preview_, IDC_PREVIEW);
    preview_->setToolTip(shown(StringId::PalettePreviewTip));
    connect(preview_, &QCheckBox::toggled, this, [this](bool on) { state_.editor().PreviewChecked(on); });
    apply_ = new QPushButton(shown(StringId::PaletteApply));
    identify(*apply_, IDC_APPLY);
    // A click leaves the focus where the value was typed.
    apply_->setFocusPolicy(Qt::TabFocus);
    apply_->setToolTip(shown(StringId::PaletteApplyTip));
    connect(apply_, &QPushButton::clicked, this, [this] { state_.Apply(); });

    auto* row = new QHBoxLayout;
    row->addWidget(edit_);
    row->addWidget(cell_);
    row->addWidget(entry_, 1);
    row->addWidget(preview_);
    row->addWidget(apply_);
    return row;
}

QWidget* CPaletteBarControls::makeChannels() {
    static constexpr std::array<CPaletteBarChannel::Ids, kChannelCount> kIds{{
        {IDC_RED_LABEL, IDC_RED, IDC_RED_SPIN, IDC_RED_SLIDER, IDC_RED_TRACK, IDC_RED_HEX},
        {IDC_GREEN_LABEL, IDC_GREEN, IDC_GREEN_SPIN, IDC_GREEN_SLIDER, IDC_GREEN_TRACK, IDC_GREEN_HEX},
        {IDC_BLUE_LABEL, IDC_BLUE, IDC_BLUE_SPIN, IDC_BLUE_SLIDER, IDC_BLUE_TRACK, IDC_BLUE_HEX},
        {IDC_ALPHA_LABEL, IDC_ALPHA, IDC_ALPHA_SPIN, IDC_ALPHA_SLIDER, IDC_ALPHA_TRACK, IDC_ALPHA_HEX},
    }};
    auto* rows = new QWidget;
    auto* layout = new QGridLayout(rows);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(body_->spacing());
    for (const Channel channel : kChannels) {
        const auto index = static_cast<std::size_t>(channel);
        channels_[index] =
            std::make_unique<CPaletteBarChannel>(state_.editor(), channel, kIds[index], *layout);
    }
    return rows;
}

QWidget* CPaletteBarControls::makeStrip() {
    auto* left = endButton(IDC_GRADIENT_LEFT, QStringLiteral("<"), StringId::GradientLeftTip);
    auto* right = endButton(IDC_GRADIENT_RIGHT, QStringLiteral(">"), StringId::GradientRightTip);
    connect(left, &QPushButton::clicked, this, [this] { state_.TakeLeftEnd(); });
    connect(right, &QPushButton::clicked, this, [this] { state_.TakeRightEnd(); });
    strip_ = new CSwatchGrid;
    identify(*strip_, IDC_GRADIENT);
    strip_->setAccessibleName(shown(StringId::PaletteGradient));
    strip_->setDescriber([this](int cell) {
        return QString::fromStdString(
            entryText(static_cast<std::uint16_t>(strip_->cellValue(static_cast<std::int16_t>(cell)))));
    });
    connect(strip_, &CSwatchGrid::clicked, this, [this] { state_.StripClicked(strip_->clickedCell()); });

    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(left);
    layout->addWidget(strip_, 1);
    layout->addWidget(right);
    return row;
}

} // namespace dyeworks

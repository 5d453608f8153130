#include "core/PaletteSet.h"
#include "palette/NumberText.h"
#include "palette/PaletteBarChange.h"
#include "palette/PaletteBarState.h"
#include "platform/Files.h"
#include "platform/Text.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::int32_t kLargePalette = 256;
constexpr std::int32_t kLargeSide = 16;
constexpr std::int32_t kSmallSide = 4;
constexpr std::int32_t kBankedBits = 4;
constexpr std::size_t kTipCharacters = 127;

/// The first characters of a UTF-8 text.
std::string cut(std::string_view text, std::size_t characters) {
    std::size_t length = 0;
    for (std::size_t seen = 0; length < text.size(); ++length) {
        const bool begins = (static_cast<unsigned char>(text[length]) & 0xC0U) != 0x80U;
        if (begins && seen++ == characters)
            break;
    }
    return std::string(text.substr(0, length));
}

} // namespace

void PaletteBarState::RefreshFromPalette() {
    if (!initialised())
        return;
    const Change change(*this, Change::kValues);
    ReadTitles();
    layOut();
    takeUpBank();
    grid_->setBankMode(inBankMode());
    grid_->setCellCount(columns_ * rows_);
    grid_->setLayout(columns_, rows_);
    fillGrid();
    keepCellInGrid();
    SyncControls(Source::Palette);
    grid_->redraw();
}

void PaletteBarState::layOut() {
    const TextureLookupTable* const palette = currentPalette();
    const std::int32_t count = palette == nullptr ? 0 : palette->table.count;
    const std::int32_t side = count == kLargePalette ? kLargeSide : count > 0 ? kSmallSide : 0;
    const ColourType type = palette == nullptr ? shownType_ : palette->table.colourType;
    const Change change(*this, side == columns_ && type == shownType_ ? 0U : Change::kLayout);
    columns_ = side;
    rows_ = side;
    // An import, and its undoing, may make another kind of a palette.
    if (std::exchange(shownType_, type) != type)
        FillStrip();
}

/// The bank that the active image shows; nothing when it shows the whole palette.
std::optional<std::int32_t> PaletteBarState::bankOfImage() const {
    const auto image = host_.activeImage();
    if (!image || image->bits != kBankedBits || !hasPalette() ||
        currentPalette()->table.count != kLargePalette)
        return std::nullopt;
    return std::clamp(image->paletteValue / kBankSize, 0, kLastBank);
}

void PaletteBarState::takeUpBank() {
    const auto bank = bankOfImage();
    bankSize_ = bank ? kBankSize : 0;
    paletteNumber_ = bank.value_or(0);
}

void PaletteBarState::ImageChanged() {
    const auto bank = bankOfImage();
    if (bank.has_value() != inBankMode() || bank.value_or(0) != paletteNumber_)
        RefreshFromPalette();
}

void PaletteBarState::fillGrid() {
    if (!hasPalette())
        return;
    const TlutData& table = currentPalette()->table;
    for (std::int32_t i = 0; i < columns_ * rows_; ++i) {
        // A palette of another size than 16 may leave cells without an entry.
        const std::uint32_t value = i < table.count ? cellValue(table.colourType, table.getEntry(i)) : 0U;
        grid_->setValue(i, value);
        grid_->setColour(i, cellColour(value, viewMode_));
    }
}

/// The palette may have become smaller, or be the first one.
void PaletteBarState::keepCellInGrid() {
    const std::int32_t last = columns_ * rows_ - 1;
    const std::int32_t now = grid_->marker(PaletteGrid::kCurrentCell);
    std::int32_t cell = now;
    if (now < 0 && last >= 0)
        cell = std::max(std::exchange(awaitedCell_, PaletteGrid::kNowhere), 0);
    cell = std::clamp(cell, PaletteGrid::kNowhere, last);
    if (cell != now)
        grid_->setMarker(PaletteGrid::kCurrentCell, cell);
}

void PaletteBarState::ConfigureChannels() {
    if (!initialised())
        return;
    const Change change(*this, Change::kValues | Change::kLayout);
    FillStrip();
    const std::int32_t cell = CurrentCell();
    const std::int32_t last = grid_->cellCount() - 1;
    if (hasPalette() && last >= 0 && (cell < 0 || cell > last))
        SelectCell(std::clamp(cell, 0, last));
    else
        SyncControls(Source::Palette);
}

PaletteBarState::ChannelRow PaletteBarState::channelRow(Channel channel) const {
    static constexpr std::array<const char*, kChannelCount> kLabels{"R", "G", "B", "A"};
    if (!hasPalette())
        return {};
    const auto highest = highestValue(colourType(), channel);
    if (!highest)
        return {};
    const bool intensity = colourType() == ColourType::Ia && channel == Channel::Red;
    return {true, intensity ? "I" : kLabels[static_cast<std::size_t>(channel)], *highest};
}

PaletteBarState::SliderColours PaletteBarState::sliderColours() const {
    if (hasPalette() && colourType() == ColourType::Ia)
        return {0, 0xFFFFFF, 192};
    return {0, 0x0000FF, 0xFFFFFF};
}

bool PaletteBarState::stripVisible() const {
    return hasPalette() && colourType() == ColourType::Rgba;
}

ColourRef PaletteBarState::editColour() const {
    return hasPalette() ? entryColour(colourType(), entry_, viewMode_) : 0U;
}

void PaletteBarState::RebuildTabs(const std::vector<std::string>& keys) {
    const Change change(*this, Change::kTabs);
    tabs_.clear();
    for (const std::string& key : keys)
        tabs_.push_back({key, {}, false});
    ReadTitles();
    ConfigureChannels();
}

void PaletteBarState::ReadTitles() {
    PaletteSet* const set = host_.paletteSet();
    if (set == nullptr)
        return;
    for (Tab& tab : tabs_) {
        Tab now{tab.key, {}, false};
        if (const TextureLookupTable* const palette = set->lookup(std::as_const(tab.key)))
            now = {tab.key, palette->title, palette->hasUnsavedChanges()};
        const Change change(*this, now == tab ? 0U : Change::kTabs);
        tab = std::move(now);
    }
}

std::int32_t PaletteBarState::currentTab() const {
    if (!hasPalette())
        return -1;
    const auto tab = std::find_if(tabs_.begin(), tabs_.end(), [this](const Tab& candidate) {
        return candidate.key == host_.paletteSet()->currentKey;
    });
    return tab == tabs_.end() ? -1 : static_cast<std::int32_t>(tab - tabs_.begin());
}

void PaletteBarState::TabChosen(std::int32_t index) {
    PaletteSet* const set = host_.paletteSet();
    std::string key;
    if (!initialised() || set == nullptr || !set->keyAt(index, key) || !set->selectCurrent(key))
        return;
    const Change change(*this, Change::kTabs);
    RefreshFromPalette();
    ConfigureChannels();
}

void PaletteBarState::ViewModeChosen(ViewMode mode) {
    if (!initialised())
        return;
    viewMode_ = mode;
    RefreshFromPalette();
    if (PaletteSet* const set = host_.paletteSet())
        set->alphaView = static_cast<std::int32_t>(mode);
    host_.RefreshAllImages();
}

void PaletteBarState::SelectCell(std::int32_t cell) {
    if (!initialised() || columns_ == 0) {
        awaitedCell_ = cell;
        return;
    }
    const Change change(*this, Change::kValues);
    grid_->setMarker(PaletteGrid::kCurrentCell, std::min(cell, columns_ * rows_ - 1));
    grid_->redraw();
    SyncControls(Source::Palette);
}

void PaletteBarState::GridClicked() {
    const std::int32_t cell = CurrentCell();
    if (cell < 0 || columns_ == 0)
        return;
    const Change change(*this, Change::kValues);
    SyncControls(Source::Palette);
    if (inBankMode() && cell / columns_ != paletteNumber_) {
        paletteNumber_ = cell / columns_;
        storeBank();
    }
}

void PaletteBarState::storeBank() {
    if (host_.activeImage())
        host_.setActivePaletteValue(GetFirstEntry());
}

void PaletteBarState::NumberTyped(std::string_view text) {
    if (const auto number = parseNumber(text))
        SetPaletteNumber(*number);
}

void PaletteBarState::SetPaletteNumber(std::int32_t number) {
    if (!initialised() || !hasPalette())
        return;
    const Change change(*this, Change::kValues);
    // The image may have come to the front just now.
    RefreshFromPalette();
    if (columns_ == 0)
        return;
    paletteNumber_ = std::clamp(number, 0, kLastBank);
    grid_->setMarker(PaletteGrid::kCurrentCell, bankSize_ * paletteNumber_ + CurrentCell() % columns_);
    storeBank();
    RefreshFromPalette();
}

void PaletteBarState::FillStrip() {
    if (!initialised())
        return;
    const ChannelValues left = channelsOf(ColourType::Rgba, stripLeft_);
    const ChannelValues right = channelsOf(ColourType::Rgba, stripRight_);
    for (std::int32_t i = 0; i < kGradientSteps; ++i) {
        ChannelValues step = left;
        for (const Channel channel : {Channel::Red, Channel::Green, Channel::Blue})
            step[channel] = interpolate(i, left[channel], right[channel]);
        const std::uint16_t entry = ComposeEntry(step);
        strip_->setValue(i, entry);
        strip_->setColour(i,
                          entryColour(ColourType::Rgba, composeEntry(ColourType::Rgba, step), ViewMode::Rgb));
    }
    strip_->redraw();
}

void PaletteBarState::TakeLeftEnd() {
    takeEnd(stripLeft_);
}

void PaletteBarState::TakeRightEnd() {
    takeEnd(stripRight_);
}

void PaletteBarState::takeEnd(std::uint16_t& end) {
    const auto entry = ParseEntryText();
    if (!entry)
        return;
    end = *entry;
    FillStrip();
}

void PaletteBarState::StripClicked(std::int32_t cell) {
    if (!initialised() || !stripVisible() || cell < 0 || cell >= kGradientSteps)
        return;
    char digits[9];
    std::snprintf(digits, sizeof digits, "%x", static_cast<unsigned>(strip_->value(cell)));
    entryText_ = digits;
    SyncControls(Source::EntryText);
}

std::string PaletteBarState::tip(std::string_view own) const {
    return hasPalette() ? cut(own, kTipCharacters) : text(StringId::PaletteNotOpenYet);
}

std::string PaletteBarState::cellTip(std::int32_t cell) const {
    return tip(std::to_string(cell));
}

std::string PaletteBarState::tabTip(std::int32_t index) const {
    const bool exists = index >= 0 && static_cast<std::size_t>(index) < tabs_.size();
    if (!exists)
        return tip({});
    const Tab& tab = tabs_[static_cast<std::size_t>(index)];
    const std::string key = tip(displayPath(tab.key));
    return tab.unsaved ? key + "\n" + text(StringId::PaletteUnsaved) : key;
}

} // namespace dyeworks

#include "palette/PaletteCells.h"

#include "core/TextureLookupTable.h"

#include <algorithm>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::int32_t kLargePalette = 256;
constexpr std::int32_t kLargeSide = 16;
constexpr std::int32_t kSmallSide = 4;
constexpr std::int32_t kBankedBits = 4;

} // namespace

void PaletteCells::start(PaletteGrid& grid) {
    grid.setMarker(PaletteGrid::kCurrentCell, PaletteGrid::kNowhere);
    for (std::int32_t marker = PaletteGrid::kCurrentCell + 1; marker <= PaletteGrid::kLastMarker; ++marker)
        grid.setMarker(marker, PaletteGrid::kSwitchedOff);
    grid.setSelectable(true);
    grid_ = &grid;
}

bool PaletteCells::read(ViewMode mode) {
    const TextureLookupTable* const palette = palette_.get();
    const std::int32_t count = palette == nullptr ? 0 : palette->table.count;
    const std::int32_t side = count == kLargePalette ? kLargeSide : count > 0 ? kSmallSide : 0;
    const bool resized = std::exchange(columns_, side) != side;
    rows_ = side;
    const auto bank = bankOfImage();
    bankSize_ = bank ? kBankSize : 0;
    paletteNumber_ = bank.value_or(0);
    grid_->setBankMode(inBankMode());
    grid_->setCellCount(columns_ * rows_);
    grid_->setLayout(columns_, rows_);
    if (palette != nullptr)
        show(palette->table, mode);
    keepCurrentInside();
    grid_->redraw();
    return resized;
}

void PaletteCells::show(const TlutData& table, ViewMode mode) {
    for (std::int32_t i = 0; i < columns_ * rows_; ++i) {
        // A palette of another size than 16 may leave cells without an entry.
        const std::uint32_t value = i < table.count ? cellValue(table.colourType, table.getEntry(i)) : 0U;
        grid_->setValue(i, value);
        grid_->setColour(i, cellColour(value, mode));
    }
}

/// The palette may have become smaller, or be the first one.
void PaletteCells::keepCurrentInside() {
    const std::int32_t last = columns_ * rows_ - 1;
    const std::int32_t now = grid_->marker(PaletteGrid::kCurrentCell);
    std::int32_t cell = now;
    if (now < 0 && last >= 0)
        cell = std::max(std::exchange(awaited_, PaletteGrid::kNowhere), 0);
    cell = std::clamp(cell, PaletteGrid::kNowhere, last);
    if (cell != now)
        grid_->setMarker(PaletteGrid::kCurrentCell, cell);
}

void PaletteCells::writeTo(TextureLookupTable& palette) const {
    const std::int32_t cells = grid_->cellCount();
    for (std::int32_t i = 0; i < cells; ++i)
        writeCell(palette, palette.table.colourType, i, grid_->value(i));
}

std::int32_t PaletteCells::current() const {
    return started() && palette_.exists() ? grid_->marker(PaletteGrid::kCurrentCell) : PaletteGrid::kNowhere;
}

std::optional<std::int32_t> PaletteCells::currentEntry() const {
    const std::int32_t cell = current();
    if (cell < 0 || cell >= palette_.get()->table.count)
        return std::nullopt;
    return cell;
}

std::optional<EntryRange> PaletteCells::selectedRange() const {
    if (!started() || !palette_.exists())
        return std::nullopt;
    const PaletteGrid::Selected selected = grid_->selectedCells();
    const EntryRange range{selected.first, std::min(selected.last, palette_.get()->table.count - 1)};
    // Cells without an entry at the end of the grid may be selected too.
    if (range.last <= range.first || blockIsSelected())
        return std::nullopt;
    return range;
}

bool PaletteCells::blockIsSelected() const {
    if (!started())
        return false;
    const PaletteGrid::Selected selected = grid_->selectedCells();
    return selected.count > 0 && selected.count != selected.last - selected.first + 1;
}

bool PaletteCells::canCopy() const {
    return started() && palette_.exists() && grid_->selection().has_value();
}

bool PaletteCells::canPaste() const {
    return current() >= 0 && columns_ > 0 && grid_->hasCopiedCells();
}

void PaletteCells::paste() {
    const std::int32_t cell = current();
    grid_->paste(grid_->selection().value_or(PaletteGrid::Cell{cell % columns_, cell / columns_}));
}

bool PaletteCells::select(std::int32_t cell) {
    if (columns_ == 0) {
        awaited_ = cell;
        return false;
    }
    grid_->setMarker(PaletteGrid::kCurrentCell, std::min(cell, columns_ * rows_ - 1));
    grid_->redraw();
    return true;
}

std::int32_t PaletteCells::besideCurrent(Step step) const {
    const bool along = step == Step::Back || step == Step::On;
    const std::int32_t way = (step == Step::Back || step == Step::Up ? -1 : 1) * (along ? 1 : columns_);
    const std::int32_t cell = current() + way;
    const bool leavesBank = along && inBankMode() && cell / columns_ != current() / columns_;
    return cell < 0 || cell >= columns_ * rows_ || leavesBank ? current() : cell;
}

void PaletteCells::correctCurrent() {
    const std::int32_t last = grid_->cellCount() - 1;
    const std::int32_t cell = current();
    if (palette_.exists() && last >= 0 && (cell < 0 || cell > last))
        select(std::clamp(cell, 0, last));
}

/// The bank that the active image shows; nothing when it shows the whole palette.
std::optional<std::int32_t> PaletteCells::bankOfImage() const {
    const auto image = host_.activeImage();
    const TextureLookupTable* const palette = palette_.get();
    if (!image || image->bits != kBankedBits || palette == nullptr || palette->table.count != kLargePalette)
        return std::nullopt;
    return std::clamp(image->paletteValue / kBankSize, 0, kLastBank);
}

bool PaletteCells::showBankOfImage() const {
    const auto bank = bankOfImage();
    return bank.has_value() == inBankMode() && bank.value_or(0) == paletteNumber_;
}

void PaletteCells::chooseBank(std::int32_t number) {
    if (columns_ == 0)
        return;
    paletteNumber_ = std::clamp(number, 0, kLastBank);
    grid_->setMarker(PaletteGrid::kCurrentCell, GetFirstEntry() + current() % columns_);
    storeBank();
}

void PaletteCells::chooseBankOfCurrent() {
    if (!inBankMode() || current() / columns_ == paletteNumber_)
        return;
    paletteNumber_ = current() / columns_;
    storeBank();
}

void PaletteCells::storeBank() {
    if (host_.activeImage())
        host_.setActivePaletteValue(GetFirstEntry());
}

} // namespace dyeworks

#pragma once

#include "palette/CurrentPalette.h"
#include "palette/EntryRange.h"
#include "palette/PaletteBarHost.h"
#include "palette/PaletteGrid.h"

#include <cstdint>
#include <optional>

namespace dyeworks {

/// The current palette as a grid of cells: how they look, which is the current one, and the bank of them
/// that a 16-colour image shows.
///
/// Without a current palette there is no cell.
class PaletteCells {
public:
    /// Both must outlive the cells.
    PaletteCells(PaletteBarHost& host, const CurrentPalette& palette)
        : host_(host)
        , palette_(palette) {}

    /// Sets up the grid, which must outlive its use. Before, cells can be selected and asked for alone.
    void start(PaletteGrid& grid);
    [[nodiscard]] bool started() const noexcept { return grid_ != nullptr; }

    /// Shows the current palette and the bank of the active image. True when the grid has another size than
    /// before.
    bool read(ViewMode mode);
    /// Shows other entries in the cells, until the palette is read again.
    void show(const TlutData& table, ViewMode mode);
    /// Writes every cell to the palette.
    void writeTo(TextureLookupTable& palette) const;

    /// The selected entries, where several in a row are selected, whatever the rows of the grid. The current
    /// cell alone is no range.
    [[nodiscard]] std::optional<EntryRange> selectedRange() const;
    /// A rectangle is selected that leaves out entries between its first and its last, so that it is no
    /// range.
    [[nodiscard]] bool blockIsSelected() const;

    [[nodiscard]] bool canCopy() const;
    /// The selected cells.
    void copy() { grid_->copy(); }
    [[nodiscard]] bool canPaste() const;
    /// Begins at the selection, or else at the current cell.
    void paste();

    /// Negative when there is none.
    [[nodiscard]] std::int32_t current() const;
    /// The current cell, if the palette has an entry there.
    [[nodiscard]] std::optional<std::int32_t> currentEntry() const;
    /// A cell beyond the grid selects the last. False: there are no cells, and it is selected when there are.
    bool select(std::int32_t cell);
    enum class Step { Back, On, Up, Down };
    /// The cell beside the current one, of which there must be one; that itself where a step would lead out
    /// of the grid or, with a bank of it that is shown, along the row out of that.
    [[nodiscard]] std::int32_t besideCurrent(Step step) const;
    /// Brings the current cell into the grid.
    void correctCurrent();

    [[nodiscard]] bool inBankMode() const noexcept { return bankSize_ != 0; }
    [[nodiscard]] std::int32_t paletteNumber() const noexcept { return paletteNumber_; }
    /// Entry that the value 0 of a 4-bit image shows: 16 times the bank, or 0 outside bank mode.
    [[nodiscard]] std::int32_t GetFirstEntry() const noexcept { return bankSize_ * paletteNumber_; }
    /// The active image shows the bank that is shown here.
    [[nodiscard]] bool showBankOfImage() const;
    /// Gives the active image the bank, brought into 0 to 15, and moves the current cell there.
    void chooseBank(std::int32_t number);
    /// Gives the active image the bank of the current cell.
    void chooseBankOfCurrent();

private:
    [[nodiscard]] std::optional<std::int32_t> bankOfImage() const;
    void keepCurrentInside();
    void storeBank();

    PaletteBarHost& host_;
    const CurrentPalette& palette_;
    PaletteGrid* grid_ = nullptr;
    std::int32_t columns_ = 0;
    std::int32_t rows_ = 0;
    std::int32_t bankSize_ = 0;
    std::int32_t paletteNumber_ = 0;
    std::int32_t awaited_ = PaletteGrid::kNowhere; ///< Selected while there was no palette.
};

} // namespace dyeworks

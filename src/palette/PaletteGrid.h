#pragma once

#include <cstdint>
#include <optional>

namespace dyeworks {

/// What the palette bar asks of a grid of swatches: the palette's own and the gradient strip. Cells are
/// numbered row by row from 0. A cell that does not exist is ignored.
class PaletteGrid {
public:
    struct Cell {
        std::int32_t column = 0;
        std::int32_t row = 0;
    };

    struct Selected {
        std::int32_t first = 0;
        std::int32_t last = 0;
        std::int32_t count = 0; ///< 0 without a selection.
    };

    /// The marker of the current cell; the others are numbered up to `kLastMarker`.
    static constexpr std::int32_t kCurrentCell = 0;
    static constexpr std::int32_t kLastMarker = 3;
    /// Instead of a cell: the marker stands nowhere; the marker is not used.
    static constexpr std::int32_t kNowhere = -1;
    static constexpr std::int32_t kSwitchedOff = -2;

    virtual ~PaletteGrid() = default;

    /// Property 2: a row of cells is a bank.
    virtual void setBankMode(bool on) = 0;
    /// Property 3: ranges can be selected, copied and pasted.
    virtual void setSelectable(bool on) = 0;
    virtual void setCellCount(std::int32_t count) = 0;
    virtual void setLayout(std::int32_t columns, std::int32_t rows) = 0;
    [[nodiscard]] virtual std::int32_t cellCount() const = 0;

    /// What a cell holds: 0xAABBGGRR for a palette, the entry itself for the strip.
    virtual void setValue(std::int32_t cell, std::uint32_t value) = 0;
    [[nodiscard]] virtual std::uint32_t value(std::int32_t cell) const = 0;
    /// How a cell looks, 0x00BBGGRR.
    virtual void setColour(std::int32_t cell, std::uint32_t colour) = 0;

    virtual void setMarker(std::int32_t marker, std::int32_t cell) = 0;
    /// Negative: nowhere.
    [[nodiscard]] virtual std::int32_t marker(std::int32_t marker) const = 0;

    /// First corner of the selected range; nothing without a selection.
    [[nodiscard]] virtual std::optional<Cell> selection() const = 0;
    /// All selected cells by their numbers: a run, or a block with others between its first and its last.
    [[nodiscard]] virtual Selected selectedCells() const = 0;
    virtual bool copy() = 0;
    [[nodiscard]] virtual bool hasCopiedCells() const = 0;
    /// Puts the copied cells with their first corner at `cell` and then reports that cells have changed.
    virtual bool paste(Cell cell) = 0;

    virtual void redraw() = 0;
};

} // namespace dyeworks

#pragma once

#include "ui/controls/swatchgrid/CopiedCells.h"

#include <QPoint>

#include <array>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace dyeworks {

/// What a grid holds: cells, marks and the selected range. Cells are numbered row by row from 0.
class SwatchCells {
public:
    static constexpr int kNone = -1;
    static constexpr int kSwitchedOff = -2;
    static constexpr int kCurrentSlot = 0;
    static constexpr int kSlots = 4;

    /// Signs that may stand on a cell together.
    enum Glyph : unsigned {
        kUnusedGlyph = 1, ///< A corner that is folded over, at the lower right.
        kTwinGlyph = 2,   ///< Two bars, at the upper right.
        kClearGlyph = 4   ///< A chequer, at the lower left.
    };

    struct Cell {
        std::uint32_t value = 0;  ///< 0xAABBGGRR
        std::uint32_t colour = 0; ///< 0x00BBGGRR, what is painted.
        unsigned glyphs = 0;      ///< Of `Glyph`, small signs on the cell.
    };

    // A new shape or count ends the selection. Marks stay, also on cells that do not exist any more.
    void setShape(int columns, int rows);
    void setCount(int count);
    [[nodiscard]] int columns() const noexcept { return columns_; }
    [[nodiscard]] int rows() const noexcept { return rows_; }
    [[nodiscard]] int count() const noexcept { return static_cast<int>(cells_.size()); }
    [[nodiscard]] bool has(int cell) const noexcept { return cell >= 0 && cell < count(); }
    /// A cell that exists.
    [[nodiscard]] const Cell& at(int cell) const { return cells_[static_cast<std::size_t>(cell)]; }
    /// Sets the value, and the displayed colour to its low 24 bits.
    void setValue(int cell, std::uint32_t value);
    void setColour(int cell, std::uint32_t colour);
    void setGlyphs(int cell, unsigned glyphs);

    /// False, changing nothing, for a slot that there is not or a cell below kSwitchedOff. The selection ends
    /// when the current cell becomes another one.
    bool setMarker(int slot, int cell);
    /// kNone for a slot that there is not.
    [[nodiscard]] int marker(int slot) const;
    [[nodiscard]] int current() const { return markers_[kCurrentSlot]; }

    /// Which cells belong to a selection between two.
    enum class Shape {
        Block, ///< A rectangle with the two as opposite corners.
        Run,   ///< All that lie between them in the order of their numbers, over the ends of rows.
    };
    /// Where a selection begins and ends, as column and row. The last cell of a run may stand left of the
    /// first.
    struct Corners {
        QPoint first;
        QPoint last;
        friend bool operator==(const Corners&, const Corners&) = default;
    };

    /// Both ends are cells that exist.
    void select(int from, int to, Shape shape);
    [[nodiscard]] std::optional<Corners> selection() const;
    [[nodiscard]] bool isSelected(int cell) const;
    /// The selected cells that exist, by number.
    [[nodiscard]] std::vector<int> selectedCells() const;
    /// The first and the last cell of a selected run; nothing for a block.
    [[nodiscard]] std::optional<std::pair<int, int>> selectedRun() const;
    /// The cell that the selection began at; kNone without one.
    [[nodiscard]] int selectionStart() const { return selection_ ? selection_->from : kNone; }
    [[nodiscard]] int selectionEnd() const { return selection_ ? selection_->to : kNone; }

    /// The selected cells; nothing without a selection.
    [[nodiscard]] std::optional<CopiedCells> selected() const;
    /// Puts copied cells with their first at a place, leaving out those that lie outside the grid; a run goes
    /// on in the next row. The first and the last cell that have another value now; nothing when none has.
    std::optional<std::pair<int, int>> paste(const CopiedCells& copied, int column, int row);

private:
    struct Selection {
        int from;
        int to;
        Shape shape;
    };

    int columns_ = 0;
    int rows_ = 0;
    std::vector<Cell> cells_;
    std::array<int, kSlots> markers_{kNone, kNone, kNone, kNone};
    std::optional<Selection> selection_;
};

} // namespace dyeworks

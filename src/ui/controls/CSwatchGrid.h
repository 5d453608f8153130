#pragma once

#include "ui/controls/ControlFrame.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace dyeworks {

/// A grid of colour cells: places a SwatchGrid control and calls it. Cells are numbered row by row from 0.
/// When the control is missing the widget stays empty, the operations do nothing, and what they answer is
/// "no", "none" (-1) or 0.
class CSwatchGrid : public ControlFrame {
    Q_OBJECT

public:
    /// Values of a marker slot other than a cell.
    static constexpr std::int16_t kNone = -1;
    static constexpr std::int16_t kSwitchedOff = -2;
    /// The slot whose cell is the current one. Slots 1 to 3 are further marks.
    static constexpr std::int16_t kCurrent = 0;

    static constexpr std::int16_t kUnusedGlyph = 1; ///< A folded corner.
    static constexpr std::int16_t kTwinGlyph = 2;   ///< Two bars.
    static constexpr std::int16_t kClearGlyph = 4;  ///< A chequer.

    /// Where a range of cells begins and ends, inclusive: corners of a rectangle, the first left of and above
    /// the last, or the first and the last of a run of cells, where the last may be further left.
    struct Range {
        std::int16_t firstColumn = 0;
        std::int16_t firstRow = 0;
        std::int16_t lastColumn = 0;
        std::int16_t lastRow = 0;
    };

    explicit CSwatchGrid(QWidget* parent = nullptr);
    ~CSwatchGrid() override;

    /// Frames the current cell's row, whose entries a 4-bit image uses.
    void setBankMode(bool on); // 2
    /// 1: the user can select ranges and edit with a double click. 0: cells can be clicked only.
    void setSelectable(std::int16_t value);                      // 3
    void setCellLayout(std::int16_t columns, std::int16_t rows); // 4
    /// Cells beyond the count keep nothing; new ones are black. False for a count that is not possible.
    bool setCellCount(std::int16_t count);                          // 5
    [[nodiscard]] std::uint32_t cellValue(std::int16_t cell) const; // 6
    /// `value` is 0xAABBGGRR. The displayed colour becomes its low 24 bits.
    void setCellValue(std::int16_t cell, std::uint32_t value); // 7
    [[nodiscard]] std::int16_t cellCount() const;              // 9
    /// `slot` is 0 to 3; `cell` a cell, kNone or kSwitchedOff. Any cell brings a slot back that was switched
    /// off. A cell that does not exist is remembered but not shown.
    bool setMarker(std::int16_t slot, std::int16_t cell);       // 11
    [[nodiscard]] std::int16_t marker(std::int16_t slot) const; // 12
    [[nodiscard]] std::optional<Range> selectedRange() const;   // 14
    [[nodiscard]] bool hasSelectedRange() const;                // 14
    bool copySelected();                                        // 15
    [[nodiscard]] bool hasCopiedCells() const;                  // 16
    /// What lies beyond the grid's right and lower edge is left out. Raises cellsPasted when it changes
    /// anything; false when there is nothing to paste or the place is outside the grid.
    bool paste(std::int16_t column, std::int16_t row); // 17
    /// The cell under a point of `controlWindow()`, in its pixels; kNone between and beside the cells.
    [[nodiscard]] std::int16_t cellAt(std::int32_t x, std::int32_t y) const; // 19
    /// `colour` is 0x00BBGGRR: what is painted, until the cell gets another value.
    void setCellColour(std::int16_t cell, std::uint32_t colour); // 26

    /// The row that bank mode frames when it is not the current cell's; kNone: the current cell's.
    void setBankRow(std::int16_t row); // 101
    /// The cell of the last click or double click, by mouse or keyboard; kNone before the first.
    [[nodiscard]] std::int16_t clickedCell() const; // 102
    /// Small signs on a cell, of those below, added up.
    void setCellGlyphs(std::int16_t cell, std::int16_t glyphs); // 110
    /// What is selected, by the cells' numbers.
    struct Selected {
        std::int16_t first = 0;
        std::int16_t last = 0;
        std::int16_t count = 0; ///< 0 without a selection; fewer than first to last in a rectangle.
    };
    [[nodiscard]] Selected selectedCells() const; // 111
    /// Whether a selected run, and with Ctrl any cell, can be dragged to another place: see `runDropped`.
    void setMovable(bool on); // 112
    /// Selects a run of cells that there are.
    void selectRun(std::int16_t first, std::int16_t last); // 113
    /// Says what is selected, for screen readers. Without one it is the first and the last number.
    void setSelectionDescriber(std::function<QString(const Selected&)> describer) {
        selectionDescriber_ = std::move(describer);
    }
    /// Says what a cell holds, for its tool tip and for screen readers. Without one it is the cell's value.
    void setDescriber(std::function<QString(int cell)> describer) { describer_ = std::move(describer); }
    /// Says what a cell holds to screen readers, who do not see its colour. Without one it is the
    /// description.
    void setNamer(std::function<QString(int cell)> namer) { namer_ = std::move(namer); }
    /// The description of some cell is another one now, though its value is the same.
    void describeAgain(); // 103

Q_SIGNALS:
    /// A cell was chosen with the mouse or the keyboard. Where slot 0 is on it is the current cell already.
    void clicked();
    void doubleClicked();
    /// The user selects a range: its corners so far.
    void rangeSelected(int firstColumn, int firstRow, int lastColumn, int lastRow);
    /// Cells `first` to `last` were dragged so that the first of them is to stand at `place`. The grid is as
    /// it was.
    void runDropped(int first, int last, int place);
    /// Cells from `first` to `last`, inclusive, were replaced by a paste; some between may be unchanged.
    void cellsPasted(int first, int last);

private:
    void hearEvent(DispatchId event, DispatchArguments arguments) override;

    std::function<QString(int)> describer_;
    std::function<QString(int)> namer_;
    std::function<QString(const Selected&)> selectionDescriber_;
};

} // namespace dyeworks

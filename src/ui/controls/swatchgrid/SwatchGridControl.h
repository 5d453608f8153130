#pragma once

#include "ui/controls/dispatch/AccessibleFactory.h"
#include "ui/controls/dispatch/MemberTable.h"
#include "ui/controls/swatchgrid/SwatchGrid.h"
#include "ui/controls/swatchgrid/SwatchGridAccessible.h"

namespace dyeworks {

// The table would be run together.
// clang-format off
/// SwatchGrid through numbers. Integers are short unless something else is said; values are 0xAABBGGRR,
/// colours 0x00BBGGRR.
///
///     2   BOOL property, set          frames the bank: the row of the current cell, or of 101
///     3   short property, set         1: ranges can be selected and Enter is a double click; 0: cells are clicked
///     4   void (columns, rows, 0)     layout, 0 by 0 at first
///     5   BOOL (count)                cells, none at first; new ones are black
///     6   long (index)                value of a cell
///     7   void (index, long value)    sets it, and the displayed colour to its low 24 bits
///     9   short ()                    count of cells
///     11  BOOL (slot, index)          a mark, slots 0 to 3: a cell, -1 none, -2 switched off until it gets a cell
///     12  short (slot)                the cell of a mark, or as above
///     14  BOOL (short* column, row, column, row)  first and last corner of the selection; null to test only
///     15  BOOL ()                     copies the selection
///     16  BOOL ()                     copied cells are available
///     17  BOOL (column, row)          pastes them with the first at a cell, without what lies outside the grid
///     19  short (long x, long y)      cell under a point of the window, -1 none
///     26  void (index, long colour)   displayed colour
///     101 short property, set         row of the bank, -1 that of the current cell
///     102 short ()                    cell of the last click or double click, -1 none
///     103 void ()                     descriptions have changed
///     110 void (index, glyphs)        small signs on a cell, added up: 1 a folded corner, 2 two bars, 4 a chequer
///     111 short (short* first, short* last)  how many cells are selected, and the first and the last of them by
///                                     number: a run when there are no others between; 0, giving nothing, without
///                                     a selection
///     112 BOOL property, set          a selected run, and with Ctrl any cell, can be dragged to another place
///     113 void (first, last)          selects a run
///
/// A drag selects a rectangle. With Shift, by click, drag or keys, it is a run in the order of the cells'
/// numbers; 14 and event 1 then give the places of its first and its last cell, and 17 goes on in the next
/// row where one ends. A drag within a run moves it, where 112 allows that; a click in it stays one.
///
/// Events: -600 a cell was chosen; -601 double click; 1 (column, row, column, row) the user selects a range;
/// 2 (first, last) cells that a paste changed, not raised when it changed none; 101 (index, string* text)
/// asks for what people are told about a cell; 111 (first, last, count, string* text) asks for what they are
/// told about several cells that are selected; 112 (first, last, place) cells were dragged so that the first
/// of them is to stand at a place, which is left to whoever hears it.
// clang-format on
class SwatchGridControl final : public Control, private SwatchGrid::Listener {
public:
    SwatchGridControl();

    [[nodiscard]] DispatchResult invoke(DispatchId member, DispatchKind kind,
                                        DispatchArguments arguments) override;
    void setSink(ControlSink* sink) override { sink_ = sink; }
    [[nodiscard]] QWidget* widget() override { return &grid_; }

private:
    void clicked() override;
    void doubleClicked() override;
    void selected(const SwatchCells::Corners& range) override;
    void dropped(int first, int last, int place) override;
    [[nodiscard]] QString describe(int cell) const override;
    [[nodiscard]] QString nameOf(int cell) const override;
    [[nodiscard]] QString describeSelection() const override;

    void addLayoutMembers();
    void addCellMembers();
    void addRangeMembers();
    [[nodiscard]] bool paste(int column, int row);
    void raise(DispatchId event, std::initializer_list<DispatchValue> arguments) const;

    MemberTable members_;
    ControlSink* sink_ = nullptr;
    AccessibleFactory accessible_{makeSwatchGridAccessible};
    SwatchGrid grid_{*this};
};

} // namespace dyeworks

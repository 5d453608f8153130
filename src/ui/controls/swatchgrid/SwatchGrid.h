#pragma once

#include "ui/controls/swatchgrid/SwatchCells.h"
#include "ui/controls/swatchgrid/SwatchDrag.h"
#include "ui/controls/swatchgrid/SwatchGeometry.h"

#include <QString>
#include <QWidget>

namespace dyeworks {

/// The window of a grid of colour cells: shows SwatchCells and lets the user walk, choose and select them.
class SwatchGrid : public QWidget {
    Q_OBJECT

public:
    static constexpr int kNone = SwatchCells::kNone;

    /// Whoever hears what the user does.
    class Listener {
    public:
        /// `clickedCell()` was chosen. Where the current cell is not switched off, it is this one already.
        virtual void clicked() = 0;
        virtual void doubleClicked() = 0;
        /// The user selected a range.
        virtual void selected(const SwatchCells::Corners& range) = 0;
        /// The user dragged cells `first` to `last` so that the first of them is to stand at `place`.
        virtual void dropped(int first, int last, int place) = 0;
        /// What a cell holds, for people.
        [[nodiscard]] virtual QString describe(int cell) const = 0;
        /// The same for who does not see its colour.
        [[nodiscard]] virtual QString nameOf(int cell) const = 0;
        /// The selected cells, of which there are several, for people.
        [[nodiscard]] virtual QString describeSelection() const = 0;

    protected:
        ~Listener() = default;
    };

    /// `listener` must outlive the window.
    explicit SwatchGrid(Listener& listener);

    [[nodiscard]] const SwatchCells& cells() const noexcept { return cells_; }
    void setShape(int columns, int rows);
    void setCount(int count);
    void setValue(int cell, std::uint32_t value);
    void setColour(int cell, std::uint32_t colour);
    void setGlyphs(int cell, unsigned glyphs);
    bool setMarker(int slot, int cell);
    /// As SwatchCells does it.
    std::optional<std::pair<int, int>> paste(const CopiedCells& copied, int column, int row);

    /// Whether the user can select ranges.
    void setSelectable(bool selectable) { selectable_ = selectable; }
    [[nodiscard]] bool isSelectable() const noexcept { return selectable_; }
    /// Whether the user can drag a selected run, and with Ctrl any cell, to another place. The cells stay
    /// where they are, the listener is told.
    void setMovable(bool movable);
    /// Selects a run of cells as the user does; nothing where that cannot be.
    void selectRun(int first, int last);
    /// Frames a row of cells.
    void setBankMode(bool on);
    /// Which row; kNone: that of the current cell.
    void setBankRow(int row);
    /// The cell chosen last by mouse or keyboard; kNone before the first.
    [[nodiscard]] int clickedCell() const noexcept { return clicked_; }
    /// The description of cells has changed.
    void describeAgain();

    /// The cell that the keyboard is at: the current one or, where that is switched off, the one walked to.
    /// kNone when there is no such cell.
    [[nodiscard]] int activeCell() const;
    [[nodiscard]] QString description(int cell) const { return listener_.describe(cell); }
    [[nodiscard]] QString nameOf(int cell) const { return listener_.nameOf(cell); }
    /// What is selected besides the cell that the keyboard is at; empty when nothing is.
    [[nodiscard]] QString selectionDescription() const;
    /// Chooses a cell as a click does.
    void choose(int cell);
    /// As a double click does.
    void open(int cell);

    /// The geometry of this moment.
    [[nodiscard]] SwatchGeometry geometryOfCells() const;
    /// The cell under a point of the window, or kNone.
    [[nodiscard]] int cellAt(const QPointF& point) const { return geometryOfCells().cellAt(point); }
    /// The smallest area of whole pixels of the window that holds a cell; empty for one that is not shown.
    [[nodiscard]] QRect cellArea(int cell) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    [[nodiscard]] int preferredPitch() const;
    [[nodiscard]] bool canSelect() const;
    [[nodiscard]] std::optional<int> walkTarget(const QKeyEvent& event, int from) const;
    void shapeChanged(const SwatchGeometry& before);
    /// Extends the selection, or one that begins at the active cell, to a cell.
    void selectTo(int cell, SwatchCells::Shape shape);
    void select(int from, int to, SwatchCells::Shape shape);
    /// What a drag from a cell takes along; nothing where it selects.
    [[nodiscard]] std::optional<std::pair<int, int>> movedFrom(int cell, Qt::KeyboardModifiers keys) const;
    void showDrag();
    void endDrag();
    [[nodiscard]] bool hasSeveralSelected() const;
    /// Keys that mean something here, whatever the program's menus use them for. False: not this one.
    [[nodiscard]] bool isOwnKey(const QKeyEvent& event) const;
    // To assistive technology.
    void tellFocus();
    void tellName(int cell);

    Listener& listener_;
    SwatchCells cells_;
    bool selectable_ = false;
    bool bankMode_ = false;
    int bankRow_ = kNone;
    int clicked_ = kNone;
    int walked_ = 0; // Where the keyboard is while the current cell is switched off.
    bool isDragging_ = false;
    SwatchCells::Shape dragged_ = SwatchCells::Shape::Block;
    bool movable_ = false;
    std::optional<SwatchDrag> drag_;
};

} // namespace dyeworks

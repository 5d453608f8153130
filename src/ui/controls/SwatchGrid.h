#pragma once

#include <QColor>
#include <QRect>
#include <QWidget>

#include <functional>
#include <vector>

namespace dyeworks {

/// A grid of colour swatches, one of which is current. Cells are numbered row by row from 0.
class SwatchGrid : public QWidget {
    Q_OBJECT

public:
    static constexpr int kNone = -1;

    explicit SwatchGrid(QWidget* parent = nullptr);

    /// Shows these colours, `columns` (1 or more, or 0 for an empty grid) in a row. The current cell stays
    /// when it still exists.
    void setColours(std::vector<QRgb> colours, int columns);
    /// kNone, or any cell that does not exist: no cell is current.
    void setCurrentCell(int cell);
    /// Frames one row; kNone frames none.
    void setMarkedRow(int row);
    /// Says what a cell holds, for its tool tip and for assistive technology.
    void setDescriber(std::function<QString(int)> describer) { describer_ = std::move(describer); }

    [[nodiscard]] int cellCount() const { return static_cast<int>(colours_.size()); }
    [[nodiscard]] int currentCell() const noexcept { return current_; }
    /// The cell under a point of the widget, or kNone.
    [[nodiscard]] int cellAt(QPoint point) const;
    /// The cell's area in the widget; right and bottom as QRect has them.
    [[nodiscard]] QRect cellRect(int cell) const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

Q_SIGNALS:
    /// The user chose a cell with the mouse or the keyboard; it is current already.
    void cellChosen(int cell);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] int rows() const;
    [[nodiscard]] int preferredPitch() const;
    [[nodiscard]] int pitchFor(const QSize& size) const;
    [[nodiscard]] int pitch() const;
    [[nodiscard]] QPoint origin() const;
    [[nodiscard]] QSize sizeForPitch(int cellPitch) const;
    void choose(int cell);
    void describeCurrent();
    void drawCurrentFrame(QPainter& painter) const;
    void drawMarkedRow(QPainter& painter) const;

    std::vector<QRgb> colours_;
    int columns_ = 0;
    int current_ = kNone;
    int markedRow_ = kNone;
    std::function<QString(int)> describer_;
};

} // namespace dyeworks

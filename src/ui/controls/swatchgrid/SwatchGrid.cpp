#include "ui/controls/swatchgrid/SwatchGrid.h"

#include "ui/controls/swatchgrid/SwatchPainter.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <QtMath>

#include <algorithm>

namespace dyeworks {

namespace {

constexpr int kFewColumns = 4; // With no more than these, cells are larger.

bool isStep(int key) {
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

} // namespace

SwatchGrid::SwatchGrid(Listener& listener)
    : listener_(listener) {
    setFocusPolicy(Qt::StrongFocus);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void SwatchGrid::setShape(int columns, int rows) {
    const SwatchGeometry before = geometryOfCells();
    cells_.setShape(columns, rows);
    shapeChanged(before);
}

void SwatchGrid::setCount(int count) {
    const SwatchGeometry before = geometryOfCells();
    cells_.setCount(count);
    shapeChanged(before);
}

void SwatchGrid::shapeChanged(const SwatchGeometry& before) {
    const SwatchGeometry now = geometryOfCells();
    if (now.columns() == before.columns() && now.shownCells() == before.shownCells())
        return;
    isDragging_ = false;
    endDrag();
    walked_ = 0;
    updateGeometry();
    update();
    QAccessibleTableModelChangeEvent told(this, QAccessibleTableModelChangeEvent::ModelReset);
    QAccessible::updateAccessibility(&told);
}

void SwatchGrid::setValue(int cell, std::uint32_t value) {
    const bool isNew = cells_.at(cell).value != value;
    cells_.setValue(cell, value);
    update();
    if (isNew && cell == activeCell())
        tellName(cell);
}

void SwatchGrid::setColour(int cell, std::uint32_t colour) {
    cells_.setColour(cell, colour);
    update();
}

void SwatchGrid::setGlyphs(int cell, unsigned glyphs) {
    if (cells_.at(cell).glyphs == glyphs)
        return;
    cells_.setGlyphs(cell, glyphs);
    update();
}

bool SwatchGrid::setMarker(int slot, int cell) {
    const int before = activeCell();
    if (!cells_.setMarker(slot, cell))
        return false;
    if (activeCell() != before)
        tellFocus();
    update();
    return true;
}

std::optional<std::pair<int, int>> SwatchGrid::paste(const CopiedCells& copied, int column, int row) {
    update();
    return cells_.paste(copied, column, row);
}

void SwatchGrid::setBankMode(bool on) {
    bankMode_ = on;
    update();
}

void SwatchGrid::setBankRow(int row) {
    bankRow_ = row;
    update();
}

void SwatchGrid::describeAgain() {
    tellName(activeCell());
}

int SwatchGrid::activeCell() const {
    const int cell = cells_.current() == SwatchCells::kSwitchedOff ? walked_ : cells_.current();
    return cells_.has(cell) ? cell : kNone;
}

void SwatchGrid::tellFocus() {
    if (!hasFocus() || activeCell() == kNone)
        return;
    QAccessibleEvent told(this, QAccessible::Focus);
    told.setChild(activeCell());
    QAccessible::updateAccessibility(&told);
}

void SwatchGrid::tellName(int cell) {
    if (cell == kNone)
        return;
    QAccessibleEvent told(this, QAccessible::NameChanged);
    told.setChild(cell);
    QAccessible::updateAccessibility(&told);
}

SwatchGeometry SwatchGrid::geometryOfCells() const {
    SwatchGeometry geometry({cells_.columns(), cells_.rows(), cells_.count()}, preferredPitch(),
                            devicePixelRatioF());
    geometry.fit(size());
    return geometry;
}

QRect SwatchGrid::cellArea(int cell) const {
    const SwatchGeometry geometry = geometryOfCells();
    const QRect device = geometry.cell(cell);
    if (device.isEmpty())
        return {};
    const qreal scale = geometry.scale();
    return QRectF(QPointF(device.topLeft()) / scale, QSizeF(device.size()) / scale).toAlignedRect();
}

int SwatchGrid::preferredPitch() const {
    return cells_.columns() > kFewColumns ? fontMetrics().height() : 2 * fontMetrics().height();
}

QSize SwatchGrid::sizeHint() const {
    return geometryOfCells().preferredSize();
}

QSize SwatchGrid::minimumSizeHint() const {
    return geometryOfCells().smallestSize();
}

int SwatchGrid::heightForWidth(int width) const {
    return geometryOfCells().heightForWidth(width);
}

bool SwatchGrid::canSelect() const {
    return selectable_ && cells_.current() != SwatchCells::kSwitchedOff;
}

void SwatchGrid::choose(int cell) {
    if (!cells_.has(cell))
        return;
    clicked_ = cell;
    const bool isMarked = cells_.current() != SwatchCells::kSwitchedOff;
    if (isMarked)
        cells_.setMarker(SwatchCells::kCurrentSlot, cell);
    else
        walked_ = cell;
    update();
    tellFocus();
    if (canSelect())
        select(cell, cell, SwatchCells::Shape::Block);
    listener_.clicked();
}

void SwatchGrid::open(int cell) {
    if (!cells_.has(cell))
        return;
    if (cell != clicked_)
        choose(cell);
    listener_.doubleClicked();
}

bool SwatchGrid::hasSeveralSelected() const {
    const auto range = cells_.selection();
    return range && range->first != range->last;
}

QString SwatchGrid::selectionDescription() const {
    return hasSeveralSelected() ? listener_.describeSelection() : QString();
}

void SwatchGrid::select(int from, int to, SwatchCells::Shape shape) {
    const auto before = cells_.selection();
    cells_.select(from, to, shape);
    const auto now = cells_.selection();
    if (!now || now == before)
        return;
    update();
    QAccessibleEvent told(this, QAccessible::SelectionWithin);
    QAccessible::updateAccessibility(&told);
    listener_.selected(*now);
}

void SwatchGrid::selectTo(int cell, SwatchCells::Shape shape) {
    const int start = cells_.selectionStart();
    const int from = cells_.has(start) ? start : activeCell();
    if (from == kNone)
        choose(cell);
    else
        select(from, cell, shape);
}

bool SwatchGrid::isOwnKey(const QKeyEvent& event) const {
    if (!canSelect())
        return false;
    return event.matches(QKeySequence::SelectAll) ||
           (event.key() == Qt::Key_Escape && (hasSeveralSelected() || drag_));
}

bool SwatchGrid::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && isOwnKey(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const int cell = cellAt(help->pos());
    const QString tip = cell == kNone ? QString() : description(cell);
    // Beside the cells the tip is that of whoever placed the grid.
    if (tip.isEmpty())
        return QWidget::event(event);
    QToolTip::showText(help->globalPos(), tip, this, cellArea(cell));
    return true;
}

void SwatchGrid::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const SwatchLook look{.cells = cells_,
                          .geometry = geometryOfCells(),
                          .colours = palette(),
                          .size = size(),
                          .isEnabled = isEnabled(),
                          .hasFocus = hasFocus(),
                          .activeCell = activeCell(),
                          .bankMode = bankMode_,
                          .bankRow = bankRow_,
                          .gap = drag_ ? drag_->gap() : std::nullopt};
    SwatchPainter(painter, look).paint();
}

void SwatchGrid::mousePressEvent(QMouseEvent* event) {
    endDrag();
    if (event->button() != Qt::LeftButton)
        return QWidget::mousePressEvent(event);
    const int cell = cellAt(event->position());
    if (const auto moved = movedFrom(cell, event->modifiers())) {
        drag_.emplace(moved->first, moved->second, cell, event->position());
        return;
    }
    isDragging_ = cell != kNone;
    const bool extends = canSelect() && (event->modifiers() & Qt::ShiftModifier);
    dragged_ = extends ? SwatchCells::Shape::Run : SwatchCells::Shape::Block;
    if (isDragging_ && extends)
        selectTo(cell, dragged_);
    else
        choose(cell);
}

void SwatchGrid::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton)) {
        endDrag();
        // Not with Ctrl, which would have the hand everywhere.
        if (movedFrom(cellAt(event->position()), event->modifiers() & Qt::ShiftModifier))
            setCursor(Qt::OpenHandCursor);
        return;
    }
    if (drag_) {
        drag_->moveTo(event->position(), geometryOfCells());
        showDrag();
        return;
    }
    if (!isDragging_)
        return;
    const int cell = geometryOfCells().nearestCell(event->position());
    if (cell == kNone)
        return;
    if (canSelect())
        selectTo(cell, dragged_);
    else if (cell != clicked_)
        choose(cell);
}

void SwatchGrid::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton)
        return;
    isDragging_ = false;
    const std::optional<SwatchDrag> drag = drag_;
    endDrag();
    if (drag && !drag->hasBegun())
        choose(drag->grabbed());
    else if (drag && drag->place())
        listener_.dropped(drag->first(), drag->last(), *drag->place());
}

void SwatchGrid::setMovable(bool movable) {
    movable_ = movable;
    setMouseTracking(movable);
    endDrag();
}

void SwatchGrid::selectRun(int first, int last) {
    if (canSelect() && cells_.has(first) && cells_.has(last))
        select(first, last, SwatchCells::Shape::Run);
}

std::optional<std::pair<int, int>> SwatchGrid::movedFrom(int cell, Qt::KeyboardModifiers keys) const {
    if (!movable_ || !canSelect() || cell == kNone || (keys & Qt::ShiftModifier))
        return std::nullopt;
    const auto run = cells_.selectedRun();
    if (run && run->first != run->second && cell >= run->first && cell <= run->second)
        return run;
    return keys & Qt::ControlModifier ? std::optional(std::pair(cell, cell)) : std::nullopt;
}

void SwatchGrid::showDrag() {
    if (drag_->hasBegun())
        setCursor(Qt::ClosedHandCursor);
    update();
}

void SwatchGrid::endDrag() {
    if (movable_)
        unsetCursor();
    if (!drag_)
        return;
    drag_.reset();
    update();
}

void SwatchGrid::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        open(cellAt(event->position()));
}

/// Where a key leads from a cell; nothing when it is not one that walks.
std::optional<int> SwatchGrid::walkTarget(const QKeyEvent& event, int from) const {
    const int columns = cells_.columns();
    const int last = geometryOfCells().shownCells() - 1;
    const int rowStart = from / columns * columns;
    const int lastOfColumn = from + (last - from) / columns * columns;
    const bool whole = event.modifiers() & Qt::ControlModifier;
    const auto within = [&](int cell) { return cell >= 0 && cell <= last ? cell : from; };
    switch (event.key()) {
    case Qt::Key_Left:
        return within(from - 1);
    case Qt::Key_Right:
        return within(from + 1);
    case Qt::Key_Up:
        return within(from - columns);
    case Qt::Key_Down:
        return within(from + columns);
    case Qt::Key_Home:
        return whole ? 0 : rowStart;
    case Qt::Key_End:
        return whole ? last : std::min(rowStart + columns - 1, last);
    case Qt::Key_PageUp:
        return from % columns;
    case Qt::Key_PageDown:
        return lastOfColumn;
    default:
        return std::nullopt;
    }
}

void SwatchGrid::keyPressEvent(QKeyEvent* event) {
    const int shown = geometryOfCells().shownCells();
    if (shown == 0)
        return QWidget::keyPressEvent(event);
    // What is being dragged must not change under the hand.
    if (drag_) {
        if (event->key() == Qt::Key_Escape)
            endDrag();
        return;
    }
    const bool extends = canSelect() && (event->modifiers() & Qt::ShiftModifier);
    const int active = std::min(activeCell(), shown - 1);
    const int end = extends ? cells_.selectionEnd() : kNone;
    const int from = std::max(cells_.has(end) ? end : active, 0);
    if (const std::optional<int> target = walkTarget(*event, from)) {
        if (extends) {
            selectTo(*target, SwatchCells::Shape::Run);
        } else if (cells_.current() == SwatchCells::kSwitchedOff) {
            // Nothing is current here: walking looks at cells, the blank chooses one.
            walked_ = *target;
            update();
            tellFocus();
        } else if (*target != active) {
            // From nowhere, a step leads to the first cell.
            choose(active == kNone && isStep(event->key()) ? 0 : *target);
        }
        return;
    }
    if (isOwnKey(*event)) {
        const bool everything = event->key() != Qt::Key_Escape;
        const int first = everything ? 0 : active;
        return select(std::max(first, 0), everything ? shown - 1 : std::max(first, 0),
                      everything ? SwatchCells::Shape::Run : SwatchCells::Shape::Block);
    }
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Select:
        return choose(active);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (selectable_ && active != kNone)
            return open(active);
        [[fallthrough]];
    default:
        QWidget::keyPressEvent(event);
    }
}

void SwatchGrid::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    tellFocus();
}

void SwatchGrid::focusOutEvent(QFocusEvent* event) {
    endDrag();
    QWidget::focusOutEvent(event);
}

void SwatchGrid::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange)
        update();
    if (event->type() == QEvent::FontChange)
        updateGeometry();
    QWidget::changeEvent(event);
}

} // namespace dyeworks

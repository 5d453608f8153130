#include "ui/controls/swatchgrid/SwatchGridControl.h"

#include "ui/controls/dispatch/EntryPoints.h"

#include <memory>

namespace dyeworks {

namespace {

std::int16_t asShort(int value) {
    return static_cast<std::int16_t>(value);
}

/// Where nobody wants a result, the place for it is null.
void give(std::int16_t* place, int value) {
    if (place != nullptr)
        *place = asShort(value);
}

} // namespace

SwatchGridControl::SwatchGridControl() {
    addLayoutMembers();
    addCellMembers();
    addRangeMembers();
}

void SwatchGridControl::addLayoutMembers() {
    members_.set(2, [this](bool on) { grid_.setBankMode(on); });
    members_.set(3, [this](std::int16_t selectable) { grid_.setSelectable(selectable != 0); });
    members_.method(4,
                    [this](std::int16_t columns, std::int16_t rows,
                           std::int16_t /*reserved*/) -> OrBadParameter<std::monostate> {
                        if (columns < 0 || rows < 0)
                            return BadParameter{};
                        grid_.setShape(columns, rows);
                        return std::monostate{};
                    });
    members_.method(5, [this](std::int16_t count) {
        if (count < 0)
            return false;
        grid_.setCount(count);
        return true;
    });
    members_.method(9, [this] { return asShort(grid_.cells().count()); });
    members_.method(19,
                    [this](std::int32_t x, std::int32_t y) { return asShort(grid_.cellAt(QPointF(x, y))); });
    members_.set(101, [this](std::int16_t row) { grid_.setBankRow(row); });
}

void SwatchGridControl::addCellMembers() {
    members_.method(6, [this](std::int16_t cell) -> OrBadParameter<std::int32_t> {
        if (!grid_.cells().has(cell))
            return BadParameter{};
        return static_cast<std::int32_t>(grid_.cells().at(cell).value);
    });
    members_.method(7, [this](std::int16_t cell, std::int32_t value) -> OrBadParameter<std::monostate> {
        if (!grid_.cells().has(cell))
            return BadParameter{};
        grid_.setValue(cell, static_cast<std::uint32_t>(value));
        return std::monostate{};
    });
    members_.method(26, [this](std::int16_t cell, std::int32_t colour) -> OrBadParameter<std::monostate> {
        if (!grid_.cells().has(cell))
            return BadParameter{};
        grid_.setColour(cell, static_cast<std::uint32_t>(colour));
        return std::monostate{};
    });
    members_.method(110, [this](std::int16_t cell, std::int16_t glyphs) -> OrBadParameter<std::monostate> {
        if (!grid_.cells().has(cell))
            return BadParameter{};
        grid_.setGlyphs(cell, static_cast<unsigned>(glyphs));
        return std::monostate{};
    });
    members_.method(11, [this](std::int16_t slot, std::int16_t cell) { return grid_.setMarker(slot, cell); });
    members_.method(12, [this](std::int16_t slot) { return asShort(grid_.cells().marker(slot)); });
    members_.method(102, [this] { return asShort(grid_.clickedCell()); });
    members_.method(103, [this] { grid_.describeAgain(); });
}

void SwatchGridControl::addRangeMembers() {
    members_.method(14, [this](std::int16_t* firstColumn, std::int16_t* firstRow, std::int16_t* lastColumn,
                               std::int16_t* lastRow) {
        const auto range = grid_.cells().selection();
        if (!range)
            return false;
        give(firstColumn, range->first.x());
        give(firstRow, range->first.y());
        give(lastColumn, range->last.x());
        give(lastRow, range->last.y());
        return true;
    });
    members_.set(112, [this](bool on) { grid_.setMovable(on); });
    members_.method(113, [this](std::int16_t first, std::int16_t last) {
        grid_.selectRun(first, last);
        return std::monostate{};
    });
    members_.method(15, [this] {
        const std::optional<CopiedCells> copied = grid_.cells().selected();
        if (copied)
            copied->putOnClipboard();
        return copied.has_value();
    });
    members_.method(16, [] { return CopiedCells::areOnClipboard(); });
    members_.method(17, [this](std::int16_t column, std::int16_t row) { return paste(column, row); });
    members_.method(111, [this](std::int16_t* first, std::int16_t* last) {
        const std::vector<int> cells = grid_.cells().selectedCells();
        if (!cells.empty()) {
            give(first, cells.front());
            give(last, cells.back());
        }
        return asShort(static_cast<int>(cells.size()));
    });
}

DispatchResult SwatchGridControl::invoke(DispatchId member, DispatchKind kind, DispatchArguments arguments) {
    return members_.invoke(member, kind, arguments);
}

bool SwatchGridControl::paste(int column, int row) {
    const SwatchCells& cells = grid_.cells();
    if (column < 0 || column >= cells.columns() || row < 0 || row >= cells.rows())
        return false;
    const std::optional<CopiedCells> copied = CopiedCells::fromClipboard();
    if (!copied)
        return false;
    if (const auto changed = grid_.paste(*copied, column, row))
        raise(2, {asShort(changed->first), asShort(changed->second)});
    return true;
}

void SwatchGridControl::clicked() {
    raise(-600, {});
}

void SwatchGridControl::doubleClicked() {
    raise(-601, {});
}

void SwatchGridControl::selected(const SwatchCells::Corners& range) {
    raise(1, {asShort(range.first.x()), asShort(range.first.y()), asShort(range.last.x()),
              asShort(range.last.y())});
}

void SwatchGridControl::dropped(int first, int last, int place) {
    raise(112, {asShort(first), asShort(last), asShort(place)});
}

QString SwatchGridControl::describe(int cell) const {
    std::string text;
    raise(101, {asShort(cell), &text});
    if (!text.empty())
        return QString::fromStdString(text);
    return QString::fromLatin1("%1  #%2")
        .arg(cell)
        .arg(grid_.cells().at(cell).value, 8, 16, QLatin1Char('0'))
        .toUpper();
}

QString SwatchGridControl::nameOf(int cell) const {
    std::string text;
    raise(114, {asShort(cell), &text});
    return text.empty() ? describe(cell) : QString::fromStdString(text);
}

QString SwatchGridControl::describeSelection() const {
    const std::vector<int> cells = grid_.cells().selectedCells();
    const int count = static_cast<int>(cells.size());
    std::string text;
    raise(111, {asShort(cells.front()), asShort(cells.back()), asShort(count), &text});
    return text.empty() ? QString::fromLatin1("%1-%2").arg(cells.front()).arg(cells.back())
                        : QString::fromStdString(text);
}

void SwatchGridControl::raise(DispatchId event, std::initializer_list<DispatchValue> arguments) const {
    if (sink_ != nullptr)
        sink_->controlEvent(event, {arguments.begin(), arguments.size()});
}

} // namespace dyeworks

DYEWORKS_CONTROL_ENTRY_POINTS("SwatchGrid", dyeworks::SwatchGridControl)

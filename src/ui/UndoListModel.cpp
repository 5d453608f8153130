#include "ui/UndoListModel.h"

#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QFont>

#include <algorithm>
#include <string>
#include <utility>

namespace dyeworks {

namespace {

StringId toldAs(UndoListModel::State state) {
    switch (state) {
    case UndoListModel::kCurrent:
        return StringId::UndoListRowCurrent;
    case UndoListModel::kUndone:
        return StringId::UndoListRowUndone;
    case UndoListModel::kDone:
        break;
    }
    return StringId::UndoListRow;
}

} // namespace

bool UndoListModel::show(std::vector<StepRow> rows, std::size_t current) {
    if (rows == rows_ && current == current_)
        return false;
    // The oldest steps may have been dropped, and the newest ones replaced.
    if (rows.size() > 1 && rows_.size() > 1) {
        const auto kept = std::ranges::find(rows_, rows[1]);
        if (kept != rows_.end())
            removeFrom(1, static_cast<std::size_t>(kept - rows_.begin()));
    }
    std::size_t same = std::min<std::size_t>({1, rows.size(), rows_.size()});
    while (same > 0 && same < rows.size() && same < rows_.size() && rows[same] == rows_[same])
        ++same;
    removeFrom(same, rows_.size());
    if (same < rows.size()) {
        beginInsertRows({}, static_cast<int>(same), static_cast<int>(rows.size()) - 1);
        rows_.insert(rows_.end(), rows.begin() + static_cast<std::ptrdiff_t>(same), rows.end());
        endInsertRows();
    }
    rows_ = std::move(rows);
    current_ = current;
    // Each row tells how many there are.
    if (!rows_.empty())
        Q_EMIT dataChanged(index(0), index(rowCount() - 1));
    return true;
}

void UndoListModel::removeFrom(std::size_t first, std::size_t end) {
    if (first >= end)
        return;
    beginRemoveRows({}, static_cast<int>(first), static_cast<int>(end) - 1);
    rows_.erase(rows_.begin() + static_cast<std::ptrdiff_t>(first),
                rows_.begin() + static_cast<std::ptrdiff_t>(end));
    endRemoveRows();
}

std::int32_t UndoListModel::position(int row) const {
    return rows_.at(static_cast<std::size_t>(row)).position;
}

int UndoListModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

UndoListModel::State UndoListModel::stateOf(std::size_t row) const {
    return row < current_ ? kDone : row == current_ ? kCurrent : kUndone;
}

QVariant UndoListModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || static_cast<std::size_t>(index.row()) >= rows_.size())
        return {};
    const auto row = static_cast<std::size_t>(index.row());
    const State state = stateOf(row);
    switch (role) {
    case Qt::DisplayRole:
        return shown(rows_[row].name);
    case Qt::AccessibleTextRole:
        return shown(toldAs(state),
                     {std::to_string(row + 1), std::to_string(rows_.size()), text(rows_[row].name)});
    case Qt::FontRole: {
        QFont font;
        font.setBold(state == kCurrent);
        return font;
    }
    case kStateRole:
        return state;
    default:
        return {};
    }
}

} // namespace dyeworks

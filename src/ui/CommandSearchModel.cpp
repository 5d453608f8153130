#include "ui/CommandSearchModel.h"

#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <utility>

namespace dyeworks {

void CommandSearchModel::setCommands(std::vector<ListedCommand> commands) {
    std::vector<SearchNames> names;
    names.reserve(commands.size());
    for (ListedCommand& each : commands)
        names.push_back(std::move(each.search));
    search_ = CommandSearch(names);
    beginResetModel();
    found_.clear();
    commands_ = std::move(commands);
    endResetModel();
}

void CommandSearchModel::search(const QString& typed) {
    beginResetModel();
    found_ = search_.find(typed.toStdString());
    endResetModel();
}

int CommandSearchModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(found_.size());
}

QVariant CommandSearchModel::data(const QModelIndex& index, int role) const {
    const ListedCommand& row = command(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return QString::fromStdString(row.name);
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole:
        return QString::fromStdString(spoken(row));
    case Place:
        return QString::fromStdString(row.place);
    case Keys:
        return QString::fromStdString(row.keys);
    case Reason:
        return row.reason.empty() ? QString() : shown(StringId::CommandDisabled, {row.reason});
    default:
        return {};
    }
}

} // namespace dyeworks

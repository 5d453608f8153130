#pragma once

#include "ui/CommandList.h"

#include <QAbstractListModel>

#include <cstddef>
#include <vector>

namespace dyeworks {

/// The commands that a search has found, a row for each. The row's accessible text and its tool tip tell all
/// of it.
class CommandSearchModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum Role { Place = Qt::UserRole, Keys, Reason };

    using QAbstractListModel::QAbstractListModel;

    /// Takes the commands to search among, and shows none of them yet.
    void setCommands(std::vector<ListedCommand> commands);
    /// Shows those that fit what is typed.
    void search(const QString& typed);
    [[nodiscard]] const ListedCommand& command(int row) const {
        return commands_.at(found_.at(static_cast<std::size_t>(row)));
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<ListedCommand> commands_;
    CommandSearch search_{{}};
    std::vector<std::size_t> found_;
};

} // namespace dyeworks

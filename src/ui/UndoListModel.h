#pragma once

#include "core/StepList.h"

#include <QAbstractListModel>

#include <cstddef>
#include <cstdint>
#include <vector>

namespace dyeworks {

/// The states of a history as rows of a list. It changes by the rows that have come and gone.
class UndoListModel : public QAbstractListModel {
    Q_OBJECT

public:
    static constexpr int kStateRole = Qt::UserRole; ///< A `State` as a number.
    enum State { kDone, kCurrent, kUndone };

    using QAbstractListModel::QAbstractListModel;

    /// Lists these; `current` is the row that the history stands at. False when they were listed already.
    bool show(std::vector<StepRow> rows, std::size_t current);
    [[nodiscard]] int currentRow() const noexcept { return static_cast<int>(current_); }
    /// Of a row of the list.
    [[nodiscard]] std::int32_t position(int row) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    [[nodiscard]] State stateOf(std::size_t row) const;
    void removeFrom(std::size_t first, std::size_t end);

    std::vector<StepRow> rows_;
    std::size_t current_ = 0;
};

} // namespace dyeworks

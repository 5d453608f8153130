#pragma once

#include <QDateTime>
#include <QDialog>
#include <QIcon>
#include <QString>

#include <cstddef>
#include <vector>

class QPushButton;
class QTreeWidget;

namespace dyeworks {

/// Lists what the program had not saved when it ended without being asked to, and asks what is to become of
/// it. `Accepted` and `kDiscard` are about what is chosen then, `Rejected` leaves everything for the next
/// start.
class RecoverySheet : public QDialog {
    Q_OBJECT

public:
    static constexpr int kDiscard = 2; ///< A result of `exec`.

    struct Row {
        QIcon picture;
        QString name;
        QString file; ///< As its users write it, or empty.
        QDateTime time;
    };

    explicit RecoverySheet(const std::vector<Row>& rows, QWidget* parent = nullptr);

    /// Which rows are chosen, in their order; at first all of them.
    [[nodiscard]] std::vector<std::size_t> chosen() const;

private:
    void choiceChanged();

    QTreeWidget* list_;
    QPushButton* recover_;
    QPushButton* discard_;
};

} // namespace dyeworks

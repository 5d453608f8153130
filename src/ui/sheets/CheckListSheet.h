#pragma once

#include <QDialog>
#include <QString>
#include <QStringList>

#include <vector>

class QPushButton;
class QTreeWidget;

namespace dyeworks {

/// Asks which rows of a list are meant; at first all of them.
class CheckListSheet : public QDialog {
    Q_OBJECT

public:
    struct Words {
        const char* name; ///< Of the window, for tests to find.
        QString caption;
        QString question;
        QString note; ///< Below the list; none when empty.
        QStringList columns;
        QString ok;
    };

    CheckListSheet(const Words& words, const std::vector<QStringList>& rows, QWidget* parent = nullptr);

    /// Whether each row is chosen.
    [[nodiscard]] std::vector<bool> chosen() const;

private:
    void checkAll(bool checked);
    void choiceChanged();

    QTreeWidget* list_;
    QPushButton* ok_;
};

} // namespace dyeworks

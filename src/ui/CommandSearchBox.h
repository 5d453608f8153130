#pragma once

#include "ui/CommandSearchModel.h"

#include <QDialog>

#include <vector>

class QLabel;
class QLineEdit;
class QListView;

namespace dyeworks {

/// A small window above the main one: a field that takes what is typed of a command, and the list of the
/// commands that fit. The field keeps the keys; the arrows move through the list.
class CommandSearchBox : public QDialog {
    Q_OBJECT

public:
    explicit CommandSearchBox(QWidget& owner);

    /// Shows the box at the top of its owner, in the middle, with all commands.
    void open(std::vector<ListedCommand> commands);

Q_SIGNALS:
    /// Enter or a click: the box has gone. Not for a command that cannot be used.
    void chosen(const ListedCommand& command);
    /// Gone by Esc.
    void givenUp();

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using QDialog::open;

    void placeOverOwner();
    void showFound();
    bool pressKey(int key, Qt::KeyboardModifiers modifiers);
    void goTo(int row);
    void choose(int row);

    CommandSearchModel model_;
    QLineEdit* field_;
    QListView* list_;
    QLabel* none_;
};

} // namespace dyeworks

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

    /// Shows the box at the top of its owner, in the middle, with all commands. It goes when another window
    /// gets the keys.
    void open(std::vector<ListedCommand> commands);

Q_SIGNALS:
    // The box takes no more keys, and whoever hears this gives them to another window. To hide before would
    // have window managers give them to one of their choice.
    /// Enter or a click on a command that can be used.
    void chosen(const ListedCommand& command);
    /// Esc.
    void givenUp();

protected:
    void paintEvent(QPaintEvent* event) override;
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
    QString composed_;     ///< What an input method shows in the field and has not given it yet.
    bool leaving_ = false; ///< It was told so, and stays until it loses the keys.
};

} // namespace dyeworks

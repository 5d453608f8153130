#pragma once

#include "framework/CommandIds.h"
#include "framework/Shortcuts.h"

#include <QObject>
#include <QString>

#include <map>

class QAction;
class QWidget;

namespace dyeworks {

class CommandRouter;
struct CommandRow;

/// One QAction for each command of the table, each of a list included, named "command_<number>". Triggering
/// it runs the command through the router. What the actions show follows the router's states: after each
/// command, when a menu of MenuBuilder opens, and whenever the program falls idle.
class CommandActions : public QObject {
    Q_OBJECT

public:
    /// The router must outlive the actions; they are what it tells after each command.
    explicit CommandActions(CommandRouter& router, QObject* parent = nullptr);
    ~CommandActions() override;

    /// Null for a number that is not in the table.
    [[nodiscard]] QAction* action(CommandId id) const;

    /// As they were last set; at first those of the user's settings.
    [[nodiscard]] const Shortcuts& shortcuts() const noexcept { return shortcuts_; }
    /// Gives the commands these keys at once.
    void setShortcuts(const Shortcuts& shortcuts);

    /// Makes the shortcuts work in `window`, also those of commands that are in none of its menus.
    void addTo(QWidget& window);

    /// Runs the command as its action does, but as things stand now, not as they stood at the last refresh.
    void run(CommandId id);

    /// Asks the router for all states.
    void refresh();

private:
    struct Entry {
        QAction* action;
        QString text; ///< The menu text of the table, in the user's language.
    };

    void create(const CommandRow& row, CommandId id);
    void showKeys(CommandId id, QAction& action) const;
    void refreshWhenIdle();

    CommandRouter& router_;
    std::map<CommandId, Entry> entries_;
    Shortcuts shortcuts_;
};

} // namespace dyeworks

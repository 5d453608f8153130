#include "ui/ShortcutOptions.h"

#include "framework/CommandTable.h"
#include "framework/widgets/CommandActions.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "ui/CommandList.h"
#include "ui/MainMenus.h"
#include "ui/sheets/CShortcutsPage.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

#include <algorithm>
#include <array>
#include <string_view>

namespace dyeworks {

namespace {

/// English titles of the menus whose commands change the image or a palette, or choose with what.
constexpr std::array<std::string_view, 4> kChanging{"&Edit", "&Image", "&Draw", "&Palette"};

/// The image's has nearly all of them.
std::array<std::span<const MenuItem>, 3> menuBars() {
    return {imageMenu(), projectMenu(), mainMenu()};
}

class Grouper {
public:
    void add(const MenuItem& menu) {
        const std::string title = withoutMnemonic(platform().texts().translate(kMenuContext, menu.title));
        auto group = std::ranges::find(groups_, title, &ShortcutGroup::title);
        if (group == groups_.end())
            group = groups_.insert(groups_.end(), {title, {}});
        addRows(*group, menu.items, {});
    }

    /// Commands that are in no menu.
    void addRest() {
        ShortcutGroup rest{text(StringId::ShortcutsOtherGroup), {}};
        for (const CommandRow& row : commandTable())
            addRow(rest, row, {});
        if (!rest.rows.empty())
            groups_.push_back(std::move(rest));
    }

    [[nodiscard]] std::vector<ShortcutGroup> take() { return std::move(groups_); }

private:
    void addRows(ShortcutGroup& group, std::span<const MenuItem> items, const std::string& place) {
        for (const MenuItem& item : items) {
            if (item.title != nullptr)
                addRows(group, item.items,
                        placeInside(place,
                                    withoutMnemonic(platform().texts().translate(kMenuContext, item.title))));
            else if (const CommandRow* const row = findCommand(item.id))
                addRow(group, *row, place);
        }
    }

    void addRow(ShortcutGroup& group, const CommandRow& row, const std::string& place) {
        if (Shortcuts::mayHaveKeys(row.id) && told_.insert(row.id).second)
            group.rows.push_back({row.id, placeInside(place, withoutMnemonic(menuText(row)))});
    }

    std::vector<ShortcutGroup> groups_;
    std::set<CommandId> told_;
};

void addCommands(std::span<const MenuItem> items, std::set<CommandId>& commands) {
    for (const MenuItem& item : items) {
        addCommands(item.items, commands);
        if (item.id != 0)
            commands.insert(item.id);
    }
}

bool isEntryField(QObject* object) {
    const auto* const line = qobject_cast<QLineEdit*>(object);
    return (line != nullptr && !line->isReadOnly()) || qobject_cast<QAbstractSpinBox*>(object) != nullptr ||
           qobject_cast<QPlainTextEdit*>(object) != nullptr || qobject_cast<QTextEdit*>(object) != nullptr;
}

} // namespace

ShortcutOptions shortcutOptions(CommandActions& actions) {
    Grouper grouper;
    for (const std::span<const MenuItem> bar : menuBars()) {
        for (const MenuItem& menu : bar)
            grouper.add(menu);
    }
    grouper.addRest();
    return {grouper.take(), actions.shortcuts(), [&actions](const Shortcuts& shortcuts) {
                shortcuts.save();
                actions.setShortcuts(shortcuts);
            }};
}

EntryFieldKeys::EntryFieldKeys(CommandActions& actions)
    : actions_(actions) {
    for (const std::span<const MenuItem> bar : menuBars()) {
        for (const MenuItem& menu : bar) {
            if (std::ranges::find(kChanging, std::string_view(menu.title)) != kChanging.end())
                addCommands(menu.items, commands_);
        }
    }
    qApp->installEventFilter(this);
}

bool EntryFieldKeys::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && isEntryField(watched)) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        const QKeySequence pressed(key.key() | (key.modifiers() & ~Qt::KeypadModifier).toInt());
        const auto isOf = [&](CommandId command) {
            const QAction* const action = actions_.action(command);
            return action != nullptr && action->shortcuts().contains(pressed);
        };
        if (std::ranges::any_of(commands_, isOf)) {
            event->accept();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace dyeworks

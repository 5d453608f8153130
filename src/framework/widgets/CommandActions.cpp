#include "framework/widgets/CommandActions.h"

#include "framework/CommandRouter.h"
#include "framework/CommandTable.h"
#include "framework/widgets/CommandIcon.h"

#include <QAbstractEventDispatcher>
#include <QAction>
#include <QApplication>
#include <QKeySequence>
#include <QWidget>

#include <algorithm>

namespace dyeworks {

namespace {

QList<QKeySequence> sequences(const Shortcuts::Keys& keys) {
    QList<QKeySequence> all;
    for (const std::string& each : keys)
        all.append(QKeySequence(QString::fromStdString(each), QKeySequence::PortableText));
    return all;
}

} // namespace

CommandActions::CommandActions(CommandRouter& router, QObject* parent)
    : QObject(parent)
    , router_(router)
    , shortcuts_(Shortcuts::load()) {
    for (const CommandRow& row : commandTable()) {
        for (CommandId id = row.id; id <= std::max(row.id, row.last); ++id)
            create(row, id);
    }
    router_.setAfterCommand([this] { refresh(); });
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &CommandActions::refreshWhenIdle);
}

CommandActions::~CommandActions() {
    router_.setAfterCommand({});
}

QAction* CommandActions::action(CommandId id) const {
    const auto found = entries_.find(id);
    return found == entries_.end() ? nullptr : found->second.action;
}

void CommandActions::addTo(QWidget& window) {
    for (const auto& [id, entry] : entries_)
        window.addAction(entry.action);
}

void CommandActions::run(CommandId id) {
    // Triggering an action has flipped its check mark, which a command that did not run would leave flipped.
    if (!router_.run(id))
        refresh();
}

void CommandActions::refresh() {
    for (const auto& [id, entry] : entries_) {
        const CommandUi ui = router_.state(id);
        QAction& action = *entry.action;
        action.setVisible(ui.visible);
        action.setEnabled(ui.enabled);
        if (ui.checked)
            action.setCheckable(true);
        action.setChecked(ui.checked.value_or(false));
        action.setText(ui.text ? QString::fromStdString(*ui.text) : entry.text);
    }
}

void CommandActions::create(const CommandRow& row, CommandId id) {
    auto* action = new QAction(this);
    action->setObjectName(QStringLiteral("command_%1").arg(id));
    const QString text = QString::fromStdString(menuText(row));
    action->setText(text);
    action->setStatusTip(QString::fromStdString(statusText(row)));
    action->setIcon(commandIcon(QString::fromUtf8(row.icon)));
    // Roles would let a desktop move commands out of the menus that name them.
    action->setMenuRole(QAction::NoRole);
    showKeys(id, *action);
    connect(action, &QAction::triggered, this, [this, id] { run(id); });
    entries_[id] = {action, text};
}

void CommandActions::showKeys(CommandId id, QAction& action) const {
    action.setShortcuts(sequences(shortcuts_.of(id)));
    const QString tip = QString::fromStdString(toolTipText(*findCommand(id)));
    const QString keys = action.shortcut().toString(QKeySequence::NativeText);
    action.setToolTip(keys.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, keys));
}

void CommandActions::setShortcuts(const Shortcuts& shortcuts) {
    shortcuts_ = shortcuts;
    for (const auto& [id, entry] : entries_)
        showKeys(id, *entry.action);
}

void CommandActions::refreshWhenIdle() {
    // Nobody reaches the actions past a dialog, and what they ask may be in the middle of a change there.
    if (QApplication::activeModalWidget() == nullptr)
        refresh();
}

} // namespace dyeworks

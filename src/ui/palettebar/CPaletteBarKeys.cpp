#include "framework/widgets/CommandActions.h"
#include "ui/palettebar/CPaletteBar.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>

#include <algorithm>
#include <optional>

namespace dyeworks {

namespace {

/// What the keys of the Edit menu do where entries are edited. Text fields have taken theirs before.
std::optional<CommandId> commandOf(const QKeyEvent& key) {
    if (key.matches(QKeySequence::Copy))
        return ID_PALETTE_COPY;
    if (key.matches(QKeySequence::Paste))
        return ID_PALETTE_PASTE;
    if (key.matches(QKeySequence::Undo))
        return ID_PALETTE_UNDO;
    if (key.matches(QKeySequence::Redo))
        return ID_PALETTE_REDO;
    return std::nullopt;
}

} // namespace

bool CPaletteBar::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if ((commandOf(key) && state().palette().exists()) || !controlsOf(key).empty()) {
            event->accept();
            return true;
        }
    }
    // Window managers give the keys of a dialog that ends to the main window, whichever had them before.
    if (event->type() == QEvent::WindowBlocked)
        keysLent_ = keysLent_ || QApplication::activeWindow() == this;
    else if (event->type() == QEvent::WindowUnblocked && keysLent_)
        // Not before the dialog has gone from the screen.
        QMetaObject::invokeMethod(this, &CPaletteBar::takeKeysBack, Qt::QueuedConnection);
    return QWidget::event(event);
}

void CPaletteBar::takeKeysBack() {
    // Another dialog may have followed.
    if (QApplication::activeModalWidget() != nullptr)
        return;
    keysLent_ = false;
    if (isVisible())
        activateWindow();
}

bool CPaletteBar::eventFilter(QObject* watched, QEvent* event) {
    return (event->type() == QEvent::KeyPress && pressLetter(*static_cast<QKeyEvent*>(event))) ||
           QWidget::eventFilter(watched, event);
}

void CPaletteBar::keyPressEvent(QKeyEvent* event) {
    const auto command = commandOf(*event);
    if (command && state().palette().exists())
        actions_.run(*command);
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        pressEnter();
    else if (event->key() == Qt::Key_Escape)
        state().editor().SyncControls(PaletteBarState::Source::Palette);
    else if (!pressLetter(*event))
        QWidget::keyPressEvent(event);
}

void CPaletteBar::pressEnter() {
    if (auto* const button = qobject_cast<QAbstractButton*>(focusWidget()))
        button->click();
    else
        state().Apply();
}

/// The controls that the key's letter goes to, those with a label of their own first.
std::vector<QWidget*> CPaletteBar::controlsOf(const QKeyEvent& key) const {
    const QKeySequence pressed(key.keyCombination());
    std::vector<QWidget*> found;
    if (key.modifiers() != Qt::AltModifier)
        return found;
    for (const QLabel* label : findChildren<QLabel*>()) {
        if (label->isVisible() && label->buddy() != nullptr && label->buddy()->isEnabled() &&
            QKeySequence::mnemonic(label->text()) == pressed)
            found.push_back(label->buddy());
    }
    for (QAbstractButton* button : findChildren<QAbstractButton*>()) {
        if (button->isVisible() && button->isEnabled() && button->shortcut() == pressed)
            found.push_back(button);
    }
    return found;
}

/// The menus of the main window have some of the letters too; while the bar has the keys they are its own.
/// Where two controls share a letter it goes to one after the other.
bool CPaletteBar::pressLetter(const QKeyEvent& key) {
    const std::vector<QWidget*> controls = controlsOf(key);
    if (controls.empty())
        return false;
    const auto now = std::ranges::find(controls, focusWidget());
    QWidget* const next = now == controls.end() || now + 1 == controls.end() ? controls.front() : *(now + 1);
    next->setFocus(Qt::ShortcutFocusReason);
    if (auto* const button = qobject_cast<QAbstractButton*>(next); button != nullptr && controls.size() == 1)
        button->click();
    return true;
}

} // namespace dyeworks

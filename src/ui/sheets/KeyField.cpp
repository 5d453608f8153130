#include "ui/sheets/KeyField.h"

#include "framework/KeyText.h"
#include "platform/StringId.h"
#include "ui/sheets/SheetControls.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QKeySequence>

namespace dyeworks {

namespace {

constexpr Qt::KeyboardModifiers kModifiers =
    Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;

/// Shift counts only where it is not what types the character: "Shift+B", but ">".
Qt::KeyboardModifiers modifiersOf(const QKeyEvent& event) {
    Qt::KeyboardModifiers modifiers = event.modifiers() & kModifiers;
    const int key = event.key();
    const bool isSymbol = key > Qt::Key_Space && key <= Qt::Key_ydiaeresis && !QChar(key).isLetterOrNumber();
    if (isSymbol)
        modifiers.setFlag(Qt::ShiftModifier, false);
    return modifiers;
}

} // namespace

KeyField::KeyField(QWidget* parent)
    : QLineEdit(parent) {
    setReadOnly(true);
    setAttribute(Qt::WA_InputMethodEnabled, false);
    setPlaceholderText(shown(StringId::ShortcutsPress));
}

void KeyField::setKeys(const std::string& keys) {
    keys_ = keys;
    setText(nativeKeys(keys));
    Q_EMIT keysChanged();
}

bool KeyField::event(QEvent* event) {
    // Before they are shortcuts of the dialog.
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void KeyField::keyPressEvent(QKeyEvent* event) {
    const Qt::KeyboardModifiers modifiers = modifiersOf(*event);
    event->accept();
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (modifiers == Qt::NoModifier) {
            Q_EMIT confirmed();
            return;
        }
        break;
    case Qt::Key_Escape:
        if (modifiers == Qt::NoModifier) {
            Q_EMIT left();
            return;
        }
        break;
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
        if (modifiers == Qt::NoModifier) {
            setKeys({});
            return;
        }
        break;
    default:
        break;
    }
    const QKeySequence sequence(event->key() | modifiers.toInt());
    // A modifier alone is none.
    if (const auto keys = normalKeys(sequence.toString(QKeySequence::PortableText).toStdString()))
        setKeys(*keys);
}

void KeyField::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
}

QString nativeKeys(const std::string& keys) {
    return QKeySequence(QString::fromStdString(keys), QKeySequence::PortableText)
        .toString(QKeySequence::NativeText);
}

} // namespace dyeworks

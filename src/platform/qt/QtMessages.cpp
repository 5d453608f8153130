#include "platform/qt/QtMessages.h"

#include "platform/StringId.h"
#include "platform/Text.h"
#include "platform/qt/QtWaitCursor.h"

#include <QMessageBox>

#include <iostream>

namespace dyeworks {

namespace {

/// The buttons of a box, the one that Enter presses and the one that Escape and closing stand for.
struct ButtonSet {
    QMessageBox::StandardButtons shown;
    QMessageBox::StandardButton onEnter;
    QMessageBox::StandardButton onClose;
};

ButtonSet buttonSet(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::OkCancel:
        return {QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok, QMessageBox::Cancel};
    case MessageButtons::YesNo:
        return {QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, QMessageBox::No};
    case MessageButtons::YesNoCancel:
        return {QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, QMessageBox::Yes,
                QMessageBox::Cancel};
    case MessageButtons::Ok:
        break;
    }
    return {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok};
}

QMessageBox::Icon iconOf(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Stop:
        return QMessageBox::Critical;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Warning:
        return QMessageBox::Warning;
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

MessageAnswer answerOf(QMessageBox::StandardButton button) {
    switch (button) {
    case QMessageBox::Yes:
        return MessageAnswer::Yes;
    case QMessageBox::No:
        return MessageAnswer::No;
    case QMessageBox::Cancel:
        return MessageAnswer::Cancel;
    default:
        return MessageAnswer::Ok;
    }
}

} // namespace

MessageAnswer QtMessages::show(const Message& message) {
    const ButtonSet buttons = buttonSet(message.buttons);
    const std::string caption =
        message.caption.empty() ? dyeworks::text(StringId::ApplicationTitle) : message.caption;
    if (!windows_.canAsk()) {
        std::cerr << caption << ": " << message.text;
        if (!message.details.empty())
            std::cerr << '\n' << message.details;
        std::cerr << std::endl;
        return answerOf(buttons.onClose);
    }

    const OrdinaryPointerScope pointer;
    QMessageBox box(message.owner == MessageOwner::MainWindow ? windows_.owner() : nullptr);
    box.setObjectName(QStringLiteral("messageBox"));
    box.setWindowTitle(QString::fromStdString(caption));
    box.setAccessibleName(QString::fromStdString(caption));
    box.setTextFormat(Qt::PlainText);
    box.setText(QString::fromStdString(message.text));
    if (!message.details.empty())
        box.setInformativeText(QString::fromStdString(message.details));
    box.setAccessibleDescription(box.text() + u'\n' + box.informativeText());
    box.setTextInteractionFlags(box.textInteractionFlags() | Qt::TextSelectableByMouse);
    box.setIcon(iconOf(message.icon));
    box.setStandardButtons(buttons.shown);
    box.setDefaultButton(message.cancelIsDefault ? QMessageBox::Cancel : buttons.onEnter);
    box.setEscapeButton(buttons.onClose);
    return answerOf(static_cast<QMessageBox::StandardButton>(box.exec()));
}

} // namespace dyeworks

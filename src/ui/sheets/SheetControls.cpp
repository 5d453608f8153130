#include "ui/sheets/SheetControls.h"

#include "platform/StringId.h"
#include "platform/Text.h"

#include <QFontMetrics>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace dyeworks {

QString shown(StringId id, std::initializer_list<std::string> arguments) {
    return QString::fromStdString(text(id, arguments));
}

QRadioButton* choiceButton(const char* name, StringId caption, StringId tip) {
    auto* button = new QRadioButton(shown(caption));
    button->setObjectName(QString::fromLatin1(name));
    button->setToolTip(shown(tip));
    return button;
}

void addClearButton(QLineEdit& field) {
    field.setClearButtonEnabled(true);
    for (auto* button : field.findChildren<QToolButton*>())
        button->setAccessibleName(shown(StringId::ClearField));
}

void addChoices(QFormLayout& form, StringId label, std::initializer_list<QRadioButton*> buttons) {
    auto* column = new QWidget;
    column->setAccessibleName(shown(label));
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    // Closer than rows of a form, so that a group is seen as one.
    layout->setSpacing(column->fontMetrics().height() / 8);
    for (QRadioButton* button : buttons)
        layout->addWidget(button);
    auto* name = new QLabel(shown(label));
    name->setBuddy(column);
    // In line with the first button. The form by itself sets it a little lower beside a field of several
    // lines.
    name->setMinimumHeight((*buttons.begin())->sizeHint().height());
    form.addRow(name, column);
    form.setAlignment(name, Qt::AlignTop);
}

std::string localNumeral(std::int64_t value) {
    return QLocale().toString(static_cast<qlonglong>(value)).toStdString();
}

QString byteCount(qlonglong bytes) {
    return shown(StringId::NewImageBytes, {localNumeral(bytes)});
}

} // namespace dyeworks

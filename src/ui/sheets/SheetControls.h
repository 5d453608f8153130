#pragma once

#include "platform/Text.h"

#include <QString>
#include <QWidget>

#include <cstdint>
#include <initializer_list>
#include <string>

class QFormLayout;
class QLineEdit;
class QRadioButton;

namespace dyeworks {

/// The text in the user's language, for a control to show.
[[nodiscard]] QString shown(StringId id, std::initializer_list<std::string> arguments = {});

/// A button of a group of choices. Those that are added together exclude each other.
[[nodiscard]] QRadioButton* choiceButton(const char* name, StringId caption, StringId tip);
/// Adds a row with the buttons below each other. Its label is also what screen readers call the group.
void addChoices(QFormLayout& form, StringId label, std::initializer_list<QRadioButton*> buttons);

/// Gives the field a button that empties it, which screen readers can name.
void addClearButton(QLineEdit& field);

/// "2,048", the way the user's country writes numbers.
[[nodiscard]] std::string localNumeral(std::int64_t value);
/// "2,048 bytes", the way the user's country writes numbers.
[[nodiscard]] QString byteCount(qlonglong bytes);

} // namespace dyeworks

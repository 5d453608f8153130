#include "framework/widgets/IntegerField.h"

#include "platform/Platform.h"
#include "platform/StringId.h"

#include <QLineEdit>
#include <QStyleOptionSpinBox>

#include <algorithm>

namespace dyeworks {

IntegerField::IntegerField(Range typed, Range spun, int value, QWidget* parent)
    : QAbstractSpinBox(parent)
    , typed_(typed)
    , spun_(spun) {
    lineEdit()->setText(QString::number(value));
    connect(lineEdit(), &QLineEdit::textChanged, this, [this] {
        update(); // The arrows follow the value.
        Q_EMIT edited();
    });
}

void IntegerField::setRanges(Range typed, Range spun) {
    typed_ = typed;
    spun_ = spun;
    updateGeometry();
    update();
}

void IntegerField::setValue(int value) {
    lineEdit()->setText(QString::number(value));
}

std::optional<int> IntegerField::value() const {
    bool isNumber = false;
    const int value = text().trimmed().toInt(&isNumber);
    if (!isNumber || value < typed_.lowest || value > typed_.highest)
        return std::nullopt;
    return value;
}

std::optional<int> IntegerField::takeOver() {
    const std::optional<int> taken = value();
    if (!taken) {
        applicationMessage(dyeworks::text(StringId::IntegerOutOfRange,
                                          {std::to_string(typed_.lowest), std::to_string(typed_.highest)}));
        setFocus();
        selectAll();
    }
    return taken;
}

void IntegerField::stepBy(int steps) {
    const int from = value().value_or(spun_.lowest);
    lineEdit()->setText(QString::number(std::clamp(from + steps, spun_.lowest, spun_.highest)));
    selectAll();
}

QAbstractSpinBox::StepEnabled IntegerField::stepEnabled() const {
    const int now = value().value_or(spun_.lowest);
    StepEnabled enabled = StepNone;
    if (now < spun_.highest)
        enabled |= StepUpEnabled;
    if (now > spun_.lowest)
        enabled |= StepDownEnabled;
    return enabled;
}

QSize IntegerField::sizeHint() const {
    // Room for the longest value and for one digit too many.
    const int width = fontMetrics().horizontalAdvance(QString::number(typed_.highest) + QStringLiteral("00"));
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, {width, lineEdit()->sizeHint().height()},
                                     this);
}

} // namespace dyeworks

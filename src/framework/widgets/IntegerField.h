#pragma once

#include <QAbstractSpinBox>

#include <optional>

namespace dyeworks {

/// An edit for a whole number beside a spin button. Anything can be typed; whether it will do is asked when
/// it is taken over. The spin button has a range of its own.
class IntegerField : public QAbstractSpinBox {
    Q_OBJECT

public:
    struct Range {
        int lowest; ///< Both inclusive.
        int highest;
    };

    IntegerField(Range typed, Range spun, int value, QWidget* parent = nullptr);

    /// What is in the field stays, even when the new range for typing refuses it.
    void setRanges(Range typed, Range spun);
    /// Shows the number, unchecked.
    void setValue(int value);
    /// Nothing while the text is no number within the range for typing.
    [[nodiscard]] std::optional<int> value() const;
    /// The value; when there is none, tells the user the range, selects the text and takes the focus.
    [[nodiscard]] std::optional<int> takeOver();

    void stepBy(int steps) override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void edited();

protected:
    [[nodiscard]] StepEnabled stepEnabled() const override;

private:
    Range typed_;
    Range spun_;
};

} // namespace dyeworks

#include "ui/controls/rampslider/RampSliderAccessible.h"

#include "ui/controls/dispatch/AccessibleControl.h"
#include "ui/controls/rampslider/RampSlider.h"

#include <memory>

namespace dyeworks {

namespace {

class RampSliderAccessible final : public AccessibleControl, public QAccessibleValueInterface {
public:
    explicit RampSliderAccessible(RampSlider& slider)
        : AccessibleControl(&slider, QAccessible::Slider)
        , slider_(slider) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return AccessibleControl::interface_cast(type);
    }
    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? QString::number(slider_.value()) : AccessibleControl::text(kind);
    }

    [[nodiscard]] QVariant currentValue() const override { return slider_.value(); }
    void setCurrentValue(const QVariant& value) override { slider_.stepTo(value.toInt()); }
    [[nodiscard]] QVariant maximumValue() const override { return slider_.maximum(); }
    [[nodiscard]] QVariant minimumValue() const override { return slider_.minimum(); }
    [[nodiscard]] QVariant minimumStepSize() const override { return 1; }

private:
    RampSlider& slider_;
};

} // namespace

QAccessibleInterface* makeRampSliderAccessible(const QString& /*className*/, QObject* object) {
    auto* const slider = qobject_cast<RampSlider*>(object);
    return slider == nullptr ? nullptr : std::make_unique<RampSliderAccessible>(*slider).release();
}

} // namespace dyeworks

#include "paint/widgets/ImageViewAccessible.h"

#include <QAccessibleWidget>
#include <QWidget>

#include <memory>

namespace dyeworks {

namespace {

class ImageViewAccessible final : public QAccessibleWidget {
public:
    explicit ImageViewAccessible(QWidget& view)
        : QAccessibleWidget(&view, QAccessible::Canvas) {}

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? widget()->accessibleDescription() : QAccessibleWidget::text(kind);
    }
};

/// Asked for each class of an object, the lowest first.
QAccessibleInterface* make(const QString& className, QObject* object) {
    auto* const view =
        className == QLatin1String("dyeworks::ImageView") ? qobject_cast<QWidget*>(object) : nullptr;
    return view == nullptr ? nullptr : std::make_unique<ImageViewAccessible>(*view).release();
}

} // namespace

void installImageViewAccessible() {
    // Qt keeps each of them once.
    QAccessible::installFactory(make);
}

} // namespace dyeworks

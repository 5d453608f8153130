#pragma once

#include <QAccessibleWidget>
#include <QWidget>

namespace dyeworks {

/// What the windows of all controls tell assistive technology: name and description are those of whoever
/// placed the window, where it has none of its own.
class AccessibleControl : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const QWidget* const host = widget()->parentWidget();
        if (host != nullptr && kind == QAccessible::Name && widget()->accessibleName().isEmpty())
            return host->accessibleName();
        if (host != nullptr && kind == QAccessible::Description &&
            widget()->accessibleDescription().isEmpty())
            return host->accessibleDescription().isEmpty() ? host->toolTip() : host->accessibleDescription();
        return QAccessibleWidget::text(kind);
    }
};

} // namespace dyeworks

#pragma once

#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QObject>

namespace dyeworks {

/// What the desktop's portal of settings says about animations: GNOME's switch for them, and the wish for
/// less motion that desktops share (org.freedesktop.portal.Settings).
class PortalMotion : public QObject {
    Q_OBJECT

public:
    /// Asks, and waits for no answer.
    explicit PortalMotion(QObject* owner);

    /// True until something else is known.
    [[nodiscard]] bool allows() const noexcept { return animates_ && !wantsLess_; }

private Q_SLOTS:
    void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void ask(const QString& group, const QString& key);

    bool animates_ = true;
    bool wantsLess_ = false;
};

} // namespace dyeworks

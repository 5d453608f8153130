#include "framework/widgets/PortalMotion.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingReply>

namespace dyeworks {

namespace {

constexpr QLatin1StringView kService("org.freedesktop.portal.Desktop");
constexpr QLatin1StringView kPath("/org/freedesktop/portal/desktop");
constexpr QLatin1StringView kInterface("org.freedesktop.portal.Settings");
constexpr QLatin1StringView kGnome("org.gnome.desktop.interface");
constexpr QLatin1StringView kAnimations("enable-animations");
constexpr QLatin1StringView kShared("org.freedesktop.appearance");
constexpr QLatin1StringView kReducedMotion("reduced-motion");

/// Read wraps a value twice.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

PortalMotion::PortalMotion(QObject* owner)
    : QObject(owner) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QString, QString, QDBusVariant)));
    ask(kGnome, kAnimations);
    ask(kShared, kReducedMotion);
}

void PortalMotion::ask(const QString& group, const QString& key) {
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
    call << group << key;
    auto* const watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, group, key] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid())
            settingChanged(group, key, reply.value());
        watcher->deleteLater();
    });
}

void PortalMotion::settingChanged(const QString& group, const QString& key, const QDBusVariant& value) {
    const QVariant plain = unwrapped(value.variant());
    if (group == kGnome && key == kAnimations)
        animates_ = plain.toBool();
    else if (group == kShared && key == kReducedMotion)
        wantsLess_ = plain.toUInt() == 1;
}

} // namespace dyeworks

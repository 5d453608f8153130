#include "framework/widgets/DesktopMotion.h"

#include "framework/widgets/PortalMotion.h"

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QStyle>

namespace dyeworks {

namespace {

QVariant valueOf(const QString& file, const QString& key) {
    const QString path = QStandardPaths::locate(QStandardPaths::GenericConfigLocation, file);
    return path.isEmpty() ? QVariant() : QSettings(path, QSettings::IniFormat).value(key);
}

bool isSwitchedOffInFiles() {
    // A desktop that is not in use may have left its own.
    if (qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':').contains(QStringLiteral("KDE"))) {
        const QVariant factor =
            valueOf(QStringLiteral("kdeglobals"), QStringLiteral("KDE/AnimationDurationFactor"));
        return factor.isValid() && factor.toDouble() == 0;
    }
    for (const QString& file :
         {QStringLiteral("gtk-4.0/settings.ini"), QStringLiteral("gtk-3.0/settings.ini")}) {
        const QVariant enabled = valueOf(file, QStringLiteral("Settings/gtk-enable-animations"));
        if (enabled.isValid() && !enabled.toBool())
            return true;
    }
    return false;
}

} // namespace

bool motionIsWelcome() {
    static const bool isOff = isSwitchedOffInFiles();
    // Goes with the application, whose connection to the bus it uses.
    static auto* const portal = new PortalMotion(qApp);
    return !isOff && portal->allows() &&
           QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) > 0;
}

} // namespace dyeworks

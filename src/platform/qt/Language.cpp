#include "platform/qt/Language.h"

#include "platform/Locale.h"

#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include <memory>

// Outside the namespace, as the macro asks. The library is a static one, whose resources nothing else draws
// in.
static void initialiseTranslations() {
    Q_INIT_RESOURCE(translations);
}

namespace dyeworks {

namespace {

// Qt's own names of the buttons of its dialogs. They stand here so that our translation has them where Qt's
// is not installed.
[[maybe_unused]] constexpr const char* kStandardButtons[] = {
    QT_TRANSLATE_NOOP("QPlatformTheme", "OK"),      QT_TRANSLATE_NOOP("QPlatformTheme", "Cancel"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "&Yes"),    QT_TRANSLATE_NOOP("QPlatformTheme", "&No"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Save"),    QT_TRANSLATE_NOOP("QPlatformTheme", "Open"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Apply"),   QT_TRANSLATE_NOOP("QPlatformTheme", "Close"),
    QT_TRANSLATE_NOOP("QPlatformTheme", "Discard"), QT_TRANSLATE_NOOP("QPlatformTheme", "Help"),
};

QString translatorName() {
    return QStringLiteral("dyeworksLanguage");
}

bool install(QCoreApplication& application, const QString& file, const QString& folder) {
    auto translator = std::make_unique<QTranslator>();
    if (!translator->load(file, folder))
        return false;
    translator->setObjectName(translatorName());
    translator->setParent(&application);
    // The application owns it from here on.
    return QCoreApplication::installTranslator(translator.release());
}

/// Numbers and dates stay as the desktop has them, where its language is the same.
void setDefaultLocale(QLocale::Language language) {
    const QLocale desktop = QLocale::system();
    const bool same = (desktop.language() == QLocale::Japanese) == (language == QLocale::Japanese);
    QLocale::setDefault(same ? desktop : QLocale(language));
}

} // namespace

bool installLanguage(QCoreApplication& application, const std::string& language) {
    setDefaultLocale(language == "ja" ? QLocale::Japanese : QLocale::English);
    // A translator takes itself out of the application when it goes.
    qDeleteAll(application.findChildren<QTranslator*>(translatorName(), Qt::FindDirectChildrenOnly));
    if (language != "ja")
        return true;
    initialiseTranslations();
    // The last one installed is asked first, and that is ours.
    install(application, QStringLiteral("qtbase_ja"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    return install(application, QStringLiteral("dyeworks_ja"), QStringLiteral(":/translations"));
}

bool installLanguage(QCoreApplication& application, int localeId) {
    return installLanguage(application, std::string(localeId == kLocaleJapanese ? "ja" : "en"));
}

} // namespace dyeworks

#pragma once

#include <QCoreApplication>

#include <string>

namespace dyeworks {

/// Puts the texts of `language` ("ja"; anything else is English, the language of the sources) into the
/// application, Qt's own texts included where the host has them, and takes those of an earlier call away. The
/// default locale becomes one of the language. Texts already on screen stay. False when the language's texts
/// cannot be loaded; English is then shown.
bool installLanguage(QCoreApplication& application, const std::string& language);

/// The same for a locale number of Locale::userLocale.
bool installLanguage(QCoreApplication& application, int localeId);

} // namespace dyeworks

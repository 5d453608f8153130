#include "pictures/PictureFileNames.h"

#include <QRegularExpression>

namespace dyeworks::plugins {

namespace {

/// Most file systems have room for 255 bytes; these leave some for number and extension.
constexpr qsizetype kLongestName = 200;

QString safe(const QString& name) {
    static const QRegularExpression unsafe(QStringLiteral(R"([<>:"/\\|?*\x00-\x1F\x7F])"));
    static const QRegularExpression ends(QStringLiteral(R"(^\.|[. ]$)"));
    static const QRegularExpression device(QStringLiteral(R"(^(con|prn|aux|nul|com\d|lpt\d)(\.|$))"),
                                           QRegularExpression::CaseInsensitiveOption);
    QString result = name.trimmed();
    result.replace(unsafe, QStringLiteral("_"));
    while (result.toUtf8().size() > kLongestName)
        result.chop(result.back().isLowSurrogate() ? 2 : 1);
    result.replace(ends, QStringLiteral("_"));
    if (result.isEmpty() || device.match(result).hasMatch())
        result.prepend(QLatin1Char('_'));
    return result;
}

} // namespace

QString PictureFileNames::fileFor(const QString& name) {
    const QString base = safe(name);
    QString unique = base;
    for (int number = 2; given_.contains(unique.toCaseFolded()); ++number)
        unique = QStringLiteral("%1 (%2)").arg(base, QString::number(number));
    given_.insert(unique.toCaseFolded());
    return unique + QStringLiteral(".png");
}

} // namespace dyeworks::plugins

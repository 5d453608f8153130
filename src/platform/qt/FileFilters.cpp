#include "platform/qt/FileFilters.h"

#include <QString>

namespace dyeworks {

namespace {

QStringList patternsOf(const QString& field) {
    QStringList patterns;
    for (const QString& part : field.split(u';', Qt::SkipEmptyParts)) {
        const QString pattern = part.trimmed();
        if (!pattern.isEmpty())
            patterns << (pattern == QStringLiteral("*.*") ? QStringLiteral("*") : pattern);
    }
    return patterns;
}

/// "All Files" from "All Files (*.*)". Other brackets belong to the name and stay.
QString nameOf(const QString& label, const QStringList& patterns) {
    const QString text = label.trimmed();
    const qsizetype open = text.lastIndexOf(u'(');
    if (!text.endsWith(u')') || open < 0)
        return text;
    QString inside = text.mid(open + 1, text.size() - open - 2);
    inside.replace(u' ', u';').replace(u',', u';');
    return patternsOf(inside) == patterns ? text.left(open).trimmed() : text;
}

} // namespace

QStringList nameFilters(const std::string& filter) {
    const QStringList fields = QString::fromStdString(filter).split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < fields.size() && !fields[i].isEmpty(); i += 2) {
        const QStringList patterns = patternsOf(fields[i + 1]);
        if (!patterns.isEmpty())
            filters << nameOf(fields[i], patterns) + QStringLiteral(" (") + patterns.join(u' ') + u')';
    }
    return filters;
}

} // namespace dyeworks

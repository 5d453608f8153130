#include "platform/qt/ProfileKeys.h"

#include <QByteArray>

namespace dyeworks {

namespace {

constexpr QChar kEscape = u'~';
constexpr const char* kDigits = "0123456789ABCDEF";

void appendEscaped(QString& key, char byte) {
    const auto value = static_cast<unsigned char>(byte);
    key += kEscape;
    key += QLatin1Char(kDigits[value >> 4U]);
    key += QLatin1Char(kDigits[value & 0xFU]);
}

/// An empty part is "~" alone, which no escape sequence equals.
QString partKey(const std::string& part) {
    if (part.empty())
        return QString(kEscape);
    QString key;
    const QString text = QString::fromStdString(part);
    if (text.toStdString() != part) {
        // Not UTF-8: the name of a file that some other program made.
        for (const char byte : part)
            appendEscaped(key, byte);
        return key;
    }
    for (const QChar unit : text) {
        if (unit == u'/' || unit == u'\\' || unit == kEscape || unit == QChar::Null)
            appendEscaped(key, unit.toLatin1());
        else
            key += unit;
    }
    return key;
}

} // namespace

QString sectionKey(const std::string& section) {
    if (section.empty())
        return {};
    QString key;
    std::size_t start = 0;
    for (;;) {
        const std::size_t end = section.find('\\', start);
        key += partKey(section.substr(start, end - start));
        if (end == std::string::npos)
            return key;
        key += u'/';
        start = end + 1;
    }
}

QString entryKey(const std::string& entry) {
    return partKey(entry);
}

QString profileKey(const std::string& section, const std::string& entry) {
    return section.empty() ? entryKey(entry) : sectionKey(section) + u'/' + entryKey(entry);
}

std::optional<std::string> entryOfKey(const QString& key) {
    std::string entry;
    const QByteArray bytes = key.toUtf8();
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        if (QLatin1Char(bytes[i]) != kEscape) {
            entry += bytes[i];
            continue;
        }
        if (bytes.size() == 1)
            break;
        bool isNumber = false;
        entry += static_cast<char>(bytes.mid(i + 1, 2).toInt(&isNumber, 16));
        i += 2;
        if (!isNumber)
            return std::nullopt;
    }
    // A key that a person wrote by hand may be one that no name leads to.
    if (entryKey(entry) != key)
        return std::nullopt;
    return entry;
}

} // namespace dyeworks

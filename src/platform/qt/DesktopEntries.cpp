#include "platform/qt/DesktopEntries.h"

#include <QXmlStreamWriter>

namespace dyeworks {

namespace {

/// A path as one quoted argument of an Exec line. The quotes have their own escapes, "%" starts a field
/// code, and the value as a whole is a string in which a backslash is doubled once more.
QByteArray execArgument(const QString& path) {
    QByteArray argument = "\"";
    for (const char byte : path.toUtf8()) {
        if (byte == '\\')
            argument += "\\\\\\\\";
        else if (byte == '"' || byte == '`' || byte == '$')
            argument += QByteArray("\\\\") + byte;
        else if (byte == '%')
            argument += "%%";
        else
            argument += byte;
    }
    return argument + '"';
}

/// Printable form of bytes for the value of a "string" match, which knows the escapes of C. Digits of a
/// longer number would run on, so three octal ones are written.
QString matchValue(const std::string& magic) {
    QString value;
    for (const char byte : magic) {
        const auto code = static_cast<unsigned char>(byte);
        if (byte == '\\')
            value += QStringLiteral("\\\\");
        else if (code > 0x20 && code < 0x7F)
            value += QLatin1Char(byte);
        else
            value += u'\\' + QString::number(code, 8).rightJustified(3, u'0');
    }
    return value;
}

void writeType(QXmlStreamWriter& xml, const FileTypeRegistration& type) {
    xml.writeStartElement(QStringLiteral("mime-type"));
    xml.writeAttribute(QStringLiteral("type"), QString::fromStdString(type.mimeType));
    xml.writeTextElement(QStringLiteral("comment"), QString::fromStdString(type.description));
    if (!type.magic.empty()) {
        xml.writeStartElement(QStringLiteral("magic"));
        // Above the 50 that general rules have, so that no text or picture guess wins.
        xml.writeAttribute(QStringLiteral("priority"), QStringLiteral("60"));
        xml.writeEmptyElement(QStringLiteral("match"));
        xml.writeAttribute(QStringLiteral("type"), QStringLiteral("string"));
        xml.writeAttribute(QStringLiteral("offset"), QStringLiteral("0"));
        xml.writeAttribute(QStringLiteral("value"), matchValue(type.magic));
        xml.writeEndElement();
    }
    xml.writeEmptyElement(QStringLiteral("glob"));
    xml.writeAttribute(QStringLiteral("pattern"), u'*' + QString::fromStdString(type.extension));
    xml.writeEndElement();
}

} // namespace

QByteArray desktopEntry(const QString& program, const std::vector<FileTypeRegistration>& types) {
    QByteArray mimeTypes;
    for (const FileTypeRegistration& type : types)
        mimeTypes += QByteArray::fromStdString(type.mimeType) + ';';
    return "[Desktop Entry]\n"
           "Version=1.5\n"
           "Type=Application\n"
           "Name=Orrery Dyeworks\n"
           "Comment=Editor for colour-indexed console textures\n"
           "Comment[ja]=ゲーム機用パレットテクスチャの編集ソフト\n"
           "Exec=" +
           execArgument(program) +
           " %F\n"
           "Icon=orrery-dyeworks\n"
           "Terminal=false\n"
           "StartupNotify=true\n"
           "Categories=Graphics;2DGraphics;RasterGraphics;\n"
           "MimeType=" +
           mimeTypes + '\n';
}

QByteArray mimePackage(const std::vector<FileTypeRegistration>& types) {
    QByteArray package;
    QXmlStreamWriter xml(&package);
    xml.setAutoFormatting(true);
    xml.setAutoFormattingIndent(2);
    xml.writeStartDocument();
    xml.writeStartElement(QStringLiteral("mime-info"));
    xml.writeDefaultNamespace(QStringLiteral("http://www.freedesktop.org/standards/shared-mime-info"));
    for (const FileTypeRegistration& type : types)
        writeType(xml, type);
    xml.writeEndElement();
    xml.writeEndDocument();
    return package;
}

} // namespace dyeworks

#include "platform/qt/DesktopEntries.h"

#include "platform/Version.h"

#include <QDirIterator>
#include <QFile>
#include <QIcon>

// The resource is part of a static library; without this call the linker leaves it out.
static void initializeDesktopFiles() {
    Q_INIT_RESOURCE(desktop);
}

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

QByteArray mimeTypes(const std::vector<FileTypeRegistration>& types) {
    QByteArray list;
    for (const FileTypeRegistration& type : types)
        list += QByteArray::fromStdString(type.mimeType) + ';';
    return list;
}

constexpr QLatin1String kResources(":/desktop/");

QByteArray resource(const QString& path) {
    initializeDesktopFiles();
    QFile file(kResources + path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

QIcon programIcon(int largest) {
    initializeDesktopFiles();
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
        if (side <= largest)
            icon.addFile(
                QStringLiteral("%1icons/hicolor/%2x%2/apps/orrery-dyeworks.png").arg(kResources).arg(side),
                {side, side});
    }
    return icon;
}

QString desktopEntryPath() {
    return QStringLiteral("applications/orrery-dyeworks.desktop");
}

QByteArray desktopEntry(const QString& program, const std::vector<FileTypeRegistration>& types) {
    return resource(desktopEntryPath())
        .replace("@EXEC@", execArgument(program))
        .replace("@MIME_TYPES@", mimeTypes(types))
        .replace("@VERSION@", kVersionText);
}

std::vector<DesktopFile> desktopFiles(const QString& program,
                                      const std::vector<FileTypeRegistration>& types) {
    initializeDesktopFiles();
    std::vector<DesktopFile> files;
    QDirIterator resources(kResources, QDir::Files, QDirIterator::Subdirectories);
    while (resources.hasNext()) {
        const QString path = resources.next().mid(kResources.size());
        if (path != desktopEntryPath())
            files.push_back({path, resource(path)});
    }
    files.push_back({desktopEntryPath(), desktopEntry(program, types)});
    return files;
}

} // namespace dyeworks

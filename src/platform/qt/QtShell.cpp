#include "platform/qt/QtShell.h"

#include "platform/Files.h"
#include "platform/qt/DesktopEntries.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>
#include <QUrl>

#include <utility>

namespace dyeworks {

namespace {

enum class Written { Unchanged, Changed, Failed };

Written writeWhenDifferent(const QString& path, const QByteArray& bytes) {
    QFile present(path);
    if (present.open(QIODevice::ReadOnly) && present.readAll() == bytes)
        return Written::Unchanged;
    present.close();
    if (!QDir().mkpath(QFileInfo(path).path()))
        return Written::Failed;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        return Written::Failed;
    return Written::Changed;
}

/// Starts one of the desktop's index builders and leaves it running. Desktops without it read the files.
void refreshIndex(const QString& tool, const QString& folder) {
    const QString program = QStandardPaths::findExecutable(tool);
    if (program.isEmpty())
        return;
    QProcess process;
    process.setProgram(program);
    process.setArguments({folder});
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.startDetached();
}

} // namespace

bool QtShell::openWithDefaultProgram(const std::string& path) {
    // The desktop's launcher reports success before it has looked at the file.
    const std::string full = files_.fullPath(path);
    if (!files_.exists(full))
        return false;
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(files_.hostPath(full))));
}

bool QtShell::registerFileTypes(const std::vector<FileTypeRegistration>& types) {
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (data.isEmpty())
        return false;
    const QString applications = data + QStringLiteral("/applications");
    const QString mime = data + QStringLiteral("/mime");
    // The types come first: a desktop that meets the entry then knows what it speaks of.
    const Written package =
        writeWhenDifferent(mime + QStringLiteral("/packages/orrery-dyeworks.xml"), mimePackage(types));
    if (package == Written::Changed)
        refreshIndex(QStringLiteral("update-mime-database"), mime);
    const Written entry = writeWhenDifferent(applications + QStringLiteral("/orrery-dyeworks.desktop"),
                                             desktopEntry(QCoreApplication::applicationFilePath(), types));
    if (entry == Written::Changed)
        refreshIndex(QStringLiteral("update-desktop-database"), applications);
    return package != Written::Failed && entry != Written::Failed;
}

bool QtShell::handToRunningInstance(const std::vector<std::string>& paths) {
    std::vector<std::string> full;
    full.reserve(paths.size());
    for (const std::string& path : paths)
        full.push_back(files_.fullPath(path));
    return requests().send(full);
}

bool QtShell::listenForOpenRequests(std::function<void(const std::vector<std::string>&)> receiver) {
    return requests().listen(std::move(receiver));
}

// Made at the first use, because finding the user's folder may have to make it.
OpenRequests& QtShell::requests() {
    if (!requests_)
        requests_.emplace(OpenRequests::userAddress());
    return *requests_;
}

} // namespace dyeworks

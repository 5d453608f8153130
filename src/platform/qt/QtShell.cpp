#include "platform/qt/QtShell.h"

#include "platform/posix/HostFile.h"
#include "platform/qt/DesktopEntries.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <span>
#include <utility>

namespace dyeworks {

namespace {

enum class Written { Unchanged, Changed, Failed };

bool holds(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.readAll() == bytes;
}

Written writeWhenDifferent(const QString& path, const QByteArray& bytes) {
    if (holds(path, bytes))
        return Written::Unchanged;
    if (!QDir().mkpath(QFileInfo(path).path()))
        return Written::Failed;
    const auto contents = std::as_bytes(std::span(bytes.data(), static_cast<std::size_t>(bytes.size())));
    const auto error = writeHostFile(QFile::encodeName(path).toStdString(), FilePieces(&contents, 1));
    return error ? Written::Failed : Written::Changed;
}

bool removeFile(const QString& path) {
    const QFileInfo info(path);
    return (!info.exists() && !info.isSymLink()) || QFile::remove(path);
}

/// Removes the folders on the way from `root` to the file that nothing is left in.
void removeEmptyFolders(const QString& root, const QString& file) {
    for (qsizetype end = file.lastIndexOf(u'/'); end > 0; end = file.lastIndexOf(u'/', end - 1)) {
        if (!QDir().rmdir(root + u'/' + file.left(end)))
            return;
    }
}

enum class Builder { LeftRunning, WaitedFor };

/// Starts one of the desktop's index builders. Desktops without it read the files.
void refreshIndex(const QString& tool, const QStringList& arguments, Builder builder) {
    const QString program = QStandardPaths::findExecutable(tool);
    if (program.isEmpty())
        return;
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    if (builder == Builder::LeftRunning) {
        process.startDetached();
        return;
    }
    process.start();
    process.waitForFinished();
}

/// Brings what the desktop has gathered from the folders of `data` up to date. A folder that is not there has
/// no index either.
void refreshIndices(const QString& data, Builder builder) {
    const QString mime = data + QStringLiteral("/mime");
    if (QFileInfo::exists(mime))
        refreshIndex(QStringLiteral("update-mime-database"), {mime}, builder);
    const QString applications = data + QStringLiteral("/applications");
    if (QFileInfo::exists(applications))
        refreshIndex(QStringLiteral("update-desktop-database"), {applications}, builder);
    // Without a cache the icons are looked up in the folders themselves.
    const QString icons = data + QStringLiteral("/icons/hicolor");
    if (QFileInfo::exists(icons + QStringLiteral("/icon-theme.cache")))
        refreshIndex(QStringLiteral("gtk-update-icon-cache"),
                     {QStringLiteral("--force"), QStringLiteral("--ignore-theme-index"), icons}, builder);
}

QString userData() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}

/// Whether a data folder that all users share has the program's entry.
bool installedForAll() {
    const QString own = QDir::cleanPath(userData());
    const QStringList folders = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    return std::ranges::any_of(folders, [&](const QString& folder) {
        return QDir::cleanPath(folder) != own && QFileInfo::exists(folder + u'/' + desktopEntryPath());
    });
}

/// Whether the desktop's launcher found a program for what it was given. Only its end tells; where it stays
/// with the program that it found, it does not end before that one.
bool launch(const QString& launcher, const QString& target) {
    constexpr int kPatience = 3000; // Milliseconds.
    // Kept when it goes on: with the object, the program would be ended.
    auto* process = new QProcess;
    process->setStandardOutputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    QEventLoop waiting;
    QObject::connect(process, &QProcess::finished, &waiting, &QEventLoop::quit);
    QObject::connect(process, &QProcess::errorOccurred, &waiting, &QEventLoop::quit);
    QTimer::singleShot(kPatience, &waiting, &QEventLoop::quit);
    process->start(launcher, {target});
    if (process->state() != QProcess::NotRunning)
        waiting.exec(QEventLoop::ExcludeUserInputEvents);
    if (process->state() != QProcess::NotRunning) {
        QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
        return true;
    }
    process->deleteLater();
    return process->error() == QProcess::UnknownError && process->exitStatus() == QProcess::NormalExit &&
           process->exitCode() == 0;
}

} // namespace

bool QtShell::openWithDefaultProgram(const std::string& path) {
    const std::string full = files_.fullPath(path);
    if (!files_.exists(full))
        return false;
    const QUrl url = QUrl::fromLocalFile(QString::fromStdString(files_.hostPath(full)));
    // Qt starts the same launcher, but does not wait for what it says.
    const QString launcher = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
    return launcher.isEmpty() ? QDesktopServices::openUrl(url)
                              : launch(launcher, url.toString(QUrl::FullyEncoded));
}

bool QtShell::registerFileTypes(const std::vector<FileTypeRegistration>& types) {
    if (installedForAll())
        return true;
    const QString data = userData();
    if (data.isEmpty())
        return false;
    // The entry is written last, when all that it speaks of is there.
    const QString program = QCoreApplication::applicationFilePath();
    if (holds(data + u'/' + desktopEntryPath(), desktopEntry(program, types)))
        return true;
    bool changed = false;
    bool failed = false;
    for (const DesktopFile& file : desktopFiles(program, types)) {
        const Written written = writeWhenDifferent(data + u'/' + file.path, file.bytes);
        changed = changed || written == Written::Changed;
        failed = failed || written == Written::Failed;
    }
    if (changed)
        refreshIndices(data, Builder::LeftRunning);
    return !failed;
}

bool QtShell::unregisterFileTypes() {
    const QString data = userData();
    if (data.isEmpty())
        return true;
    const std::vector<DesktopFile> files = desktopFiles({}, {});
    bool removed = true;
    for (const DesktopFile& file : files)
        removed = removeFile(data + u'/' + file.path) && removed;
    // The builders refuse folders that are gone.
    refreshIndices(data, Builder::WaitedFor);
    for (const DesktopFile& file : files)
        removeEmptyFolders(data, file.path);
    return removed;
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
        requests_.emplace(OpenRequests::userAddress(QString::fromStdString(settingsFile_)));
    return *requests_;
}

} // namespace dyeworks

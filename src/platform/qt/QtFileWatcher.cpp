#include "platform/qt/QtFileWatcher.h"

#include "platform/Files.h"

#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QSet>

namespace dyeworks {

namespace {

/// The folder of the file or, as long as that is not there, the nearest one above it that is.
QString folderOf(const QString& path) {
    QString folder = path;
    do
        folder = QFileInfo(folder).path();
    while (!QFileInfo::exists(folder) && folder != QFileInfo(folder).path());
    return folder;
}

/// That a folder itself is moved is seen by the one above it.
void add(QSet<QString>& watched, const QString& path) {
    const QString folder = folderOf(path);
    watched.insert(folder);
    watched.insert(folderOf(folder));
    if (QFileInfo::exists(path))
        watched.insert(path);
}

} // namespace

QtFileWatcher::QtFileWatcher(const Files& files)
    : files_(files) {}

QtFileWatcher::~QtFileWatcher() = default;

void QtFileWatcher::watch(const std::vector<std::string>& paths) {
    paths_ = paths;
    if (watcher_ == nullptr) {
        if (paths_.empty())
            return;
        watcher_ = std::make_unique<QFileSystemWatcher>();
        connect(watcher_.get(), &QFileSystemWatcher::fileChanged, this, &QtFileWatcher::happened);
        connect(watcher_.get(), &QFileSystemWatcher::directoryChanged, this, &QtFileWatcher::happened);
    }
    follow();
}

void QtFileWatcher::happened() {
    // A file that was replaced is no longer watched, and a link may lead elsewhere now.
    follow();
    if (listener_)
        listener_();
}

/// Where the host has no watches left, the rest is not watched.
void QtFileWatcher::follow() {
    QSet<QString> wanted;
    for (const std::string& path : paths_) {
        const QString host = QString::fromStdString(files_.hostPath(path));
        if (host.isEmpty())
            continue;
        add(wanted, host);
        if (const QString target = QFileInfo(host).canonicalFilePath(); !target.isEmpty() && target != host)
            add(wanted, target);
        else if (const QFileInfo link(host); link.isSymLink())
            add(wanted, link.symLinkTarget());
    }
    const QStringList now = watcher_->files() + watcher_->directories();
    const QSet<QString> watched(now.begin(), now.end());
    if (const QSet<QString> gone = watched - wanted; !gone.isEmpty())
        watcher_->removePaths(gone.values());
    if (const QSet<QString> come = wanted - watched; !come.isEmpty())
        static_cast<void>(watcher_->addPaths(come.values()));
}

} // namespace dyeworks

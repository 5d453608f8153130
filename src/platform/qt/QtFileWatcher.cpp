#include "platform/qt/QtFileWatcher.h"

#include "platform/Files.h"

#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QSet>
#include <QThread>

#include <memory>
#include <utility>

namespace dyeworks {

namespace {

constexpr int kLastPatience = 500; // Milliseconds.

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

/// Of the thread.
class QtFileWatcher::Watched : public QObject {
public:
    /// `happened` is called on this thread.
    Watched(const Files& files, std::function<void()> happened)
        : files_(files)
        , happened_(std::move(happened)) {}

    void watch(const std::vector<std::string>& paths) {
        paths_ = paths;
        if (watcher_ == nullptr) {
            watcher_ = std::make_unique<QFileSystemWatcher>();
            connect(watcher_.get(), &QFileSystemWatcher::fileChanged, this, &Watched::happened);
            connect(watcher_.get(), &QFileSystemWatcher::directoryChanged, this, &Watched::happened);
        }
        follow();
    }

private:
    void happened() {
        // A file that was replaced is no longer watched, and a link may lead elsewhere now.
        follow();
        happened_();
    }

    void follow();

    const Files& files_;
    std::function<void()> happened_;
    std::vector<std::string> paths_;
    std::unique_ptr<QFileSystemWatcher> watcher_;
};

/// Where the host has no watches left, the rest is not watched.
void QtFileWatcher::Watched::follow() {
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

QtFileWatcher::QtFileWatcher(const Files& files)
    : files_(files) {}

/// What hangs in the host ends with the process.
QtFileWatcher::~QtFileWatcher() {
    if (thread_ == nullptr)
        return;
    thread_->quit();
    if (thread_->wait(kLastPatience))
        delete thread_;
}

void QtFileWatcher::watch(const std::vector<std::string>& paths) {
    if (thread_ == nullptr) {
        if (paths.empty())
            return;
        thread_ = new QThread;
        const auto tell = [this] {
            if (listener_)
                listener_();
        };
        watched_ = new Watched(files_,
                               [this, tell] { QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection); });
        watched_->moveToThread(thread_);
        connect(thread_, &QThread::finished, watched_, &QObject::deleteLater);
        thread_->start();
    }
    QMetaObject::invokeMethod(watched_, [watched = watched_, paths] { watched->watch(paths); });
}

} // namespace dyeworks

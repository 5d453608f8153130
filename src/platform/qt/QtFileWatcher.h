#pragma once

#include "platform/FileWatcher.h"

#include <QObject>
#include <QStringList>

#include <memory>

class QFileSystemWatcher;

namespace dyeworks {

class Files;

/// Watches files and the folders that they stand in: a file that is put in another one's place, or comes
/// back, is seen by its folder alone. Links are watched where they stand and where they lead.
class QtFileWatcher : public QObject, public FileWatcher {
    Q_OBJECT

public:
    /// `files` must outlive the watcher.
    explicit QtFileWatcher(const Files& files);
    ~QtFileWatcher() override;

    void watch(const std::vector<std::string>& paths) override;
    void setListener(std::function<void()> listener) override { listener_ = std::move(listener); }

private:
    void happened();
    void follow();

    const Files& files_;
    std::vector<std::string> paths_;
    std::function<void()> listener_;
    std::unique_ptr<QFileSystemWatcher> watcher_; ///< Made with the first file.
};

} // namespace dyeworks

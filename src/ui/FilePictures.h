#pragma once

#include <QImage>
#include <QObject>
#include <QSize>
#include <QTimer>

#include <chrono>
#include <functional>
#include <list>
#include <memory>
#include <string>

namespace dyeworks {

/// Small pictures of image and palette files. Each is made in a thread of its own, so that a file system that
/// does not answer holds up neither the program nor the other pictures.
class FilePictures : public QObject {
public:
    explicit FilePictures(QObject* parent);
    ~FilePictures() override;

    /// Calls `done`, in this thread, once there is a picture of the file that fits into `room`, in pixels;
    /// not at all when there is none, or when the file does not answer within ten seconds. An image wears the
    /// palette of `palettePath`, or greys where that is empty or cannot be read.
    void ask(const std::string& path, const std::string& palettePath, QSize room,
             std::function<void(const QImage&)> done);

private:
    struct Work;
    struct Asked {
        std::shared_ptr<Work> work;
        std::function<void(const QImage&)> done;
        std::chrono::steady_clock::time_point giveUp;
    };

    void look();

    std::list<Asked> asked_;
    QTimer timer_;
};

} // namespace dyeworks

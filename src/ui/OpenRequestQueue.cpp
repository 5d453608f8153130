#include "ui/OpenRequestQueue.h"

#include <QAbstractEventDispatcher>
#include <QApplication>

#include <utility>

namespace dyeworks {

OpenRequestQueue::OpenRequestQueue(Open open)
    : open_(std::move(open)) {}

void OpenRequestQueue::add(Paths paths) {
    waiting_.push_back(std::move(paths));
    openWaiting();
}

void OpenRequestQueue::start() {
    started_ = true;
    // A dialog that closes leaves its event loop, and the one around it falls idle.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &OpenRequestQueue::openWaiting);
}

void OpenRequestQueue::openWaiting() {
    if (!started_ || waiting_.empty() || QApplication::activeModalWidget() != nullptr)
        return;
    Paths paths = std::move(waiting_.front());
    waiting_.pop_front();
    // Later, because opening may raise a dialog, which must not run inside the loop's own preparations.
    ++opening_;
    const auto open = [this, paths = std::move(paths)] {
        --opening_;
        open_(paths);
    };
    QMetaObject::invokeMethod(this, open, Qt::QueuedConnection);
}

} // namespace dyeworks

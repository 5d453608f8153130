#include "recovery/RecoveryWriter.h"

#include "platform/StateFolder.h"

#include <array>
#include <new>
#include <span>
#include <system_error>
#include <utility>

namespace dyeworks {

RecoveryWriter::RecoveryWriter(StateFolder& folder)
    : folder_(folder) {}

RecoveryWriter::~RecoveryWriter() {
    {
        const std::lock_guard lock(mutex_);
        ends_ = true;
        held_.reset();
    }
    changed_.notify_all();
    if (thread_.joinable())
        thread_.join();
}

void RecoveryWriter::write(File file) {
    add({writing(std::move(file))});
}

std::function<void()> RecoveryWriter::writing(File file) {
    return [this, file = std::move(file)] { writeNow(file); };
}

void RecoveryWriter::writeNow(const File& file) noexcept {
    std::optional<FileError> failure;
    try {
        const std::array pieces{std::as_bytes(std::span(file.header)), file.contents};
        failure = folder_.write(file.name, pieces);
    } catch (const std::bad_alloc&) {
        failure = FileError::TooLarge;
    }
    const std::lock_guard lock(mutex_);
    failure_ = failure;
    // There is room for it, and a name of this length takes no memory of its own.
    if (failure)
        failed_.push_back(file.name);
}

void RecoveryWriter::remove(const std::string& name) {
    add({[this, name] {
        try {
            folder_.remove(name);
        } catch (const std::bad_alloc&) {
            // It stays until the folder goes as a whole.
        }
    }});
}

void RecoveryWriter::add(Jobs job) {
    const std::lock_guard lock(mutex_);
    failed_.reserve(failed_.size() + jobs_.size() + 1);
    start();
    jobs_.splice(jobs_.end(), job);
}

/// The mutex is held.
void RecoveryWriter::start() {
    try {
        if (!thread_.joinable())
            thread_ = std::thread([this] { work(); });
    } catch (const std::system_error&) {
        throw std::bad_alloc();
    }
    changed_.notify_all();
}

void RecoveryWriter::hold(std::vector<File> files, std::chrono::milliseconds after,
                          std::function<void()> then) {
    Held held{{}, Clock::now() + after, {}};
    for (File& file : files)
        held.writes.push_back(writing(std::move(file)));
    if (then != nullptr)
        held.then.push_back(std::move(then));
    const std::lock_guard lock(mutex_);
    failed_.reserve(failed_.size() + jobs_.size() + held.writes.size());
    start();
    held_ = std::move(held);
}

void RecoveryWriter::release() {
    const std::lock_guard lock(mutex_);
    if (!held_)
        return;
    held_->then.clear();
    queueHeld();
    changed_.notify_all();
}

bool RecoveryWriter::drop() {
    const std::lock_guard lock(mutex_);
    return std::exchange(held_, std::nullopt).has_value();
}

/// The mutex is held, and so is something else.
void RecoveryWriter::queueHeld() {
    jobs_.splice(jobs_.end(), held_->writes);
    jobs_.splice(jobs_.end(), held_->then);
    held_.reset();
}

void RecoveryWriter::work() {
    std::unique_lock lock(mutex_);
    const auto somethingToDo = [this] { return ends_ || !jobs_.empty(); };
    for (;;) {
        if (held_ && jobs_.empty() && Clock::now() >= held_->due)
            queueHeld();
        if (!somethingToDo()) {
            if (held_)
                changed_.wait_until(lock, Clock::time_point(held_->due));
            else
                changed_.wait(lock);
            continue;
        }
        if (jobs_.empty())
            return;
        const std::function<void()>& job = jobs_.front();
        lock.unlock();
        job();
        lock.lock();
        jobs_.pop_front();
        changed_.notify_all();
    }
}

bool RecoveryWriter::isIdle() const {
    const std::lock_guard lock(mutex_);
    return jobs_.empty();
}

void RecoveryWriter::waitUntilIdle() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return jobs_.empty(); });
}

bool RecoveryWriter::waitUntilIdle(std::chrono::milliseconds most) {
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, most, [this] { return jobs_.empty(); });
}

std::optional<FileError> RecoveryWriter::failure() const {
    const std::lock_guard lock(mutex_);
    return failure_;
}

std::vector<std::string> RecoveryWriter::takeFailed() {
    const std::lock_guard lock(mutex_);
    std::vector<std::string> taken = failed_;
    failed_.clear(); // Keeps its room.
    return taken;
}

} // namespace dyeworks

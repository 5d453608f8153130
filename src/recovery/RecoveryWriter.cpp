#include "recovery/RecoveryWriter.h"

#include "platform/StateFolder.h"

#include <array>
#include <span>

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
    add([this, file = std::move(file)] { writeNow(file); });
}

void RecoveryWriter::writeNow(const File& file) {
    const std::array pieces{std::as_bytes(std::span(file.header)), file.contents};
    const auto failure = folder_.write(file.name, pieces);
    const std::lock_guard lock(mutex_);
    failure_ = failure;
    if (failure)
        failed_.push_back(file.name);
}

void RecoveryWriter::remove(const std::string& name) {
    add([this, name] { folder_.remove(name); });
}

void RecoveryWriter::add(std::function<void()> job) {
    const std::lock_guard lock(mutex_);
    jobs_.push_back(std::move(job));
    start();
}

/// The mutex is held.
void RecoveryWriter::start() {
    if (!thread_.joinable())
        thread_ = std::thread([this] { work(); });
    changed_.notify_all();
}

void RecoveryWriter::hold(std::vector<File> files, std::chrono::milliseconds after,
                          std::function<void()> then) {
    const std::lock_guard lock(mutex_);
    held_ = Held{std::move(files), Clock::now() + after, std::move(then)};
    start();
}

void RecoveryWriter::release() {
    const std::lock_guard lock(mutex_);
    if (!held_)
        return;
    held_->then = nullptr;
    queueHeld();
    changed_.notify_all();
}

bool RecoveryWriter::drop() {
    const std::lock_guard lock(mutex_);
    return std::exchange(held_, std::nullopt).has_value();
}

/// The mutex is held, and so is something else.
void RecoveryWriter::queueHeld() {
    Held held = *std::exchange(held_, std::nullopt);
    for (File& file : held.files)
        jobs_.emplace_back([this, file = std::move(file)] { writeNow(file); });
    if (held.then != nullptr)
        jobs_.push_back(std::move(held.then));
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
        {
            const std::function<void()> job = jobs_.front();
            lock.unlock();
            job();
            lock.lock();
        }
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
    return std::exchange(failed_, {});
}

} // namespace dyeworks

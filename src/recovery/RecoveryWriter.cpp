#include "recovery/RecoveryWriter.h"

#include "platform/StateFolder.h"

#include <array>
#include <span>
#include <utility>

namespace dyeworks {

RecoveryWriter::RecoveryWriter(StateFolder& folder)
    : folder_(folder) {}

RecoveryWriter::~RecoveryWriter() {
    {
        const std::lock_guard lock(mutex_);
        ends_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable())
        thread_.join();
}

void RecoveryWriter::write(const std::string& name, std::string header, std::span<const std::byte> contents,
                           std::shared_ptr<const void> keeper) {
    add([this, name, header = std::move(header), contents, keeper = std::move(keeper)] {
        const std::array pieces{std::as_bytes(std::span(header)), contents};
        const auto failure = folder_.write(name, pieces);
        const std::lock_guard lock(mutex_);
        failure_ = failure;
    });
}

void RecoveryWriter::remove(const std::string& name) {
    add([this, name] { folder_.remove(name); });
}

void RecoveryWriter::add(std::function<void()> job) {
    const std::lock_guard lock(mutex_);
    jobs_.push_back(std::move(job));
    if (!thread_.joinable())
        thread_ = std::thread([this] { work(); });
    changed_.notify_all();
}

void RecoveryWriter::work() {
    std::unique_lock lock(mutex_);
    for (;;) {
        changed_.wait(lock, [this] { return ends_ || !jobs_.empty(); });
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

std::optional<FileError> RecoveryWriter::failure() const {
    const std::lock_guard lock(mutex_);
    return failure_;
}

} // namespace dyeworks

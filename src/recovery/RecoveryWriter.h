#pragma once

#include "platform/Files.h"

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

namespace dyeworks {

class StateFolder;

/// Writes and removes the files of a state folder on a thread of its own, one after the other.
class RecoveryWriter {
public:
    /// `folder` must outlive the writer.
    explicit RecoveryWriter(StateFolder& folder);
    /// Carries out what is left to do.
    ~RecoveryWriter();
    RecoveryWriter(const RecoveryWriter&) = delete;
    RecoveryWriter& operator=(const RecoveryWriter&) = delete;

    /// `contents` must live, and stay as it is, until the writer is idle; `keeper` is let go of then.
    void write(const std::string& name, std::string header, std::span<const std::byte> contents,
               std::shared_ptr<const void> keeper);
    void remove(const std::string& name);

    [[nodiscard]] bool isIdle() const;
    void waitUntilIdle();
    /// Why the last write failed; nothing when it did not.
    [[nodiscard]] std::optional<FileError> failure() const;

private:
    void add(std::function<void()> job);
    void work();

    StateFolder& folder_;
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::function<void()>> jobs_; ///< The first one is being done.
    std::optional<FileError> failure_;
    bool ends_ = false;
    std::thread thread_; ///< Begins with the first job.
};

} // namespace dyeworks

#pragma once

#include "platform/Files.h"

#include <chrono>
#include <condition_variable>
#include <functional>
#include <list>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace dyeworks {

class StateFolder;

/// Writes and removes the files of a state folder on a thread of its own, one after the other.
class RecoveryWriter {
public:
    /// A file to be written. `contents` must live, and stay as it is, until the writer is idle; `keeper` is
    /// let go of then.
    struct File {
        std::string name;
        std::string header;
        std::span<const std::byte> contents;
        std::shared_ptr<const void> keeper;
    };

    /// `folder` must outlive the writer.
    explicit RecoveryWriter(StateFolder& folder);
    /// Carries out what is left to do.
    ~RecoveryWriter();
    RecoveryWriter(const RecoveryWriter&) = delete;
    RecoveryWriter& operator=(const RecoveryWriter&) = delete;

    /// These throw std::bad_alloc, having done nothing, without memory or a thread for it. What runs short of
    /// memory later counts as failed.
    void write(File file);
    void remove(const std::string& name);

    /// Writes the files, and then calls `then` on its thread, unless `drop` is called before `after` has
    /// passed.
    void hold(std::vector<File> files, std::chrono::milliseconds after, std::function<void()> then);
    /// Writes what is held at once, without calling anything.
    void release();
    /// Forgets what is held. False: it is being written already, or has been.
    bool drop();

    [[nodiscard]] bool isIdle() const;
    void waitUntilIdle();
    /// False: it still has something to do after that time.
    bool waitUntilIdle(std::chrono::milliseconds most);
    /// Why the last write failed; nothing when it did not.
    [[nodiscard]] std::optional<FileError> failure() const;
    /// The files that could not be written since the last call.
    [[nodiscard]] std::vector<std::string> takeFailed();

private:
    using Clock = std::chrono::steady_clock;
    /// Of nodes that are made where memory may be refused, and then only handed on.
    using Jobs = std::list<std::function<void()>>;
    struct Held {
        Jobs writes;
        Clock::time_point due;
        Jobs then; ///< At most one.
    };

    [[nodiscard]] std::function<void()> writing(File file);
    void add(Jobs job);
    void start();
    void work();
    void writeNow(const File& file) noexcept;
    void queueHeld();

    StateFolder& folder_;
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    Jobs jobs_; ///< The first one is being done.
    std::optional<Held> held_;
    std::optional<FileError> failure_;
    std::vector<std::string> failed_; ///< Has room for all that is to be written.
    bool ends_ = false;
    std::thread thread_; ///< Begins with the first job.
};

} // namespace dyeworks

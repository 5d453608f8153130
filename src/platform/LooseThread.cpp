#include "platform/LooseThread.h"

#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace dyeworks {

namespace {

struct Running {
    std::mutex mutex;
    std::condition_variable changed;
    int count = 0;
};

/// Never destroyed: a thread may end when the process does.
Running& running() {
    static auto* const instance = new Running;
    return *instance;
}

void count(int more) {
    const std::lock_guard lock(running().mutex);
    running().count += more;
    running().changed.notify_all();
}

} // namespace

bool runLoosely(std::function<void()> work) {
    count(1);
    try {
        std::thread([work = std::move(work)]() mutable {
            work();
            // What it holds goes while it still counts.
            work = nullptr;
            count(-1);
        }).detach();
    } catch (const std::system_error&) {
        count(-1);
        return false;
    } catch (...) {
        count(-1);
        throw;
    }
    return true;
}

bool awaitLooseThreads(std::chrono::milliseconds most) {
    std::unique_lock lock(running().mutex);
    return running().changed.wait_for(lock, most, [] { return running().count == 0; });
}

} // namespace dyeworks

#pragma once

#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <type_traits>
#include <utility>

namespace dyeworks {

/// Runs `work`, which must not throw, on a thread that nobody has to wait for, because a file system that
/// does not answer would be waited for without end. What it uses must live as long as it does, or as the
/// installed platform. False: the host gives no further thread, and `work` has not run.
[[nodiscard]] bool runLoosely(std::function<void()> work);

/// The answer of `ask`, or what it throws, once it is there, asked on such a thread. Not valid: there is
/// none.
template <typename Ask>
[[nodiscard]] std::future<std::invoke_result_t<Ask>> askLoosely(Ask ask) {
    const auto task = std::make_shared<std::packaged_task<std::invoke_result_t<Ask>()>>(std::move(ask));
    auto answer = task->get_future();
    return runLoosely([task] { (*task)(); }) ? std::move(answer) : std::future<std::invoke_result_t<Ask>>();
}

/// Waits, at most so long, for all that `runLoosely` has begun; to be called before the platform goes. False:
/// some still hang in the host, and will end with the process.
bool awaitLooseThreads(std::chrono::milliseconds most);

} // namespace dyeworks

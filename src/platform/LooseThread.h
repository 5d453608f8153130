#pragma once

#include <chrono>
#include <functional>

namespace dyeworks {

/// Runs `work`, which must not throw, on a thread that nobody has to wait for, because a file system that
/// does not answer would be waited for without end. What it uses must live as long as it does, or as the
/// installed platform. False: the host gives no further thread, and `work` has not run.
[[nodiscard]] bool runLoosely(std::function<void()> work);

/// Waits, at most so long, for all that `runLoosely` has begun; to be called before the platform goes. False:
/// some still hang in the host, and will end with the process.
bool awaitLooseThreads(std::chrono::milliseconds most);

} // namespace dyeworks

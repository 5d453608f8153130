#pragma once

#include <chrono>
#include <mutex>
#include <optional>
#include <string>
#include <utility>

namespace dyeworks {

/// Asks the user what is to become of the program while it waits for a plug-in and can show nothing itself: a
/// second process does, which ends by itself as soon as the plug-in comes back or the program ends.
class HangNotice {
public:
    HangNotice() = default;
    ~HangNotice() { close(); }
    HangNotice(const HangNotice&) = delete;
    HangNotice& operator=(const HangNotice&) = delete;

    /// The program's file; empty: nobody is asked.
    void setProgram(std::string file) { program_ = std::move(file); }

    /// May be called on any thread, as `close`. `after` is how long the plug-in has not answered.
    void show(const std::string& plugIn, std::chrono::seconds after);
    void close();

private:
    std::string program_;
    std::mutex mutex_;
    std::optional<int> lifeline_; ///< The other process ends when this is closed.
};

/// Whether the program was started by a `HangNotice`.
[[nodiscard]] bool isHangNotice(int argc, char** argv);
/// The second process, from its start to its exit code. It sends its parent SIGTERM when the user wants that.
[[nodiscard]] int runHangNotice(int argc, char** argv);

} // namespace dyeworks

#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace dyeworks {

/// What the process holds at a moment.
struct Figures {
    std::size_t allocated = 0; ///< Bytes that were allocated and not freed.
    std::size_t resident = 0;  ///< Bytes.
    std::size_t files = 0;     ///< Descriptors.
    std::size_t threads = 0;
    std::size_t objects = 0; ///< Of Qt, of all threads.
    std::size_t timers = 0;  ///< That run on this thread.
    std::size_t widgets = 0;
    std::size_t windows = 0; ///< Of the window system, hidden ones too.

    static constexpr std::array kNames{"allocated", "resident", "files",   "threads",
                                       "objects",   "timers",   "widgets", "windows"};
    [[nodiscard]] std::array<std::size_t, kNames.size()> values() const {
        return {allocated, resident, files, threads, objects, timers, widgets, windows};
    }
};

/// To be called before the application object is made.
void countObjects();
/// Qt's cache of pixmaps, which fills up to its limit whatever happens, is emptied before.
[[nodiscard]] Figures figuresNow();
/// By all threads of the process.
[[nodiscard]] double secondsWorked();

/// How many bytes of memory the process has had at most since it began, or since `forgetPeak`.
[[nodiscard]] std::size_t peakResident();
void forgetPeak();

} // namespace dyeworks

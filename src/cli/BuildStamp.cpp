#include "cli/BuildStamp.h"

#include <ctime>
#include <sys/stat.h>

namespace dyeworks {

namespace {

constexpr std::int64_t kNanoseconds = 1'000'000'000;
/// File systems tell times in steps of up to 10 ms, the clock's tick.
constexpr std::int64_t kTooClose = 50'000'000;

std::int64_t inNanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * kNanoseconds + time.tv_nsec;
}

} // namespace

std::optional<BuildStamp> stampOf(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return BuildStamp{static_cast<std::uint64_t>(status.st_size), inNanoseconds(status.st_mtim),
                      status.st_ino};
}

BuildStamp settled(BuildStamp stamp) {
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    const std::int64_t age = inNanoseconds(now) - stamp.time;
    return age < kTooClose && age > -kTooClose ? BuildStamp{} : stamp;
}

} // namespace dyeworks

#include "cli/thumbnailer/Limits.h"

#include <algorithm>
#include <csignal>
#include <fstream>
#include <sys/resource.h>
#include <tuple>
#include <unistd.h>

// Sanitizers reserve more addresses than any program needs.
#if defined(__SANITIZE_ADDRESS__)
#define DYEWORKS_ADDRESSES_ARE_COUNTED 0
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define DYEWORKS_ADDRESSES_ARE_COUNTED 0
#endif
#endif
#ifndef DYEWORKS_ADDRESSES_ARE_COUNTED
#define DYEWORKS_ADDRESSES_ARE_COUNTED 1
#endif

namespace dyeworks {

namespace {

constexpr rlim_t kMemory = rlim_t{256} << 20U; ///< Bytes.
constexpr rlim_t kProcessorSeconds = 10;
constexpr unsigned kClockSeconds = 20;

// What a handler needs must stand ready.
std::string lastLine;
int lastCode = 1;

extern "C" void dyeworksTimeIsUp(int /*signal*/) {
    std::ignore = ::write(STDERR_FILENO, lastLine.data(), lastLine.size());
    ::_exit(lastCode);
}

void lower(int what, rlim_t soft, rlim_t hard) {
    rlimit limit{};
    if (::getrlimit(what, &limit) != 0)
        return;
    limit.rlim_max = std::min(limit.rlim_max, hard);
    limit.rlim_cur = std::min({limit.rlim_cur, limit.rlim_max, soft});
    // Without a limit the work is the same.
    (void)::setrlimit(what, &limit);
}

/// Bytes of addresses that the process has by now.
rlim_t addressesTaken() {
    std::ifstream status("/proc/self/statm");
    rlim_t pages = 0;
    status >> pages;
    return pages * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE));
}

} // namespace

void holdToLimits(const std::string& line, int code) {
    lastLine = line + '\n';
    lastCode = code;
    struct sigaction action {};
    action.sa_handler = dyeworksTimeIsUp;
    (void)::sigaction(SIGALRM, &action, nullptr);
    (void)::sigaction(SIGXCPU, &action, nullptr);
    ::alarm(kClockSeconds);
    // Were the signal of the first second missed, that of the next could not be.
    lower(RLIMIT_CPU, kProcessorSeconds, kProcessorSeconds + 1);
    lower(RLIMIT_CORE, 0, 0);
    if constexpr (DYEWORKS_ADDRESSES_ARE_COUNTED != 0)
        lower(RLIMIT_AS, addressesTaken() + kMemory, RLIM_INFINITY);
}

} // namespace dyeworks

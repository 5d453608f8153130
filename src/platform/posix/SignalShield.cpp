#include "platform/posix/SignalShield.h"

#include <ctime>
#include <initializer_list>

namespace dyeworks {

SignalShield::SignalShield() noexcept {
    sigset_t pending;
    sigemptyset(&pending);
    (void)sigpending(&pending);
    sigemptyset(&shielded_);
    for (const int signal : {SIGPIPE, SIGXFSZ}) {
        // One that waits already is somebody else's, and not ours to take away.
        if (sigismember(&pending, signal) == 0)
            sigaddset(&shielded_, signal);
    }
    (void)pthread_sigmask(SIG_BLOCK, &shielded_, &before_);
}

SignalShield::~SignalShield() {
    const timespec atOnce{};
    while (sigtimedwait(&shielded_, nullptr, &atOnce) > 0) {
    }
    (void)pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

} // namespace dyeworks

#include "ui/TerminationSignals.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::array kSignals{SIGTERM, SIGINT, SIGHUP};
volatile sig_atomic_t writeEnd = -1;

void onSignal(int number) {
    const int before = errno;
    const auto byte = static_cast<unsigned char>(number);
    // If it cannot be told, the next one ends the program.
    const ssize_t written = ::write(writeEnd, &byte, 1);
    static_cast<void>(written);
    errno = before;
}

void handleWith(void (*handler)(int), int flags) {
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = flags;
    ::sigemptyset(&action.sa_mask);
    for (const int number : kSignals)
        (void)::sigaction(number, &action, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals(std::function<void(int)> end)
    : end_(std::move(end)) {
    if (::pipe2(pipe_.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    notifier_ = new QSocketNotifier(pipe_[0], QSocketNotifier::Read, this);
    connect(notifier_, &QSocketNotifier::activated, this, &TerminationSignals::read);
    writeEnd = pipe_[1];
    handleWith(onSignal, static_cast<int>(SA_RESETHAND) | SA_RESTART);
}

TerminationSignals::~TerminationSignals() {
    if (notifier_ == nullptr)
        return;
    handleWith(SIG_DFL, 0);
    writeEnd = -1;
    for (const int end : pipe_)
        ::close(end);
}

void TerminationSignals::read() {
    unsigned char number = 0;
    if (::read(pipe_[0], &number, 1) == 1)
        end_(number);
}

} // namespace dyeworks

#include "ui/TerminationSignals.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::array kSignals{SIGTERM, SIGINT, SIGHUP};
constexpr std::chrono::seconds kPatience{3};
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

TerminationSignals::TerminationSignals(End end, End endHanging)
    : end_(std::move(end))
    , endHanging_(std::move(endHanging)) {
    if (::pipe2(pipe_.data(), O_CLOEXEC) != 0)
        return;
    (void)::fcntl(pipe_[1], F_SETFL, O_NONBLOCK);
    thread_ = std::thread([this] { wait(); });
    writeEnd = pipe_[1];
    handleWith(onSignal, static_cast<int>(SA_RESETHAND) | SA_RESTART);
}

TerminationSignals::~TerminationSignals() {
    if (!thread_.joinable())
        return;
    handleWith(SIG_DFL, 0);
    writeEnd = -1;
    static_cast<void>(take());
    ::close(pipe_[1]);
    thread_.join();
    ::close(pipe_[0]);
}

void TerminationSignals::wait() {
    unsigned char number = 0;
    if (::read(pipe_[0], &number, 1) != 1)
        return;
    const auto inLoop = [this, number] {
        if (take())
            end_(number);
    };
    QMetaObject::invokeMethod(this, inLoop, Qt::QueuedConnection);
    {
        std::unique_lock lock(mutex_);
        if (changed_.wait_for(lock, kPatience, [this] { return taken_; }))
            return;
    }
    if (take())
        endHanging_(number);
}

bool TerminationSignals::take() {
    const std::lock_guard lock(mutex_);
    changed_.notify_all();
    return !std::exchange(taken_, true);
}

} // namespace dyeworks

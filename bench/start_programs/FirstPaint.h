#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QMainWindow>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>

namespace dyeworks {

/// Watches a program for the first painted main window. Prints a line with the nanoseconds since the time
/// that the environment names, one with those that the processor has worked for the program, then, when
/// documents have had time to open, one with the resident KiB, and ends the program.
class FirstPaint : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* receiver, QEvent* event) override {
        if (event->type() == QEvent::Paint && !seen_ && qobject_cast<QMainWindow*>(receiver) != nullptr) {
            seen_ = true;
            // The loop turns again when all of the window is on the screen.
            QTimer::singleShot(0, this, &FirstPaint::painted);
        }
        return false;
    }

private:
    static constexpr std::chrono::milliseconds kSettle{400};

    void painted() {
        qApp->removeEventFilter(this);
        const long long wall = nanoseconds(CLOCK_MONOTONIC) - std::atoll(std::getenv("DYEWORKS_BENCH_START"));
        std::printf("%lld\n%lld\n", wall, nanoseconds(CLOCK_PROCESS_CPUTIME_ID));
        QTimer::singleShot(kSettle, this, [] {
            std::printf("%lld\n", residentKib());
            std::fflush(stdout);
            QCoreApplication::quit();
        });
    }

    static long long nanoseconds(clockid_t clock) {
        timespec now{};
        clock_gettime(clock, &now);
        return now.tv_sec * 1'000'000'000LL + now.tv_nsec;
    }

    static long long residentKib() {
        std::ifstream status("/proc/self/status");
        for (std::string line; std::getline(status, line);) {
            if (line.starts_with("VmRSS:"))
                return std::atoll(line.c_str() + 6);
        }
        return 0;
    }

    bool seen_ = false;
};

/// Put at the end of an application's construction by Q_COREAPP_STARTUP_FUNCTION.
inline void watchFirstPaint() {
    qApp->installEventFilter(new FirstPaint(qApp));
}

} // namespace dyeworks

#pragma once

#include <QObject>

#include <array>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace dyeworks {

/// The signals by which the host asks the program to end: SIGTERM, SIGINT and SIGHUP. One object at a time.
class TerminationSignals : public QObject {
    Q_OBJECT

public:
    using End = std::function<void(int signal)>;

    /// `end` is called from the event loop with the signal's number. When that does not turn for three
    /// seconds, `endHanging` is called instead, on another thread. A second signal ends the program at once.
    TerminationSignals(End end, End endHanging);
    ~TerminationSignals() override;
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    void wait();
    [[nodiscard]] bool take();

    End end_;
    End endHanging_;
    std::array<int, 2> pipe_{-1, -1};
    std::mutex mutex_;
    std::condition_variable changed_;
    bool taken_ = false; ///< By one of the two.
    std::thread thread_;
};

} // namespace dyeworks

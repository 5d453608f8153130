#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <array>
#include <functional>

namespace dyeworks {

/// The signals by which the host asks the program to end: SIGTERM, SIGINT and SIGHUP. One object at a time.
class TerminationSignals : public QObject {
    Q_OBJECT

public:
    /// `end` is called from the event loop with the signal's number. A second signal ends the program at
    /// once.
    explicit TerminationSignals(std::function<void(int)> end);
    ~TerminationSignals() override;
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

private:
    void read();

    std::function<void(int)> end_;
    std::array<int, 2> pipe_{-1, -1};
    QSocketNotifier* notifier_ = nullptr;
};

} // namespace dyeworks

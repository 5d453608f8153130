#pragma once

#include <QBasicTimer>
#include <QObject>

#include <functional>

namespace dyeworks {

/// Lets something stand out for about a second: on and off a few times, or on once where the desktop asks for
/// less motion.
class TexelFlash : public QObject {
    Q_OBJECT

public:
    /// `show` is told whether it is to stand out from now on.
    explicit TexelFlash(std::function<void(bool standsOut)> show)
        : show_(std::move(show)) {}

    /// One that goes on ends first.
    void start();
    void end();
    [[nodiscard]] bool isRunning() const noexcept { return timer_.isActive(); }

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    std::function<void(bool)> show_;
    QBasicTimer timer_;
    int turnsLeft_ = 0; ///< Odd while it stands out.
};

} // namespace dyeworks

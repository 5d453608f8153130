#include "ui/TexelFlash.h"

#include "framework/widgets/DesktopMotion.h"

#include <QTimerEvent>

namespace dyeworks {

namespace {

constexpr int kTurns = 5; // The first and the last stand out.
constexpr int kTurnMilliseconds = 200;
constexpr int kWholeMilliseconds = kTurns * kTurnMilliseconds;

} // namespace

void TexelFlash::start() {
    end();
    const bool flashes = motionIsWelcome();
    turnsLeft_ = flashes ? kTurns : 1;
    timer_.start(flashes ? kTurnMilliseconds : kWholeMilliseconds, this);
    show_(true);
}

void TexelFlash::end() {
    if (!timer_.isActive())
        return;
    timer_.stop();
    show_(false);
}

void TexelFlash::timerEvent(QTimerEvent* event) {
    if (event->timerId() != timer_.timerId())
        return QObject::timerEvent(event);
    if (--turnsLeft_ == 0)
        end();
    else
        show_(turnsLeft_ % 2 != 0);
}

} // namespace dyeworks

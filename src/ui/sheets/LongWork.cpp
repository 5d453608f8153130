#include "ui/sheets/LongWork.h"

#include "platform/StringId.h"
#include "platform/WaitCursor.h"
#include "platform/qt/QtWaitCursor.h"
#include "ui/sheets/SheetControls.h"

#include <QProgressDialog>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <future>

namespace dyeworks {

namespace {

using namespace std::chrono_literals;

constexpr auto kLook = 50ms;

} // namespace

void runLongWork(QWidget* owner, const QString& what, const std::function<void(const Progress&)>& work) {
    const WaitCursorScope waiting;
    std::atomic<int> done = 0;
    std::atomic<bool> stopped = false;
    const std::future<void> running = std::async(std::launch::async, [&] {
        work([&](int thousandths) {
            done = thousandths;
            return !stopped.load();
        });
    });
    if (running.wait_for(kProgressPatience) == std::future_status::ready)
        return;
    const OrdinaryPointerScope pointer;
    // The files of the command line are opened before the main window is shown.
    if (owner != nullptr)
        owner->show();
    QProgressDialog dialog(owner);
    dialog.setWindowTitle(shown(StringId::ApplicationTitle));
    dialog.setLabelText(what);
    dialog.setRange(0, kProgressWhole);
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setMinimumDuration(0);
    dialog.setAutoClose(false);
    dialog.setAutoReset(false);
    QObject::connect(&dialog, &QProgressDialog::canceled, &dialog, [&] { stopped = true; });
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &dialog, [&] {
        if (running.wait_for(0s) == std::future_status::ready)
            dialog.done(0);
        else
            dialog.setValue(done);
    });
    look.start(kLook);
    dialog.exec();
    stopped = stopped || running.wait_for(0s) != std::future_status::ready;
    running.wait();
}

} // namespace dyeworks

#include "bench/start_programs/FirstPaint.h"
#include "ui/RunDyeworks.h"

#include <QFontDatabase>

#include <dlfcn.h>
#include <thread>
static void watch() {
    dyeworks::watchFirstPaint();
    if (getenv("F_POP"))
        std::thread([] { QFontDatabase::families(); }).detach();
}
Q_COREAPP_STARTUP_FUNCTION(watch)

int main(int argc, char** argv) {
    if (getenv("F_INIT"))
        std::thread([] {
            if (auto f = reinterpret_cast<int (*)()>(dlsym(RTLD_DEFAULT, "FcInit")))
                f();
        }).detach();
    return dyeworks::runDyeworks(argc, argv);
}

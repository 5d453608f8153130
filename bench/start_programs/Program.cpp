// The program as it is, watched until its window is there.

#include "bench/start_programs/FirstPaint.h"
#include "ui/RunDyeworks.h"

static void watch() {
    dyeworks::watchFirstPaint();
}
Q_COREAPP_STARTUP_FUNCTION(watch)

int main(int argc, char** argv) {
    return dyeworks::runDyeworks(argc, argv);
}

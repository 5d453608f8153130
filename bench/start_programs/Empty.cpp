// The least that a program with a main window does.

#include "bench/start_programs/FirstPaint.h"

#include <QApplication>

static void watch() {
    dyeworks::watchFirstPaint();
}
Q_COREAPP_STARTUP_FUNCTION(watch)

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QMainWindow window;
    window.resize(1024, 720);
    window.show();
    return QApplication::exec();
}

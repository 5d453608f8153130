// A main window with what every editor's has: a menu, a toolbar with a button, a status text. Unlike the
// empty window it reads the desktop's fonts before it can show itself.

#include "bench/start_programs/FirstPaint.h"

#include <QApplication>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

static void watch() {
    dyeworks::watchFirstPaint();
}
Q_COREAPP_STARTUP_FUNCTION(watch)

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QMainWindow window;
    window.menuBar()->addMenu("&File")->addAction("E&xit");
    window.addToolBar("Main")->addAction("Open");
    window.statusBar()->showMessage("Ready");
    window.resize(1024, 720);
    window.show();
    return QApplication::exec();
}

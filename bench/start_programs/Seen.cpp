// Starts another program and waits until much of the screen has the colour of the picture that it was given.
//
//   dyeworks_start_seen PROGRAM ARGUMENT...
//
// Prints the nanoseconds since the program was started, then asks it to end.

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QScreen>
#include <QThread>

#include <csignal>
#include <cstdio>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr auto kPatience = 60'000'000'000LL; // ns
constexpr int kEnough = 200;                 // Pixels on the rows that are looked at.

/// Rows across the screen. Looking at all of it would take as long as what is measured.
constexpr double kRows[] = {0.3, 0.4, 0.5, 0.6};

bool isPicture(QRgb pixel) {
    return qRed(pixel) > 230 && qGreen(pixel) < 25 && qBlue(pixel) > 230;
}

bool isSeen(QScreen& screen) {
    const QRect room = screen.geometry();
    int found = 0;
    for (const double row : kRows) {
        const QImage line = screen.grabWindow(0, 0, static_cast<int>(room.height() * row), room.width(), 1)
                                .toImage()
                                .convertToFormat(QImage::Format_RGB32);
        for (int x = 0; x < line.width(); ++x)
            found += isPicture(line.pixel(x, 0)) ? 1 : 0;
    }
    return found >= kEnough;
}

} // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    QScreen& screen = *QGuiApplication::primaryScreen();
    if (argc < 2 || isSeen(screen)) {
        std::fputs("A program is needed, and a screen that does not show the picture yet.\n", stderr);
        return 2;
    }
    QElapsedTimer timer;
    pid_t child = 0;
    timer.start();
    if (posix_spawnp(&child, argv[1], nullptr, nullptr, argv + 1, environ) != 0)
        return 2;
    bool seen = false;
    while (!seen && timer.nsecsElapsed() < kPatience && waitpid(child, nullptr, WNOHANG) == 0) {
        QThread::usleep(500);
        seen = isSeen(screen);
    }
    const long long taken = timer.nsecsElapsed();
    if (seen)
        std::printf("%lld\n", taken);
    // What waits for the first paint gets time to be done, as after a start by a person.
    QThread::msleep(700);
    kill(child, SIGTERM);
    waitpid(child, nullptr, 0);
    return seen ? 0 : 1;
}

#include "bench/day_programs/Figures.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QPixmapCache>
#include <QThread>
#include <QWidget>
#include <QWindow>

#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <malloc.h>
#include <mutex>
#include <unistd.h>
#include <unordered_set>

// Where Qt calls tools that look into a program; their header is not installed everywhere.
extern quintptr Q_CORE_EXPORT qtHookData[];

namespace dyeworks {

namespace {

constexpr std::size_t kAddObject = 3; // Places in the table above.
constexpr std::size_t kRemoveObject = 4;

struct Objects {
    std::mutex mutex;
    std::unordered_set<QObject*> all;
};

/// Never destroyed: objects go until the very end.
Objects& objects() {
    static auto* const instance = new Objects;
    return *instance;
}

void objectCame(QObject* object) {
    const std::lock_guard guard(objects().mutex);
    objects().all.insert(object);
}

void objectWent(QObject* object) {
    const std::lock_guard guard(objects().mutex);
    objects().all.erase(object);
}

std::size_t entriesOf(const char* folder) {
    const std::filesystem::directory_iterator all(folder);
    return static_cast<std::size_t>(std::distance(begin(all), end(all)));
}

std::size_t runningTimers() {
    QAbstractEventDispatcher* const dispatcher = QAbstractEventDispatcher::instance();
    std::size_t timers = 0;
    const std::lock_guard guard(objects().mutex);
    for (QObject* const object : objects().all) {
        if (object->thread() == QThread::currentThread())
            timers += static_cast<std::size_t>(dispatcher->registeredTimers(object).size());
    }
    return timers;
}

std::size_t residentBytes() {
    std::ifstream statm("/proc/self/statm");
    std::size_t all = 0;
    std::size_t resident = 0;
    statm >> all >> resident;
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

} // namespace

void countObjects() {
    qtHookData[kAddObject] = reinterpret_cast<quintptr>(&objectCame);
    qtHookData[kRemoveObject] = reinterpret_cast<quintptr>(&objectWent);
}

Figures figuresNow() {
    QPixmapCache::clear();
    Figures figures;
    const struct mallinfo2 memory = mallinfo2();
    figures.allocated = memory.uordblks + memory.hblkhd;
    figures.resident = residentBytes();
    figures.files = entriesOf("/proc/self/fd") - 1; // Without that of the folder itself.
    figures.threads = entriesOf("/proc/self/task");
    {
        const std::lock_guard guard(objects().mutex);
        figures.objects = objects().all.size();
    }
    figures.timers = runningTimers();
    figures.widgets = static_cast<std::size_t>(QApplication::allWidgets().size());
    figures.windows = static_cast<std::size_t>(QGuiApplication::allWindows().size());
    return figures;
}

double secondsWorked() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

std::size_t peakResident() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:"))
            return static_cast<std::size_t>(std::strtoull(line.c_str() + 6, nullptr, 10)) * 1024;
    }
    return 0;
}

void forgetPeak() {
    std::ofstream("/proc/self/clear_refs") << "5";
}

} // namespace dyeworks

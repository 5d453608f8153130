#include "Desktop.h"
#include "platform/posix/PosixFiles.h"
#include "platform/qt/QtFileWatcher.h"

#include <QEventLoop>
#include <QTimer>

#include <filesystem>
#include <fstream>

namespace dyeworks {
namespace {

namespace fs = std::filesystem;

class FileWatcherTest : public Desktop {
protected:
    static void put(const fs::path& path, const char* text) {
        fs::create_directories(path.parent_path());
        std::ofstream(path) << text;
    }
    /// Whether the change is noticed.
    bool noticed(const std::function<void()>& change, int patience = 5000) {
        // What is left of the change before.
        QCoreApplication::processEvents();
        QEventLoop loop;
        bool heard = false;
        watcher_.setListener([&] {
            heard = true;
            loop.quit();
        });
        change();
        QTimer::singleShot(patience, &loop, &QEventLoop::quit);
        loop.exec();
        watcher_.setListener(nullptr);
        return heard;
    }

    const fs::path folder_ = host("watched").toStdString();
    PosixFiles files_{nullptr, "/"};
    QtFileWatcher watcher_{files_};
};

TEST_F(FileWatcherTest, SeesEachWayInWhichAFileChangesAgainAndAgain) {
    const fs::path file = folder_ / "tex/sky.tmf";
    const fs::path target = folder_ / "store/far.tmf";
    put(file, "one");
    put(target, "one");
    fs::create_symlink("../store/far.tmf", folder_ / "tex/link.tmf");
    watcher_.watch({files_.fromHostPath(file), files_.fromHostPath(folder_ / "tex/link.tmf")});
    // It begins in a moment.
    int tries = 100;
    while (--tries > 0 && !noticed([&] { put(file, "begins"); }, 50)) {
    }
    for (int round = 0; round < 2; ++round) {
        EXPECT_TRUE(noticed([&] { put(file, "other"); })) << "in place";
        EXPECT_TRUE(noticed([&] {
            put(folder_ / "elsewhere/new", "two");
            fs::rename(folder_ / "elsewhere/new", file);
        })) << "renamed over";
        EXPECT_TRUE(noticed([&] { fs::remove(file); })) << "removed";
        EXPECT_TRUE(noticed([&] { put(file, "back"); })) << "back";
        EXPECT_TRUE(noticed([&] { put(target, "other"); })) << "where a link leads";
        EXPECT_TRUE(noticed([&] { fs::rename(folder_ / "tex", folder_ / "gone"); })) << "the folder";
        EXPECT_TRUE(noticed([&] { fs::rename(folder_ / "gone", folder_ / "tex"); })) << "the folder again";
    }
}

} // namespace
} // namespace dyeworks

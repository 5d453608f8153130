#include "ui/FileWait.h"

#include "framework/PathText.h"
#include "platform/LooseThread.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "platform/posix/HostFile.h"
#include "platform/qt/WaitDialog.h"

#include <QProgressDialog>

#include <atomic>
#include <chrono>
#include <future>
#include <new>
#include <vector>

namespace dyeworks {

namespace {

using namespace std::chrono_literals;

/// A piece that takes longer is one of a slow file.
constexpr auto kSlow = 40ms;
constexpr std::size_t kPiece = std::size_t{1} << 20U;
constexpr int kWhole = 1000;

/// Outlives the waiting: a thread that hangs in the file system cannot be ended.
struct Reading {
    std::promise<void> done;
    std::atomic<std::uint64_t> read = 0;
    std::atomic<std::uint64_t> size = 0;
    std::atomic<bool> stopped = false;

    void run(const std::string& path) noexcept {
        try {
            readWhole(path);
        } catch (const std::bad_alloc&) {
            // Whoever reads it next is told of that.
        }
        done.set_value();
    }

private:
    void readWhole(const std::string& path) {
        const auto file = openHostFile(platform().files().hostPath(path));
        std::vector<std::byte> piece(kPiece);
        bool slow = false;
        if (file) {
            size = file.value()->size();
            do {
                const auto start = std::chrono::steady_clock::now();
                const std::size_t count = file.value()->read(piece);
                read += count;
                slow = count == kPiece && (slow || std::chrono::steady_clock::now() - start > kSlow);
            } while (slow && !stopped);
        }
    }
};

std::string wordsFor(const Reading& reading, const std::string& path) {
    constexpr std::uint64_t kMegabyte = std::uint64_t{1} << 20U;
    // The host's form of the path would be asked of the very file system that does not answer.
    const std::string name(fileNameOf(path));
    if (reading.read == 0)
        return text(StringId::WaitingForFile, {name});
    return text(StringId::WaitingForFileRead,
                {name, std::to_string(reading.read / kMegabyte), std::to_string(reading.size / kMegabyte)});
}

} // namespace

bool waitForFile(const std::string& path, QWidget* owner) {
    const auto reading = std::make_shared<Reading>();
    const std::future<void> done = reading->done.get_future();
    if (!runLoosely([reading, path] { reading->run(path); }))
        return true; // There are too many threads. The file is read without waiting for it first.
    if (done.wait_for(kWaitPatience) == std::future_status::ready)
        return true;
    if (owner != nullptr)
        owner->show();
    const auto isDone = [&done] { return done.wait_for(0s) == std::future_status::ready; };
    const auto tell = [&](QProgressDialog& dialog) {
        const std::uint64_t size = reading->size;
        if (size == 0 || reading->read == 0)
            return;
        dialog.setLabelText(QString::fromStdString(wordsFor(*reading, path)));
        dialog.setRange(0, kWhole);
        dialog.setValue(static_cast<int>(std::min(size, reading->read.load()) * kWhole / size));
    };
    if (waitInDialog(wordsFor(*reading, path), owner, isDone, tell))
        return true;
    reading->stopped = true;
    return false;
}

} // namespace dyeworks

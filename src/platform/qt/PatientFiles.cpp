#include "platform/qt/PatientFiles.h"

#include "platform/ByteBuffer.h"
#include "platform/LargeBlock.h"
#include "platform/LooseThread.h"
#include "platform/StringId.h"
#include "platform/Text.h"
#include "platform/posix/HostFile.h"
#include "platform/qt/WaitDialog.h"

#include <QCoreApplication>
#include <QThread>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <functional>
#include <future>
#include <memory>
#include <new>
#include <utility>

namespace dyeworks {

namespace {

using namespace std::chrono_literals;

constexpr auto kSpellingPatience = 100ms;
constexpr auto kBelieved = 2s;
constexpr std::size_t kMostSpelt = 500;

bool isOnThreadOfWindows() {
    const QCoreApplication* const application = QCoreApplication::instance();
    return application != nullptr && application->thread() == QThread::currentThread();
}

/// Outlives the waiting: a thread that hangs in the file system cannot be ended.
struct Writing {
    /// Its form for the host; empty: there is none. Looking for it may hang, too.
    std::function<std::string()> find;
    std::string file;
    ByteBuffer bytes;
    std::promise<std::optional<FileError>> done;
    std::atomic<bool> stopped = false;

    void run() noexcept {
        std::optional<FileError> error;
        try {
            file = find();
            const std::span<const std::byte> piece = bytes.bytes();
            error = file.empty() ? FileError::NotFound
                                 : writeHostFile(file, FilePieces(&piece, 1), Flush::Yes, &stopped);
        } catch (const std::bad_alloc&) {
            error = FileError::TooLarge;
        }
        done.set_value(error);
    }
};

std::string nameIn(const std::string& path) {
    return path.substr(path.find_last_of("/\\") + 1);
}

/// Null without memory, or without a thread.
std::shared_ptr<Writing> start(std::function<std::string()> find, FilePieces pieces) {
    try {
        auto writing = std::make_shared<Writing>();
        writing->find = std::move(find);
        std::size_t size = 0;
        for (const std::span<const std::byte> piece : pieces)
            size += piece.size();
        writing->bytes = ByteBuffer(size);
        prepareBlock(writing->bytes.data(), size);
        std::byte* end = writing->bytes.data();
        for (const std::span<const std::byte> piece : pieces)
            end = std::ranges::copy(piece, end).out;
        return runLoosely([writing] { writing->run(); }) ? writing : nullptr;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

} // namespace

PatientFiles::PatientFiles(const WindowContext& windows, DriveLookup drives, std::string programFolder)
    : PosixFiles(std::move(drives), std::move(programFolder))
    , windows_(windows) {}

bool PatientFiles::mayWait() const {
    return isOnThreadOfWindows() && windows_.canAsk();
}

std::string PatientFiles::displayPath(const std::string& path) const {
    if (!isOnThreadOfWindows() || path.empty())
        return PosixFiles::displayPath(path);
    if (spelt_.size() > kMostSpelt)
        std::erase_if(spelt_, [](const auto& each) { return !each.second.answer.valid(); });
    Spelt& spelt = spelt_[path];
    if (!spelt.answer.valid()) {
        if (!spelt.latest.empty() && Clock::now() - spelt.asked < kBelieved)
            return spelt.latest;
        spelt.answer = askLoosely([this, path] { return PosixFiles::displayPath(path); });
        if (!spelt.answer.valid())
            return PosixFiles::displayPath(path);
        spelt.asked = Clock::now();
        spelt.answer.wait_for(kSpellingPatience);
    }
    if (spelt.answer.wait_for(0s) == std::future_status::ready)
        spelt.latest = spelt.answer.get();
    return spelt.latest.empty() ? unaskedDisplayPath(path) : spelt.latest;
}

bool PatientFiles::wait(const std::string& path, const std::function<bool()>& isDone) const {
    return waitInDialog(text(StringId::WaitingForFile, {nameIn(path)}), windows_.owner(), isDone);
}

bool PatientFiles::answers(const std::string& path) const {
    if (!mayWait())
        return true;
    const std::future<bool> answer = askLoosely([this, path] { return exists(path); });
    if (!answer.valid())
        return true;
    const auto isDone = [&answer] { return answer.wait_for(0s) == std::future_status::ready; };
    return answer.wait_for(kWaitPatience) == std::future_status::ready || wait(path, isDone);
}

std::optional<FileError> PatientFiles::writePieces(const std::string& path, FilePieces pieces) {
    const std::shared_ptr<Writing> writing =
        mayWait() && !path.empty() ? start([this, path] { return hostPath(path); }, pieces) : nullptr;
    if (writing == nullptr)
        return PosixFiles::writePieces(path, pieces);
    std::future<std::optional<FileError>> done = writing->done.get_future();
    const auto isDone = [&done] { return done.wait_for(0s) == std::future_status::ready; };
    if (done.wait_for(kWaitPatience) != std::future_status::ready && !wait(path, isDone)) {
        writing->stopped = true;
        return FileError::Other;
    }
    if (const std::optional<FileError> error = done.get())
        return writeInPlace(path, writing->file, pieces, *error);
    tellWritten();
    return std::nullopt;
}

} // namespace dyeworks

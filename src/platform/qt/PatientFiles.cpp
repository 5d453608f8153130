#include "platform/qt/PatientFiles.h"

#include "platform/StringId.h"
#include "platform/Text.h"
#include "platform/posix/HostFile.h"
#include "platform/qt/WaitDialog.h"

#include <QCoreApplication>
#include <QThread>

#include <atomic>
#include <chrono>
#include <future>
#include <memory>
#include <new>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace dyeworks {

namespace {

using namespace std::chrono_literals;

/// Outlives the waiting: a thread that hangs in the file system cannot be ended.
struct Writing {
    std::string file;
    std::vector<std::byte> bytes;
    std::promise<std::optional<FileError>> done;
    std::atomic<bool> stopped = false;

    void run() noexcept {
        std::optional<FileError> error;
        try {
            const std::span<const std::byte> piece = bytes;
            error = writeHostFile(file, FilePieces(&piece, 1), Flush::Yes, &stopped);
        } catch (const std::bad_alloc&) {
            error = FileError::TooLarge;
        }
        done.set_value(error);
    }
};

/// Null without memory, or without a thread.
std::shared_ptr<Writing> start(const std::string& file, FilePieces pieces) {
    try {
        auto writing = std::make_shared<Writing>();
        writing->file = file;
        std::size_t size = 0;
        for (const std::span<const std::byte> piece : pieces)
            size += piece.size();
        writing->bytes.reserve(size);
        for (const std::span<const std::byte> piece : pieces)
            writing->bytes.insert(writing->bytes.end(), piece.begin(), piece.end());
        std::thread([writing] { writing->run(); }).detach();
        return writing;
    } catch (const std::bad_alloc&) {
        return nullptr;
    } catch (const std::system_error&) {
        return nullptr;
    }
}

} // namespace

PatientFiles::PatientFiles(const WindowContext& windows, DriveLookup drives, std::string programFolder)
    : PosixFiles(std::move(drives), std::move(programFolder))
    , windows_(windows) {}

std::optional<FileError> PatientFiles::writePieces(const std::string& path, FilePieces pieces) {
    const QCoreApplication* const application = QCoreApplication::instance();
    const std::string file = hostPath(path);
    const bool asks = application != nullptr && application->thread() == QThread::currentThread() &&
                      windows_.canAsk() && !file.empty();
    const std::shared_ptr<Writing> writing = asks ? start(file, pieces) : nullptr;
    if (writing == nullptr)
        return PosixFiles::writePieces(path, pieces);
    std::future<std::optional<FileError>> done = writing->done.get_future();
    const auto isDone = [&done] { return done.wait_for(0s) == std::future_status::ready; };
    const bool isQuick = done.wait_for(kWaitPatience) == std::future_status::ready;
    if (!isQuick && !waitInDialog(text(StringId::WaitingForFile, {file.substr(file.rfind('/') + 1)}),
                                  windows_.owner(), isDone)) {
        writing->stopped = true;
        return FileError::Other;
    }
    const std::optional<FileError> error = done.get();
    // In place, with safety copies, is a way of the base.
    return error && takesNothingButContents(file, *error) ? PosixFiles::writePieces(path, pieces) : error;
}

} // namespace dyeworks

#pragma once

#include "platform/Platform.h"
#include "platform/posix/PosixFiles.h"

#include <algorithm>
#include <cstdlib>
#include <span>
#include <vector>

namespace dyeworks {

/// Files of the host, but for reading and writing: whatever the name, that is one file in memory.
class MemoryFiles final : public PosixFiles {
public:
    MemoryFiles()
        : PosixFiles([](char) { return std::nullopt; }, "/") {}

    [[nodiscard]] Result<ByteBuffer, FileError> read(const std::string& /*path*/) const override {
        ByteBuffer copy(bytes.size());
        std::ranges::copy(bytes, copy.bytes().begin());
        return copy;
    }
    [[nodiscard]] std::optional<FileError> writePieces(const std::string& /*path*/,
                                                       FilePieces pieces) override {
        bytes.clear();
        for (const auto& piece : pieces)
            bytes.insert(bytes.end(), piece.begin(), piece.end());
        return std::nullopt;
    }

    std::vector<std::byte> bytes;
};

/// A platform that has those files and nothing else; it is the installed one while it lives.
class MemoryPlatform final : public Platform {
public:
    MemoryPlatform() { installPlatform(this); }
    ~MemoryPlatform() override { installPlatform(nullptr); }
    MemoryPlatform(const MemoryPlatform&) = delete;
    MemoryPlatform& operator=(const MemoryPlatform&) = delete;

    MemoryFiles& files() override { return files_; }
    Messages& messages() override { std::abort(); }
    FileDialogs& fileDialogs() override { std::abort(); }
    FileWatcher& fileWatcher() override { std::abort(); }
    Profile& profile() override { std::abort(); }
    Clipboard& clipboard() override { std::abort(); }
    PictureReader& pictureReader() override { std::abort(); }
    Library& library() override { std::abort(); }
    VersionInfo& versionInfo() override { std::abort(); }
    Locale& locale() override { std::abort(); }
    Shell& shell() override { std::abort(); }
    StateFolder& stateFolder() override { std::abort(); }
    WaitCursor& waitCursor() override { std::abort(); }
    Texts& texts() override { std::abort(); }

private:
    MemoryFiles files_;
};

} // namespace dyeworks

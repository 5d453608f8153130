#include "platform/posix/PosixVersionInfo.h"

#include "platform/posix/LibraryHandle.h"
#include "platform/posix/OwnSymbol.h"

#include <algorithm>
#include <cstring>
#include <dyeworks/version_info.h>
#include <utility>

namespace dyeworks {

namespace {

// Far more than a library has to say; what goes on without its end is not followed further.
constexpr int kMaxStrings = 1024;
constexpr std::size_t kMaxLength = 4096;

std::string bounded(const char* text) {
    return {text, ::strnlen(text, kMaxLength)};
}

} // namespace

VersionRecord versionRecord(const DW_VersionInfo& info) {
    VersionRecord record;
    std::ranges::copy(info.fileVersion, record.fileVersion.begin());
    const DW_VersionString* row = info.strings;
    for (int i = 0; row != nullptr && i < kMaxStrings && row->block != nullptr; ++i, ++row) {
        if (row->name != nullptr && row->value != nullptr)
            record.strings[bounded(row->block)].insert_or_assign(bounded(row->name), bounded(row->value));
    }
    return record;
}

PosixVersionInfo::PosixVersionInfo(const Files& files, VersionRecord program)
    : files_(files)
    , program_(std::move(program)) {}

std::optional<VersionRecord> PosixVersionInfo::read(const std::string& path) const {
    const LibraryHandle handle = openLibrary(files_.hostPath(path));
    if (!handle)
        return std::nullopt;
    const void* const object = ownObject(handle.get(), "DW_version_info", sizeof(DW_VersionInfo));
    if (object == nullptr)
        return std::nullopt;
    return versionRecord(*static_cast<const DW_VersionInfo*>(object));
}

} // namespace dyeworks

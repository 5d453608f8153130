#pragma once

#include "platform/Files.h"
#include "platform/VersionInfo.h"

struct DW_VersionInfo;

namespace dyeworks {

/// A copy of what a library says of itself, as far as that makes sense: its texts need not end, nor its rows.
[[nodiscard]] VersionRecord versionRecord(const DW_VersionInfo& info);

/// Version information from the data symbol that the SDK's DW_VERSION_INFO puts into a library.
class PosixVersionInfo final : public VersionInfo {
public:
    /// `files` turns paths into the host's form and must outlive this object.
    PosixVersionInfo(const Files& files, VersionRecord program);

    /// Loads the library for as long as it takes to copy what it says.
    [[nodiscard]] std::optional<VersionRecord> read(const std::string& path) const override;
    [[nodiscard]] VersionRecord program() const override { return program_; }

private:
    const Files& files_;
    VersionRecord program_;
};

} // namespace dyeworks

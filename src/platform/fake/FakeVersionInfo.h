#pragma once

#include "platform/VersionInfo.h"

namespace dyeworks {

class FakeVersionInfo final : public VersionInfo {
public:
    /// By path, exactly as the program spells it.
    std::map<std::string, VersionRecord> records;
    VersionRecord programRecord{{1, 0, 2, 0}, {}};

    [[nodiscard]] std::optional<VersionRecord> read(const std::string& path) const override;
    [[nodiscard]] VersionRecord program() const override { return programRecord; }
};

} // namespace dyeworks

#include "platform/fake/FakeVersionInfo.h"

namespace dyeworks {

std::optional<VersionRecord> FakeVersionInfo::read(const std::string& path) const {
    const auto found = records.find(path);
    if (found == records.end())
        return std::nullopt;
    return found->second;
}

} // namespace dyeworks

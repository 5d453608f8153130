#pragma once

#include "core/TlutData.h"
#include "core/TmfImage.h"

#include <optional>

struct PlugInPicture;

namespace dyeworks::plugins {

/// The SDK's records as those of the program's library.
struct SourceRecords {
    TmfImage image;
    std::optional<TlutData> palette;
    std::int32_t firstEntry = 0;
};

/// Nothing when there is no memory.
[[nodiscard]] std::optional<SourceRecords> recordsOf(const ::PlugInPicture& picture);

} // namespace dyeworks::plugins

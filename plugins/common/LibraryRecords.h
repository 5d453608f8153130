#pragma once

#include "common/Records.h"
#include "core/TlutData.h"
#include "core/TmfImage.h"

#include <optional>

namespace dyeworks::plugins {

/// The SDK's records as those of the program's library.
struct LibraryRecords {
    TmfImage image;
    std::optional<TlutData> palette;
    std::int32_t firstEntry = 0;
};

/// Nothing when there is no memory.
[[nodiscard]] std::optional<LibraryRecords> recordsOf(const ::PlugInPicture& picture);

/// The other way: an SDK's image of these texels, or null when there is no memory.
[[nodiscard]] ImageRecord recordOf(const TmfImage& image);

} // namespace dyeworks::plugins

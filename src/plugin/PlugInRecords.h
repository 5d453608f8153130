#pragma once

#include "core/TlutData.h"
#include "core/TmfImage.h"
#include "dyeworks/plugin.h"

#include <memory>

namespace dyeworks {

// The records of plugin.h and the program's own are the same in memory.

[[nodiscard]] ::TmfImage* plainRecord(TmfImage* image) noexcept;
[[nodiscard]] ::TlutData* plainRecord(TlutData* table) noexcept;

/// Of a record that somebody handed in, the program's; null when it is none that can be used: sizes, depth,
/// count or colour type that there are not, or no texels or entries. How large the blocks are cannot be told.
[[nodiscard]] const TmfImage* usable(const ::TmfImage* image) noexcept;
[[nodiscard]] const TlutData* usable(const ::TlutData* table) noexcept;

struct PlainRelease {
    void operator()(::TmfImage* image) const noexcept { DW_freeImage(image); }
    void operator()(::TlutData* table) const noexcept { DW_freePalette(table); }
};
using PlainImage = std::unique_ptr<::TmfImage, PlainRelease>;
using PlainTable = std::unique_ptr<::TlutData, PlainRelease>;

/// Records for whoever takes them with `release`; null when there is no memory.
[[nodiscard]] PlainImage handedOut(TmfImage&& image) noexcept;
[[nodiscard]] PlainTable handedOut(TlutData&& table) noexcept;

} // namespace dyeworks

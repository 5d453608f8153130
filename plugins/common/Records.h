#pragma once

#include "dyeworks/plugin.h"

#include <memory>

namespace dyeworks::plugins {

struct FreeRecord {
    void operator()(::TmfImage* image) const noexcept { DW_freeImage(image); }
    void operator()(::TlutData* palette) const noexcept { DW_freePalette(palette); }
};

/// Records that a plug-in owns until it hands them to the program.
using ImageRecord = std::unique_ptr<::TmfImage, FreeRecord>;
using PaletteRecord = std::unique_ptr<::TlutData, FreeRecord>;

} // namespace dyeworks::plugins

#pragma once

#include "dyeworks/plugin.h"

#include <QString>

namespace dyeworks::plugins {

/// Replaces the file by a PNG file of the image in the palette's colours, of those from `first` on if it has
/// 4 bits, or in greys without a palette. Empty when the file is there; otherwise why not, in the user's
/// language, and a file that was there is as it was.
[[nodiscard]] QString writePngFile(const QString& path, const ::TmfImage& image, const ::TlutData* palette,
                                   std::int32_t first);

} // namespace dyeworks::plugins

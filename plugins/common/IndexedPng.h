#pragma once

#include "dyeworks/plugin.h"

#include <QString>

#include <cstdint>

namespace dyeworks::plugins {

/// Writes an image of 4 or 8 bits as an indexed PNG file of the same depth, its texels unchanged. The colours
/// are those of the palette, for 4 bits its sixteen from `first`, and black where it has none; without a
/// palette they run from black to white. Empty when that was done; otherwise why not, in the user's language,
/// and a file that was there is as it was.
[[nodiscard]] QString writeIndexedPng(const QString& path, const TmfImage& image, const TlutData* palette,
                                      std::int32_t first);

} // namespace dyeworks::plugins

#pragma once

#include "common/Records.h"

#include <QString>

namespace dyeworks::plugins {

struct PngImport {
    ImageRecord image;
    PaletteRecord palette;
    QString refusal; ///< In the user's language. When it is not empty there are no records.
};

/// A PNG file as an image of the current one's depth, and its colours as a palette in place of the current
/// one: of the same colour type and with at least as many entries. Where there is none, greys that RGBA
/// entries would change become IA entries. Of a 4-bit image the colours stand where the current image has its
/// own. The other entries of the current palette stay. Files with a palette keep their indices, which have to
/// fit the depth; all others are reduced to as many colours as it has.
[[nodiscard]] PngImport importPng(const QString& path, const ::PlugInPicture& current);

} // namespace dyeworks::plugins

#pragma once

#include "interchange/PngFile.h"
#include "platform/Result.h"

namespace dyeworks {

/// The picture on the clipboard in the form that keeps most of it: a PNG file's indices, palette and chunk, a
/// bitmap's indices and colours, or else direct colours. UnknownFormat when there is none, or the error of
/// the PNG file when there is nothing else.
[[nodiscard]] Result<PngPicture, InterchangeError> clipboardPicture(const Progress& progress = {});

} // namespace dyeworks

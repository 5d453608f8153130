#pragma once

#include "interchange/InterchangeError.h"
#include "interchange/PngFile.h"
#include "interchange/Progress.h"
#include "platform/Result.h"

#include <cstddef>
#include <span>

namespace dyeworks {

/// Reads a picture file of any format: PNG exactly, with this program's own chunk if there is one, all others
/// as far as the desktop can. UnknownFormat, Damaged, TooLarge, NoMemory or, of PNG, Cancelled.
[[nodiscard]] Result<PngPicture, InterchangeError> readPictureFile(std::span<const std::byte> file,
                                                                   const Progress& progress = {});

} // namespace dyeworks

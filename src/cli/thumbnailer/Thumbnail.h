#pragma once

#include "cli/thumbnailer/EditorSettings.h"
#include "platform/Picture.h"
#include "platform/Result.h"
#include "platform/posix/HostFile.h"

#include <cstdint>
#include <string>

namespace dyeworks {

/// What an open file holds, at most `side` pixels (1 and more) wide and high: a palette as its swatches, an
/// image through the palette that is likely its own, a project as its pictures. `path` is the file's absolute
/// host path, from where other files are found. Takes memory for the picture and a row of an image, whatever
/// the file says. Otherwise a sentence for the user.
[[nodiscard]] Result<Picture, std::string> thumbnail(HostFileReader& file, const std::string& path,
                                                     std::int32_t side, const EditorSettings& settings);

} // namespace dyeworks

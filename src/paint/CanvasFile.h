#pragma once

#include "platform/Files.h"

#include <optional>
#include <string>

namespace dyeworks {

class TextureCanvas;

/// Writes the canvas to `path` as a TMF file. Nothing: written; otherwise why not, the file being as it was.
[[nodiscard]] std::optional<FileError> saveCanvas(const TextureCanvas& canvas, const std::string& path);

} // namespace dyeworks

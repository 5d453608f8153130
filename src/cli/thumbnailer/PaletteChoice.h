#pragma once

#include "cli/thumbnailer/EditorSettings.h"
#include "core/TlutData.h"
#include "platform/Files.h"

#include <optional>
#include <string>

namespace dyeworks {

/// The palette (TLF) in an open file or in the file of that host path; nothing when it holds none.
[[nodiscard]] std::optional<TlutData> readPalette(FileReader& file);
[[nodiscard]] std::optional<TlutData> readPalette(const std::string& hostPath);

/// The palette that an image at a host path is most likely meant to be seen through: the one that the editor
/// has last shown it with, else the one of its name beside it. Nothing when neither can be read.
[[nodiscard]] std::optional<TlutData> paletteFor(const std::string& image, const EditorSettings& settings);

} // namespace dyeworks

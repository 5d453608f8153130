#pragma once

#include <optional>
#include <string>

namespace dyeworks {

class TextureCanvas;

/// Whether a file of this name is a bitmap: it ends in ".bmp", in any case, behind at least two characters.
[[nodiscard]] bool isBmpName(const std::string& path);

/// Reads a BMP file or, by any other name, a TMF file. False, leaving the canvas empty, when it cannot be
/// read, which has been reported.
[[nodiscard]] bool loadCanvas(TextureCanvas& canvas, const std::string& path);

/// Writes the canvas as a BMP file or, by any other name, a TMF file. Nothing: written; otherwise why not, in
/// a sentence for the user, the file being as it was; `advice` then is what can be done about it.
[[nodiscard]] std::optional<std::string> saveCanvas(const TextureCanvas& canvas, const std::string& path,
                                                    std::string* advice = nullptr);

} // namespace dyeworks

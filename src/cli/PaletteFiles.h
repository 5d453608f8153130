#pragma once

#include "core/TlutData.h"
#include "palette/AttachedImage.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace dyeworks {

class Console;
class TextureCanvas;

/// A palette file and the image files that show it, to be changed together.
class PaletteFiles {
public:
    PaletteFiles();
    ~PaletteFiles();
    PaletteFiles(const PaletteFiles&) = delete;
    PaletteFiles& operator=(const PaletteFiles&) = delete;

    /// Reads the palette. False: told.
    [[nodiscard]] bool readPalette(const std::string& name, Console& console);
    /// Reads an image that shows it, of 4 bits from entry 16 * `bank` on. One that is named twice counts
    /// once, and cannot show two banks. False: told.
    [[nodiscard]] bool readImage(const std::string& name, std::int32_t bank, Console& console);
    /// Reads all images of a project's pictures that have this palette. False: told.
    [[nodiscard]] bool readProject(const std::string& name, Console& console);

    [[nodiscard]] const std::string& name() const noexcept { return name_; }
    [[nodiscard]] TlutData& palette() noexcept { return palette_; }
    [[nodiscard]] std::vector<AttachedImage> images() const;
    /// Gives the texels of image `index` the values that the map has for theirs.
    void renumberImage(std::size_t index, const ByteTable& map);

    /// Writes what has changed, into the folder or, where that is empty, in place. When a file cannot be
    /// written, those before it get their old contents back. False: told.
    [[nodiscard]] bool write(const std::string& folder, Console& console);

private:
    struct Image;

    std::string name_;
    std::string paletteBytes_; ///< As they were read.
    TlutData palette_;
    std::vector<std::unique_ptr<Image>> images_;
};

} // namespace dyeworks

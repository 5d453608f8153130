#include "paint/CanvasFile.h"

#include "core/TmfFormat.h"
#include "paint/TextureCanvas.h"

namespace dyeworks {

std::optional<FileError> saveCanvas(const TextureCanvas& canvas, const std::string& path) {
    const std::unique_ptr<TmfImage> image = canvas.ToImage();
    if (image == nullptr)
        return FileError::TooLarge;
    return writeTmf(*image, path);
}

} // namespace dyeworks

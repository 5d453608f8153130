#include "paint/CanvasFile.h"

#include "core/TmfFormat.h"
#include "paint/TextureCanvas.h"
#include "platform/Platform.h"

namespace dyeworks {

std::optional<FileError> saveCanvas(const TextureCanvas& canvas, const std::string& path) {
    const std::unique_ptr<TmfImage> image = canvas.ToImage();
    if (image == nullptr)
        return FileError::TooLarge;
    const std::optional<ByteBuffer> file = serialiseTmf(*image);
    if (!file)
        return FileError::TooLarge;
    return platform().files().write(path, file->bytes());
}

} // namespace dyeworks

#include "paint/CanvasFile.h"

#include "core/TmfFormat.h"
#include "paint/TextureCanvas.h"
#include "platform/Platform.h"
#include "platform/TextCase.h"

namespace dyeworks {

bool isBmpName(const std::string& path) {
    const std::size_t stop = path.rfind('.');
    return stop != std::string::npos && stop > 1 && equalIgnoringCase(path.substr(stop), ".bmp");
}

bool loadCanvas(TextureCanvas& canvas, const std::string& path) {
    if (!isBmpName(path))
        return canvas.LoadTmf(path);
    const TextureCanvas::BmpRead read = canvas.ReadBmp(path);
    if (read == TextureCanvas::BmpRead::Failed)
        applicationMessage(text(StringId::CannotReadFile, {displayPath(path)}));
    return read == TextureCanvas::BmpRead::Done;
}

std::optional<FileError> saveCanvas(const TextureCanvas& canvas, const std::string& path) {
    if (isBmpName(path))
        return canvas.block().empty() ? FileError::Other : platform().files().write(path, canvas.block());
    if (canvas.bitsPerPixel() != 4 && canvas.bitsPerPixel() != 8)
        return FileError::Other;
    const std::unique_ptr<TmfImage> image = canvas.ToImage();
    if (image == nullptr)
        return FileError::TooLarge;
    return writeTmf(*image, path);
}

} // namespace dyeworks

#include "paint/CanvasFile.h"

#include "paint/TextureCanvas.h"
#include "platform/FileMessages.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "platform/TextCase.h"

#include <variant>

namespace dyeworks {

namespace {

std::string reasonOf(const TextureCanvas::BmpFailure& failure) {
    if (const auto* const error = std::get_if<FileError>(&failure))
        return describe(*error);
    switch (std::get<BmpError>(failure)) {
    case BmpError::Truncated:
        return text(StringId::BmpErrorTruncated);
    case BmpError::BadSize:
        return text(StringId::BmpErrorBadSize);
    default:
        return text(StringId::BmpErrorNotABitmap);
    }
}

std::optional<std::string> reasonOf(const std::optional<FileError>& error, std::string* advice) {
    if (!error)
        return std::nullopt;
    if (advice != nullptr)
        *advice = adviceOnSaving(*error);
    return describe(*error);
}

} // namespace

bool isBmpName(const std::string& path) {
    const std::size_t stop = path.rfind('.');
    return stop != std::string::npos && stop > 1 && equalIgnoringCase(path.substr(stop), ".bmp");
}

bool loadCanvas(TextureCanvas& canvas, const std::string& path) {
    if (!isBmpName(path))
        return canvas.LoadTmf(path);
    const std::optional<TextureCanvas::BmpFailure> failure = canvas.ReadBmp(path);
    if (!failure)
        return true;
    if (const auto* const error = std::get_if<FileError>(&*failure))
        tellNotOpened(path, *error);
    else if (*failure != TextureCanvas::BmpFailure(BmpError::Compressed))
        applicationMessage(text(StringId::CannotOpenFile, {displayPath(path), reasonOf(*failure)}));
    return false;
}

std::optional<std::string> saveCanvas(const TextureCanvas& canvas, const std::string& path,
                                      std::string* advice) {
    if (canvas.block().empty())
        return describe(FileError::Other);
    if (isBmpName(path))
        return reasonOf(platform().files().write(path, canvas.block()), advice);
    if (canvas.bitsPerPixel() != 4 && canvas.bitsPerPixel() != 8)
        return text(StringId::DepthTakesABitmap, {std::to_string(canvas.bitsPerPixel())});
    return reasonOf(canvas.writeTmfFile(path), advice);
}

} // namespace dyeworks

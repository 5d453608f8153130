#include "core/TmfFormat.h"
#include "paint/PixelRuns.h"
#include "paint/TextureCanvas.h"
#include "platform/FileMessages.h"
#include "platform/Platform.h"
#include "platform/StringId.h"

#include <algorithm>
#include <new>
#include <optional>
#include <vector>

namespace dyeworks {

namespace {

/// Whether the image's rows are laid out like those of a canvas of the same depth.
bool hasCanvasRows(const TmfImage& image) {
    return (image.bits == 4 || image.bits == 8) && image.holdsTexels();
}

} // namespace

std::unique_ptr<TmfImage> TextureCanvas::ToImage() const {
    std::unique_ptr<TmfImage> image(new (std::nothrow) TmfImage);
    if (image == nullptr || !image->create(width_, height_, bitsPerPixel_))
        return nullptr;
    if (!isPlain() || !hasCanvasRows(*image)) {
        for (std::int32_t y = 0; y < height_; ++y) {
            for (std::int32_t x = 0; x < width_; ++x)
                image->setTexel(x, y, GetPixel(x, y));
        }
        return image;
    }
    visitDepth<PixelRuns>(bitsPerPixel_, [&](auto pixels) {
        const std::int64_t stride = image->stride();
        for (std::int64_t y = 0; y < height_; ++y)
            pixels.copy(image->texels + (height_ - 1 - y) * stride, 0, row(y), 0, width_);
    });
    return image;
}

void TextureCanvas::FromImage(const TmfImage& image) {
    // A damaged record may tell sides without having texels, or sides that no image has.
    if (!image.holdsTexels())
        return;
    if (!isPlain() || !hasCanvasRows(image) || image.bits != bitsPerPixel_) {
        const std::int32_t right = isPlain() ? std::min(image.width, width_) : image.width;
        const std::int32_t bottom = isPlain() ? std::min(image.height, height_) : image.height;
        for (std::int32_t y = 0; y < bottom; ++y) {
            for (std::int32_t x = 0; x < right; ++x)
                SetPixel(x, y, image.getTexel(x, y));
        }
        return;
    }
    const Range xs = overlap({0, std::int64_t{image.width} - 1}, columns());
    const Range ys = overlap({0, std::int64_t{image.height} - 1}, rows());
    visitDepth<PixelRuns>(bitsPerPixel_, [&](auto pixels) {
        const std::int64_t stride = image.stride();
        for (std::int64_t y = ys.first; y <= ys.last; ++y)
            pixels.copy(row(y), 0, image.texels + (image.height - 1 - y) * stride, 0, xs.count());
    });
    extendChanged(xs, ys);
}

bool TextureCanvas::LoadTmf(const std::string& path) {
    Destroy();
    if (!isPlain()) {
        TmfImage image;
        if (!image.readTmf(path) ||
            !Create(image.width, image.height, 1, static_cast<std::uint16_t>(image.bits)))
            return false;
        FromImage(image);
        return true;
    }
    // An image's rows lie as a canvas's do.
    const bool read = readTmfRows(
        path, [&](const TmfHeader& header, bool willBeFilled) -> Result<std::span<std::byte>, TmfError> {
            const auto depth = static_cast<std::uint16_t>(header.bits);
            if (!TmfImage::canBe(header.width, header.height, header.bits))
                return TmfError{TmfError::Kind::NoImage};
            if (!blockSizeFor(header.width, header.height, depth)) {
                // The file is as it should be.
                tellNotOpened(path, FileError::TooLarge);
                return TmfError{TmfError::Kind::Told};
            }
            if (!allocate(header.width, header.height, 1, depth,
                          willBeFilled ? BlockContents::Undefined : BlockContents::Zeroed))
                return TmfError{TmfError::Kind::NoImage};
            return std::as_writable_bytes(pixelRows());
        });
    if (!read) {
        Destroy();
        return false;
    }
    clearRowPadding();
    extendChanged(columns(), rows());
    return true;
}

void TextureCanvas::clearRowPadding() {
    if (rowsHaveNoPadding())
        return;
    visitDepth<PixelRuns>(bitsPerPixel_, [&](auto pixels) {
        const std::int64_t room = std::int64_t{stride_} * 8 / bitsPerPixel_;
        for (std::int32_t y = 0; y < height_; ++y)
            pixels.fill(row(y), width_, room, 0);
    });
}

bool TextureCanvas::SaveTmf(const std::string& path) const {
    return !writeTmfFile(path);
}

std::optional<FileError> TextureCanvas::writeTmfFile(const std::string& path) const {
    // An image's rows lie as a canvas's do.
    if (isPlain() && (bitsPerPixel_ == 4 || bitsPerPixel_ == 8))
        return writeTmf({width_, height_, bitsPerPixel_, std::as_bytes(pixelRows())}, path);
    const std::unique_ptr<TmfImage> image = ToImage();
    return image == nullptr ? FileError::TooLarge : writeTmf(*image, path);
}

std::optional<TextureCanvas::BmpFailure> TextureCanvas::ReadBmp(const std::string& path) {
    Destroy();
    const Result<ByteBuffer, FileError> file = platform().files().read(path);
    if (!file)
        return file.error();
    const Result<BmpImage, BmpError> bitmap = parseBmp(file.value().bytes());
    if (!bitmap) {
        if (bitmap.error() == BmpError::Compressed)
            applicationMessage(text(StringId::BmpErrorCompressed), MessageIcon::None);
        return bitmap.error();
    }
    if (!CreateFrom(bitmap.value()))
        return FileError::TooLarge;
    return std::nullopt;
}

bool TextureCanvas::LoadBmp(const std::string& path) {
    return !ReadBmp(path);
}

bool TextureCanvas::CopyToClipboard(const Rect& rectangle) const {
    const Rect part = rectangle.normalised();
    const std::unique_ptr<TextureCanvas> copy = CopyRect(part.left, part.top, part.right, part.bottom);
    return copy != nullptr && platform().clipboard().setBitmap(copy->packedBitmap());
}

std::unique_ptr<TextureCanvas> TextureCanvas::PasteFromClipboard() {
    const std::optional<std::vector<std::byte>> bytes = platform().clipboard().bitmap();
    if (!bytes)
        return nullptr;
    const Result<BmpImage, BmpError> bitmap = parsePackedBitmap(*bytes);
    auto canvas = std::unique_ptr<TextureCanvas>(new (std::nothrow) TextureCanvas);
    if (!bitmap || canvas == nullptr || !canvas->CreateFrom(bitmap.value()))
        return nullptr;
    return canvas;
}

bool TextureCanvas::SaveBmp(const std::string& path) const {
    return block_ != nullptr && !platform().files().write(path, block()).has_value();
}

} // namespace dyeworks

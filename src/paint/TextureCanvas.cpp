#include "paint/TextureCanvas.h"

#include "paint/PixelAccess.h"
#include "platform/LargeBlock.h"
#include "platform/LittleEndian.h"

#include <algorithm>
#include <cassert>
#include <cstring>
#include <limits>
#include <new>
#include <typeinfo>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::size_t kColourSize = 4;

std::size_t pixelOffsetFor(std::uint16_t bitsPerPixel) {
    return bmp::kHeadersSize + kColourSize * bmp::fullColourCount(bitsPerPixel);
}

} // namespace

TextureCanvas::TextureCanvas(const TmfImage& image) {
    if (image.bits < 0 || image.bits > std::numeric_limits<std::uint16_t>::max())
        return;
    if (TextureCanvas::Create(image.width, image.height, 1, static_cast<std::uint16_t>(image.bits)))
        FromImage(image);
}

TextureCanvas::~TextureCanvas() = default;

void TextureCanvas::Destroy() {
    block_.reset();
    blockSize_ = 0;
    pixelOffset_ = 0;
    stride_ = 0;
    width_ = 0;
    height_ = 0;
    planes_ = 0;
    bitsPerPixel_ = 0;
    ResetChangedRect();
    resetWrittenRect();
}

bool TextureCanvas::CreateLike(const TextureCanvas& other) {
    return Create(other.width_, other.height_, other.planes_, other.bitsPerPixel_);
}

bool TextureCanvas::Create(std::int32_t width, std::int32_t height, std::uint16_t planes,
                           std::uint16_t bitsPerPixel) {
    return allocate(width, height, planes, bitsPerPixel, BlockContents::Zeroed);
}

bool TextureCanvas::allocate(std::int32_t width, std::int32_t height, std::uint16_t planes,
                             std::uint16_t bitsPerPixel, BlockContents contents) {
    Destroy();
    const std::optional<std::size_t> size = blockSizeFor(width, height, bitsPerPixel);
    if (!size)
        return false;
    block_ = allocateCanvasBlock(*size, contents);
    if (block_ == nullptr)
        return false;
    if (contents == BlockContents::Undefined)
        prepareBlock(block_.get(), *size);
    blockSize_ = *size;
    pixelOffset_ = pixelOffsetFor(bitsPerPixel);
    stride_ = static_cast<std::uint32_t>(bmp::stride(width, bitsPerPixel));
    width_ = width;
    height_ = height;
    planes_ = planes;
    bitsPerPixel_ = bitsPerPixel;
    written_ = wholeRect();
    writeHeaders(bmp::fullColourCount(bitsPerPixel));
    return true;
}

std::optional<std::size_t> TextureCanvas::blockSizeFor(std::int32_t width, std::int32_t height,
                                                       std::uint16_t bitsPerPixel) {
    if (width < 0 || height < 0)
        return std::nullopt;
    const std::size_t pixelOffset = pixelOffsetFor(bitsPerPixel);
    const std::int64_t stride = bmp::stride(width, bitsPerPixel);
    const std::int64_t room = kMaxBlockSize - static_cast<std::int64_t>(pixelOffset);
    if (height > 0 && stride > room / height)
        return std::nullopt;
    return pixelOffset + static_cast<std::size_t>(stride * height);
}

void TextureCanvas::writeHeaders(std::uint32_t colourCount) {
    std::memset(block_.get(), 0, pixelOffset_);
    const std::span<std::byte> header(block_.get(), bmp::kHeadersSize);
    writeU16(header, bmp::kType, bmp::kFileType);
    writeU32(header, bmp::kFileSize, static_cast<std::uint32_t>(blockSize_));
    writeU32(header, bmp::kPixelOffset, static_cast<std::uint32_t>(pixelOffset_));
    writeU32(header, bmp::kHeaderSize, static_cast<std::uint32_t>(bmp::kInfoHeaderSize));
    writeU32(header, bmp::kWidth, static_cast<std::uint32_t>(width_));
    writeU32(header, bmp::kHeight, static_cast<std::uint32_t>(height_));
    writeU16(header, bmp::kPlanes, planes_);
    writeU16(header, bmp::kBits, bitsPerPixel_);
    writeU32(header, bmp::kColoursUsed, colourCount);
}

bool TextureCanvas::CreateFrom(const BmpImage& bitmap) {
    if (!allocate(bitmap.width, bitmap.height, bitmap.planes, bitmap.bitsPerPixel, BlockContents::Undefined))
        return false;
    const std::span<std::byte> header(block_.get(), bmp::kHeadersSize);
    writeU32(header, bmp::kHorizontalResolution, bitmap.horizontalResolution);
    writeU32(header, bmp::kVerticalResolution, bitmap.verticalResolution);

    std::byte* colour = block_.get() + bmp::kHeadersSize;
    for (std::size_t at = 0; at < bitmap.colours.size(); at += bitmap.colourSize, colour += kColourSize)
        std::copy_n(bitmap.colours.data() + at, bitmap.colourSize, colour);

    assert(bitmap.rows.size() == rowBytes());
    // Rows without bytes may be billions.
    if (!bitmap.topDown || stride_ == 0) {
        std::copy(bitmap.rows.begin(), bitmap.rows.end(), block_.get() + pixelOffset_);
        return true;
    }
    for (std::int32_t y = 0; y < height_; ++y)
        std::memcpy(row(y), bitmap.rows.data() + static_cast<std::size_t>(y) * stride_, stride_);
    return true;
}

void TextureCanvas::SwapWith(TextureCanvas& other) noexcept {
    std::swap(block_, other.block_);
    std::swap(blockSize_, other.blockSize_);
    std::swap(pixelOffset_, other.pixelOffset_);
    std::swap(stride_, other.stride_);
    std::swap(width_, other.width_);
    std::swap(height_, other.height_);
    std::swap(planes_, other.planes_);
    std::swap(bitsPerPixel_, other.bitsPerPixel_);
    std::swap(changed_, other.changed_);
    std::swap(written_, other.written_);
}

bool TextureCanvas::PutPixel(std::int32_t x, std::int32_t y, std::uint32_t value) {
    return SetPixel(x, y, value);
}

std::uint32_t TextureCanvas::GetPixel(std::int32_t x, std::int32_t y) const {
    if (x < 0 || y < 0 || x >= width_ || y >= height_)
        return 0;
    const std::uint8_t* pixels = row(y);
    return visitDepth<PixelAccess>(bitsPerPixel_, [=](auto access) { return access.get(pixels, x); });
}

bool TextureCanvas::SetPixel(std::int32_t x, std::int32_t y, std::uint32_t value) {
    if (x < 0 || y < 0 || x >= width_ || y >= height_)
        return false;
    std::uint8_t* pixels = row(y);
    visitDepth<PixelAccess>(bitsPerPixel_, [=](auto access) { access.set(pixels, x, value); });
    ExtendChangedRect(x, y);
    return true;
}

std::uint32_t TextureCanvas::GetColorCount() const {
    if (block_ == nullptr || bitsPerPixel_ > 8)
        return 0;
    const std::uint32_t used = readU32(block().first(bmp::kHeadersSize), bmp::kColoursUsed);
    return used != 0 ? used : bmp::fullColourCount(bitsPerPixel_);
}

bool TextureCanvas::holdsColours() const noexcept {
    return bitsPerPixel_ == 16 || bitsPerPixel_ == 24 || bitsPerPixel_ == 32;
}

void TextureCanvas::ExtendChangedRect(std::int32_t x, std::int32_t y) {
    extendChanged({x, x}, {y, y});
}

void TextureCanvas::extendChanged(Range columns, Range rows) {
    if (columns.empty() || rows.empty())
        return;
    const Rect area{static_cast<std::int32_t>(columns.first), static_cast<std::int32_t>(rows.first),
                    static_cast<std::int32_t>(columns.last), static_cast<std::int32_t>(rows.last)};
    changed_ = unionOf(changed_, area);
    written_ = unionOf(written_, area);
}

void TextureCanvas::ApplyPalette(const TextureLookupTable& palette, std::int32_t first) {
    const std::uint32_t count = bmp::fullColourCount(bitsPerPixel_);
    const std::int64_t start = count == 256 ? 0 : first;
    const std::span<std::uint8_t> colours = colourTable();
    for (std::size_t i = 0; i < std::min<std::size_t>(count, colours.size() / kColourSize); ++i) {
        const std::int64_t index = start + static_cast<std::int64_t>(i);
        if (index > std::numeric_limits<std::int32_t>::max())
            break;
        std::uint8_t* colour = colours.data() + i * kColourSize;
        palette.toRgbQuad(static_cast<std::int32_t>(index), colour[0], colour[1], colour[2], colour[3]);
    }
    // Colours alone: no pixel was written.
    SetChangedRect(wholeRect());
}

void TextureCanvas::copyColourTableFrom(const TextureCanvas& source) {
    const std::span<const std::uint8_t> from = source.colourTable();
    const std::span<std::uint8_t> to = colourTable();
    std::copy_n(from.begin(), std::min(from.size(), to.size()), to.begin());
}

std::span<const std::byte> TextureCanvas::block() const noexcept {
    return {block_.get(), blockSize_};
}

std::span<const std::byte> TextureCanvas::packedBitmap() const noexcept {
    return block_ == nullptr ? block() : block().subspan(bmp::kFileHeaderSize);
}

std::span<const std::uint8_t> TextureCanvas::colourTable() const noexcept {
    if (block_ == nullptr)
        return {};
    const std::size_t room = pixelOffset_ - bmp::kHeadersSize;
    return {reinterpret_cast<const std::uint8_t*>(block_.get()) + bmp::kHeadersSize,
            std::min(kColourSize * GetColorCount(), room)};
}

std::span<std::uint8_t> TextureCanvas::colourTable() noexcept {
    const std::span<const std::uint8_t> table = std::as_const(*this).colourTable();
    return {const_cast<std::uint8_t*>(table.data()), table.size()};
}

std::span<const std::uint8_t> TextureCanvas::pixelRows() const noexcept {
    return {reinterpret_cast<const std::uint8_t*>(block_.get()) + pixelOffset_, rowBytes()};
}

std::span<std::uint8_t> TextureCanvas::pixelRows() noexcept {
    const std::span<const std::uint8_t> rows = std::as_const(*this).pixelRows();
    return {const_cast<std::uint8_t*>(rows.data()), rows.size()};
}

bool TextureCanvas::isPlain() const noexcept {
    return typeid(*this) == typeid(TextureCanvas);
}

bool TextureCanvas::hasGeometryOf(const TextureCanvas& other) const noexcept {
    return width_ == other.width_ && height_ == other.height_ && planes_ == other.planes_ &&
           bitsPerPixel_ == other.bitsPerPixel_;
}

bool TextureCanvas::sharesRunsWith(const TextureCanvas& other) const noexcept {
    return isPlain() && other.isPlain() && this != &other && bitsPerPixel_ == other.bitsPerPixel_;
}

std::size_t TextureCanvas::rowBytes() const noexcept {
    return blockSize_ - pixelOffset_;
}

std::uint32_t TextureCanvas::depthMask() const noexcept {
    return visitDepth<PixelAccess>(bitsPerPixel_, [](auto access) { return decltype(access)::kMask; });
}

} // namespace dyeworks

#pragma once

#include "core/TextureLookupTable.h"
#include "core/TmfImage.h"
#include "paint/BmpFormat.h"
#include "paint/CanvasBlock.h"
#include "paint/Range.h"
#include "paint/Rect.h"
#include "paint/Surface.h"
#include "platform/Files.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <variant>

namespace dyeworks {

/// The editing buffer of an image: one block of memory laid out as a complete BMP file (file header, info
/// header, colour table, bottom-up rows), so that it goes to the display, to disk and to the clipboard as it
/// stands. (0, 0) is the top-left pixel. Every pixel written inside the canvas extends its changed rectangle;
/// pixels outside are left alone.
///
/// `SetPixel` and `GetPixel` define what every primitive does. A canvas of exactly this class takes a faster
/// way over whole runs of pixels, with the same result; a derived class sees each single pixel.
class TextureCanvas {
public:
    static constexpr std::int64_t kMaxBlockSize = std::int64_t{1} << 30;
    static constexpr std::int32_t kMaxSeeds =
        4096; ///< Held by a flood fill; what would exceed them is dropped.
    static constexpr std::uint32_t kFlipHorizontal = 1;
    static constexpr std::uint32_t kFlipVertical = 2;

    TextureCanvas() = default;
    explicit TextureCanvas(const TmfImage& image);
    TextureCanvas(const TextureCanvas&) = delete;
    TextureCanvas& operator=(const TextureCanvas&) = delete;

    virtual ~TextureCanvas();
    virtual void Destroy();
    virtual bool CreateLike(const TextureCanvas& other);
    /// A block of zeroes. True except when the block cannot be had: a negative side, more than 1 GiB, or no
    /// memory; the canvas is then empty.
    virtual bool Create(std::int32_t width, std::int32_t height, std::uint16_t planes,
                        std::uint16_t bitsPerPixel);
    /// Takes over a bitmap: size, planes, depth, resolution, colours and pixels. The canvas has its usual
    /// layout afterwards, with a full colour table and bottom-up rows, whatever the bitmap's. False, leaving
    /// the canvas empty, when the block cannot be had.
    bool CreateFrom(const BmpImage& bitmap);

    /// Exchanges everything with the other canvas. Needs no memory.
    void SwapWith(TextureCanvas& other) noexcept;

    // Shapes. Corners are inclusive and may come in any order.
    /// Bresenham's algorithm (1965), both ends drawn. The result is that of the last pixel.
    virtual bool DrawLine(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                          std::uint32_t value);
    virtual void DrawBox(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                         std::uint32_t value);
    virtual void FillBox(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                         std::uint32_t value);
    /// The ellipse inscribed in the rectangle; nothing when either side is a single pixel.
    virtual void DrawEllipse(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                             std::uint32_t value);
    virtual void FillEllipse(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                             std::uint32_t value);
    /// Fills the 4-connected region around the seed (scan-line seed fill, Smith 1979). `value` is cut to the
    /// canvas's depth first.
    virtual void FloodFill(std::int32_t x, std::int32_t y, std::uint32_t value);
    /// Within `rectangle` (inclusive), gives every pixel that equals the one at (x, y) the value, which is
    /// cut to the canvas's depth first. Nothing when (x, y) lies outside the rectangle.
    virtual void ReplaceColor(const Rect& rectangle, std::int32_t x, std::int32_t y, std::uint32_t value);
    /// Mirrors the rectangle (inclusive): kFlipHorizontal, kFlipVertical or both.
    virtual void Flip(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                      std::uint32_t flags);

    /// What the Pixel and Pen tools call; the same as `SetPixel`.
    virtual bool PutPixel(std::int32_t x, std::int32_t y, std::uint32_t value);
    /// 0 outside the canvas.
    [[nodiscard]] virtual std::uint32_t GetPixel(std::int32_t x, std::int32_t y) const;
    /// Stores the low bits of `value`. False outside the canvas. This is the definition of every write: a
    /// derived class that overrides it sees each pixel of every primitive.
    virtual bool SetPixel(std::int32_t x, std::int32_t y, std::uint32_t value);

    /// Copies the part whose top-left is (x, y) and whose size is the target's into the target. Always true.
    virtual bool CopyTo(TextureCanvas& target, std::int32_t x, std::int32_t y) const;
    /// A new canvas with that part (inclusive, x1 <= x2, y1 <= y2) and the colour table; null when it cannot
    /// be made.
    [[nodiscard]] virtual std::unique_ptr<TextureCanvas> CopyRect(std::int32_t x1, std::int32_t y1,
                                                                  std::int32_t x2, std::int32_t y2) const;
    /// A full copy with an empty changed rectangle; null when it cannot be made.
    [[nodiscard]] virtual std::unique_ptr<TextureCanvas> Clone() const;
    /// Scales the whole source into the rectangle (right and bottom exclusive), nearest neighbour. Always
    /// true.
    virtual bool StretchPaste(const TextureCanvas& source, std::int32_t x1, std::int32_t y1, std::int32_t x2,
                              std::int32_t y2);
    /// Takes over all pixels, not the colours, of a canvas of the same size, planes and depth; false for any
    /// other. The whole canvas becomes the changed rectangle.
    virtual bool CopyFrom(const TextureCanvas& source);
    /// The same for the pixels inside the rectangle (inclusive) alone, which become the changed rectangle's
    /// as any others that are written.
    bool CopyRectFrom(const TextureCanvas& source, const Rect& rectangle);

    /// Draws the part `source` of the picture, in its colours, over the area `destination` of the surface;
    /// both with right and bottom exclusive. The result is the number of surface rows written.
    virtual std::int32_t Draw(Surface& surface, const Rect& destination, const Rect& source) const;
    /// The same in the colours of another table, laid out as `colourTable`.
    std::int32_t DrawInColours(Surface& surface, const Rect& destination, const Rect& source,
                               std::span<const std::uint8_t> colours) const;

    /// Why a BMP file could not be read: the fault of the file or of what is in it.
    using BmpFailure = std::variant<FileError, BmpError>;
    /// Reads an uncompressed BMP file, or leaves the canvas empty. Nothing: read. A compressed file has been
    /// reported to the user.
    [[nodiscard]] std::optional<BmpFailure> ReadBmp(const std::string& path);
    /// The same. False when the file cannot be read.
    virtual bool LoadBmp(const std::string& path);
    virtual bool SaveBmp(const std::string& path) const;
    /// Reads (writes) a TMF file; a file that cannot be read has been reported and leaves the canvas empty.
    virtual bool LoadTmf(const std::string& path);
    virtual bool SaveTmf(const std::string& path) const;
    /// The same, telling why it was not written; nothing when it was. TooLarge stands for a depth or sides
    /// that no file can hold, and for too little memory.
    [[nodiscard]] std::optional<FileError> writeTmfFile(const std::string& path) const;

    /// Puts the pixels of the rectangle (inclusive) with the colour table on the clipboard, as a packed
    /// bitmap. False, leaving the clipboard alone, when that cannot be done.
    bool CopyToClipboard(const Rect& rectangle) const;
    /// The bitmap on the clipboard as a canvas, or null when there is none that a canvas can hold.
    [[nodiscard]] static std::unique_ptr<TextureCanvas> PasteFromClipboard();

    /// Entries of the colour table: the header's number when it has one, otherwise 2^bits; 0 above 8 bits.
    [[nodiscard]] std::uint32_t GetColorCount() const;
    /// Whether pixels are colours themselves and need no table: 16, 24 or 32 bits.
    [[nodiscard]] bool holdsColours() const noexcept;

    void ExtendChangedRect(std::int32_t x, std::int32_t y);
    /// Inclusive; nothing when no pixel has changed.
    [[nodiscard]] const std::optional<Rect>& changedRect() const noexcept { return changed_; }
    void ResetChangedRect() noexcept { changed_.reset(); }
    /// Puts back a rectangle that `changedRect` gave.
    void SetChangedRect(const Rect& changed) noexcept { changed_ = changed; }

    // A second account of the pixels that were written, for whoever keeps a copy of them. Only this call
    // settles it; what becomes of the changed rectangle meanwhile does not matter. A block that was made anew
    // counts as written all over.
    /// Inclusive; nothing when no pixel was written.
    [[nodiscard]] const std::optional<Rect>& writtenRect() const noexcept { return written_; }
    void resetWrittenRect() noexcept { written_.reset(); }

    /// Gives the colour table the display colours of the palette's entries from `first` on; 256-colour
    /// canvases start at entry 0. Entries that the palette lacks keep their colour. The whole canvas counts
    /// as changed.
    void ApplyPalette(const TextureLookupTable& palette, std::int32_t first);

    /// A new image with this canvas's pixels, or null when it cannot be made (a depth or size that an image
    /// cannot have).
    [[nodiscard]] std::unique_ptr<TmfImage> ToImage() const;
    /// Writes every texel of the image at its place.
    void FromImage(const TmfImage& image);

    // What the headers say; 0 without a block.
    [[nodiscard]] std::int32_t width() const noexcept { return width_; }
    [[nodiscard]] std::int32_t height() const noexcept { return height_; }
    [[nodiscard]] std::uint16_t planes() const noexcept { return planes_; }
    [[nodiscard]] std::uint16_t bitsPerPixel() const noexcept { return bitsPerPixel_; }
    [[nodiscard]] std::uint32_t stride() const noexcept { return stride_; }

    /// The whole block: a BMP file as it stands. From the info header on it is a packed device-independent
    /// bitmap. Empty without a block.
    [[nodiscard]] std::span<const std::byte> block() const noexcept;
    [[nodiscard]] std::span<const std::byte> packedBitmap() const noexcept;
    /// Blue, green, red, reserved for each of `GetColorCount` entries.
    [[nodiscard]] std::span<const std::uint8_t> colourTable() const noexcept;
    [[nodiscard]] std::span<std::uint8_t> colourTable() noexcept;
    /// As many entries as both have; the others stay.
    void copyColourTableFrom(const TextureCanvas& source);
    /// The bottom-up pixel rows.
    [[nodiscard]] std::span<const std::uint8_t> pixelRows() const noexcept;
    /// To fill a canvas that was just made; what is written here is noted nowhere.
    [[nodiscard]] std::span<std::uint8_t> pixelRows() noexcept;

private:
    class PixelPen;
    class SpanPen;

    /// Whether nobody overrides the pixel access, so that runs of pixels may be written directly.
    [[nodiscard]] bool isPlain() const noexcept;
    /// Whether runs can go from this canvas to `other` without changing the order of reads and writes.
    [[nodiscard]] bool sharesRunsWith(const TextureCanvas& other) const noexcept;

    bool allocate(std::int32_t width, std::int32_t height, std::uint16_t planes, std::uint16_t bitsPerPixel,
                  BlockContents contents);
    /// Of a canvas with headers and colour table; none when that is more than a canvas can have.
    [[nodiscard]] static std::optional<std::size_t> blockSizeFor(std::int32_t width, std::int32_t height,
                                                                 std::uint16_t bitsPerPixel);
    void clearRowPadding();
    void writeHeaders(std::uint32_t colourCount);
    /// Bytes of all pixel rows.
    [[nodiscard]] std::size_t rowBytes() const noexcept;

    [[nodiscard]] Range columns() const noexcept { return {0, std::int64_t{width_} - 1}; }
    [[nodiscard]] Range rows() const noexcept { return {0, std::int64_t{height_} - 1}; }
    [[nodiscard]] std::uint8_t* row(std::int64_t y) noexcept {
        return reinterpret_cast<std::uint8_t*>(block_.get()) + pixelOffset_ +
               (height_ - 1 - y) * std::int64_t{stride_};
    }
    [[nodiscard]] const std::uint8_t* row(std::int64_t y) const noexcept {
        return const_cast<TextureCanvas*>(this)->row(y);
    }
    /// Whether one row's last pixel is followed by another's first.
    [[nodiscard]] bool rowsHaveNoPadding() const noexcept {
        return std::int64_t{width_} * bitsPerPixel_ == std::int64_t{stride_} * 8;
    }
    /// The bits of a value that a pixel keeps.
    [[nodiscard]] std::uint32_t depthMask() const noexcept;

    [[nodiscard]] bool hasGeometryOf(const TextureCanvas& other) const noexcept;
    [[nodiscard]] Rect wholeRect() const noexcept { return {0, 0, width_ - 1, height_ - 1}; }
    void extendChanged(Range columns, Range rows);
    void cutRows(const TextureCanvas& source, std::int64_t x, std::int64_t y);

    void floodFillByPixels(std::int32_t x, std::int32_t y, std::uint32_t value, std::uint32_t target);
    void floodFillByRuns(std::int32_t x, std::int32_t y, std::uint32_t value, std::uint32_t target);
    void replaceByPixels(const Rect& area, std::uint32_t old, std::uint32_t value);
    void replaceByRuns(const Rect& area, std::uint32_t old, std::uint32_t value);
    void flipByPixels(const Rect& area, std::uint32_t flags);
    void flipByRuns(const Rect& area, std::uint32_t flags);
    void copyToByRuns(TextureCanvas& target, std::int32_t x, std::int32_t y) const;

    CanvasBlock block_;
    std::size_t blockSize_ = 0;
    std::size_t pixelOffset_ = 0; ///< Of the rows in the block.
    std::uint32_t stride_ = 0;
    std::int32_t width_ = 0;
    std::int32_t height_ = 0;
    std::uint16_t planes_ = 0;
    std::uint16_t bitsPerPixel_ = 0;
    // Inclusive.
    std::optional<Rect> changed_;
    std::optional<Rect> written_;
};

} // namespace dyeworks

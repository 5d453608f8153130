#include "core/TmfFormat.h"

#include "core/ByteCursor.h"
#include "core/Report.h"
#include "platform/Platform.h"
#include "platform/StringId.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <new>
#include <utility>

namespace dyeworks {

namespace {

constexpr std::size_t kTmfReservedSize = 48;
constexpr std::uint32_t kTag4Bit = 0x00120200;
constexpr std::uint32_t kTag8Bit = 0x00120300;

/// How the rows of an image of 4 or 8 bits lie in a file. All figures are bytes.
struct Layout {
    std::size_t rows;
    std::size_t rowSize; ///< Of one row in the packed form.
    std::size_t stride;  ///< Of one row in memory and in the padded form.
    std::size_t packedSize;

    /// Of what has `width`, `height` and `bits` of an image that `TmfImage::create` makes.
    template <typename Image>
    explicit Layout(const Image& image)
        : rows(static_cast<std::size_t>(image.height))
        , rowSize((static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.bits) + 7) / 8)
        , stride((rowSize + 3) / 4 * 4)
        , packedSize((rowSize * rows + 3) / 4 * 4) {}
};

/// The low nibble behind the last texel of an odd row is no texel; in memory a plug-in may have used it.
void clearUnusedNibbles(std::span<std::byte> body, const Layout& layout) {
    for (std::size_t row = 1; row <= layout.rows; ++row)
        body[row * layout.rowSize - 1] &= std::byte{0xF0};
}

/// Bytes of the rows that a header declares, without what pads the body; 0 for sides that no image has.
std::uint64_t packedRowsOf(const TmfHeader& header) {
    if (header.width < 0 || header.height < 0)
        return 0;
    const auto width = static_cast<std::uint64_t>(header.width);
    return (width * static_cast<std::uint64_t>(header.bits) + 7) / 8 *
           static_cast<std::uint64_t>(header.height);
}

std::uint64_t bodySizeOf(std::uint64_t fileSize) {
    return fileSize - std::min<std::uint64_t>(fileSize, kTmfHeaderSize);
}

/// Packed rows stand at the start of the block: moves each to its place, from the last one on, and clears
/// what pads it.
void spreadRows(std::span<std::byte> block, const Layout& layout) {
    for (std::size_t row = layout.rows; row-- > 0;) {
        std::byte* const start = block.data() + row * layout.stride;
        std::memmove(start, block.data() + row * layout.rowSize, layout.rowSize);
        std::memset(start + layout.rowSize, 0, layout.stride - layout.rowSize);
    }
}

/// Reads the rows behind the header. `read` fills a span with the next bytes of the body, which holds
/// `bodySize`, and answers how many came.
template <typename Read>
std::optional<TmfError> readBody(const TmfHeader& header, std::uint64_t bodySize, const TmfRoom& room,
                                 Read read) {
    // A header may declare a whole gigabyte with next to nothing behind it, and zeroes cost nothing until
    // they are touched; a body that fills the block would only pay for them.
    const bool enough = bodySize >= packedRowsOf(header);
    const Result<std::span<std::byte>, TmfError> made = room(header, enough);
    if (!made)
        return made.error();
    const std::span<std::byte> block = made.value();
    const Layout layout(header);
    const bool packed = bodySize == layout.packedSize && layout.rowSize != layout.stride;
    const std::span<std::byte> part = packed ? block.first(layout.packedSize) : block;
    const std::size_t came = read(part);
    const std::span<std::byte> missing = packed ? part.subspan(came) : block.subspan(came);
    if (enough)
        std::fill(missing.begin(), missing.end(), std::byte{0});
    if (packed)
        spreadRows(block, layout);
    return std::nullopt;
}

std::optional<TmfError> readFile(FileReader& file, const TmfRoom& room) {
    const auto header = readTmfHeader(file);
    if (!header)
        return header.error();
    return readBody(header.value(), bodySizeOf(file.size()), room,
                    [&file](std::span<std::byte> part) { return file.read(part); });
}

std::string hexadecimal(std::uint32_t value) {
    char digits[9];
    std::snprintf(digits, sizeof digits, "%x", static_cast<unsigned>(value));
    return digits;
}

void report(const TmfError& error, const std::string& path) {
    switch (error.kind) {
    case TmfError::Kind::ShortHeader:
        reportTmf(text(StringId::TmfReadFailed, {displayPath(path)}));
        break;
    case TmfError::Kind::ImproperTag:
        reportTmf(text(StringId::TmfImproperTag, {hexadecimal(error.tag), std::to_string(error.bits)}));
        break;
    case TmfError::Kind::NoImage:
        reportTmf(text(StringId::TmfNoMemory), adviceOnOpening(FileError::TooLarge));
        break;
    case TmfError::Kind::Told:
        break;
    }
}

} // namespace

Result<TmfHeader, TmfError> parseTmfHeader(std::span<const std::byte> file) {
    if (file.size() < kTmfHeaderSize)
        return TmfError{TmfError::Kind::ShortHeader};
    ByteReader reader(file.first(kTmfHeaderSize));
    TmfHeader header;
    header.tag = reader.be32();
    header.width = reader.signed32();
    header.height = reader.signed32();
    header.bits = reader.signed32();
    if (!(header.tag == kTag4Bit && header.bits == 4) && !(header.tag == kTag8Bit && header.bits == 8))
        return TmfError{TmfError::Kind::ImproperTag, header.tag, header.bits};
    return header;
}

Result<TmfHeader, TmfError> readTmfHeader(FileReader& file) {
    std::array<std::byte, kTmfHeaderSize> start;
    return parseTmfHeader(std::span(start).first(file.read(start)));
}

std::uint64_t missingTexelBytes(const TmfHeader& header, std::uint64_t fileSize) {
    const Layout layout(header);
    const std::uint64_t body = bodySizeOf(fileSize);
    const std::uint64_t whole = body == layout.packedSize ? body : layout.stride * layout.rows;
    return whole - std::min(whole, body);
}

TmfRowLayout rowLayout(const TmfHeader& header, std::uint64_t fileSize) {
    const Layout layout(header);
    return {bodySizeOf(fileSize) == layout.packedSize ? layout.rowSize : layout.stride, layout.rowSize};
}

Result<TmfImage, TmfError> parseTmf(std::span<const std::byte> file) {
    const auto header = parseTmfHeader(file);
    if (!header)
        return header.error();
    ByteReader body(file.subspan(kTmfHeaderSize));
    TmfImage image;
    const auto error =
        readBody(header.value(), body.left(), roomIn(image), [&body](std::span<std::byte> part) {
            const auto taken = body.take(part.size());
            std::copy(taken.begin(), taken.end(), part.begin());
            return taken.size();
        });
    if (error)
        return *error;
    return image;
}

Result<TmfImage, TmfError> parseTmf(FileReader& file) {
    TmfImage image;
    if (const auto error = readFile(file, roomIn(image)))
        return *error;
    return image;
}

TmfRoom roomIn(TmfImage& image) {
    return [&image](const TmfHeader& header, bool willBeFilled) -> Result<std::span<std::byte>, TmfError> {
        if (!(willBeFilled ? image.createUnfilled(header.width, header.height, header.bits)
                           : image.create(header.width, header.height, header.bits)))
            return TmfError{TmfError::Kind::NoImage};
        return image.block();
    };
}

bool readTmfRows(const std::string& path, const TmfRoom& room) {
    const auto file = platform().files().openForReading(path);
    if (!file) {
        reportTmf(text(StringId::FormatOpenFailed, {displayPath(path)}),
                  describe(file.error()) + ' ' + adviceOnOpening(file.error()));
        return false;
    }
    const std::optional<TmfError> error = readFile(*file.value(), room);
    if (error)
        report(*error, path);
    return !error;
}

std::optional<TmfFile> layOutTmf(const TmfRows& image) {
    if ((image.bits != 4 && image.bits != 8) || !TmfImage::canBe(image.width, image.height, image.bits))
        return std::nullopt;
    const Layout layout(image);
    if (image.block.data() == nullptr || image.block.size() != layout.stride * layout.rows)
        return std::nullopt;

    TmfFile file;
    ByteWriter header(file.header);
    header.be32(image.bits == 4 ? kTag4Bit : kTag8Bit);
    header.be32(static_cast<std::uint32_t>(image.width));
    header.be32(static_cast<std::uint32_t>(image.height));
    header.be32(static_cast<std::uint32_t>(image.bits));
    header.zeroes(kTmfReservedSize);

    const bool unusedNibbles = image.bits == 4 && image.width % 2 != 0;
    if (layout.rowSize == layout.stride && !unusedNibbles) {
        file.body = image.block;
        return file;
    }
    try {
        file.packed = ByteBuffer(layout.packedSize);
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
    ByteWriter body(file.packed.bytes());
    ByteReader block(image.block);
    for (std::size_t row = 0; row < layout.rows; ++row)
        body.copy(block.take(layout.stride).first(layout.rowSize));
    body.zeroes(layout.packedSize - layout.rowSize * layout.rows);
    if (unusedNibbles)
        clearUnusedNibbles(file.packed.bytes(), layout);
    file.body = file.packed.bytes();
    return file;
}

std::optional<FileError> writeTmf(const TmfRows& image, const std::string& path) {
    const std::optional<TmfFile> file = layOutTmf(image);
    if (!file)
        return FileError::TooLarge;
    const std::array<std::span<const std::byte>, 2> pieces{file->header, file->body};
    return platform().files().writePieces(path, pieces);
}

} // namespace dyeworks

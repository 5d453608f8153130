#pragma once

#include "core/TmfImage.h"
#include "platform/ByteBuffer.h"
#include "platform/Files.h"
#include "platform/Result.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>

namespace dyeworks {

inline constexpr std::size_t kTmfHeaderSize = 64; ///< In bytes.

/// What the 64-byte, big-endian header of a TMF file declares. The sides are as they stand in the file.
struct TmfHeader {
    std::uint32_t tag = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::int32_t bits = 0;
};

/// Why the bytes are no TMF file.
struct TmfError {
    enum class Kind {
        ShortHeader, ///< Fewer than 64 bytes.
        ImproperTag, ///< Unknown tag, or one of another depth than `bits`.
        NoImage,     ///< An image of these sides is refused, or there is no memory for it.
        Told         ///< Whoever was to make the room has told the user why there is none.
    };
    Kind kind = Kind::ShortHeader;
    std::uint32_t tag = 0;
    std::int32_t bits = 0;
};

/// The header of a 4-bit or 8-bit image; its sides are not checked.
Result<TmfHeader, TmfError> parseTmfHeader(std::span<const std::byte> file);

/// The same from a file that is open at its start.
Result<TmfHeader, TmfError> readTmfHeader(FileReader& file);

/// How many bytes of texels a file of `fileSize` bytes with this header lacks; whoever reads it sees 0 in
/// their place. The image is one that `TmfImage::canBe`.
[[nodiscard]] std::uint64_t missingTexelBytes(const TmfHeader& header, std::uint64_t fileSize);

/// How the rows of an image lie in a file, from the bottom one up: bytes from one to the next, and how many
/// of them hold texels, two of 4 bits to a byte and the first in the high nibble.
struct TmfRowLayout {
    std::size_t step = 0;
    std::size_t used = 0;
};

/// Of a file of `fileSize` bytes with this header. The image is one that `TmfImage::canBe`.
[[nodiscard]] TmfRowLayout rowLayout(const TmfHeader& header, std::uint64_t fileSize);

/// The image in a TMF file. A body of exactly the packed size holds rows without padding; any other body
/// holds rows padded as in memory, where texels that the file lacks are 0 and excess bytes are ignored.
Result<TmfImage, TmfError> parseTmf(std::span<const std::byte> file);
/// The same from a file that is open at its start; the texels are read straight into the image.
Result<TmfImage, TmfError> parseTmf(FileReader& file);

/// Makes room for the rows of an image of the header's sides and depth, laid out as `TmfImage::block`; of
/// zeroes, unless all of it will be filled.
using TmfRoom =
    std::function<Result<std::span<std::byte>, TmfError>(const TmfHeader& header, bool willBeFilled)>;

/// The rows of `image`, which is made when the header is known. The image must outlive it.
[[nodiscard]] TmfRoom roomIn(TmfImage& image);

/// Reads the rows of the image in a TMF file to where `room` says. A failure is shown in a message box; false
/// then.
bool readTmfRows(const std::string& path, const TmfRoom& room);

/// An image as it is read: its rows from the bottom up, each padded to 4 bytes, wherever they stand.
struct TmfRows {
    TmfRows(std::int32_t itsWidth, std::int32_t itsHeight, std::int32_t itsBits,
            std::span<const std::byte> itsBlock) noexcept
        : width(itsWidth)
        , height(itsHeight)
        , bits(itsBits)
        , block(itsBlock) {}
    /// Of the whole image; no block unless it holds texels.
    TmfRows(const TmfImage& image) // NOLINT(google-explicit-constructor): wherever rows are wanted.
        : TmfRows(image.width, image.height, image.bits, image.block()) {}

    std::int32_t width;
    std::int32_t height;
    std::int32_t bits;
    std::span<const std::byte> block;
};

/// A TMF file laid out for writing: header, then the rows from the bottom up without what pads them in
/// memory, then zeroes up to a multiple of 4 bytes.
struct TmfFile {
    std::array<std::byte, 64> header;
    ByteBuffer packed;               ///< The body, where it differs from the block.
    std::span<const std::byte> body; ///< Stands in `packed` or in the block.
};

/// The file that holds the image, whose block must stay as it is meanwhile. Nothing for a depth other than 4
/// or 8 bits, for sides that no image has or without their block, or when there is no memory.
[[nodiscard]] std::optional<TmfFile> layOutTmf(const TmfRows& image);

/// Writes the image. Nothing: written; otherwise why not, TooLarge standing for an image that no file can
/// hold or memory cannot lay out.
[[nodiscard]] std::optional<FileError> writeTmf(const TmfRows& image, const std::string& path);

} // namespace dyeworks

#pragma once

#include "core/TlutData.h"
#include "core/TmfImage.h"
#include "interchange/InterchangeError.h"
#include "interchange/Progress.h"
#include "interchange/Texture.h"
#include "platform/Picture.h"
#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace dyeworks {

/// What this program's own chunk of a PNG file says: the whole palette, bit by bit, and where in it the image
/// has its colours (docs/png-chunk.md).
struct PaletteChunk {
    TlutData palette;
    std::int32_t firstEntry = 0;
};

/// What a PNG file holds. Channels of 16 bits come down to 8; gamma and colour profiles are left alone; the
/// one colour or grey that stands for transparency becomes alpha. A file of grey pixels without alpha is an
/// indexed picture whose colours are all its steps of grey, 2 to 256 of them, from black to white. A 17th
/// colour that is the file's background and no pixel's is none of the picture.
struct PngPicture {
    Picture picture;
    bool isGrey = false;   ///< The colours are such steps, and no palette that somebody chose.
    std::int32_t bits = 8; ///< Of a number in an indexed picture: 1, 2, 4 or 8.
    std::optional<PaletteChunk> chunk;
};

/// Reads a PNG file of any kind, interlaced or not. A damaged one is refused as a whole: UnknownFormat,
/// Damaged, TooLarge, IndexWithoutColour, NoMemory or Cancelled. A chunk of ours that is whole but does not
/// say what it should counts as none.
[[nodiscard]] Result<PngPicture, InterchangeError> readPng(std::span<const std::byte> file,
                                                           const Progress& progress = {});

/// Whether the bytes begin as a PNG file does.
[[nodiscard]] bool isPng(std::span<const std::byte> file) noexcept;

/// The texture that an indexed file holds. With a chunk of ours: its palette, in which the entries whose
/// colour in the file has been changed since are taken from the file; the depth stays. Without one: a new
/// palette in the file's order, at the smallest depth that holds it. `report` says what was rounded or
/// changed. NoMemory is the only error; the picture must be indexed.
[[nodiscard]] Result<Texture, InterchangeError> textureOf(const PngPicture& png, TextureReport& report);
/// The same of any indexed picture.
[[nodiscard]] Result<Texture, InterchangeError> textureOf(const Picture& picture, TextureReport& report);

/// A PNG file of the image's depth, with the palette's colours from `firstEntry` on (those of an image of 8
/// bits from 0 on) in their order, transparency as far as there is any, and the raw entries of the whole
/// palette. Without a palette the image is a ramp of greys. NoTexels for an image of another depth, or none.
[[nodiscard]] Result<std::vector<std::byte>, InterchangeError> writePng(const TmfImage& image,
                                                                        const TlutData* palette,
                                                                        std::int32_t firstEntry,
                                                                        const Progress& progress = {});

} // namespace dyeworks

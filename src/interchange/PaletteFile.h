#pragma once

#include "core/TlutData.h"
#include "interchange/InterchangeError.h"
#include "interchange/PaletteColours.h"
#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace dyeworks {

/// The palette files of other programs.
enum class PaletteFormat {
    Gimp, ///< ".gpl": text, a name, columns, and a name for each colour.
    Jasc, ///< ".pal": text, the count, then a colour a line; a fourth number is its alpha.
    Act,  ///< ".act": 256 colours of three bytes; 772 bytes with the count and the transparent one.
    Hex,  ///< ".hex": text, a colour a line of six digits (or three, or eight with alpha), with or without
          ///< "#".
    Png   ///< ".png": the colours of an indexed PNG file.
};

/// The format that a file of this name is written in; nothing for another ending.
[[nodiscard]] std::optional<PaletteFormat> paletteFormatFor(std::string_view fileName);

/// Reads a palette file. What it is, its first bytes say, and its name where they do not (".act", ".hex").
/// At most 65536 colours are read. UnknownFormat, BadLine, Damaged, NoColours, or
/// TooManyColours for a PNG file of direct colours.
[[nodiscard]] Result<PaletteColours, InterchangeError> readPaletteFile(std::span<const std::byte> file,
                                                                       std::string_view fileName);

/// Palette file of `count` entries from `first` on. `name` is UTF-8. Alpha goes along where the format has it
/// and the entries are not all opaque. ".act" holds at most 256 colours. `Png` makes an image of one texel
/// per entry, a row of 16 for each bank.
[[nodiscard]] Result<std::vector<std::byte>, InterchangeError>
writePaletteFile(PaletteFormat format, const TlutData& palette, std::int32_t first, std::int32_t count,
                 const std::string& name);

/// Colours brought into a palette's form.
struct ImportedEntries {
    std::vector<std::uint16_t> entries; ///< At most as many as there was room for.
    std::int32_t rounded = 0;           ///< Of these: colours that no entry shows exactly.
    std::int32_t leftOver = 0;          ///< Colours for which there was no room.
};

/// The first `room` colours as entries. Without alpha in the file all entries are opaque.
[[nodiscard]] ImportedEntries entriesOf(const PaletteColours& colours, ColourType type, std::int32_t room);

} // namespace dyeworks

#include "Require.h"
#include "interchange/PaletteFile.h"

#include <algorithm>
#include <cstdint>
#include <span>

using namespace dyeworks;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto read = readPaletteFile(std::as_bytes(std::span(data, size)), "x.hex");
    if (!read)
        return 0;
    const ImportedEntries brought = entriesOf(read.value(), ColourType::Rgba, 256);
    const auto count = static_cast<std::int32_t>(brought.entries.size());
    TlutData palette;
    require(palette.create(count, ColourType::Rgba), "a palette is made");
    std::ranges::copy(brought.entries, palette.entries);
    const auto file = writePaletteFile(PaletteFormat::Hex, palette, 0, count, read.value().name);
    require(file.ok(), "what was read can be written");
    const auto again = readPaletteFile(file.value(), "x.hex");
    require(again.ok(), "what was written can be read");
    require(entriesOf(again.value(), ColourType::Rgba, 256).entries == brought.entries,
            "the entries come back");
    return 0;
}

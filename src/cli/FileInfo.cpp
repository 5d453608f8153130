#include "cli/FileInfo.h"

#include "cli/CliTexts.h"
#include "cli/FormatFaults.h"
#include "cli/NamedFile.h"
#include "interchange/PaletteFile.h"
#include "interchange/PictureFile.h"
#include "paint/BmpFormat.h"
#include "paint/TexelCounts.h"
#include "paint/TextureCanvas.h"
#include "project/CTPFFile.h"

#include <algorithm>
#include <bit>
#include <bitset>
#include <vector>

namespace dyeworks {

namespace {

using Inspected = Result<FileInfo, std::string>;

template <typename Number>
std::int64_t countDifferent(std::vector<Number> numbers) {
    std::ranges::sort(numbers);
    return std::unique(numbers.begin(), numbers.end()) - numbers.begin();
}

FileInfo::Entries entriesOf(const TlutData& table) {
    return {
        table.count,
        static_cast<std::int32_t>(countDifferent(std::vector(table.entries, table.entries + table.count))),
        table.colourType, std::nullopt};
}

/// Colours of another program's palette or picture.
FileInfo::Entries entriesOf(const std::vector<Colour>& colours) {
    std::vector<std::uint32_t> values;
    values.reserve(colours.size());
    for (const Colour& colour : colours)
        values.push_back(std::bit_cast<std::uint32_t>(colour));
    return {static_cast<std::int32_t>(colours.size()), static_cast<std::int32_t>(countDifferent(values)),
            std::nullopt, std::nullopt};
}

Inspected inspectImage(std::span<const std::byte> file, FileInfo info) {
    const Result<TmfImage, TmfError> image = parseTmf(file);
    if (!image)
        return describe(image.error());
    info.format = "tmf";
    const TmfImage& texels = image.value();
    const auto counts = TexelCounts::of(TextureCanvas(texels));
    info.texels = {texels.width, texels.height, texels.bits,
                   std::ranges::count_if(counts, [](std::uint64_t count) { return count > 0; })};
    return info;
}

Inspected inspectPalette(std::span<const std::byte> file, FileInfo info) {
    const Result<TlutData, TlfError> table = parseTlf(file);
    if (!table)
        return describe(table.error());
    info.format = "tlf";
    info.entries = entriesOf(table.value());
    return info;
}

Inspected inspectProject(std::span<const std::byte> file, FileInfo info) {
    CTPFFile project;
    project.Restore("\\project.tpf", file);
    info.format = "tpf";
    info.pictures = static_cast<std::int64_t>(project.order.size());
    return info;
}

Inspected inspectPicture(std::span<const std::byte> file, FileInfo info) {
    const Result<PngPicture, InterchangeError> read = readPictureFile(file);
    if (!read)
        return describe(read.error());
    const PngPicture& png = read.value();
    const Picture& picture = png.picture;
    info.format = info.kind == FileKind::Png ? "png" : info.kind == FileKind::Jpeg ? "jpeg" : "bmp";
    info.texels = {picture.width, picture.height, 0, 0};
    if (!picture.isIndexed()) {
        std::vector<std::uint32_t> values;
        values.reserve(picture.pixels.size());
        for (const Colour& colour : picture.pixels)
            values.push_back(std::bit_cast<std::uint32_t>(colour));
        info.texels->used = countDifferent(std::move(values));
        return info;
    }
    std::bitset<256> used;
    for (const std::uint8_t index : picture.indices)
        used.set(index);
    info.texels->used = static_cast<std::int64_t>(used.count());
    info.texels->bits = static_cast<std::int32_t>(std::bit_width(picture.colours.size() - 1));
    if (info.kind == FileKind::Png)
        info.texels->bits = png.bits;
    info.entries = entriesOf(picture.colours);
    if (png.chunk) {
        info.entries = entriesOf(png.chunk->palette);
        info.entries->bank = png.chunk->firstEntry / 16;
    }
    return info;
}

Inspected inspectPaletteFile(std::span<const std::byte> file, const std::string& name, FileInfo info) {
    const Result<PaletteColours, InterchangeError> colours = readPaletteFile(file, lastPartOf(name));
    if (!colours)
        return describe(colours.error());
    const auto first = static_cast<char>(std::to_integer<unsigned char>(file[0]));
    const std::string ending = endingOf(name);
    info.format = ending == "act" || ending == "hex" ? ending : first == 'G' ? "gpl" : "pal";
    info.entries = entriesOf(colours.value().colours);
    return info;
}

} // namespace

Result<FileInfo, std::string> inspect(std::span<const std::byte> file, const std::string& name) {
    FileInfo info;
    info.kind = kindOf(file, name);
    info.bytes = static_cast<std::int64_t>(file.size());
    switch (info.kind) {
    case FileKind::Image:
        return inspectImage(file, std::move(info));
    case FileKind::Palette:
        return inspectPalette(file, std::move(info));
    case FileKind::Project:
        return inspectProject(file, std::move(info));
    case FileKind::Png:
    case FileKind::Bitmap:
    case FileKind::Jpeg:
        return inspectPicture(file, std::move(info));
    case FileKind::PaletteFile:
        return inspectPaletteFile(file, name, std::move(info));
    case FileKind::Unknown:
        break;
    }
    return say(CliText::UnknownKind);
}

} // namespace dyeworks

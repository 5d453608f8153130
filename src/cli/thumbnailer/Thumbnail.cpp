#include "cli/thumbnailer/Thumbnail.h"

#include "cli/CliTexts.h"
#include "cli/FileKind.h"
#include "cli/FormatFaults.h"
#include "cli/thumbnailer/PaletteChoice.h"
#include "cli/thumbnailer/PalettePicture.h"
#include "cli/thumbnailer/ProjectSheet.h"
#include "cli/thumbnailer/ReducedImage.h"
#include "core/TlfFormat.h"
#include "platform/Platform.h"
#include "project/CTPFFile.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace dyeworks {

namespace {

using Made = Result<Picture, std::string>;

constexpr std::uint64_t kMostProjectBytes = 4U << 20U;

/// The header, which was read already, and what follows it up to `most` bytes in all.
std::vector<std::byte> wholeOf(std::span<const std::byte> start, HostFileReader& file, std::size_t most) {
    std::vector<std::byte> bytes(start.begin(), start.end());
    const auto size = static_cast<std::size_t>(std::clamp<std::uint64_t>(file.size(), start.size(), most));
    bytes.resize(size);
    bytes.resize(start.size() + file.read(std::span(bytes).subspan(start.size())));
    return bytes;
}

Made ofImage(std::span<const std::byte> start, HostFileReader& file, const std::string& path,
             std::int32_t side, const EditorSettings& settings) {
    Result<TexelRows, std::string> rows = TexelRows::behind(start, file);
    if (!rows)
        return rows.error();
    const TexelColours colours = texelColours(paletteFor(path, settings), rows.value().bits(), 0);
    return reduced(std::move(rows).value(), colours, {side, side});
}

Made ofPalette(std::span<const std::byte> start, HostFileReader& file, std::int32_t side) {
    const Result<TlutData, TlfError> palette = parseTlf(wholeOf(start, file, kLargestTlfSize));
    if (!palette)
        return describe(palette.error());
    return palettePicture(palette.value(), side);
}

Made ofProject(std::span<const std::byte> start, HostFileReader& file, const std::string& path,
               std::int32_t side) {
    if (file.size() > kMostProjectBytes)
        return describe(FileError::TooLarge);
    CTPFFile project;
    project.Restore(platform().files().fromHostPath(path), wholeOf(start, file, kMostProjectBytes));
    std::optional<Picture> sheet = projectSheet(project, side);
    if (!sheet)
        return say(CliText::ThumbnailNoPictures);
    return std::move(*sheet);
}

} // namespace

Result<Picture, std::string> thumbnail(HostFileReader& file, const std::string& path, std::int32_t side,
                                       const EditorSettings& settings) {
    std::array<std::byte, kTmfHeaderSize> header;
    const std::span<const std::byte> start = std::span(header).first(file.read(header));
    switch (kindOf(start, path)) {
    case FileKind::Image:
        return ofImage(start, file, path, side, settings);
    case FileKind::Palette:
        return ofPalette(start, file, side);
    case FileKind::Project:
        return ofProject(start, file, path, side);
    case FileKind::Png:
    case FileKind::Bitmap:
    case FileKind::Jpeg:
    case FileKind::PaletteFile:
    case FileKind::Unknown:
        break;
    }
    return say(CliText::UnknownKind);
}

} // namespace dyeworks

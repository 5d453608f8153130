#include "cli/FileKind.h"

#include "cli/NamedFile.h"
#include "core/TmfFormat.h"
#include "interchange/JpegFile.h"
#include "interchange/PaletteFile.h"
#include "interchange/PngFile.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace dyeworks {

namespace {

/// Of palettes with 16 and with 256 entries.
constexpr std::uint32_t kSmallPaletteTag = 0x00200100;
constexpr std::uint32_t kLargePaletteTag = 0x00200200;

std::uint32_t tagOf(std::span<const std::byte> file) {
    std::uint32_t tag = 0;
    for (const std::byte byte : file.first(std::min<std::size_t>(file.size(), 4)))
        tag = tag << 8U | std::to_integer<std::uint32_t>(byte);
    return file.size() < 4 ? 0 : tag;
}

bool begins(std::span<const std::byte> file, std::string_view text) {
    return std::string_view(reinterpret_cast<const char*>(file.data()), file.size()).starts_with(text);
}

} // namespace

FileKind kindOf(std::span<const std::byte> file, const std::string& name) {
    const std::uint32_t tag = tagOf(file);
    if (tag == kSmallPaletteTag || tag == kLargePaletteTag)
        return FileKind::Palette;
    if (parseTmfHeader(file))
        return FileKind::Image;
    if (isPng(file))
        return FileKind::Png;
    if (begins(file, "BM"))
        return FileKind::Bitmap;
    if (isJpeg(file))
        return FileKind::Jpeg;
    const std::string ending = endingOf(name);
    if (ending == "tpf")
        return FileKind::Project;
    if (begins(file, "GIMP Palette") || begins(file, "JASC-PAL") || ending == "act" || ending == "hex")
        return FileKind::PaletteFile;
    // What is cut off too early to tell is told by its name, so that the fault is found there.
    if (ending == "tmf")
        return FileKind::Image;
    return ending == "tlf" ? FileKind::Palette : FileKind::Unknown;
}

} // namespace dyeworks

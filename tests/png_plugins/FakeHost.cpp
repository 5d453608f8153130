#include "FakeHost.h"

#include "dyeworks/plugin.h"

#include <QByteArray>

namespace dyeworks::plugins {

Host host;

} // namespace dyeworks::plugins

using dyeworks::plugins::Host;
using dyeworks::plugins::host;

namespace {

std::uint32_t fill(char* buffer, std::int32_t size, const std::string& text) {
    qstrncpy(buffer, text.c_str(), static_cast<std::size_t>(size));
    return 1;
}

} // namespace

std::uint32_t DW_getTMFDir(char* buffer, std::int32_t size) {
    return fill(buffer, size, "\\tex;\\more\\");
}

std::uint32_t DW_getTLFDir(char* buffer, std::int32_t size) {
    return fill(buffer, size, "\\pal");
}

std::uint32_t DW_getPictureName(std::int32_t index, char* buffer, std::int32_t size) {
    const auto at = static_cast<std::size_t>(index);
    return at < host.pictures.size() ? fill(buffer, size, host.pictures[at].name) : 0;
}

std::uint32_t DW_getPicture(const char* name, char* tmf, std::int32_t tmfSize, char* tlf,
                            std::int32_t tlfSize, std::uint32_t* paletteNumber) {
    for (const Host::Picture& picture : host.pictures) {
        if (picture.name == name) {
            *paletteNumber = picture.bank;
            return fill(tmf, tmfSize, picture.image) & fill(tlf, tlfSize, picture.palette);
        }
    }
    return 0;
}

TmfImage* DW_getTMF(const char* name) {
    const auto found = host.images.find(name);
    return found == host.images.end() ? nullptr : DW_newImage(3, 2, found->second);
}

TlutData* DW_getTLF(const char* name) {
    const auto found = host.palettes.find(name);
    TlutData* const palette =
        found == host.palettes.end() ? nullptr : DW_newPalette(DW_COLOUR_RGBA, found->second);
    for (int i = 0; palette != nullptr && i < palette->count; ++i)
        palette->entries[i] = static_cast<std::uint16_t>(i / 16 << 11 | 1); // The bank is the red channel.
    return palette;
}

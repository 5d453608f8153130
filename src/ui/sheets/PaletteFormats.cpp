#include "ui/sheets/PaletteFormats.h"

#include "platform/StringId.h"
#include "platform/Text.h"

namespace dyeworks {

namespace {

/// "Name (*.gpl)|*.gpl|"
std::string pairOf(const std::string& name, const std::string& patterns) {
    return name + " (" + patterns + ")|" + patterns + "|";
}

std::string pairOf(PaletteFormat format) {
    return pairOf(text(nameOf(format)), "*" + endingOf(format));
}

} // namespace

StringId nameOf(PaletteFormat format) {
    switch (format) {
    case PaletteFormat::Gimp:
        return StringId::PaletteFormatGimp;
    case PaletteFormat::Jasc:
        return StringId::PaletteFormatJasc;
    case PaletteFormat::Act:
        return StringId::PaletteFormatAct;
    case PaletteFormat::Hex:
        return StringId::PaletteFormatHex;
    case PaletteFormat::Png:
        break;
    }
    return StringId::PaletteFormatPng;
}

std::string endingOf(PaletteFormat format) {
    switch (format) {
    case PaletteFormat::Gimp:
        return ".gpl";
    case PaletteFormat::Jasc:
        return ".pal";
    case PaletteFormat::Act:
        return ".act";
    case PaletteFormat::Hex:
        return ".hex";
    case PaletteFormat::Png:
        break;
    }
    return ".png";
}

std::string filterOf(PaletteFormat format) {
    return pairOf(format) + "|";
}

std::string filterOfAllPalettes() {
    std::string each;
    std::string patterns;
    for (const PaletteFormat format : kPaletteFormats) {
        each += pairOf(format);
        patterns += (patterns.empty() ? "*" : ";*") + endingOf(format);
    }
    return pairOf(text(StringId::PaletteFilesOfOthers), patterns) + each +
           pairOf(text(StringId::AllFiles), "*.*") + "|";
}

} // namespace dyeworks

#include "interchange/PaletteFormats.h"
#include "interchange/PaletteText.h"

#include <algorithm>
#include <cstdio>

namespace dyeworks {

namespace {

/// Takes "Name:", in whatever case, off the front of `line`; false when it does not stand there.
bool takeKey(std::string_view& line, std::string_view key) {
    if (lowered(line.substr(0, key.size())) != key)
        return false;
    line = trimmed(line.substr(key.size()));
    return true;
}

/// "12 34 56", maybe an alpha, and anything for a name behind it.
std::optional<Colour> colourOfLine(std::string_view line, bool hasAlpha) {
    const auto red = takeNumber(line, 255);
    const auto green = takeNumber(line, 255);
    const auto blue = takeNumber(line, 255);
    const auto alpha = hasAlpha ? takeNumber(line, 255) : std::optional<unsigned>(255U);
    if (!red || !green || !blue || !alpha)
        return std::nullopt;
    return Colour{static_cast<std::uint8_t>(*red), static_cast<std::uint8_t>(*green),
                  static_cast<std::uint8_t>(*blue), static_cast<std::uint8_t>(*alpha)};
}

} // namespace

PaletteResult readGimpPalette(std::string_view text) {
    PaletteColours result;
    PaletteLines lines(text);
    auto line = lines.next(); // The header, by which the file was known.
    while (result.colours.size() < kMostPaletteColours && (line = lines.next())) {
        std::string_view rest = *line;
        if (rest.empty() || rest.starts_with('#') || takeKey(rest, "columns:"))
            continue;
        if (takeKey(rest, "name:")) {
            result.name = shownText(rest);
        } else if (takeKey(rest, "channels:")) {
            result.hasAlpha = lowered(rest) == "rgba";
        } else if (const auto colour = colourOfLine(rest, result.hasAlpha)) {
            result.colours.push_back(*colour);
        } else {
            return lines.badLine();
        }
    }
    return result;
}

std::string writeGimpPalette(const PaletteColours& colours) {
    std::string text(kGimpHeader);
    text += "\nName: " + (colours.name.empty() ? "Untitled" : shownText(colours.name));
    text += "\nColumns: 16\n#\n";
    // No alpha: the variant that has it is read wrong by most programs.
    for (std::size_t i = 0; i < colours.colours.size(); ++i) {
        const Colour& colour = colours.colours[i];
        char line[64];
        std::snprintf(line, sizeof line, "%3d %3d %3d\tEntry %zu\n", colour.red, colour.green, colour.blue,
                      i);
        text += line;
    }
    return text;
}

} // namespace dyeworks

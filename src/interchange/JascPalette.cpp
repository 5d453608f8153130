#include "interchange/PaletteFormats.h"
#include "interchange/PaletteText.h"

#include <algorithm>
#include <string>

namespace dyeworks {

PaletteResult readJascPalette(std::string_view text) {
    PaletteColours result;
    PaletteLines lines(text);
    auto line = lines.next(); // The header, by which the file was known.
    int loneNumbers = 0;
    std::size_t told = 0;
    while (result.colours.size() < kMostPaletteColours && (line = lines.next())) {
        std::string_view rest = *line;
        if (rest.empty())
            continue;
        // Version and count.
        std::string_view lone = rest;
        if (result.colours.empty() && loneNumbers < 2) {
            const auto number = takeNumber(lone, 1000000);
            if (number && lone.empty()) {
                ++loneNumbers;
                told = *number;
                continue;
            }
        }
        const auto red = takeNumber(rest, 255);
        const auto green = takeNumber(rest, 255);
        const auto blue = takeNumber(rest, 255);
        const bool hasAlpha = !rest.empty();
        const auto alpha = hasAlpha ? takeNumber(rest, 255) : std::optional<unsigned>(255U);
        if (!red || !green || !blue || !alpha || !rest.empty())
            return lines.badLine();
        result.hasAlpha |= hasAlpha;
        result.colours.push_back({static_cast<std::uint8_t>(*red), static_cast<std::uint8_t>(*green),
                                  static_cast<std::uint8_t>(*blue), static_cast<std::uint8_t>(*alpha)});
    }
    // Programs that add colours may leave the count; fewer than it tells are what is left of a file.
    if (loneNumbers == 2 && result.colours.size() < std::min(told, kMostPaletteColours))
        return InterchangeError{InterchangeError::Kind::EndsTooEarly, {}, 0, 0};
    return result;
}

std::string writeJascPalette(const PaletteColours& colours) {
    // Line ends of the system that the format comes from; its own program takes no others.
    std::string text(kJascHeader);
    text += "\r\n0100\r\n" + std::to_string(colours.colours.size()) + "\r\n";
    for (const Colour& colour : colours.colours) {
        text += std::to_string(colour.red) + ' ' + std::to_string(colour.green) + ' ' +
                std::to_string(colour.blue);
        if (colours.hasAlpha)
            text += ' ' + std::to_string(colour.alpha);
        text += "\r\n";
    }
    return text;
}

} // namespace dyeworks

#include "interchange/PaletteFormats.h"
#include "interchange/PaletteText.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

namespace dyeworks {

namespace {

/// The line up to a comment.
std::string_view withoutComment(std::string_view line) {
    return line.substr(0, std::min(line.find(';'), line.find("//")));
}

/// "#" or "0x" before the digits means nothing.
std::string_view digitsOf(std::string_view word) {
    if (word.starts_with('#'))
        word.remove_prefix(1);
    else if (word.starts_with("0x") || word.starts_with("0X"))
        word.remove_prefix(2);
    return word;
}

/// Three digits are doubled each, as in CSS; of eight the last two are the alpha.
std::optional<Colour> colourOfDigits(std::string_view digits) {
    if (digits.size() != 3 && digits.size() != 6 && digits.size() != 8)
        return std::nullopt;
    std::uint32_t value = 0;
    const char* const end = digits.data() + digits.size();
    const auto [behind, error] = std::from_chars(digits.data(), end, value, 16);
    if (error != std::errc() || behind != end)
        return std::nullopt;
    if (digits.size() == 3) {
        const auto doubled = [value](unsigned shift) {
            return static_cast<std::uint8_t>((value >> shift & 15U) * 0x11U);
        };
        return Colour{doubled(8), doubled(4), doubled(0)};
    }
    if (digits.size() == 6)
        value = value << 8U | 0xFFU;
    return Colour{static_cast<std::uint8_t>(value >> 24U), static_cast<std::uint8_t>(value >> 16U),
                  static_cast<std::uint8_t>(value >> 8U), static_cast<std::uint8_t>(value)};
}

} // namespace

PaletteResult readHexPalette(std::string_view text) {
    constexpr std::string_view kBetween = " \t\f\v,";
    PaletteColours result;
    PaletteLines lines(text);
    while (const auto line = lines.next()) {
        std::string_view rest = withoutComment(*line);
        for (;;) {
            rest.remove_prefix(std::min(rest.find_first_not_of(kBetween), rest.size()));
            if (rest.empty())
                break;
            if (result.colours.size() == kMostPaletteColours)
                return result;
            const std::string_view word = rest.substr(0, rest.find_first_of(kBetween));
            const std::string_view digits = digitsOf(word);
            const auto colour = colourOfDigits(digits);
            if (!colour)
                return lines.badLine();
            result.hasAlpha |= digits.size() == 8;
            result.colours.push_back(*colour);
            rest.remove_prefix(word.size());
        }
    }
    return result;
}

std::string writeHexPalette(const PaletteColours& colours) {
    std::string text;
    for (const Colour& colour : colours.colours) {
        char line[16];
        std::snprintf(line, sizeof line, "%02x%02x%02x", colour.red, colour.green, colour.blue);
        text += line;
        if (colours.hasAlpha) {
            std::snprintf(line, sizeof line, "%02x", colour.alpha);
            text += line;
        }
        text += '\n';
    }
    return text;
}

} // namespace dyeworks

#include "interchange/PaletteFile.h"

#include "interchange/EntryColour.h"
#include "interchange/PngFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace dyeworks {
namespace {

using Colours = std::vector<Colour>;
using Kind = InterchangeError::Kind;

auto read(const std::string& file, const char* name) {
    return readPaletteFile(std::as_bytes(std::span(file)), name);
}

TEST(PaletteFile, ReadsTheFormsThatAreFound) {
    const std::string table(768, '\7');
    const Colour seven{7, 7, 7};
    const struct {
        const char* name;
        std::string file;
        Colours colours;
    } cases[] = {
        {"a", "GIMP Palette\nName: x\nColumns: 3\n#\n1 2 3\n  4\t5 6\tred 9\n", {{1, 2, 3}, {4, 5, 6}}},
        {"a", "\xEF\xBB\xBFGIMP Palette\r\ncolumns:0\r\n\r\n255 0 1\r\nname:\r\n", {{255, 0, 1}}},
        {"a", "GIMP Palette\rChannels: RGBA\r1 2 3 4 name\r", {{1, 2, 3, 4}}},
        {"a.pal", "JASC-PAL\r\n0100\r\n2\r\n1 2 3\r\n4 5 6 \r\n", {{1, 2, 3}, {4, 5, 6}}},
        {"a", "JASC-PAL\n0100\n1\n1 2 3 9\n4 5 6", {{1, 2, 3, 9}, {4, 5, 6}}},
        {"A.HEX",
         "#fff\n; c\n0X102030, 010203FE // c\r\nABCDEF",
         {{255, 255, 255}, {16, 32, 48}, {1, 2, 3, 254}, {0xAB, 0xCD, 0xEF}}},
        {"a.act", table, Colours(256, seven)},
        {"a.act", table + std::string("\0\3\0\1", 4), {seven, {7, 7, 7, 0}, seven}},
        {"a.act", table + std::string("\0\0\xFF\xFF", 4), Colours(256, seven)},
    };
    for (const auto& c : cases) {
        const auto colours = read(c.file, c.name);
        ASSERT_TRUE(colours) << c.file;
        EXPECT_EQ(colours.value().colours, c.colours) << c.file;
        const bool isClear = std::ranges::any_of(c.colours, [](Colour each) { return each.alpha != 255; });
        EXPECT_EQ(colours.value().hasAlpha, isClear) << c.file;
    }
}

TEST(PaletteFile, SaysWhatIsWrong) {
    const struct {
        const char* name;
        const char* file;
        Kind kind;
        std::int64_t line;
    } cases[] = {
        {"a.gpl", "1 2 3\n", Kind::UnknownFormat, 0},
        {"a", "GIMP Palette\n\n1 2\n", Kind::BadLine, 3},
        {"a", "GIMP Palette\n1 2 256\n", Kind::BadLine, 2},
        {"a.pal", "RIFF....PAL ", Kind::UnknownFormat, 0},
        {"a", "JASC-PAL\n0100\n0\n", Kind::NoColours, 0},
        {"a", "JASC-PAL\r\n0\r\n1\r\n1\r\n", Kind::BadLine, 4},
        {"a", "JASC-PAL\n0100\n1\n1 2\n", Kind::BadLine, 4},
        {"a", "JASC-PAL\r\n0100\r\n16\r\n1 2 3\r\n4 5 6\r\n", Kind::EndsTooEarly, 0},
        {"a.hex", "12345\n", Kind::BadLine, 1},
        {"a.hex", "-12", Kind::BadLine, 1},
        {"a.act", "short", Kind::UnknownFormat, 0},
    };
    for (const auto& c : cases) {
        const auto colours = read(c.file, c.name);
        ASSERT_FALSE(colours) << c.file;
        EXPECT_EQ(colours.error().kind, c.kind) << c.file;
        EXPECT_EQ(colours.error().first, c.line) << c.file;
    }
    const std::string beginning(39, 'x');
    EXPECT_EQ(read("GIMP Palette\n" + beginning + "\xC3\xA9\n", "a").error().detail, beginning);
}

TEST(PaletteFile, ReadsAsManyColoursAsAPaletteCanHave) {
    for (std::string file : {"GIMP Palette\n", "JASC-PAL\n0100\n65539\n"}) {
        for (int i = 0; i < 65539; ++i)
            file += "1 2 3\n";
        EXPECT_EQ(read(file, "a").value().colours.size(), 65536U);
    }
}

TEST(PaletteFile, RandomPalettesComeBack) {
    std::mt19937 random(5);
    for (const auto& [format, name] : {std::pair{PaletteFormat::Gimp, "a.gpl"},
                                       {PaletteFormat::Jasc, "a.pal"},
                                       {PaletteFormat::Act, "a.act"},
                                       {PaletteFormat::Hex, "a.hex"},
                                       {PaletteFormat::Png, "a.png"}}) {
        for (int round = 0; round < 40; ++round) {
            TlutData palette;
            ASSERT_TRUE(palette.create(256, round % 2 == 0 ? ColourType::Rgba : ColourType::Ia));
            for (std::int32_t i = 0; i < 256; ++i)
                palette.setEntry(i, static_cast<std::uint16_t>(random()));
            const auto first = static_cast<std::int32_t>(random() % 256);
            const auto count = round == 0 ? 256 - first : 1;
            for (const auto& [from, size] : {std::pair{-1, 1}, {first, 0}, {first, -1}, {first, 257 - first}})
                ASSERT_FALSE(writePaletteFile(format, palette, from, size, "x"));
            const auto file = writePaletteFile(format, palette, first, count, "x");
            ASSERT_TRUE(file);
            const auto again = readPaletteFile(file.value(), name);
            ASSERT_TRUE(again);
            // A palette of ours, which a PNG file holds, has 16 entries or 256.
            const int held = format != PaletteFormat::Png ? count : count <= 16 ? 16 : 256;
            ASSERT_EQ(again.value().colours.size(), static_cast<std::size_t>(held));
            const bool keepsAlpha = format != PaletteFormat::Gimp && format != PaletteFormat::Act;
            for (std::int32_t i = 0; i < count; ++i) {
                Colour colour = again.value().colours[static_cast<std::size_t>(i)];
                const Colour shown = colourOf(palette, first + i);
                if (!keepsAlpha)
                    colour.alpha = shown.alpha;
                ASSERT_EQ(colour, shown);
            }
            if (format == PaletteFormat::Png) {
                const auto texels = readPng(file.value()).value().picture.indices;
                for (std::int32_t i = 0; i < count; ++i)
                    ASSERT_EQ(texels[static_cast<std::size_t>(i)], i);
            }
        }
    }
}

TEST(PaletteFile, CountsWhatWasRoundedAndWhatDidNotFit) {
    const ImportedEntries brought =
        entriesOf({"", {{8, 8, 8}, {9, 8, 8}, {1, 1, 1}}, false}, ColourType::Rgba, 2);
    EXPECT_EQ(brought.entries, (std::vector<std::uint16_t>{0x0843, 0x0843}));
    EXPECT_EQ(brought.rounded, 1);
    EXPECT_EQ(brought.leftOver, 1);
}

} // namespace
} // namespace dyeworks

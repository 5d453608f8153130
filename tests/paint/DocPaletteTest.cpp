#include "DocTestHost.h"

namespace dyeworks {
namespace {

void makeEntriesDistinct(TextureLookupTable& palette) {
    for (std::int32_t i = 0; i < palette.table.count; ++i)
        palette.table.setEntry(i, static_cast<std::uint16_t>((i % 32) << 11 | (i / 32) << 6 | 1));
}

TEST_F(DocFixture, ColoursComeFromTheBarForTheActiveImageAndElseFromItsOwnBank) {
    struct Case {
        std::int32_t entries;
        bool active;
        std::int32_t barFirst;
        std::int32_t ownValue;
        std::int32_t expected; // entry that value 1 shows
    };
    for (const Case& c :
         {Case{256, true, 48, 80, 49}, Case{256, false, 48, 80, 81}, Case{256, false, 0, 240, 241},
          Case{256, false, 0, 241, 1}, Case{16, false, 0, 80, 1}, Case{256, false, 0, -16, 1}}) {
        openPalette(c.entries);
        TextureLookupTable& palette = *host.palettes.lookup("");
        makeEntriesDistinct(palette);
        host.active = c.active ? &document : nullptr;
        host.firstEntry = c.barFirst;
        document.setPaletteValue(c.ownValue);
        document.Attach();
        std::vector<std::uint8_t> quad(4);
        palette.toRgbQuad(c.expected, quad[0], quad[1], quad[2], quad[3]);
        const auto colours = document.canvas().colourTable();
        EXPECT_TRUE(std::equal(quad.begin(), quad.begin() + 3, colours.begin() + 4))
            << c.entries << ' ' << c.ownValue;
    }
}

TEST_F(DocFixture, ColoursOfAPaletteThatTheBarHasLeftComeFromTheImagesOwnBank) {
    host.active = &document;
    openPalette(256);
    TextureLookupTable& palette = *host.palettes.lookup("");
    makeEntriesDistinct(palette);
    document.setPaletteValue(48);
    host.firstEntry = 48;
    document.Attach();
    const auto table = document.canvas().colourTable();
    const std::vector<std::uint8_t> colours(table.begin(), table.end());
    openPalette();
    host.firstEntry = 0;
    document.PaletteChanged(document.attachedName(), &palette);
    EXPECT_TRUE(std::ranges::equal(document.canvas().colourTable(), colours));

    for (std::int32_t i = 0; i < 256; ++i)
        palette.table.setRed(i, 7);
    document.RefreshPalette();
    EXPECT_TRUE(std::ranges::equal(document.canvas().colourTable(), colours))
        << "of the current palette only";
    document.RefreshOwnPalette();
    EXPECT_EQ(document.canvas().colourTable()[2], 56);
    EXPECT_EQ(document.canvas().colourTable()[1], colours[1]) << "from the same bank";
}

} // namespace
} // namespace dyeworks

#include "DocTestHost.h"

#include <algorithm>
#include <cctype>

namespace dyeworks {
namespace {

bool canAttach(CDyeworksDoc& document) {
    return stateOf(document, ID_IMAGE_ATTACH).enabled;
}

/// The palette entry that value 1 of the image shows.
std::int32_t shownEntry(const CDyeworksDoc& document, const TextureLookupTable& palette) {
    const auto colours = document.canvas().colourTable();
    for (std::int32_t i = 1; i < palette.table.count; ++i) {
        std::uint8_t blue = 0;
        std::uint8_t green = 0;
        std::uint8_t red = 0;
        std::uint8_t reserved = 0;
        palette.toRgbQuad(i, blue, green, red, reserved);
        if (colours[4] == blue && colours[5] == green && colours[6] == red)
            return i;
    }
    return -1;
}

void makeEntriesDistinct(TextureLookupTable& palette) {
    for (std::int32_t i = 0; i < palette.table.count; ++i)
        palette.table.setEntry(i, static_cast<std::uint16_t>((i % 32) << 11 | (i / 32) << 6 | 1));
}

TEST_F(DocFixture, AttachTakesTheCurrentPaletteOnce) {
    EXPECT_FALSE(canAttach(document));
    document.Attach();
    EXPECT_EQ(document.attachedName(), "");

    openPalette();
    EXPECT_TRUE(canAttach(document));
    document.runCommand(ID_IMAGE_ATTACH);
    EXPECT_EQ(document.attachedName(), host.palettes.currentKey);
    EXPECT_FALSE(canAttach(document));

    const std::string first = document.attachedName();
    openPalette();
    EXPECT_TRUE(canAttach(document));
    EXPECT_EQ(document.attachedName(), first);
}

TEST_F(DocFixture, ClosedPaletteDetachesAtTheNextRefresh) {
    document.setTitle("Texture1");
    openPalette();
    document.Attach();
    EXPECT_NE(document.title(), "Texture1");
    ASSERT_TRUE(host.palettes.closePalette("", false));
    EXPECT_FALSE(document.IsAttached());
    document.RefreshPalette();
    EXPECT_EQ(document.attachedName(), "");
    EXPECT_EQ(document.title(), "Texture1");
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
        EXPECT_EQ(shownEntry(document, palette), c.expected) << c.entries << ' ' << c.ownValue;
    }
}

TEST_F(DocFixture, OtherPalettesLeaveTheColours) {
    openPalette();
    document.Attach();
    const std::string name = document.attachedName();
    const auto table = document.canvas().colourTable();
    const std::vector<std::uint8_t> before(table.begin(), table.end());
    const auto colours = [&] { return std::vector<std::uint8_t>(table.begin(), table.end()); };

    host.palettes.lookup("")->table.setEntry(1, 0x1234);
    openPalette(); // current now
    document.RefreshPalette();
    EXPECT_EQ(colours(), before);

    TextureLookupTable passing(*host.palettes.lookup(name));
    document.PaletteChanged("*another", &passing);
    EXPECT_EQ(colours(), before);
    std::string shouted = name;
    std::ranges::transform(shouted, shouted.begin(),
                           [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    document.PaletteChanged(shouted, &passing);
    EXPECT_NE(colours(), before);

    Rect changed;
    EXPECT_FALSE(document.canvas().GetChangedRect(changed));
}

} // namespace
} // namespace dyeworks

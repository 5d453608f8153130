#include "core/TextureLookupTable.h"

#include "CoreTest.h"
#include "core/PaletteSet.h"

namespace dyeworks {
namespace {

const std::string kTablePath = "c:\\tex\\sky.tlf";

class Palette : public testing::Test {
protected:
    Palette() {
        fake.files.createDirectory("c:\\tex");
        EXPECT_TRUE(palette.create(16, ColourType::Rgba));
    }
    FakePlatform fake;
    TextureLookupTable palette;
};
using PaletteNames = Palette;
using PaletteFile = Palette;
using PaletteColours = Palette;

TEST_F(PaletteNames, CountOnlyThePalettesThatWereCreated) {
    EXPECT_EQ(palette.path, "*" + palette.title);
    TextureLookupTable failing, next;
    EXPECT_FALSE(failing.create(-5, ColourType::Ia));
    EXPECT_EQ(failing.title, "palette" + std::to_string(std::stoi(palette.title.substr(7)) + 1));
    EXPECT_THAT(fake.messages.shown,
                ElementsAre(Reports("[TLF]", "TextureLookupTable::create(-5, 1) ... failed.\n")));
    EXPECT_TRUE(next.create(0, ColourType::Rgba));
    EXPECT_EQ(next.path, failing.path);
}

TEST_F(PaletteNames, TitleIsTheLastPartOfThePath) {
    const std::pair<const char*, const char*> cases[] = {
        {"c:\\tex\\sky.tlf", "sky"}, {"c:\\tex\\.tlf", ".tlf"}, {"c:\\tex\\a.b.tlf", "a.b"},
        {"*palette3", "palette3"},   {"c:\\a.b\\sky", "sky"},   {"", "before"},
    };
    for (const auto& [path, title] : cases) {
        palette.title = "before";
        palette.path = path;
        palette.titleFromPath();
        EXPECT_EQ(palette.title, title) << path;
    }
}

TEST_F(PaletteFile, SaveAsksOnlyWhenThereIsNoFileOrItIsTold) {
    const struct {
        const char *name, *path;
        bool force;
        const char *asksFrom, *goesTo; // The dialog's initial name, or null and the file written unasked.
    } cases[] = {
        {nullptr, "*palette7", false, "palette7", nullptr},
        {nullptr, "c:\\tex\\sky.tlf", true, "c:\\tex\\sky.tlf", nullptr},
        {nullptr, "c:\\tex\\sky.tlf", false, nullptr, "c:\\tex\\sky.tlf"},
        {"tex\\new.tlf", "c:\\tex\\sky.tlf", true, nullptr, "tex\\new.tlf"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        fake.dialogs.shown.clear();
        palette.path = c.path;
        palette.modified = true;
        if (c.asksFrom != nullptr) {
            EXPECT_FALSE(palette.save(c.name, c.force)) << "cancelled";
            EXPECT_EQ(palette.path, c.path);
            EXPECT_TRUE(palette.modified);
            ASSERT_EQ(fake.dialogs.shown.size(), 1U);
            EXPECT_EQ(fake.dialogs.shown[0].kind, FakeFileDialogs::Kind::Save);
            const FileDialogRequest& request = fake.dialogs.shown[0].request;
            EXPECT_EQ(request.initialName, c.asksFrom);
            EXPECT_EQ(request.filter, "TLF Files (*.tlf)|*.tlf|All Files (*.*)|*.*||");
            EXPECT_EQ(request.defaultExtension + request.title, ".tlf");
            EXPECT_TRUE(request.hideReadOnly && request.overwritePrompt && !request.fileMustExist);
            fake.dialogs.answerWith("c:\\tex\\chosen.tlf");
        }
        EXPECT_TRUE(palette.save(c.name, c.force));
        EXPECT_EQ(palette.path, c.asksFrom != nullptr ? "c:\\tex\\chosen.tlf" : c.goesTo);
        EXPECT_TRUE(fake.files.exists(palette.path));
        EXPECT_FALSE(palette.modified);
    }
    EXPECT_EQ(palette.title, "new");
}

TEST_F(PaletteFile, OpenTakesTheNameThenThePathThenAsks) {
    palette.setEntry(3, 0x1234);
    ASSERT_TRUE(palette.save(kTablePath.c_str(), false));

    TextureLookupTable named, unnamed, asked;
    EXPECT_TRUE(named.open(kTablePath.c_str()));
    EXPECT_EQ(named.path + " " + named.title, kTablePath + " sky");
    EXPECT_EQ(named.table.getEntry(3), 0x1234);
    EXPECT_FALSE(named.modified);

    unnamed.path = "*palette9";
    EXPECT_FALSE(unnamed.open(nullptr));
    EXPECT_EQ(fake.messages.lastText(), "[*palette9] file open failed.\n");
    EXPECT_THAT(fake.dialogs.shown, IsEmpty());

    asked.title = "suggested";
    EXPECT_FALSE(asked.open("")) << "cancelled";
    fake.dialogs.answerWith(kTablePath);
    EXPECT_TRUE(asked.open(nullptr));
    EXPECT_EQ(asked.path, kTablePath);
    EXPECT_EQ(fake.dialogs.shown[0].kind, FakeFileDialogs::Kind::Open);
    EXPECT_EQ(fake.dialogs.shown[0].request.initialName, "suggested");
    EXPECT_TRUE(fake.dialogs.shown[0].request.fileMustExist);
}

TEST_F(PaletteFile, ReloadingIsAStepWhereTheFileHoldsSomethingElse) {
    ASSERT_TRUE(palette.save(kTablePath.c_str(), false));
    TextureLookupTable other;
    ASSERT_TRUE(other.open(kTablePath.c_str()));
    EXPECT_TRUE(palette.reloadFile());
    EXPECT_FALSE(palette.canUndo());
    ASSERT_TRUE(other.setEntry(3, 0x1234) && other.save(nullptr, false));
    palette.setEntry(4, 7);
    EXPECT_TRUE(palette.reloadFile());
    EXPECT_EQ(palette.table, other.table);
    EXPECT_FALSE(palette.hasUnsavedChanges());
    EXPECT_TRUE(palette.undo() && palette.hasUnsavedChanges());
    EXPECT_EQ(palette.table.getEntry(4), 7);
    fake.files.remove(kTablePath);
    EXPECT_FALSE(palette.reloadFile());
}

TEST_F(PaletteFile, OnlyChangesMarkItModifiedAndThenItRefusesToOpen) {
    ASSERT_TRUE(palette.save(kTablePath.c_str(), false));
    EXPECT_FALSE(palette.setIntensity(0, 1) || palette.setEntry(16, 1));
    EXPECT_FALSE(palette.modified);
    EXPECT_TRUE(palette.setEntryAlias(15, 1));
    EXPECT_TRUE(palette.modified);
    EXPECT_FALSE(palette.open(kTablePath.c_str()));
    EXPECT_THAT(fake.messages.shown, IsEmpty());
}

TEST_F(PaletteColours, AreWidenedWithZeroesOrShowTheAlphaPlane) {
    const struct {
        ColourType type;
        std::uint16_t entry;
        std::vector<int> colour, alpha;
    } cases[] = {
        {ColourType::Rgba, 0xFFFF, {248, 248, 248}, {255, 255, 255}},
        {ColourType::Rgba, 0xFFFE, {248, 248, 248}, {0, 0, 0}},
        {ColourType::Rgba, 0b00001'00010'00100'1, {8, 16, 32}, {255, 255, 255}},
        {ColourType::Ia, 0x80FF, {128, 128, 128}, {255, 255, 255}},
        {ColourType::Ia, 0xFF07, {255, 255, 255}, {7, 7, 7}},
    };
    const auto shown = [this] {
        std::uint8_t red = 1, green = 1, blue = 1, flags = 1;
        EXPECT_TRUE(palette.toRgbQuad(0, blue, green, red, flags));
        EXPECT_EQ(flags, 0);
        return std::vector<int>{red, green, blue};
    };
    for (const auto& c : cases) {
        ASSERT_TRUE(palette.table.create(1, c.type));
        palette.table.setEntry(0, c.entry);
        EXPECT_EQ(shown(), c.colour);
        PaletteSet set;
        setApplicationPaletteSet(&set);
        EXPECT_EQ(shown(), c.colour);
        set.alphaView = 1;
        EXPECT_EQ(shown(), c.alpha);
    }
    EXPECT_EQ(applicationPaletteSet(), nullptr) << "a set that goes takes itself away";
}

TEST_F(PaletteColours, MakeADisplayPaletteOrAReport) {
    DisplayPalette display;
    EXPECT_TRUE(palette.createPalette(display));
    ASSERT_EQ(display.entries().size(), 16U);
    EXPECT_EQ(display.entries()[9], (PaletteEntry{248, 0, 0, 0}));

    EXPECT_THAT(fake.messages.shown, IsEmpty());
    ASSERT_TRUE(palette.table.create(16, static_cast<ColourType>(2)));
    display.release();
    EXPECT_FALSE(palette.createPalette(display));
    EXPECT_THAT(fake.messages.shown,
                ElementsAre(Reports("[TLF]", "TextureLookupTable::newLogPalette() ... !!!Error!!!\n")));
}

} // namespace
} // namespace dyeworks

#include "core/PaletteSet.h"

#include "CoreTest.h"

namespace dyeworks {
namespace {

class Palettes : public testing::Test, protected PaletteSetListener {
protected:
    void tabsChanged() override { calls_ += 't'; }
    void currentPaletteChanged() override { calls_ += 'c'; }
    void titlesChanged() override { calls_ += 's'; }

    /// Opens files with palettes whose first entries are 1, 2, 3 …
    void open(std::initializer_list<const char*> paths) {
        TlutData table;
        EXPECT_TRUE(table.create(16, ColourType::Rgba));
        for (const char* path : paths) {
            table.setEntry(0, static_cast<std::uint16_t>(table.getEntry(0) + 1));
            EXPECT_TRUE(table.saveTlf(path) && set.openPalette(path));
        }
        calls_.clear();
    }
    /// The keys, ">" before the current one, and behind them what the listener was told since the last time:
    /// t for the tabs, c for the current palette, s for titles after saving or a change.
    std::string state() {
        std::vector<std::string> keys{"left over"};
        const std::int32_t count = set.listKeys(keys);
        EXPECT_EQ(count, static_cast<std::int32_t>(keys.size()));
        std::string all;
        for (const std::string& key : keys) {
            EXPECT_EQ(set.lookup(key)->path, key);
            all += (key == set.currentKey ? ">" : "") + key + " ";
        }
        EXPECT_EQ(all.find('>') == std::string::npos, set.currentKey.empty());
        return all + std::exchange(calls_, "");
    }
    std::uint16_t entry(std::int32_t index) { return set.lookup("")->table.getEntry(index); }

    FakePlatform fake;
    PaletteSet set{this};

private:
    std::string calls_;
};
using PaletteSetKeys = Palettes;
using PaletteSetRekey = Palettes;
using PaletteSetClose = Palettes;

TEST_F(Palettes, NewOnesTakeTheAlphaAndStayUnmodified) {
    ASSERT_TRUE(set.newPalette(256, ColourType::Rgba, -1));
    EXPECT_EQ(state(), ">" + set.currentKey + " tc");
    EXPECT_FALSE(set.lookup("")->modified);
    EXPECT_EQ(entry(255), 0xFFFF);
    ASSERT_TRUE(set.newPalette(16, ColourType::Ia, 0x1FE));
    EXPECT_EQ(entry(15), 0xFFFE);
    ASSERT_TRUE(set.addCopy(set.lookup("")->table));
    EXPECT_EQ(entry(15), 0xFFFE);
    EXPECT_FALSE(set.newPalette(-1, ColourType::Rgba, 0));
    EXPECT_EQ(set.palettes.size(), 3U);
    EXPECT_TRUE(state().ends_with(" tctc"));
    set.setListener(nullptr);
    ASSERT_TRUE(set.newPalette(16, ColourType::Ia, 0));
    EXPECT_TRUE(state().ends_with(" "));
}

TEST_F(PaletteSetKeys, TakenOnesAreNumbered) {
    const struct {
        const char *path, *key, *title;
    } cases[] = {{"tex\\sky.tlf", "c:\\tex\\sky.tlf", "sky"}, {"c:\\sky", "c:\\sky", "sky"},
                 {"c:\\sky", "c:\\sky_1", "sky_1"},           {"c:/sky", "c:\\sky_2", "sky_2"},
                 {"*palette", "*palette", "palette"},         {"*palette", "*palette_1", "palette_1"}};
    for (const auto& c : cases) {
        auto palette = std::make_unique<TextureLookupTable>();
        palette->path = c.path;
        EXPECT_TRUE(set.add(std::move(palette)));
        EXPECT_EQ(set.currentKey, c.key);
        EXPECT_EQ(set.lookup("")->title, c.title);
    }
    auto nameless = std::make_unique<TextureLookupTable>();
    EXPECT_FALSE(set.add(std::move(nameless)));
    EXPECT_NE(nameless, nullptr) << "the caller keeps it";
}

TEST_F(PaletteSetKeys, AreComparedAsUnsignedBytesAndCompletedWhenAsked) {
    open({"c:\\\xC3\xA9", "c:\\b", "c:\\Z"});
    EXPECT_EQ(state(), ">c:\\Z c:\\b c:\\\xC3\xA9 ");
    std::string empty, relative = "b", other = "B", title, key;
    EXPECT_TRUE(set.keyAt(2, key));
    EXPECT_EQ(key, "c:\\\xC3\xA9");
    EXPECT_FALSE(set.keyAt(3, key) || set.keyAt(-1, key));
    EXPECT_NE(set.lookup(empty), nullptr);
    EXPECT_TRUE(set.getTitle(relative, title));
    EXPECT_EQ(empty + "," + relative + "," + title, ",b,b") << "looking up leaves the caller's key";
    EXPECT_TRUE(set.complete(empty) && set.complete(relative) && !set.complete(other));
    EXPECT_EQ(empty + " " + relative + " " + other, "c:\\Z c:\\b c:\\B");
    EXPECT_FALSE(set.getTitle("c:\\B", title));
    EXPECT_EQ(title, "");
}

TEST_F(PaletteSetRekey, SavingUnderANewNameMovesThePalette) {
    ASSERT_TRUE(set.newPalette(16, ColourType::Rgba, 0));
    const std::string key = set.currentKey;
    open({"c:\\b"});
    fake.dialogs.answerWith("c:\\a");
    EXPECT_TRUE(set.savePalette(key, true));
    EXPECT_EQ(state(), ">c:\\a c:\\b t");

    EXPECT_TRUE(set.savePalette("c:\\b", true)) << "in place, without a question";
    EXPECT_FALSE(set.savePaletteAs("c:\\b", true)) << "cancelled";
    fake.dialogs.answerWith("c:\\d");
    EXPECT_TRUE(set.savePaletteAs("b", true));
    EXPECT_EQ(state(), "c:\\a >c:\\d st") << "saved in place, then elsewhere";
    EXPECT_TRUE(set.savePalette("c:\\none", false)) << "falls back to the current one";
    EXPECT_FALSE(set.savePaletteAs("c:\\none", false));
    EXPECT_EQ(fake.dialogs.shown.size(), 3U);
    EXPECT_EQ(state(), "c:\\a >c:\\d ");
}

TEST_F(PaletteSetRekey, KeyOfAnotherPaletteGivesTheNextFreeOne) {
    open({"c:\\b", "c:\\a"});
    set.lookup("c:\\b")->path = "c:\\a";
    std::string key = "b";
    EXPECT_FALSE(set.rekey(key, true));
    EXPECT_EQ(key + " | " + state(), "c:\\a_1 | c:\\a >c:\\a_1 t");
    EXPECT_EQ(set.lookup("")->title, "a_1");

    set.lookup("")->path = "c:\\z";
    EXPECT_TRUE(set.rekey(set.currentKey, false));
    EXPECT_FALSE(set.rekey(set.currentKey, true)) << "nothing to move";
    EXPECT_EQ(state(), "c:\\a >c:\\z ");
}

TEST_F(PaletteSetRekey, TitleAndItsMarkStayUnlessTheKeyIsTaken) {
    open({"c:\\x"});
    ASSERT_TRUE(set.newPalette(16, ColourType::Rgba, 0));
    TextureLookupTable& palette = *set.lookup("");
    palette.beginEdit();
    palette.table.setEntry(0, 7);
    palette.commitEdit();
    palette.updateTitle();
    const std::string title = palette.title;
    EXPECT_TRUE(title.ends_with(" * "));
    palette.path = "c:\\deep\\x.tlf";
    EXPECT_TRUE(set.rekeyAll());
    EXPECT_EQ(set.currentKey + " " + palette.title, "c:\\deep\\x.tlf " + title);
    palette.path = "c:\\x";
    set.rekeyAll();
    EXPECT_EQ(set.currentKey + " " + palette.title, "c:\\x_1 x_1 * ");
}

TEST_F(PaletteSetRekey, AFailedSaveAsLeavesThePaletteAndItsNeighbours) {
    open({"c:\\a", "c:\\b"});
    setApplicationPaletteSet(&set);
    const auto other = fake.files.textOf("c:\\a");
    for (const char* target : {"c:\\a", "c:\\none\\deep\\x.tlf"}) {
        fake.dialogs.answerWith(target);
        EXPECT_FALSE(set.savePaletteAs("c:\\b", true)) << target;
        EXPECT_FALSE(set.rekeyAll()) << target;
        EXPECT_EQ(state(), "c:\\a >c:\\b t") << target;
        EXPECT_EQ(set.lookup("")->title, "b") << target;
    }
    EXPECT_EQ(fake.files.textOf("c:\\a"), other);
    EXPECT_EQ(fake.messages.shown.size(), 2U) << "each says why";
}

TEST_F(PaletteSetRekey, AllAtOnceWhileKeysMove) {
    open({"c:\\a", "c:\\b", "c:\\c"});
    set.lookup("c:\\a")->path = "c:\\z";
    set.lookup("c:\\b")->path = "c:\\a";
    EXPECT_TRUE(set.rekeyAll());
    EXPECT_EQ(state(), ">c:\\a c:\\c c:\\z t") << "the last one that moved is current";
    EXPECT_EQ(entry(0), 2);
    EXPECT_FALSE(set.rekeyAll());
    EXPECT_EQ(state(), ">c:\\a c:\\c c:\\z t");
}

TEST_F(PaletteSetClose, AskingForAllStopsAtTheFirstRefusalAndKeepsWhatWasSaved) {
    open({"c:\\a", "c:\\b", "c:\\c", "c:\\d"});
    for (const char* key : {"c:\\a", "c:\\c", "c:\\d"})
        set.lookup(key)->setRed(0, 7);
    set.lookup("c:\\a")->path = "*a";
    fake.messages.answerWith({MessageAnswer::Yes, MessageAnswer::Cancel});
    fake.dialogs.answerWith("c:\\x");
    EXPECT_FALSE(set.queryCloseAll());
    EXPECT_EQ(fake.messages.shown.size(), 2U);
    EXPECT_EQ(state(), "c:\\b c:\\c c:\\d >c:\\x t");

    fake.messages.answerWith({MessageAnswer::No, MessageAnswer::Yes, MessageAnswer::Yes});
    EXPECT_TRUE(set.queryCloseAll());
    set.lookup("c:\\c")->path = "*c";
    fake.dialogs.answerWith("c:\\e");
    EXPECT_TRUE(set.queryClose("c:\\c", true));
    EXPECT_EQ(state(), "c:\\b c:\\d >c:\\e c:\\x tt") << "nothing is removed";
}

} // namespace
} // namespace dyeworks

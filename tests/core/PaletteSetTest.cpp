#include "core/PaletteSet.h"

#include "CoreTest.h"

using namespace dyeworks;
using namespace dyeworks::test;
using testing::ElementsAre;

namespace {

class Palettes : public testing::Test, protected PaletteSetListener {
protected:
    void tabsChanged() override { calls_ += 't'; }
    void currentPaletteChanged() override { calls_ += 'c'; }
    /// What the listener was told since the last time: t for the tabs, c for the current palette.
    std::string told() { return std::exchange(calls_, ""); }

    /// Opens files with palettes whose first entries are 1, 2, 3 …
    void open(std::initializer_list<const char*> paths) {
        TlutData table;
        EXPECT_TRUE(table.create(16, ColourType::Rgba));
        for (const char* path : paths) {
            table.setEntry(0, static_cast<std::uint16_t>(table.getEntry(0) + 1));
            EXPECT_TRUE(table.saveTlf(path) && set.openPalette(path));
        }
        told();
    }
    std::vector<std::string> keys() {
        std::vector<std::string> list{"left over"};
        const std::int32_t count = set.listKeys(list);
        EXPECT_EQ(count, static_cast<std::int32_t>(list.size()));
        for (const std::string& key : list)
            EXPECT_EQ(set.lookup(key)->path, key);
        return list;
    }

    FakePlatform fake;
    PaletteSet set{this};

private:
    std::string calls_;
};
using PaletteSetKeys = Palettes;
using PaletteSetRekey = Palettes;
using PaletteSetClose = Palettes;

} // namespace

TEST_F(Palettes, NewOnesTakeTheAlphaAndStayUnmodified) {
    ASSERT_TRUE(set.newPalette(256, ColourType::Rgba, -1));
    EXPECT_EQ(told(), "tc");
    EXPECT_FALSE(set.lookup("")->modified);
    EXPECT_EQ(set.lookup("")->table.getEntry(255), 0xFFFF);
    ASSERT_TRUE(set.newPalette(16, ColourType::Ia, 0x1FE));
    EXPECT_EQ(set.lookup("")->table.getEntry(15), 0xFFFE);
    ASSERT_TRUE(set.addCopy(set.lookup("")->table));
    EXPECT_EQ(set.lookup("")->table.getEntry(15), 0xFFFE);
    EXPECT_FALSE(set.newPalette(-1, ColourType::Rgba, 0));
    EXPECT_EQ(keys().size(), 3U);
}

TEST_F(Palettes, OpeningAnOpenFileKeepsItsEditsAndMakesItCurrent) {
    open({"c:\\a.tlf", "c:\\b.tlf"});
    set.lookup("c:\\a.tlf")->setEntry(0, 99);
    EXPECT_TRUE(set.openPalette("a.tlf"));
    EXPECT_EQ(set.currentKey + told(), "c:\\a.tlftc");
    EXPECT_EQ(set.lookup("")->table.getEntry(0), 99);
    EXPECT_FALSE(set.openPalette("c:\\none.tlf"));
    EXPECT_THAT(keys(), ElementsAre("c:\\a.tlf", "c:\\b.tlf"));
    EXPECT_EQ(set.currentKey + told(), "c:\\a.tlf");
}

TEST_F(PaletteSetKeys, TakenOnesAreNumbered) {
    const auto added = [this](const char* path) {
        auto palette = std::make_unique<TextureLookupTable>();
        palette->path = path;
        EXPECT_TRUE(set.add(std::move(palette)));
        return set.currentKey + " " + set.lookup("")->title;
    };
    EXPECT_EQ(added("tex\\sky.tlf"), "c:\\tex\\sky.tlf sky");
    EXPECT_EQ(added("c:\\sky"), "c:\\sky sky");
    EXPECT_EQ(added("c:\\sky"), "c:\\sky_1 sky_1");
    EXPECT_EQ(added("c:/sky"), "c:\\sky_2 sky_2");
    EXPECT_EQ(added("*palette"), "*palette palette");
    EXPECT_EQ(added("*palette"), "*palette_1 palette_1");
    auto nameless = std::make_unique<TextureLookupTable>();
    EXPECT_FALSE(set.add(std::move(nameless)));
    EXPECT_NE(nameless, nullptr) << "the caller keeps it";
}

TEST_F(PaletteSetKeys, AreComparedAsUnsignedBytesAndWrittenBack) {
    open({"c:\\\xC3\xA9", "c:\\b", "c:\\Z"});
    EXPECT_THAT(keys(), ElementsAre("c:\\Z", "c:\\b", "c:\\\xC3\xA9"));
    std::string empty, relative = "b", title, key;
    EXPECT_TRUE(set.keyAt(2, key));
    EXPECT_EQ(key, "c:\\\xC3\xA9");
    EXPECT_FALSE(set.keyAt(3, key) || set.keyAt(-1, key));
    EXPECT_NE(set.lookup(empty), nullptr);
    EXPECT_EQ(empty, "c:\\Z");
    EXPECT_TRUE(set.getTitle(relative, title));
    EXPECT_EQ(relative + " " + title, "c:\\b b");
    EXPECT_FALSE(set.getTitle("c:\\B", title));
    EXPECT_EQ(title, "");
}

TEST_F(PaletteSetRekey, SavingUnderANewNameMovesThePaletteAndTheCallersKey) {
    ASSERT_TRUE(set.newPalette(16, ColourType::Rgba, 0));
    std::string key = set.currentKey;
    open({"c:\\b"});
    fake.dialogs.answerWith("c:\\a");
    EXPECT_TRUE(set.savePalette(key, true));
    EXPECT_EQ(key + " " + set.currentKey + " " + told(), "c:\\a c:\\a t");
    EXPECT_THAT(keys(), ElementsAre("c:\\a", "c:\\b"));

    EXPECT_TRUE(set.savePalette("c:\\b", true)) << "in place, without a question";
    EXPECT_FALSE(set.savePaletteAs("c:\\b", true)) << "cancelled";
    key = "c:\\b";
    fake.dialogs.answerWith("c:\\d");
    EXPECT_TRUE(set.savePaletteAs(key, true));
    EXPECT_EQ(key + " " + told(), "c:\\d t");
    EXPECT_TRUE(set.savePalette("c:\\none", false)) << "falls back to the current one";
    EXPECT_FALSE(set.savePaletteAs("c:\\none", false));
    EXPECT_EQ(fake.dialogs.shown.size(), 3U);
    EXPECT_EQ(told(), "");
}

TEST_F(PaletteSetRekey, KeyOfAnotherPaletteGivesTheNextFreeOne) {
    open({"c:\\b", "c:\\a"});
    set.lookup("c:\\b")->path = "c:\\a";
    std::string key = "b";
    EXPECT_FALSE(set.rekey(key, true));
    EXPECT_EQ(key + " " + set.currentKey + " " + told(), "c:\\a_1 c:\\a_1 t");
    EXPECT_EQ(set.lookup("")->title, "a_1");
    EXPECT_THAT(keys(), ElementsAre("c:\\a", "c:\\a_1"));

    set.lookup("")->path = "c:\\z";
    EXPECT_TRUE(set.rekey(set.currentKey, false));
    EXPECT_FALSE(set.rekey("c:\\z", true)) << "nothing to move";
    EXPECT_EQ(set.currentKey + " " + told(), "c:\\z ");
}

TEST_F(PaletteSetRekey, AllAtOnceWhileKeysMove) {
    open({"c:\\a", "c:\\b", "c:\\c"});
    set.lookup("c:\\a")->path = "c:\\z";
    set.lookup("c:\\b")->path = "c:\\a";
    EXPECT_TRUE(set.rekeyAll());
    EXPECT_THAT(keys(), ElementsAre("c:\\a", "c:\\c", "c:\\z"));
    EXPECT_EQ(set.lookup("c:\\a")->table.getEntry(0), 2);
    EXPECT_EQ(set.currentKey, "c:\\a") << "the last one that moved";
    EXPECT_FALSE(set.rekeyAll());
    EXPECT_EQ(told(), "tt");
}

TEST_F(PaletteSetClose, FirstRemainingKeyBecomesCurrent) {
    open({"c:\\a", "c:\\c", "c:\\b"});
    EXPECT_TRUE(set.closePalette("c:\\c", true));
    EXPECT_EQ(set.currentKey + " " + told(), "c:\\b tc");
    EXPECT_TRUE(set.closePalette(set.currentKey, false));
    EXPECT_EQ(set.currentKey + " " + told(), "c:\\a ");

    set.lookup("")->setRed(0, 7);
    fake.messages.answerWith({MessageAnswer::Cancel, MessageAnswer::No});
    EXPECT_FALSE(set.closePalette("", true));
    EXPECT_EQ(set.currentKey + " " + told(), "c:\\a ");
    EXPECT_TRUE(set.closePalette(set.lookup("")->path, true));
    EXPECT_EQ(set.currentKey + " " + told(), " tc");
    EXPECT_FALSE(set.closePalette("", true));
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
    EXPECT_THAT(keys(), ElementsAre("c:\\b", "c:\\c", "c:\\d", "c:\\x"));

    fake.messages.answerWith({MessageAnswer::No, MessageAnswer::Yes, MessageAnswer::Yes});
    EXPECT_TRUE(set.queryCloseAll());
    set.lookup("c:\\c")->path = "*c";
    fake.dialogs.answerWith("c:\\e");
    std::string key = "c:\\c";
    EXPECT_TRUE(set.queryClose(key, true));
    EXPECT_EQ(key, "c:\\e");
    EXPECT_EQ(keys().size(), 4U) << "nothing is removed";
    EXPECT_EQ(told(), "ttt");
}

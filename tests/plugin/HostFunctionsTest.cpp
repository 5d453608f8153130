#include "plugin/HostFunctions.h"

#include "../project/ProjectTestHost.h"
#include "FakePlugInHost.h"
#include "dyeworks/plugin.h"

#include <memory>
#include <string>

namespace dyeworks {
namespace {

/// What each function answers from where, AllTwenty tells.
class HostFunctions : public ProjectFixture, protected PaletteSetListener {
protected:
    HostFunctions() { setPlugInHost(&plugIns_); }
    ~HostFunctions() override { setPlugInHost(nullptr); }

    void tabsChanged() override {}
    void currentPaletteChanged() override { bar_ += palettes_.lookup("")->hasUnsavedChanges() ? 'c' : '-'; }
    void titlesChanged() override { bar_ += 't'; }

    void openPictures(const std::vector<std::string>& names) {
        ProjectFixture::openPictures(names);
        plugIns_.openedProject = &document_;
    }

    FakePlugInHost plugIns_;
    PaletteSet& palettes_ = plugIns_.palettes;
    std::string bar_; ///< What the palette bar was told.
};

TEST_F(HostFunctions, FillBuffersWithWholeCharacters) {
    openPictures({"A\xE7\xA9\xBA", "B"});
    char buffer[6];
    const auto name = [&](std::int32_t size) {
        std::fill(std::begin(buffer), std::end(buffer), '#');
        EXPECT_EQ(DW_getPictureName(0, buffer, size), 1U);
        return std::string(buffer, sizeof(buffer));
    };
    EXPECT_EQ(name(6), std::string("A\xE7\xA9\xBA\0\0", 6));
    EXPECT_EQ(name(5), std::string("A\xE7\xA9\xBA\0#", 6));
    EXPECT_EQ(name(4), std::string("A\0#\0##", 6));
    EXPECT_EQ(name(1), std::string("\0#####", 6));
    EXPECT_EQ(name(0), "######");
    EXPECT_EQ(name(-5), "######");
    EXPECT_EQ(DW_getPictureName(2, buffer, 6), 0U);
    EXPECT_EQ(DW_getPictureName(-1, buffer, 6), 0U);
}

TEST_F(HostFunctions, ChangeTheProjectAsTheUserWould) {
    openPictures({"A"});
    std::uint32_t number = 9;
    char file[16];
    EXPECT_EQ(DW_setPicture("N", "c:\\p\\n.tmf", "n.tlf", 3), 1U);
    EXPECT_EQ(DW_setPicture("a,b", "", "", 0), 0U);
    EXPECT_EQ(document_.pictureNames().front(), "N");
    EXPECT_EQ(DW_getPicture("N", file, 16, nullptr, 0, &number), 1U);
    EXPECT_STREQ(file, "n.tmf");
    EXPECT_EQ(number, 3U);
    EXPECT_EQ(DW_getPicture("n", nullptr, 0, nullptr, 0, nullptr), 0U);
    EXPECT_TRUE(document_.isModified());

    EXPECT_EQ(DW_setValue("\\Project\\Note", " x "), 1U);
    EXPECT_EQ(DW_getValue("\\Project\\Note", file, 16), 1U);
    EXPECT_STREQ(file, "x");
    EXPECT_EQ(DW_removeKey("\\Project\\Note"), 1U);
    EXPECT_EQ(DW_removeKey("\\Project\\Note"), 0U);
    EXPECT_EQ(DW_setTMFDir("d:\\a;d:\\b"), 1U);
    EXPECT_EQ(DW_getTMFDir(file, 16), 1U);
    EXPECT_STREQ(file, "d:\\a;d:\\b");
    // What the file could not hold, or would garble it.
    document_.setModified(false);
    EXPECT_EQ(DW_setValue("k", "a\nPICT_NUM = 0"), 0U);
    EXPECT_EQ(DW_setValue("k", "\x83\x41"), 0U);
    EXPECT_EQ(DW_setValue("1st", "a"), 0U);
    EXPECT_EQ(DW_setPicture("N", "\x83\x41", "", 0), 0U);
    EXPECT_EQ(DW_addNode("\x83\x41", 0, nullptr, 0), 0U);
    for (const char* folders : {"d:\\C#\\x", "d:\\\x83\x41"})
        EXPECT_EQ(DW_setTMFDir(folders) + DW_setTLFDir(folders), 0U) << folders;
    EXPECT_FALSE(document_.isModified());
    EXPECT_EQ(DW_setValue("k", "x"), 1U);
    EXPECT_TRUE(document_.save());

    // Without a tree a node is added to all there are, and found in none.
    EXPECT_EQ(DW_addNode("a", 0, nullptr, 0), 1U);
    EXPECT_EQ(DW_removeNode(0, nullptr), 0U);
}

TEST_F(HostFunctions, HandOutCopiesAndTakeOnlyWhatCanBeUsed) {
    openPictures({});
    const std::unique_ptr<::TmfImage, void (*)(::TmfImage*)> made(DW_newImage(3, 2, 4), DW_freeImage);
    DW_setTexel(made.get(), 1, 0, 7);
    EXPECT_EQ(DW_setTMF("c:\\p\\new.tmf", made.get()), 1U);
    const std::unique_ptr<::TmfImage, void (*)(::TmfImage*)> read(DW_getTMF("c:\\p\\new.tmf"), DW_freeImage);
    ASSERT_NE(read, nullptr);
    EXPECT_EQ(DW_getTexel(read.get(), 1, 0), 7);
    EXPECT_EQ(DW_getTMF("c:\\p\\gone.tmf"), nullptr);
    ::TmfImage broken = *made;
    broken.width = -1;
    EXPECT_EQ(DW_setTMF("c:\\p\\new.tmf", &broken), 0U);
    broken = {3, 2, 5, made->texels};
    EXPECT_EQ(DW_setTMF("c:\\p\\new.tmf", &broken), 0U);

    ASSERT_TRUE(palettes_.newPalette(16, ColourType::Rgba, 1));
    const std::unique_ptr<::TlutData, void (*)(::TlutData*)> table(DW_getTLF(""), DW_freePalette);
    ASSERT_NE(table, nullptr);
    table->entries[3] = 0x1234;
    EXPECT_NE(palettes_.lookup("")->table.getEntry(3), 0x1234);
    const std::string key = palettes_.currentKey;
    palettes_.setListener(this);
    EXPECT_EQ(DW_setTLF("", table.get()), 1U);
    EXPECT_EQ(palettes_.lookup("")->table.getEntry(3), 0x1234);
    EXPECT_TRUE(palettes_.lookup("")->canUndo());
    EXPECT_EQ(std::exchange(bar_, {}), "c");
    ASSERT_TRUE(palettes_.newPalette(16, ColourType::Rgba, 1));
    bar_.clear();
    EXPECT_EQ(DW_setTLF(key.c_str(), table.get()), 1U);
    EXPECT_EQ(bar_, "t") << "another palette's entries are not on view";
    palettes_.setListener(nullptr);
    EXPECT_EQ(DW_setTLF("new.tlf", table.get()), 0U) << "only files that are there are written";
    fake_.files.putFile("c:\\p\\new.tlf", "");
    EXPECT_EQ(DW_setTLF("new.tlf", nullptr), 0U);
    EXPECT_EQ(DW_setTLF("new.tlf", table.get()), 1U);
    const std::unique_ptr<::TlutData, void (*)(::TlutData*)> again(DW_getTLF("new.tlf"), DW_freePalette);
    ASSERT_NE(again, nullptr);
    EXPECT_EQ(again->entries[3], 0x1234);
    EXPECT_TRUE(messages().empty());
}

} // namespace
} // namespace dyeworks

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

TEST_F(HostFunctions, RefuseWhatTheFileCouldNotHoldOrWouldGarble) {
    openPictures({"A"});
    EXPECT_EQ(DW_getPicture("a", nullptr, 0, nullptr, 0, nullptr), 0U);
    EXPECT_EQ(DW_setValue("k", "a\nPICT_NUM = 0"), 0U);
    EXPECT_EQ(DW_setValue("k", "\x83\x41"), 0U);
    EXPECT_EQ(DW_setValue("1st", "a"), 0U);
    EXPECT_EQ(DW_setPicture("N", "\x83\x41", "", 0), 0U);
    EXPECT_EQ(DW_addNode("\x83\x41", 0, nullptr, 0), 0U);
    for (const char* folders : {"d:\\C#\\x", "d:\\\x83\x41"})
        EXPECT_EQ(DW_setTMFDir(folders) + DW_setTLFDir(folders), 0U) << folders;
    EXPECT_FALSE(document_.isModified());
    EXPECT_EQ(DW_setTMFDir("d:\\a;d:\\b"), 1U);
    EXPECT_EQ(document_.projectFile().tmfDir, "d:\\a;d:\\b");
    EXPECT_TRUE(document_.save());

    // Without a tree a node is added to all there are, and found in none.
    EXPECT_EQ(DW_addNode("a", 0, nullptr, 0), 1U);
    EXPECT_EQ(DW_removeNode(0, nullptr), 0U);
}

TEST_F(HostFunctions, TakeOnlyWhatCanBeUsedAndTellTheBarOfIt) {
    openPictures({});
    const std::unique_ptr<::TmfImage, void (*)(::TmfImage*)> made(DW_newImage(3, 2, 4), DW_freeImage);
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

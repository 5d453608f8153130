#include "CoreTest.h"
#include "core/TextureLookupTable.h"

#include <new>

using namespace dyeworks;
using namespace dyeworks::test;
using testing::ElementsAre;

namespace {

const std::string kPath = "c:\\sky.tlf";

class PaletteHistory : public testing::Test {
protected:
    PaletteHistory() {
        EXPECT_TRUE(palette.create(16, ColourType::Rgba));
        EXPECT_TRUE(palette.save(kPath.c_str(), false));
    }

    void edit(std::uint16_t entry) {
        EXPECT_TRUE(palette.beginEdit());
        EXPECT_TRUE(palette.setEntry(0, entry));
        EXPECT_TRUE(palette.commitEdit());
    }
    void editAndSave(std::uint16_t entry) {
        edit(entry);
        EXPECT_TRUE(palette.save(nullptr, false));
    }

    /// Whether closing the palette would ask; the question is answered with Cancel.
    bool asks(TextureLookupTable& target) {
        fake.messages.shown.clear();
        const bool mayClose = target.querySave();
        EXPECT_EQ(mayClose, fake.messages.shown.empty());
        return !mayClose;
    }
    bool asks() { return asks(palette); }

    void expect(bool modified, const std::string& title, std::uint16_t entry) {
        EXPECT_EQ(palette.modified, modified);
        EXPECT_EQ(palette.title, title);
        EXPECT_EQ(palette.table.getEntry(0), entry);
    }

    FakePlatform fake;
    TextureLookupTable palette;
};
using PaletteSavedPosition = PaletteHistory;

} // namespace

TEST_F(PaletteHistory, TitleMarkFollowsUndoAndRedoButNotTheEditItself) {
    EXPECT_FALSE(palette.undo());
    expect(false, "sky", 0);
    edit(1);
    edit(2);
    expect(true, "sky", 2);
    EXPECT_TRUE(palette.undo());
    expect(true, "sky", 1);
    EXPECT_TRUE(palette.undo());
    expect(false, "sky", 0);
    EXPECT_TRUE(palette.redo());
    expect(true, "sky * ", 1);
    EXPECT_TRUE(palette.redo());
    EXPECT_FALSE(palette.redo());
    expect(true, "sky * ", 2);
    ASSERT_TRUE(palette.save(nullptr, false));
    expect(false, "sky", 2);
    palette.title = "a * b * ";
    EXPECT_TRUE(palette.undo());
    expect(true, "a * ", 1);
}

TEST_F(PaletteHistory, RecordWithoutMemoryKeepsTheEditAndAsksAboutTheOthers) {
    using Record = std::unique_ptr<UndoRecord>;
    edit(1);
    for (const MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Yes}) {
        fake.messages.shown.clear();
        if (answer == MessageAnswer::No)
            palette.setRecordFactory([](const TlutData*, const TlutData*) { return Record(); });
        else
            palette.setRecordFactory(
                [](const TlutData*, const TlutData*) -> Record { throw std::bad_alloc(); });
        ASSERT_TRUE(palette.beginEdit());
        palette.setEntry(0, 2);
        fake.messages.answerWith(answer);
        EXPECT_FALSE(palette.commitEdit());
        EXPECT_THAT(fake.messages.shown,
                    ElementsAre(Shows(question("Could not allocate buffer for UNDO information.\n"
                                               "Do you clear all UNDO buffer?",
                                               MessageButtons::YesNo))));
        EXPECT_EQ(palette.table.getEntry(0), 2);
        EXPECT_EQ(palette.canUndo(), answer == MessageAnswer::No);
    }
    palette.updateTitle();
    EXPECT_FALSE(palette.modified);
    EXPECT_TRUE(asks()) << "the file does not hold the edit, whatever the fresh history says";
}

TEST_F(PaletteSavedPosition, UndoBehindTheLastSaveAsksAndRedoToItDoesNot) {
    editAndSave(1);
    EXPECT_FALSE(asks());
    ASSERT_TRUE(palette.undo());
    EXPECT_FALSE(palette.modified);
    EXPECT_TRUE(asks());
    ASSERT_TRUE(palette.redo());
    palette.modified = false;
    EXPECT_FALSE(asks());
    ASSERT_TRUE(palette.undo());
    fake.messages.answerWith(MessageAnswer::Yes);
    EXPECT_TRUE(palette.querySave());
    EXPECT_FALSE(asks());
}

TEST_F(PaletteSavedPosition, IsLostWithTheBranchItStoodOn) {
    editAndSave(1);
    ASSERT_TRUE(palette.undo());
    edit(2);
    palette.modified = false;
    EXPECT_TRUE(asks());
    ASSERT_TRUE(palette.undo());
    EXPECT_TRUE(asks());
}

TEST_F(PaletteSavedPosition, IsLostWhenTheHistoryForgetsItsStart) {
    for (std::uint16_t i = 1; i <= 101; ++i)
        edit(i);
    while (palette.undo()) {
    }
    expect(false, "sky", 1);
    EXPECT_TRUE(asks());
    ASSERT_TRUE(palette.save(nullptr, false) && palette.redo() && palette.undo());
    EXPECT_FALSE(asks()) << "back at the edit that was dropped and then saved";
}

TEST_F(PaletteSavedPosition, CarriesOverToAFreshHistoryOnlyFromWhereItStood) {
    editAndSave(1);
    TextureLookupTable saved(palette);
    EXPECT_FALSE(asks(saved));
    palette.resetHistory();
    edit(2);
    ASSERT_TRUE(palette.undo());
    EXPECT_FALSE(asks());

    editAndSave(3);
    ASSERT_TRUE(palette.undo());
    TextureLookupTable unsaved(palette);
    EXPECT_FALSE(unsaved.modified || unsaved.canRedo());
    EXPECT_TRUE(asks(unsaved));
    palette.resetHistory();
    EXPECT_FALSE(palette.modified);
    EXPECT_TRUE(asks());
}

TEST_F(PaletteSavedPosition, SurvivesAFailedSave) {
    edit(1);
    fake.files.failNextWrite(FileError::NoSpace);
    EXPECT_FALSE(palette.save(nullptr, false));
    EXPECT_TRUE(asks());
    ASSERT_TRUE(palette.undo());
    EXPECT_FALSE(asks());
}

TEST_F(PaletteSavedPosition, IsNoProofWhenTheTableIsNotWhatTheFileHolds) {
    editAndSave(1);
    ASSERT_TRUE(palette.undo() && palette.open(kPath.c_str()));
    EXPECT_FALSE(asks()) << "the file was read again over the history";
    ASSERT_TRUE(palette.redo() && palette.undo());
    EXPECT_FALSE(palette.modified);
    EXPECT_TRUE(asks()) << "the history led back to the table before that";

    ASSERT_TRUE(palette.beginEdit() && palette.setEntry(0, 9) && palette.save(nullptr, false));
    ASSERT_TRUE(palette.commitEdit() && palette.undo());
    palette.modified = false;
    EXPECT_TRUE(asks()) << "saved in the middle of an edit that was then undone";
}

#include "CoreTest.h"
#include "core/TextureLookupTable.h"

#include <functional>
#include <map>
#include <new>
#include <sstream>

namespace dyeworks {
namespace {

constexpr const char* kHistoryPath = "c:\\sky.tlf";

class PaletteHistory : public testing::Test {
protected:
    PaletteHistory() {
        EXPECT_TRUE(palette.create(16, ColourType::Rgba));
        EXPECT_TRUE(palette.save(kHistoryPath, false));
    }

    /// Whether closing the palette would ask; the question is answered with Cancel.
    bool asks(TextureLookupTable& target) {
        fake.messages.shown.clear();
        const bool mayClose = target.querySave();
        EXPECT_EQ(mayClose, fake.messages.shown.empty());
        return !mayClose;
    }
    /// The same for a copy, which has a history of its own.
    bool copyAsks() {
        TextureLookupTable copy(palette);
        EXPECT_EQ(copy.modified, palette.modified);
        EXPECT_FALSE(copy.canRedo());
        return asks(copy);
    }

    /// Goes through the words of a script, each of which must hold. A number is an edit of the first entry.
    void run(const std::string& script) {
        const std::map<std::string, std::function<bool()>> words{
            {"begin", [&] { return palette.beginEdit(); }},
            {"set-9", [&] { return palette.setEntry(0, 9); }},
            {"commit", [&] { return palette.commitEdit(); }},
            {"save", [&] { return palette.save(nullptr, false); }},
            {"cannot-save",
             [&] { return fake.files.failNextWrite(FileError::NoSpace), !palette.save(nullptr, false); }},
            {"answer-yes", [&] { return fake.messages.answerWith(MessageAnswer::Yes), palette.querySave(); }},
            {"open", [&] { return palette.open(kHistoryPath); }},
            {"undo", [&] { return palette.undo(); }},
            {"redo", [&] { return palette.redo(); }},
            {"reset", [&] { return palette.resetHistory(), true; }},
            {"unmark", [&] { return palette.modified = false, true; }},
            {"unmodified", [&] { return !palette.modified; }},
            {"asks", [&] { return asks(palette); }},
            {"silent", [&] { return !asks(palette); }},
            {"copy-asks", [&] { return copyAsks(); }},
            {"copy-silent", [&] { return !copyAsks(); }},
        };
        SCOPED_TRACE(script);
        std::istringstream in(script);
        for (std::string word; in >> word;) {
            if (words.contains(word))
                ASSERT_TRUE(words.at(word)()) << word << ", before byte " << in.tellg();
            else
                edit(static_cast<std::uint16_t>(std::stoi(word)));
        }
    }
    void edit(std::uint16_t entry) {
        EXPECT_TRUE(palette.beginEdit() && palette.setEntry(0, entry) && palette.commitEdit());
    }

    FakePlatform fake;
    TextureLookupTable palette;
};

TEST_F(PaletteHistory, RecordWithoutMemoryKeepsTheEditAndAsksAboutTheOthers) {
    using Record = std::unique_ptr<UndoRecord>;
    const std::pair<TextureLookupTable::RecordFactory, MessageAnswer> cases[] = {
        {[](const TlutData*, const TlutData*) { return Record(); }, MessageAnswer::No},
        {[](const TlutData*, const TlutData*) -> Record { throw std::bad_alloc(); }, MessageAnswer::Yes}};
    edit(1);
    for (const auto& [factory, answer] : cases) {
        fake.messages.shown.clear();
        fake.messages.answerWith(answer);
        palette.setRecordFactory(factory);
        run("begin set-9");
        EXPECT_FALSE(palette.commitEdit());
        EXPECT_THAT(fake.messages.shown, ElementsAre(Asks("Could not allocate buffer for UNDO information.\n"
                                                          "Do you clear all UNDO buffer?",
                                                          MessageButtons::YesNo)));
        EXPECT_EQ(palette.table.getEntry(0), 9);
        EXPECT_EQ(palette.canUndo(), answer == MessageAnswer::No);
    }
    palette.updateTitle();
    run("unmodified asks"); // The file does not hold the edit, whatever the fresh history says.
}

TEST_F(PaletteHistory, AsksWheneverTheTableMayNotBeWhatTheFileHolds) {
    run("1 save silent undo unmodified asks redo unmark silent undo answer-yes silent");
}

TEST_F(PaletteHistory, LosesTheSavedPositionWithTheBranchItStoodOn) {
    run("1 save undo 2 unmark asks undo asks");
}

TEST_F(PaletteHistory, LosesTheSavedPositionWhenItForgetsItsStart) {
    for (std::uint16_t i = 1; i <= 101; ++i)
        edit(i);
    while (palette.undo()) {
    }
    EXPECT_EQ(palette.table.getEntry(0), 1);
    run("unmodified asks save redo undo silent"); // Back at the edit that was dropped and then saved.
}

TEST_F(PaletteHistory, HandsTheSavedPositionToAFreshOneOnlyFromWhereItStood) {
    run("1 save copy-silent reset 2 undo silent 3 save undo unmodified copy-asks reset unmodified asks");
}

TEST_F(PaletteHistory, KeepsTheSavedPositionOverAFailedSave) {
    run("1 cannot-save asks undo silent");
}

TEST_F(PaletteHistory, IsNoProofOfWhatTheFileHoldsAfterReadingItAgainOrSavingAmidAnEdit) {
    run("1 save undo open silent redo undo unmodified asks");
    run("begin set-9 save commit undo unmark asks");
}

} // namespace
} // namespace dyeworks

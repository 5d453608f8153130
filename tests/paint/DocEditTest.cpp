#include "DocTestHost.h"

#include <functional>

namespace dyeworks {
namespace {

struct EditCase {
    const char* name;
    std::function<void(TextureCanvas&)> draw;
};

TEST_F(DocFixture, EveryEditIsOneStepThatGoesBackAndForth) {
    document.Edit(nullptr, [](TextureCanvas& canvas) { canvas.DrawLine(2, 1, 9, 6, 5); });
    TextureCanvas piece;
    ASSERT_TRUE(piece.Create(2, 2, 1, 4));
    piece.SetPixel(1, 0, 12);
    const std::vector<EditCase> edits{
        {"box", [](TextureCanvas& canvas) { canvas.DrawBox(1, 1, 6, 7, 4); }},
        {"replace all",
         [](TextureCanvas& canvas) {
             canvas.ReplaceColor({0, 0, 15, 11}, 15, 11, 6);
         }},
        {"piece", [&](TextureCanvas& canvas) { canvas.StretchPaste(piece, 3, 3, 9, 9); }},
    };
    for (const EditCase& edit : edits) {
        SCOPED_TRACE(edit.name);
        const auto before = pixels();
        const std::int32_t steps = document.edits().steps->count();
        document.Edit(nullptr, edit.draw);
        const auto after = pixels();
        EXPECT_NE(before, after);
        EXPECT_EQ(document.edits().steps->count(), steps + 1);
        ASSERT_TRUE(document.Undo());
        EXPECT_EQ(pixels(), before);
        ASSERT_TRUE(document.Redo());
        EXPECT_EQ(pixels(), after);
        const auto inverse = document.edits().steps->currentRecord()->inverse();
        ASSERT_NE(inverse, nullptr);
        inverse->redo(&document.canvas());
        EXPECT_EQ(pixels(), before);
        inverse->undo(&document.canvas());
        EXPECT_EQ(pixels(), after);
    }
}

TEST_F(DocFixture, EditThatChangesNoPixelRecordsNothingAndMarksNothing) {
    document.setPathName("c:\\a.tmf");
    fill(0, 0, 3);
    ASSERT_TRUE(document.save());
    fill(0, 0, 3);
    document.Edit(nullptr, [](TextureCanvas& canvas) {
        canvas.DrawLine(0, 0, 9, 0, 3);    // writes the value that is there
        canvas.DrawEllipse(4, 4, 4, 9, 7); // draws nothing
    });
    pixel(16, 0, 7); // outside
    EXPECT_EQ(document.edits().steps->count(), 1);
    EXPECT_EQ(document.title(), "a.tmf");
    EXPECT_FALSE(document.hasUnsavedChanges());
}

TEST_F(DocFixture, FlagAndTitleFollowTheHistory) {
    document.setTitle("Texture1");
    pixel(1, 1, 5);
    pixel(2, 1, 5);
    EXPECT_EQ(document.title(), "Texture1 * ");
    document.Undo();
    EXPECT_EQ(document.title(), "Texture1 * ");
    document.Undo();
    EXPECT_EQ(document.title(), "Texture1");
    EXPECT_FALSE(document.isModified());
    document.Redo();
    EXPECT_EQ(document.title(), "Texture1 * ");
    EXPECT_TRUE(document.isModified());
}

TEST_F(DocFixture, WithoutMemoryToUndoItAnEditIsAskedAboutFirst) {
    document.setPathName("c:\\a.tmf");
    document.setSnapshotFactory([](const auto&) { return nullptr; });
    const auto before = pixels();
    for (const MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Yes}) {
        platform.messages.answerWith(answer);
        fill(0, 0, 3);
        EXPECT_EQ(platform.messages.lastText(), text(StringId::WithoutUndoQuestion));
        EXPECT_EQ(pixels() == before, answer == MessageAnswer::No);
        EXPECT_EQ(document.hasUnsavedChanges(), answer == MessageAnswer::Yes);
        EXPECT_EQ(document.title(), answer == MessageAnswer::Yes ? "a.tmf * " : "a.tmf");
    }
    EXPECT_EQ(document.BeginEdit(nullptr), nullptr);
    EXPECT_EQ(platform.messages.lastText(), text(StringId::NotEnoughMemory));
}

TEST_F(DocFixture, LostUndoStepIsReportedAndNoStateCountsAsSaved) {
    struct Case {
        MessageAnswer answer;
        std::int32_t stepsBefore, stepsAfter;
    };
    for (const Case& c :
         {Case{MessageAnswer::No, 0, 0}, Case{MessageAnswer::No, 2, 2}, Case{MessageAnswer::Yes, 2, 0}}) {
        document.setRecordFactory(&ImageUndoRecord::make);
        document.ClearUndo();
        for (std::int32_t n = 0; n < c.stepsBefore; ++n)
            pixel(n, 1, 5);
        document.setPathName("c:\\a.tmf");
        ASSERT_TRUE(document.save());
        document.setRecordFactory([](const auto&...) { return nullptr; });
        platform.messages.answerWith(c.answer);
        pixel(8, 1, 4);
        EXPECT_EQ(platform.messages.lastText(), "Could not allocate buffer for UNDO information.\n"
                                                "Do you clear all UNDO buffer?");
        EXPECT_EQ(platform.messages.shown.back().icon, MessageIcon::Warning);
        EXPECT_EQ(platform.messages.shown.back().buttons, MessageButtons::YesNo);
        EXPECT_EQ(document.edits().steps->count(), c.stepsAfter);
        EXPECT_TRUE(document.hasUnsavedChanges());
        EXPECT_EQ(document.title(), "a.tmf * ");
        document.canvas().Create(16, 12, 1, 4);
    }
}

} // namespace
} // namespace dyeworks

#include "DocTestHost.h"
#include "platform/StringId.h"

namespace dyeworks {
namespace {

TEST_F(DocFixture, AnInverseStepGoesTheOtherWay) {
    const auto before = pixels();
    pixel(1, 1, 5);
    const auto after = pixels();
    const auto inverse = document.edits().steps->currentRecord()->inverse();
    inverse->redo(&document.canvas());
    EXPECT_EQ(pixels(), before);
    inverse->undo(&document.canvas());
    EXPECT_EQ(pixels(), after);
}

TEST_F(DocFixture, WhatWasDrawnPastTheHistoryStays) {
    TextureCanvas& canvas = document.canvas();
    const auto dropFill = [&] {
        ASSERT_NE(document.BeginEdit(nullptr), nullptr);
        canvas.FillBox(0, 0, 15, 11, 3);
        document.DropEdit();
    };
    pixel(1, 1, 5);
    canvas.PutPixel(8, 8, 7);
    canvas.ResetChangedRect();
    dropFill();
    ASSERT_TRUE(document.Undo());
    EXPECT_EQ(canvas.GetPixel(1, 1), 0U);
    EXPECT_EQ(canvas.GetPixel(8, 8), 7U);
    ASSERT_TRUE(canvas.CreateLike(canvas));
    const auto blank = pixels();
    dropFill();
    EXPECT_EQ(pixels(), blank);
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

TEST_F(DocFixture, AfterALostUndoStepNoStateCountsAsSaved) {
    document.setPathName("c:\\a.tmf");
    ASSERT_TRUE(document.save());
    document.setRecordFactory([](const auto&...) { return nullptr; });
    pixel(8, 1, 4);
    EXPECT_TRUE(document.hasUnsavedChanges());
    EXPECT_EQ(document.title(), "a.tmf * ");
}

} // namespace
} // namespace dyeworks

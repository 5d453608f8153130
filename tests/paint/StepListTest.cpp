#include "core/StepList.h"

#include "ViewTestWindow.h"
#include "platform/StringId.h"

namespace dyeworks {
namespace {

class StepListOfImage : public ViewFixture {
protected:
    [[nodiscard]] std::int32_t positionOf(std::size_t row) const {
        return stepsOf(document.edits()).at(row).position;
    }
};

TEST_F(StepListOfImage, JumpIsShownOnceAndBringsTheCountsAlong) {
    host.active = &document;
    ASSERT_TRUE(document.runCommand(ID_PREVIEW1));
    static_cast<void>(document.texelCounts());
    for (std::int32_t x = 0; x < 10; ++x)
        pixel(x, 3, 5);
    host.plugIns.take();
    ASSERT_TRUE(document.GoTo(positionOf(2)));
    EXPECT_EQ(host.plugIns.take().size(), 1U);
    EXPECT_EQ(document.texelCounts()[5], 2U);
    EXPECT_FALSE(document.GoTo(99)) << "there is no such step";
    EXPECT_TRUE(document.GoTo(positionOf(9)));
    EXPECT_EQ(document.texelCounts()[5], 9U);
}

TEST_F(StepListOfImage, NothingIsJumpedOverThatIsNoStepYet) {
    pixel(1, 1, 5);
    ImageEdit* const edit = document.BeginEdit(&view);
    edit->canvas().PutPixel(2, 2, 6);
    EXPECT_FALSE(document.GoTo(positionOf(0)));
    EXPECT_TRUE(document.isBeingEdited());
    document.CommitEdit(StringId::StepPen);
    view.selection().setAnchor({4, 4});
    view.selection().setFloatingPiece(document.canvas().CopyRect(0, 0, 2, 2), StringId::StepPaste);
    EXPECT_FALSE(document.GoTo(positionOf(0)));
    EXPECT_TRUE(view.selection().hasFloatingPiece());
    ASSERT_TRUE(view.selection().commitFloatingPiece(true));
    const std::vector<StepRow> rows = stepsOf(document.edits());
    EXPECT_EQ(rows.at(2).name, StringId::StepPen);
    EXPECT_EQ(rows.at(3).name, StringId::StepPaste);
    EXPECT_TRUE(document.GoTo(positionOf(0)));
}

TEST_F(StepListOfImage, BeginsWithWhatTheImageCameFrom) {
    const auto beginning = [this] { return stepsOf(document.edits()).front().name; };
    EXPECT_EQ(beginning(), StringId::StepNew);
    document.setPathName("c:\\a.tmf");
    ASSERT_TRUE(document.save());
    pixel(1, 1, 5);
    EXPECT_EQ(beginning(), StringId::StepNew) << "though it is in a file by now";
    ASSERT_TRUE(document.onOpenDocument("c:\\a.tmf"));
    EXPECT_EQ(beginning(), StringId::StepOpened);
    pixel(2, 1, 5);
    document.ClearUndo();
    EXPECT_EQ(beginning(), StringId::StepEarlier);
}

} // namespace
} // namespace dyeworks

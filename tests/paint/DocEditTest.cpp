#include "DocTestHost.h"
#include "paint/CanvasDifference.h"

#include <functional>
#include <random>

namespace dyeworks {
namespace {

struct EditCase {
    const char* name;
    std::function<void(CDyeworksDoc&)> run;
};

TmfImage imageOf(std::uint32_t value) {
    TmfImage image;
    EXPECT_TRUE(image.create(16, 12, 4));
    image.setTexel(5, 5, value);
    return image;
}

TEST_F(DocFixture, EveryEditIsOneStepThatGoesBackAndForth) {
    document.Line(nullptr, 2, 1, 9, 6, 5);
    TextureCanvas piece;
    ASSERT_TRUE(piece.Create(2, 2, 1, 4));
    piece.SetPixel(1, 0, 12);
    const std::vector<EditCase> edits{
        {"line", [](CDyeworksDoc& doc) { doc.Line(nullptr, -3, 2, 20, 9, 3); }},
        {"box",
         [](CDyeworksDoc& doc) {
             doc.Box(nullptr, {1, 1, 6, 7}, 4);
         }},
        {"filled box",
         [](CDyeworksDoc& doc) {
             doc.FilledBox(nullptr, {15, 11, 12, 8}, 4);
         }},
        {"ellipse",
         [](CDyeworksDoc& doc) {
             doc.Ellipse(nullptr, {0, 0, 9, 9}, 7);
         }},
        {"filled ellipse",
         [](CDyeworksDoc& doc) {
             doc.FilledEllipse(nullptr, {3, 3, 8, 8}, 7);
         }},
        {"fill", [](CDyeworksDoc& doc) { doc.Fill(nullptr, 0, 11, 2); }},
        {"replace all", [](CDyeworksDoc& doc) { doc.Replace(nullptr, {}, 15, 11, 6); }},
        {"pixel", [](CDyeworksDoc& doc) { doc.Pixel(nullptr, 7, 7, 8); }},
        {"flip",
         [](CDyeworksDoc& doc) {
             doc.Flip(nullptr, {0, 0, 12, 7}, 3);
         }},
        {"piece",
         [&](CDyeworksDoc& doc) {
             doc.PlaceFloatingPiece(nullptr, piece, {3, 3, 9, 9});
         }},
        {"image", [](CDyeworksDoc& doc) { EXPECT_TRUE(doc.SetImage(nullptr, imageOf(11))); }},
    };
    for (const EditCase& edit : edits) {
        SCOPED_TRACE(edit.name);
        const auto before = pixels();
        const std::int32_t steps = document.history().count();
        edit.run(document);
        const auto after = pixels();
        EXPECT_NE(before, after);
        EXPECT_EQ(document.history().count(), steps + 1);
        ASSERT_TRUE(document.Undo());
        EXPECT_EQ(pixels(), before);
        ASSERT_TRUE(document.Redo());
        EXPECT_EQ(pixels(), after);
        const auto inverse = document.history().currentRecord()->inverse();
        ASSERT_NE(inverse, nullptr);
        inverse->redo(&document.canvas());
        EXPECT_EQ(pixels(), before);
        inverse->undo(&document.canvas());
        EXPECT_EQ(pixels(), after);
    }
}

TEST_F(DocFixture, EditThatChangesNoPixelRecordsNothingAndMarksNothing) {
    document.setPathName("c:\\a.tmf");
    document.Fill(nullptr, 0, 0, 3);
    ASSERT_TRUE(document.save());
    document.Fill(nullptr, 0, 0, 3);
    document.Line(nullptr, 0, 0, 9, 0, 3);      // writes the value that is there
    document.Ellipse(nullptr, {4, 4, 4, 9}, 7); // draws nothing
    document.Pixel(nullptr, 16, 0, 7);          // outside
    EXPECT_EQ(document.history().count(), 1);
    EXPECT_EQ(document.title(), "a.tmf");
    EXPECT_FALSE(document.hasUnsavedChanges());
}

TEST_F(DocFixture, FlagAndTitleFollowTheHistory) {
    document.setTitle("Texture1");
    document.Pixel(nullptr, 1, 1, 5);
    document.Pixel(nullptr, 2, 1, 5);
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
            document.Pixel(nullptr, n, 1, 5);
        document.setPathName("c:\\a.tmf");
        ASSERT_TRUE(document.save());
        document.setRecordFactory([](const auto&...) { return nullptr; });
        platform.messages.answerWith(c.answer);
        document.Pixel(nullptr, 8, 1, 4);
        EXPECT_EQ(platform.messages.lastText(), "Could not allocate buffer for UNDO information.\n"
                                                "Do you clear all UNDO buffer?");
        EXPECT_EQ(platform.messages.shown.back().icon, MessageIcon::Warning);
        EXPECT_EQ(platform.messages.shown.back().buttons, MessageButtons::YesNo);
        EXPECT_EQ(document.history().count(), c.stepsAfter);
        EXPECT_TRUE(document.hasUnsavedChanges());
        document.canvas().Create(16, 12, 1, 4);
    }
}

TEST(DocDifference, HoldsEveryDifferingPixelAndNoMoreThanTheirBytes) {
    std::mt19937 random(7);
    for (int round = 0; round < 400; ++round) {
        const auto below = [&](int limit) {
            return static_cast<std::int32_t>(random() % static_cast<unsigned>(limit));
        };
        const std::uint16_t bits = round % 2 == 0 ? 4 : 8;
        TextureCanvas a;
        TextureCanvas b;
        ASSERT_TRUE(a.Create(1 + below(11), 1 + below(9), 1, bits) && b.CreateLike(a));
        Rect expected{99, 99, -1, -1};
        for (int n = below(4); n > 0; --n) {
            const Point at{below(a.width()), below(a.height())};
            b.SetPixel(at.x, at.y, 1);
            expected = {std::min(expected.left, at.x), std::min(expected.top, at.y),
                        std::max(expected.right, at.x), std::max(expected.bottom, at.y)};
        }
        const auto found = differingRect(a, b, {-2, -2, a.width() + 5, a.height() + 5});
        ASSERT_EQ(found.has_value(), expected.right >= 0);
        if (!found)
            continue;
        if (bits == 4) {
            expected.left -= expected.left % 2;
            expected.right = std::min(expected.right | 1, a.width() - 1);
        }
        EXPECT_EQ(*found, expected) << "round " << round;
    }
}

} // namespace
} // namespace dyeworks

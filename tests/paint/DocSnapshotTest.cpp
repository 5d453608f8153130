#include "CanvasTesting.h"
#include "DocTestHost.h"
#include "WholeImages.h"

#include <algorithm>
#include <functional>

namespace dyeworks {
namespace {

/// What no tool does is mixed with plain edits; bands and strokes are compared with whole copies where the
/// tools are.
class DocSnapshot : public DocFixture, public testing::WithParamInterface<std::uint16_t> {
protected:
    /// One thing done to both; what it was.
    std::string step() {
        const Rect at{random.between(-3, 25), random.between(-3, 19), random.between(-3, 25),
                      random.between(-3, 19)};
        const std::uint32_t value = random.bits() % 4;
        TextureCanvas& drawn = document.canvas();
        const auto line = [=](TextureCanvas& to) {
            to.DrawLine(at.left, at.top, at.right, at.bottom, value);
        };
        switch (random.between(0, 7)) {
        case 0:
            edit(line);
            return "line";
        case 1:
        case 2:
            edit([=](TextureCanvas& to) { to.PutPixel(at.left, at.top, value); });
            return "pixel";
        case 3: {
            TextureCanvas other;
            EXPECT_TRUE(other.CreateLike(drawn));
            line(other);
            document.SetImage(*other.ToImage());
            model.edit([&](TextureCanvas& to) { to.CopyFrom(other); });
            return "image";
        }
        case 4:
        case 5:
            document.Undo();
            model.undo();
            return "undo";
        case 6:
            document.Redo();
            model.redo();
            return "redo";
        default:
            document.RefreshPalette();
            return "palette";
        }
    }

    void edit(const std::function<void(TextureCanvas&)>& draw) {
        document.Edit(nullptr, draw);
        model.edit(draw);
    }

    Random random{GetParam()};
    WholeImages model;
};

TEST_P(DocSnapshot, LongSessionAgreesWithWholeCopies) {
    ASSERT_TRUE(document.canvas().Create(23, 17, 1, GetParam()));
    model.image = document.canvas().Clone();
    std::string last;
    for (int n = 0; n < 6000; ++n) {
        last = step() + " after " + last.substr(0, 60);
        ASSERT_EQ(rowsOf(document.canvas()), rowsOf(*model.image)) << n << ": " << last;
        ASSERT_EQ(document.edits().canUndo(), !model.undone.empty()) << n << ": " << last;
        ASSERT_EQ(document.edits().canRedo(), !model.redone.empty()) << n << ": " << last;
    }
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

INSTANTIATE_TEST_SUITE_P(Depths, DocSnapshot, testing::Values(std::uint16_t{4}, std::uint16_t{8}));

} // namespace
} // namespace dyeworks

#include "ViewTestWindow.h"

#include <gmock/gmock.h>

namespace dyeworks {
namespace {

using testing::ElementsAre;

class ViewDisplay : public ViewFixture {
protected:
    ViewDisplay() {
        openPalette();
        document.Attach();
        view.runCommand(ID_ZOOM_X4);
        window.scroll = {6, 2};
        forget();
    }
    void forget() {
        window.invalidated.clear();
        window.repaints = 0;
    }
    void expectRepaint(const Rect& area, std::uint32_t request) {
        EXPECT_THAT(window.invalidated, ElementsAre(area));
        EXPECT_EQ(window.repaints, 1);
        EXPECT_EQ(window.paintedRequest, request);
        forget();
    }
    using Picture = std::vector<std::uint32_t>;
    /// `picture` after a paint of all of the image.
    Picture painted(std::uint32_t request, Picture picture = Picture(64 * 48)) {
        Surface surface{picture.data(), 64, 48, 64};
        view.Paint(surface, {0, 0, 64, 48}, 0xff808080, request);
        return picture;
    }
};

TEST_F(ViewDisplay, SelectingRepaintsWhatWasAndWhatIsSelected) {
    view.SetSelection(Rect{5, 4, 2, 1}, true);
    EXPECT_EQ(view.selection(), (Rect{2, 1, 5, 4}));
    EXPECT_EQ(window.interval, 200);
    expectRepaint({2, 2, 19, 19}, 0x80);
    view.SetSelection(Rect{4, 1, 7, 4}, true);
    expectRepaint({2, 2, 27, 19}, 0xc0);
    view.SetSelection(std::nullopt, true);
    EXPECT_EQ(window.interval, 0);
    EXPECT_EQ(view.selection(), Rect{});
    expectRepaint({10, 2, 27, 19}, 0x40);

    // A line of texels is shown, but is nothing to work with.
    view.SetSelection(Rect{3, 2, 3, 5}, true);
    EXPECT_FALSE(view.SelectionExists());
    expectRepaint({6, 6, 11, 23}, 0x80);
    view.SetSelection(std::nullopt, true);
    expectRepaint({6, 6, 11, 23}, 0);

    view.SetSelection(Rect{1, 1, 2, 2}, false);
    EXPECT_EQ(window.interval, 200);
    view.SetSelection(std::nullopt, false);
    EXPECT_EQ(window.interval, 0);
    EXPECT_EQ(window.repaints, 0);
}

TEST_F(ViewDisplay, EachTickRepaintsTheFourSidesInTheOtherPhase) {
    view.Tick();
    EXPECT_EQ(window.repaints, 0);
    view.SetSelection(Rect{2, 1, 5, 4}, false);
    const Picture before = painted(0);
    view.Tick();
    EXPECT_THAT(window.invalidated,
                ElementsAre(Rect{1, 1, 19, 3}, Rect{1, 17, 19, 19}, Rect{1, 1, 3, 19}, Rect{17, 1, 19, 19}));
    EXPECT_EQ(window.repaints, 1);
    EXPECT_NE(painted(0), before);
    window.scroll.x = 20;
    forget();
    view.Tick();
    EXPECT_THAT(window.invalidated,
                ElementsAre(Rect{0, 1, 5, 3}, Rect{0, 17, 5, 19}, Rect{0, 1, 2, 19}, Rect{3, 1, 5, 19}));
    EXPECT_EQ(painted(0), before);
}

TEST_F(ViewDisplay, RequestsPaintTheirPartsOverWhatIsThere) {
    auto piece = std::make_unique<TextureCanvas>();
    ASSERT_TRUE(piece->Create(3, 3, 1, 8));
    view.SetFloatingPiece(std::move(piece));
    const Picture image = painted(0);
    view.SetSelection(Rect{2, 1, 5, 4}, true);
    const Picture whole = painted(0);
    EXPECT_NE(whole, image);
    EXPECT_EQ(painted(0x40), image);
    EXPECT_EQ(painted(0xc0), whole);
    EXPECT_EQ(painted(0x80, image), whole);

    view.SetSelection(Rect{2, 1, 5, 1}, true);
    EXPECT_EQ(painted(0), image);
    EXPECT_NE(painted(0xc0), image);
}

TEST_F(ViewDisplay, FirstPaintWithAPaletteRepaintsEverything) {
    document.setAttachedName("");
    EXPECT_EQ(view.BeginPaint(), 0U);
    document.Attach();
    const int full = window.fullRepaints;
    for (int paint = 0; paint < 2; ++paint) {
        EXPECT_EQ(view.BeginPaint(), 0U);
        EXPECT_EQ(window.fullRepaints, full + 1);
    }
}

TEST_F(ViewDisplay, RequestThatNoPaintServedLimitsNoLaterOne) {
    window.view = nullptr; // as if out of sight
    view.SetSelection(Rect{2, 1, 5, 4}, true);
    EXPECT_EQ(view.BeginPaint(), 0U);
}

} // namespace
} // namespace dyeworks

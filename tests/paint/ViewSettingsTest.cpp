#include "ViewTestWindow.h"

#include <gmock/gmock.h>

namespace dyeworks {
namespace {

constexpr const char* kViewedPath = "c:\\tex\\sky.tmf";
constexpr const char* kSection = "Settings\\Images\\c:\\tex\\sky.tmf";
constexpr WindowPlacement kPlace{0, 1, -1, -1, -1, -1, 10, 20, 310, 220};

class ViewSettings : public ViewFixture {
protected:
    ViewSettings() {
        platform.files.putFile(kViewedPath, "");
        document.setPathName(kViewedPath);
        window.place = kPlace;
    }

    /// A second look at the file, as after a restart.
    struct Reopened {
        explicit Reopened(ViewSettings& first)
            : document(first.host) {
            document.canvas().Create(16, 12, 1, 4);
            document.setPathName(kViewedPath);
            view.InitialUpdate();
        }
        CDyeworksDoc document;
        FakeViewWindow window;
        CDyeworksView view{document, window};
    };
};

TEST_F(ViewSettings, ReturnWhenTheFileIsOpenedAgain) {
    openPalette();
    document.Attach();
    const std::string attached = document.attachedName();
    openPalette(256);
    view.runCommand(ID_ZOOM_X6);
    view.ToggleGrid();
    window.scroll = {51, 40};
    view.Closing();

    Reopened again(*this);
    EXPECT_EQ(again.view.zoom(), 6);
    EXPECT_EQ(again.window.content, (Size{96, 72}));
    EXPECT_FALSE(again.view.gridShown());
    EXPECT_EQ(again.window.scroll, (Point{51, 40}));
    EXPECT_EQ(again.window.place, kPlace);
    EXPECT_EQ(again.document.attachedName(), attached);
    const auto colours = document.canvas().colourTable();
    EXPECT_TRUE(std::ranges::equal(again.document.canvas().colourTable(), colours));

    // The position outlives sizes that the window only passes through, up to the first paint.
    for (const bool painted : {false, true}) {
        if (painted)
            static_cast<void>(again.view.BeginPaint());
        again.window.client = {70, 70};
        again.view.Resized();
        EXPECT_EQ(again.window.scroll, (Point{26, 2}));
        again.window.client = {40, 30};
        again.view.Resized();
        EXPECT_EQ(again.window.scroll, painted ? (Point{26, 2}) : (Point{51, 40}));
    }
}

TEST_F(ViewSettings, OfAFurtherWindowAreNeitherItsPlaceNorItsPalette) {
    view.runCommand(ID_ZOOM_X6);
    view.Closing();
    openPalette();
    document.Attach();
    const std::string attached = document.attachedName();
    FakeViewWindow further;
    CDyeworksView second(document, further);
    second.InitialUpdate();
    EXPECT_EQ(second.zoom(), 6);
    EXPECT_FALSE(further.place);
    EXPECT_EQ(further.fitted, (Size{96, 72}));
    EXPECT_EQ(document.attachedName(), attached);
}

TEST_F(ViewSettings, CountOnlyBesideAPlacementAndWithinTheirRanges) {
    struct Case {
        int zoom, held;
    };
    for (const Case& c : {Case{99, 16}, Case{-3, 1}, Case{5, 5}}) {
        platform.profile.setInteger(kSection, "zoom", c.zoom);
        platform.profile.setInteger(kSection, "x", -40);
        platform.profile.setInteger(kSection, "y", 9999);
        platform.profile.remove("Settings", kViewedPath);
        EXPECT_EQ(Reopened(*this).view.zoom(), 1);
        writeWindowPlacement(kViewedPath, kPlace);
        Reopened again(*this);
        EXPECT_EQ(again.view.zoom(), c.held);
        EXPECT_EQ(again.window.scroll, (Point{0, std::max(12 * c.held - 30, 0)}));
        EXPECT_TRUE(again.view.gridShown());
    }
}

} // namespace
} // namespace dyeworks

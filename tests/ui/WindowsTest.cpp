#include "Program.h"
#include "paint/widgets/CChildFrame.h"

#include <QMenu>
#include <QMenuBar>

namespace dyeworks {
namespace {

class Windows : public Program {
protected:
    void openTwoWindows() {
        openBlank();
        first_ = frame().activeChild();
        ASSERT_TRUE(run(ID_WINDOW_NEW));
        second_ = frame().activeChild();
        ASSERT_NE(first_, second_);
        ASSERT_EQ(first_->document(), second_->document());
    }
    static std::string titleOf(const ChildFrame& child) { return child.windowTitle().toStdString(); }

    ChildFrame* first_ = nullptr;
    ChildFrame* second_ = nullptr;
};

TEST_F(Windows, EachWindowOfAnImageHasItsNumberUntilItIsAlone) {
    openTwoWindows();
    EXPECT_EQ(titleOf(*first_), "pic.tmf [pic]:1");
    EXPECT_EQ(titleOf(*second_), "pic.tmf [pic]:2");
    EXPECT_EQ(frame().windowTitle().toStdString(), "Orrery Dyeworks - pic.tmf [pic]:2");
    EXPECT_EQ(image().title(), "pic.tmf [pic]");
    putImages(fake_, {"c:\\b.tmf"});
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\b.tmf"));
    EXPECT_EQ(titleOf(*frame().activeChild()), "b.tmf");

    QMenu* windows = frame().menuBar()->actions().at(7)->menu();
    Q_EMIT windows->aboutToShow();
    const QList<QAction*> items = windows->actions();
    EXPECT_EQ(items.at(items.size() - 2)->text().toStdString(), "&2 pic.tmf [pic]:2");
    items.at(items.size() - 3)->trigger();
    EXPECT_EQ(frame().activeChild(), first_);

    ASSERT_TRUE(run(ID_FILE_CLOSE));
    EXPECT_EQ(titleOf(*second_), "pic.tmf [pic]");
}

TEST_F(Windows, FramesRealizeColoursThatChangedWhoeverSaysSoButThemselves) {
    openTwoWindows();
    auto& first = dynamic_cast<CChildFrame&>(*first_);
    auto& second = dynamic_cast<CChildFrame&>(*second_);
    DisplayPalette palette;
    const auto colour = [&palette](std::uint8_t red) {
        palette.release();
        ASSERT_TRUE(palette.create({0x300, 1, {{red, 0, 0, 0}}}));
    };
    EXPECT_FALSE(second.RealizePalette()) << "the image has been active since, in the first window";
    colour(1);
    EXPECT_EQ(first.SetPalette(&palette), image().GetDisplayPalette());
    EXPECT_FALSE(first.RealizePalette()) << "done when it was set";

    colour(2);
    first.OnPaletteChanged(first);
    first.OnPaletteChanged(*first.widget());
    EXPECT_TRUE(first.OnQueryNewPalette()) << "nobody else has said so";

    colour(3);
    EXPECT_EQ(second.SetPalette(&palette), nullptr);
    EXPECT_FALSE(first.RealizePalette()) << "the second window has said so";

    colour(4);
    EXPECT_EQ(first.SetPalette(nullptr), &palette);
    EXPECT_FALSE(first.RealizePalette());
    second.SetPalette(nullptr);
}

} // namespace
} // namespace dyeworks

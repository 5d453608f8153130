#include "Program.h"
#include "framework/CommandIds.h"
#include "framework/ReloadOption.h"
#include "framework/widgets/ChildFrame.h"

#include <QAbstractButton>
#include <gmock/gmock.h>

namespace dyeworks {
namespace {

using testing::HasSubstr;

class OutsideUi : public Program {
protected:
    /// What the bar in the window says; empty: there is none.
    static std::string wordsIn(QWidget* bar) {
        return bar == nullptr ? "" : bar->accessibleDescription().toStdString();
    }
    QWidget* imageBar() { return frame().activeChild()->bar(); }
    QWidget* paletteBar() { return frame().paletteBar().bar(); }
    static void press(QWidget* bar, const char* name) {
        auto* const button = bar->findChild<QAbstractButton*>(QString::fromLatin1(name));
        ASSERT_NE(button, nullptr) << name;
        button->click();
    }
    /// Another program writes the file, which is noticed.
    void change(const std::string& path, const std::string& bytes) {
        fake_.files.putFile(path, bytes);
        fake_.fileWatcher.happen();
    }
    static std::string file(unsigned value) {
        return imageFile(texels(8, 8, [=](int, int) { return value; }), 8);
    }
    /// The colour in the middle of the first texel on the screen.
    QRgb firstPixel() { return view().viewport()->grab().toImage().pixel(at(0, 0)); }
};

TEST_F(OutsideUi, BarOffersTheFileItsComparisonAndToKeepWhatIsThere) {
    openBlank();
    frame().show();
    image().Edit(nullptr, [](TextureCanvas& canvas) { canvas.PutPixel(0, 0, 3); });
    const QRgb own = firstPixel();
    const int height = view().viewport()->height();
    change("c:\\tex\\pic.tmf", file(5));
    ASSERT_TRUE(QTest::qWaitFor([&] { return imageBar() != nullptr; }));
    EXPECT_THAT(wordsIn(imageBar()), HasSubstr("unsaved changes"));
    EXPECT_EQ(view().viewport()->height(), height) << "the window has grown by the bar";

    press(imageBar(), "IDC_OUTSIDE_COMPARE");
    const QRgb others = firstPixel();
    EXPECT_NE(others, own);
    ASSERT_TRUE(QTest::qWaitFor([&] { return firstPixel() == own; })) << "they take turns";
    press(imageBar(), "IDC_OUTSIDE_COMPARE");
    EXPECT_EQ(firstPixel(), own);
    press(imageBar(), "IDC_OUTSIDE_RELOAD");
    EXPECT_EQ(imageBar(), nullptr);
    EXPECT_EQ(firstPixel(), others);
    EXPECT_FALSE(image().hasUnsavedChanges());
    EXPECT_TRUE(run(ID_EDIT_UNDO));
    EXPECT_EQ(firstPixel(), own);

    // A save neither asks nor is told of; one that would write over what is new asks.
    ASSERT_TRUE(run(ID_FILE_SAVE));
    EXPECT_THAT(fake_.messages.shown, IsEmpty());
    fake_.files.putFile("c:\\tex\\pic.tmf", file(6));
    ASSERT_TRUE(run(ID_FILE_SAVE));
    EXPECT_THAT(fake_.messages.lastText(), HasSubstr("Save over it"));
    EXPECT_EQ(fake_.files.textOf("c:\\tex\\pic.tmf"), file(6));
    fake_.fileWatcher.happen();
    ASSERT_TRUE(QTest::qWaitFor([&] { return imageBar() != nullptr; }));
    QTest::keyClick(imageBar()->findChild<QAbstractButton*>(), Qt::Key_Escape);
    EXPECT_EQ(imageBar(), nullptr);
    EXPECT_THAT(image().title(), HasSubstr(" * "));
    ASSERT_TRUE(run(ID_FILE_SAVE));
    EXPECT_EQ(fake_.messages.shown.size(), 1U) << "the user has decided";
    EXPECT_NE(fake_.files.textOf("c:\\tex\\pic.tmf"), file(6));
}

TEST_F(OutsideUi, PalettesAndProjectsHaveBarsOfTheirOwnAndMayFollowByThemselves) {
    openBlank();
    CTPFDocument& project = openProject();
    change("c:\\tex\\pic.tlf", paletteFile(16, [](int) { return 0x1235U; }));
    change("c:\\proj\\sea.tpf", "NOTE = new\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return imageBar() != nullptr && paletteBar() != nullptr; }));
    press(paletteBar(), "IDC_OUTSIDE_RELOAD");
    press(imageBar(), "IDC_OUTSIDE_RELOAD");
    EXPECT_EQ(paletteBar(), nullptr);
    EXPECT_EQ(imageBar(), nullptr);
    EXPECT_EQ(app_.paletteSet()->lookup("")->table.getEntry(3), 0x1235);
    std::string note;
    EXPECT_TRUE(project.GetValue("NOTE", note) && note == "new");

    setReloadsUnchanged(true);
    change("c:\\tex\\pic.tlf", paletteFile(16, [](int) { return 0x4321U; }));
    ASSERT_TRUE(QTest::qWaitFor([&] { return app_.paletteSet()->lookup("")->table.getEntry(3) == 0x4321; }));
    EXPECT_EQ(paletteBar(), nullptr);
    fake_.files.remove("c:\\tex\\pic.tlf");
    fake_.fileWatcher.happen();
    ASSERT_TRUE(QTest::qWaitFor([&] { return paletteBar() != nullptr; }));
    EXPECT_THAT(wordsIn(paletteBar()), HasSubstr("removed"));
}

} // namespace
} // namespace dyeworks

#include "Program.h"
#include "ui/SplashScreen.h"

#include <QPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QTimer>

namespace dyeworks {
namespace {

class Splash : public Program {
protected:
    /// A splash screen over the program that is running.
    QPointer<SplashScreen> shown() {
        auto* splash = new SplashScreen;
        splash->show();
        return splash;
    }
    static bool gone(const QPointer<SplashScreen>& splash) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return splash.isNull();
    }
    void openImage() {
        openAttached(texels(8, 8, [](int, int) { return 0U; }), 8, 256);
    }
};

TEST_F(Splash, StandsInTheMiddleWithoutABorderAndClosesByItself) {
    SplashScreen lasting;
    EXPECT_EQ(lasting.findChild<QTimer*>()->interval(), 3000);
    EXPECT_TRUE(lasting.findChild<QTimer*>()->isActive());
    EXPECT_TRUE(lasting.windowFlags().testFlag(Qt::FramelessWindowHint));
    const QPoint off = lasting.geometry().center() - lasting.screen()->geometry().center();
    EXPECT_LE(off.manhattanLength(), 2);

    QPointer<SplashScreen> brief = new SplashScreen(std::chrono::milliseconds(1));
    QSignalSpy closed(brief, &SplashScreen::closed);
    brief->show();
    ASSERT_TRUE(closed.wait());
    EXPECT_TRUE(gone(brief));
}

TEST_F(Splash, AKeyClosesItAndDoesNothingElse) {
    openImage();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&app_.mainFrame()));
    app_.mainFrame().commandActions().refresh();
    const QPointer<SplashScreen> splash = shown();
    QTest::keyClick(&view(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(gone(splash));
    EXPECT_EQ(app_.imageTemplate().documents().size(), 1U) << "Ctrl+W closes the image at any other time";
    // This display makes every window that comes up the active one.
    app_.mainFrame().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&app_.mainFrame()));
    QTest::keyClick(&view(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(app_.imageTemplate().documents().empty());
}

TEST_F(Splash, APressOfAButtonClosesItAndDoesNothingElse) {
    openImage();
    ASSERT_TRUE(run(ID_TOOL_PIXEL));
    app_.selectPaletteBarCell(5);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        const QPointer<SplashScreen> splash = shown();
        QTest::mouseClick(view().viewport(), button, {}, at(1, 1));
        EXPECT_TRUE(gone(splash)) << button;
        EXPECT_EQ(canvas()[1][1], 0U);
    }
    const QPointer<SplashScreen> splash = shown();
    QTest::mouseMove(view().viewport(), at(2, 2));
    QTest::mouseClick(view().viewport(), Qt::BackButton, {}, at(1, 1));
    app_.mainFrame().resize(app_.mainFrame().size() + QSize(1, 1));
    EXPECT_FALSE(gone(splash)) << "everything else passes";
    drag({{1, 1}});
    EXPECT_TRUE(gone(splash));
    drag({{1, 1}});
    EXPECT_EQ(canvas()[1][1], 5U);
}

TEST(SplashAtStart, IsUpWhenTheWindowIsAndOnlyForAStartThatSomebodySees) {
    for (const bool renders : {false, true}) {
        FakePlatform fake;
        defineControls(fake);
        CommandLine commandLine;
        if (renders)
            commandLine.renderTo = QStringLiteral("picture.png");
        CDyeworksApp app;
        ASSERT_TRUE(app.InitInstance(commandLine));
        EXPECT_EQ(app.splashScreen() != nullptr, !renders);
        EXPECT_TRUE(renders || app.splashScreen()->isVisible());
        EXPECT_TRUE(app.mainFrame().isVisible());
    }
}

} // namespace
} // namespace dyeworks

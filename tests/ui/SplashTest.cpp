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
    openBlank();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&frame()));
    frame().commandActions().refresh();
    const QPointer<SplashScreen> splash = shown();
    QTest::keyClick(&view(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(gone(splash));
    EXPECT_EQ(app_.imageTemplate().documents().size(), 1U) << "Ctrl+W closes the image at any other time";
    // This display makes every window that comes up the active one.
    frame().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&frame()));
    QTest::keyClick(&view(), Qt::Key_W, Qt::ControlModifier);
    EXPECT_TRUE(app_.imageTemplate().documents().empty());
}

TEST_F(Splash, APressOfAButtonClosesItAndDoesNothingElse) {
    openBlank();
    ASSERT_TRUE(run(ID_TOOL_PIXEL));
    app_.imageHost().selectPaletteBarCell(5);
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        const QPointer<SplashScreen> splash = shown();
        QTest::mouseClick(view().viewport(), button, {}, at(1, 1));
        EXPECT_TRUE(gone(splash)) << button;
        EXPECT_EQ(canvas()[1][1], 0U);
    }
    const QPointer<SplashScreen> splash = shown();
    QTest::mouseMove(view().viewport(), at(2, 2));
    QTest::mouseClick(view().viewport(), Qt::BackButton, {}, at(1, 1));
    frame().resize(frame().size() + QSize(1, 1));
    EXPECT_FALSE(gone(splash)) << "everything else passes";
    drag({{1, 1}});
    EXPECT_TRUE(gone(splash));
    drag({{1, 1}});
    EXPECT_EQ(canvas()[1][1], 5U);
}

using SplashAtStart = Launch;

TEST_F(SplashAtStart, IsUpWhenTheWindowIsAndOnlyForAStartThatSomebodySees) {
    commandLine_.noSplash = false;
    for (const char* picture : {"", "picture.png"}) {
        commandLine_.renderTo = picture;
        ASSERT_TRUE(launch());
        const auto isSplash = [](const QWidget* window) {
            return qobject_cast<const SplashScreen*>(window) != nullptr && window->isVisible();
        };
        EXPECT_EQ(std::ranges::count_if(QApplication::topLevelWidgets(), isSplash),
                  commandLine_.renders() ? 0 : 1);
        EXPECT_TRUE(frame().isVisible());
    }
}

} // namespace
} // namespace dyeworks

#include "Program.h"
#include "ui/SplashScreen.h"

#include <QPointer>
#include <QScreen>
#include <QTimer>

namespace dyeworks {
namespace {

class Splash : public Program {
protected:
    /// Whether a splash screen over the program that is running, with an image open, is gone after this.
    bool goesBy(const std::function<void()>& act) {
        const QPointer<SplashScreen> splash = new SplashScreen;
        splash->show();
        act();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const bool gone = splash.isNull();
        delete splash;
        return gone;
    }
};

TEST_F(Splash, StandsInTheMiddleWithoutABorderAndClosesByItself) {
    SplashScreen lasting;
    EXPECT_TRUE(lasting.findChild<QTimer*>()->isActive());
    EXPECT_TRUE(lasting.windowFlags().testFlag(Qt::FramelessWindowHint));
    const QPoint off = lasting.geometry().center() - lasting.screen()->geometry().center();
    EXPECT_LE(off.manhattanLength(), 2);

    QPointer<SplashScreen> brief = new SplashScreen(std::chrono::milliseconds(1));
    brief->show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return brief.isNull(); }));
}

TEST_F(Splash, AKeyAndAButtonCloseItAndDoNothingElse) {
    openBlank();
    ASSERT_TRUE(run(ID_TOOL_PIXEL));
    app_.imageHost().selectPaletteBarCell(5);
    frame().commandActions().refresh();
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        EXPECT_TRUE(goesBy([&] { QTest::mouseClick(view().viewport(), button, {}, at(1, 1)); })) << button;
        EXPECT_EQ(canvas()[1][1], 0U);
    }
    EXPECT_FALSE(goesBy([&] {
        QTest::mouseMove(view().viewport(), at(2, 2));
        QTest::mouseClick(view().viewport(), Qt::BackButton, {}, at(1, 1));
        frame().resize(frame().size() + QSize(1, 1));
    })) << "everything else passes";
    drag({{1, 1}});
    EXPECT_EQ(canvas()[1][1], 5U);

    const auto pressF1 = [this] {
        // This display makes every window that comes up the active one.
        frame().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&frame()));
        QTest::keyClick(&view(), Qt::Key_F1);
    };
    EXPECT_TRUE(goesBy(pressF1));
    EXPECT_THAT(fake_.shell.opened, IsEmpty());
    pressF1();
    EXPECT_EQ(fake_.shell.opened.size(), 1U) << "as at any other time";
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

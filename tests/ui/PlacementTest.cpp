#include "Program.h"
#include "framework/WindowPlacement.h"
#include "framework/widgets/WidgetPlacement.h"

#include <QScreen>

#include <tuple>

namespace dyeworks {
namespace {

class Placement : public Restart {
protected:
    std::string& stored() { return fake_.profile.sections["Settings"]["WindowPos"]; }
};

TEST_F(Placement, TheWindowComesBackWhereItWas) {
    const QRect place(30, 50, 640, 480);
    frame().setGeometry(place);
    const auto expectAfterStart = [&](const char* kept, bool maximized) {
        leaveAndStart();
        EXPECT_EQ(stored(), std::string(kept) + ":-1:-1:-1:-1:30:50:670:530");
        EXPECT_EQ(frame().isMaximized(), maximized) << kept;
    };
    expectAfterStart("0:1", false);
    EXPECT_EQ(frame().geometry(), place);
    frame().showMaximized();
    expectAfterStart("2:3", true);
    frame().showMinimized();
    expectAfterStart("2:2", true);
    frame().showNormal();
    leaveAndStart();
    EXPECT_FALSE(frame().isMaximized());
}

TEST_F(Placement, NoSettingKeepsTheWindowOutOfSight) {
    const QRect screen = frame().screen()->availableGeometry();
    for (const char* text : {"", "0:1:-1:-1:-1:-1:10:20:30", "a:b", "0:1:-1:-1:-1:-1:0:0:0:0",
                             "0:2:-1:-1:-1:-1:-2147483648:-2147483648:2147483647:2147483647",
                             "0:0:-1:-1:-1:-1:5000:5000:5640:5480", "0:1:-1:-1:-1:-1:-630:40:10:520",
                             "0:1:-1:-1:-1:-1:20:-400:660:80", "7:9:9:9:9:9:0:790:640:1270",
                             "0:1:-1:-1:-1:-1:-100:-100:9000:9000"}) {
        stored() = text;
        start();
        EXPECT_TRUE(frame().isVisible()) << text;
        EXPECT_FALSE(frame().isMinimized()) << text;
        EXPECT_TRUE(screen.contains(frame().geometry())) << text;
        EXPECT_GE(frame().width(), 600) << text;
    }
}

TEST(WidgetPlacement, PutsTheCornerWhereTheWindowFits) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    const QPoint last = room.bottomRight() + QPoint(1, 1);
    const std::tuple<int, QPoint, bool> cases[] = {{200, {512, 400}, true},
                                                   {200, {last.x() - 100, 400}, false},
                                                   {200, {512, last.y() - 40}, false},
                                                   {200, {-9000, -9000}, false},
                                                   {last.x() + 500, {512, 400}, false}};
    for (const auto& [width, wanted, kept] : cases) {
        QWidget window;
        window.resize(width, 150);
        placeInsideScreen(window, wanted);
        EXPECT_EQ(window.pos() == wanted, kept) << wanted.x() << " " << wanted.y();
        EXPECT_TRUE(room.contains(window.geometry())) << wanted.x() << " " << wanted.y();
    }
}

} // namespace
} // namespace dyeworks

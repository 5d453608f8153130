#include "Restart.h"
#include "framework/WindowPlacement.h"
#include "framework/widgets/WidgetPlacement.h"

#include <QScreen>

namespace dyeworks {
namespace {

using testing::ElementsAre;

class Placement : public Restart {
protected:
    std::string& stored() { return fake_.profile.sections["Settings"]["WindowPos"]; }
};

TEST_F(Placement, TheWindowComesBackWhereItWas) {
    const QRect place(30, 50, 640, 480);
    frame().setGeometry(place);
    leaveAndStart();
    EXPECT_EQ(stored(), "0:1:-1:-1:-1:-1:30:50:670:530");
    EXPECT_EQ(frame().geometry(), place);

    frame().showMaximized();
    leaveAndStart();
    EXPECT_EQ(stored(), "2:3:-1:-1:-1:-1:30:50:670:530");
    EXPECT_TRUE(frame().isMaximized());
    frame().showMinimized();
    leaveAndStart();
    EXPECT_EQ(stored(), "2:2:-1:-1:-1:-1:30:50:670:530");
    EXPECT_TRUE(frame().isMaximized()) << "minimized when it was left, yet in sight";
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

TEST_F(Placement, AnImageOfTheCommandLineHasTheRoomThatItNeeds) {
    fake_.files.putFile("c:\\a.tmf", imageFile(texels(200, 150, [](int, int) { return 1U; }), 4));
    CommandLine commandLine;
    commandLine.task = CommandLine::Task::Open;
    commandLine.noSplash = true;
    commandLine.files = {QString::fromStdString(fake_.files.hostPath("c:\\a.tmf"))};
    app_.reset();
    app_ = std::make_unique<CDyeworksApp>();
    ASSERT_TRUE(app_->InitInstance(commandLine));
    const ImageView& view = *frame().activeImageView();
    EXPECT_GE(view.viewport()->width(), 200);
    EXPECT_GE(view.viewport()->height(), 150);
}

TEST(WidgetPlacement, PutsTheCornerWhereTheWindowFits) {
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    const QPoint last = room.bottomRight() + QPoint(1, 1);
    const struct {
        QSize size;
        QPoint wanted;
        bool kept;
    } cases[] = {
        {{200, 150}, {512, 400}, true},
        {{200, 150}, {last.x() - 100, 400}, false},
        {{200, 150}, {512, last.y() - 40}, false},
        {{200, 150}, {-9000, -9000}, false},
        {{last.x() + 500, 150}, {512, 400}, false},
    };
    for (const auto& c : cases) {
        QWidget window;
        window.resize(c.size);
        placeInsideScreen(window, c.wanted);
        EXPECT_EQ(window.pos() == c.wanted, c.kept) << c.wanted.x() << " " << c.wanted.y();
        EXPECT_TRUE(room.contains(window.geometry())) << c.wanted.x() << " " << c.wanted.y();
    }
}

class Closing : public Restart {
protected:
    Closing() {
        fake_.files.putFile("c:\\a.tmf", imageFile(texels(4, 4, [](int, int) { return 1U; }), 4));
    }
    void changeImage() { app_->activeView()->document().setModified(true); }
    [[nodiscard]] std::vector<std::string> asked() const {
        std::vector<std::string> texts;
        for (const Message& message : fake_.messages.shown)
            texts.push_back(message.text);
        return texts;
    }
};

TEST_F(Closing, CancelAtAnyQuestionLeavesTheProgramRunning) {
    ASSERT_TRUE(app_->OpenDocumentFile("c:\\a.tmf"));
    changeImage();
    fake_.files.putFile("c:\\sea.tpf", "");
    ASSERT_TRUE(app_->OpenDocumentFile("c:\\sea.tpf"));
    app_->projectDocument()->setModified(true);
    constexpr const char* kQuestion = "Save changes to c:\\sea.tpf?";
    fake_.messages.answerWith(MessageAnswer::Cancel);
    EXPECT_FALSE(frame().close());
    EXPECT_TRUE(frame().isVisible());
    EXPECT_NE(app_->projectDocument(), nullptr);
    EXPECT_THAT(asked(), ElementsAre(kQuestion)) << "nobody else is asked any more";

    fake_.messages.answerWith({MessageAnswer::No, MessageAnswer::Cancel});
    EXPECT_FALSE(frame().close());
    EXPECT_TRUE(frame().isVisible());
    EXPECT_TRUE(frame().paletteBar().isVisible());
    EXPECT_EQ(frame().childFrames().size(), 1U);
    EXPECT_TRUE(app_->activeView()->document().isModified());
    EXPECT_EQ(app_->projectDocument(), nullptr) << "closed before the documents are asked about";
    EXPECT_THAT(asked(), ElementsAre(kQuestion, kQuestion, "Save changes to c:\\a.tmf?"));
    EXPECT_EQ(fake_.profile.sections["Settings\\Documents"]["count"], "2");

    fake_.messages.answerWith(MessageAnswer::No);
    EXPECT_TRUE(frame().close());
    EXPECT_FALSE(frame().paletteBar().isVisible());
    EXPECT_EQ(asked().size(), 4U);
}

} // namespace
} // namespace dyeworks

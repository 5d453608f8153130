#include "framework/widgets/MdiFrame.h"

#include "framework/CommandRouter.h"
#include "framework/DocumentTemplate.h"
#include "framework/widgets/ChildFrame.h"
#include "framework/widgets/ScrollView.h"
#include "framework/widgets/WidgetPlacement.h"
#include "platform/fake/FakePlatform.h"

#include <QApplication>
#include <QMdiArea>
#include <QMenuBar>
#include <QScreen>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace dyeworks;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class PlainDocument : public CDocument {
public:
    using CDocument::CDocument;
    bool onSaveDocument(const std::string& /*path*/) override { return false; }
};

class PlainView : public ScrollView, public FrameView, public DocumentView, public CommandTarget {
public:
    CommandTarget& commandTarget() override { return *this; }
    DocumentView& documentView() override { return *this; }
    void update(DocumentView* /*sender*/, int /*hint*/) override {}
    void initialUpdate(ChildFrame& frame) override {
        setContentSize({120, 90});
        frame.fitToContent(*this);
    }
    void activated(ChildFrame& /*frame*/) override { ++activations; }

    int activations = 0;
};

struct MdiFrames : testing::Test, DocumentWindows {
    FakePlatform fake;
    DocumentTemplate textures{{"Texture", ".tmf"},
                              [](DocumentTemplate& owner) { return std::make_unique<PlainDocument>(&owner); },
                              *this};
    MdiFrame main;

    MdiFrames() {
        main.menuBar()->addMenu(QStringLiteral("&File"));
        main.resize(600, 500);
        main.setCaption(QStringLiteral("Dyeworks"));
        main.show();
    }
    bool openWindow(CDocument& document) override {
        auto view = std::make_unique<PlainView>();
        PlainView& frameView = *view;
        main.addChild(std::make_unique<ChildFrame>(document, std::move(view), frameView));
        return true;
    }
    void activate(CDocument& document) override { main.activateChild(*main.frameOf(document)); }

    CDocument& open(const char* name) {
        CDocument* document = textures.openDocument(name);
        QApplication::processEvents();
        return *document;
    }
};

TEST_F(MdiFrames, ClosingTheLastWindowAsksAndEndsTheDocument) {
    CDocument& sky = open("c:\\sky.tmf");
    openWindow(sky);
    sky.setModified(true);
    EXPECT_TRUE(main.activeChild()->close()); // One of two.
    EXPECT_THAT(fake.messages.shown, IsEmpty());

    fake.messages.answerWith({MessageAnswer::Cancel, MessageAnswer::Yes, MessageAnswer::No});
    EXPECT_FALSE(main.frameOf(sky)->close());
    EXPECT_FALSE(main.frameOf(sky)->close()) << "saving fails";
    EXPECT_THAT(textures.documents(), ElementsAre(&sky));
    EXPECT_TRUE(main.frameOf(sky)->close());
    EXPECT_EQ(fake.messages.shown.size(), 3U);
    EXPECT_THAT(textures.documents(), IsEmpty());
    EXPECT_THAT(main.commandTargets(), ElementsAre(&main)) << "nothing of a closed frame takes commands";
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_THAT(main.childFrames(), IsEmpty());
}

TEST_F(MdiFrames, MainWindowStaysWhenADocumentRefuses) {
    open("c:\\sky.tmf").setModified(true);
    open("c:\\sea.tmf");
    fake.messages.answerWith(MessageAnswer::Cancel);
    EXPECT_FALSE(main.close());
    EXPECT_TRUE(main.isVisible());
    EXPECT_EQ(textures.documents().size(), 1U);
    main.closeChildrenUnasked();
    EXPECT_EQ(fake.messages.shown.size(), 1U);
    EXPECT_THAT(textures.documents(), IsEmpty());
}

TEST_F(MdiFrames, CaptionFollowsTheActiveDocument) {
    CDocument& sky = open("c:\\sky.tmf");
    EXPECT_EQ(main.windowTitle(), QStringLiteral("Dyeworks - sky.tmf"));
    sky.setTitle("sky.tmf [[*]] * ");
    EXPECT_EQ(main.windowTitle(), QStringLiteral("Dyeworks - sky.tmf [[*][*]] * "));
    sky.setTitle("sky.tmf");
    open("c:\\sea.tmf");
    EXPECT_EQ(main.windowTitle(), QStringLiteral("Dyeworks - sea.tmf"));
    activate(sky);
    EXPECT_EQ(main.windowTitle(), QStringLiteral("Dyeworks - sky.tmf"));
    main.activeChild()->showMaximized();
    EXPECT_EQ(main.windowTitle(), QStringLiteral("Dyeworks - [sky.tmf]"));
    main.setCaption(QStringLiteral("Dyeworks @ sea"));
    sky.setTitle("sky * ");
    EXPECT_EQ(main.windowTitle(), QStringLiteral("Dyeworks @ sea - [sky * ]"));
    main.activeChild()->showNormal();
    EXPECT_EQ(main.windowTitle(), QStringLiteral("Dyeworks @ sea - sky * "));
    main.closeChildrenUnasked();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(main.windowTitle(), QStringLiteral("Dyeworks @ sea"));
}

TEST_F(MdiFrames, CommandsReachTheFrontWindowWhileAnotherWindowOfTheProgramIsActive) {
    open("c:\\sea.tmf");
    open("c:\\sky.tmf");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
    ChildFrame* front = main.activeChild();
    QWidget palette;
    palette.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&palette));
    EXPECT_EQ(main.activeChild(), front);
    EXPECT_EQ(main.childFrames().front(), front);
    EXPECT_EQ(main.commandTargets().at(1), front->document());
}

TEST_F(MdiFrames, FrameFitsItsContentsUpToTheEdgeOfTheArea) {
    open("c:\\sky.tmf");
    ChildFrame& frame = *main.activeChild();
    auto& view = *qobject_cast<ScrollView*>(frame.widget());
    EXPECT_EQ(view.viewport()->size(), QSize(120, 90));

    frame.move(100, 50);
    view.setContentSize({2000, 90});
    frame.fitToContent(view);
    QApplication::processEvents();
    EXPECT_EQ(frame.geometry().right() + 1, main.area().viewport()->width());
    EXPECT_EQ(view.viewport()->height(), 90) << "the scroll bar takes nothing from the contents";

    view.setContentSize({30, 20});
    frame.showMaximized();
    const QRect maximized = frame.geometry();
    frame.fitToContent(view);
    EXPECT_EQ(frame.geometry(), maximized);
}

TEST_F(MdiFrames, PlacementKeepsTheNormalRectangleOfAMaximizedFrame) {
    open("c:\\sky.tmf");
    ChildFrame& frame = *main.activeChild();
    frame.setPlacement({0, WindowPlacement::kShowMaximized, -1, -1, -1, -1, 20, 30, 220, 180});
    EXPECT_TRUE(frame.isMaximized());
    const WindowPlacement placement = frame.placement();
    EXPECT_EQ(formatWindowPlacement(placement), "0:3:-1:-1:-1:-1:20:30:220:180");
    frame.showNormal();
    EXPECT_EQ(frame.geometry(), QRect(20, 30, 200, 150));
    EXPECT_EQ(frame.placement().showCommand, WindowPlacement::kShowNormal);
}

TEST_F(MdiFrames, TilingLeavesMinimizedFramesTheirRow) {
    open("c:\\a.tmf");
    main.activeChild()->showMinimized();
    open("c:\\b.tmf");
    open("c:\\c.tmf");
    main.activeChild()->showMaximized();
    CommandRouter router([this] { return main.commandTargets(); });
    EXPECT_TRUE(router.run(ID_WINDOW_TILE_HORZ));
    int bottom = 0;
    int top = main.area().viewport()->height();
    for (ChildFrame* child : main.childFrames()) {
        if (child->isMinimized())
            top = child->y();
        else
            bottom = std::max(bottom, child->geometry().bottom() + 1);
    }
    EXPECT_EQ(bottom, top);
    EXPECT_LT(top, main.area().viewport()->height());
}

TEST_F(MdiFrames, DestroyedMainWindowTakesItsViewsFromTheirDocument) {
    PlainDocument lone;
    {
        MdiFrame other;
        auto view = std::make_unique<PlainView>();
        PlainView& frameView = *view;
        other.addChild(std::make_unique<ChildFrame>(lone, std::move(view), frameView));
        EXPECT_EQ(lone.views().size(), 1U);
    }
    EXPECT_THAT(lone.views(), IsEmpty());
}

TEST(WidgetPlacement, WindowComesBackAsItWasButNeverOffTheScreens) {
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget window;
    const WindowPlacement maximized{0, WindowPlacement::kShowMaximized, -1, -1, -1, -1, 10, 20, 310, 220};
    setWindowPlacement(window, maximized);
    EXPECT_EQ(windowPlacement(window), maximized);

    setWindowPlacement(window, {0, WindowPlacement::kShowNormal, -1, -1, -1, -1, 90000, -9000, 90300, -8800});
    EXPECT_EQ(window.size(), QSize(300, 200));
    EXPECT_TRUE(screen.contains(window.geometry()));
    EXPECT_FALSE(window.isMaximized());
}

} // namespace

#include "framework/widgets/MdiFrame.h"

#include "framework/DocumentTemplate.h"
#include "framework/widgets/ChildFrame.h"
#include "framework/widgets/ScrollView.h"
#include "platform/fake/FakePlatform.h"

#include <QApplication>
#include <QMdiArea>
#include <QMenuBar>
#include <QTest>
#include <gtest/gtest.h>

using namespace dyeworks;

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
        setContentSize({20, 20});
        frame.fitToContent(*this);
    }
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

TEST_F(MdiFrames, MainWindowStaysWhenADocumentRefuses) {
    open("c:\\sky.tmf").setModified(true);
    open("c:\\sea.tmf");
    fake.messages.answerWith(MessageAnswer::Cancel);
    EXPECT_FALSE(main.close());
    EXPECT_TRUE(main.isVisible());
    EXPECT_EQ(textures.documents().size(), 1U);
    main.closeChildrenUnasked();
    EXPECT_EQ(fake.messages.shown.size(), 1U);
    EXPECT_TRUE(textures.documents().empty());
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
    main.closeChildrenUnasked();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(main.windowTitle(), QStringLiteral("Dyeworks"));
}

TEST_F(MdiFrames, SmallContentsLeaveRoomForADozenLettersOfTheTitle) {
    CDocument& sky = open("c:\\a long name of a sky.tmf");
    const ChildFrame& frame = *main.frameOf(sky);
    const QFontMetrics metrics(QApplication::font("QMdiSubWindowTitleBar"));
    EXPECT_GE(frame.width(), metrics.horizontalAdvance(QStringLiteral("a long name ")) +
                                 frame.QMdiSubWindow::minimumSizeHint().width());
}

TEST_F(MdiFrames, CaptionStaysWhileAnotherProgramComesToTheFront) {
    open("c:\\sea.tmf");
    open("c:\\sky.tmf");
    ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
    // Every widget hears of it, in any order; the area may do so after the frame in it.
    QEvent deactivation(QEvent::WindowDeactivate);
    QApplication::sendEvent(main.activeChild(), &deactivation);
    QApplication::sendEvent(&main.area(), &deactivation);
    EXPECT_EQ(main.windowTitle(), QStringLiteral("Dyeworks - sky.tmf"));
}

} // namespace

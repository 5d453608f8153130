#include "Program.h"
#include "ui/RunDyeworks.h"
#include "ui/sheets/CFileNewSheet.h"

#include <QDialog>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTimer>

namespace dyeworks {
namespace {

/// A program that is running and takes what others hand over.
class OneProgram : public Launch {
protected:
    OneProgram() {
        putImages(fake_, {"c:\\a.tmf", "c:\\b.tmf"});
        EXPECT_TRUE(launch());
    }
};

TEST_F(OneProgram, TakesTheFilesOfASecondStartAndComesToTheFront) {
    for (const std::vector<std::string>& paths : {std::vector<std::string>{"c:\\a.tmf", "c:\\b.tmf"}, {}}) {
        frame().showMinimized();
        EXPECT_TRUE(fake_.shell.deliverOpenRequest(paths));
        QCoreApplication::processEvents();
        EXPECT_THAT(openImages(), ElementsAre("c:\\a.tmf", "c:\\b.tmf"));
        EXPECT_FALSE(frame().isMinimized());
    }
}

TEST_F(OneProgram, OpensFilesWhenTheDialogThatIsUpHasItsAnswer) {
    QDialog question(&frame());
    QMetaObject::invokeMethod(
        &question,
        [&] {
            EXPECT_TRUE(fake_.shell.deliverOpenRequest({"c:\\a.tmf"}));
            QCoreApplication::processEvents();
            EXPECT_TRUE(openImages().empty()) << "nothing may change behind a question";
            question.accept();
        },
        Qt::QueuedConnection);
    QSignalSpy shown(&frame(), &MdiFrame::activeChildChanged);
    question.exec();
    EXPECT_TRUE(shown.wait());
    EXPECT_THAT(openImages(), ElementsAre("c:\\a.tmf"));
}

TEST_F(OneProgram, ShowsTheSheetsThatASecondStartAsksFor) {
    QStringList pages;
    QTimer answers;
    QObject::connect(&answers, &QTimer::timeout, [&pages] {
        auto* sheet = qobject_cast<CFileNewSheet*>(QApplication::activeModalWidget());
        if (sheet == nullptr)
            return;
        pages << sheet->findChild<QTabWidget*>()->currentWidget()->objectName();
        sheet->reject();
    });
    answers.start();
    EXPECT_TRUE(fake_.shell.deliverOpenRequest({"c:\\a.tmf", "--new-palette", "--new-image"}));
    EXPECT_TRUE(QTest::qWaitFor([&pages] { return pages.size() == 2; }));
    EXPECT_EQ(pages, (QStringList{"IDD_FILENEW_PALETTE", "IDD_FILENEW_TEXTURE"}));
    EXPECT_THAT(openImages(), ElementsAre("c:\\a.tmf"));
}

TEST_F(OneProgram, StaysForFilesThatComeWhileItAsksWhetherToSave) {
    ASSERT_TRUE(app_->OpenDocumentFile("c:\\b.tmf"));
    frame().activeImageView()->view().document().Edit(
        nullptr, [](TextureCanvas& canvas) { canvas.PutPixel(0, 0, 3); });
    fake_.messages.onShow = [this] { EXPECT_TRUE(fake_.shell.deliverOpenRequest({"c:\\a.tmf"})); };
    fake_.messages.answerWith(MessageAnswer::Yes);
    QSignalSpy shown(&frame(), &MdiFrame::activeChildChanged);
    frame().close();
    EXPECT_TRUE(frame().isVisible());
    EXPECT_TRUE(shown.wait());
    EXPECT_THAT(openImages(), ElementsAre("c:\\b.tmf", "c:\\a.tmf"));
    EXPECT_TRUE(frame().close()) << "the next time it goes";
}

TEST(HandingOver, IsTriedByOrdinaryStartsOnly) {
    FakePlatform fake;
    CommandLine commandLine;
    EXPECT_FALSE(handToRunningProgram(commandLine)) << "none is running";
    fake.shell.otherInstanceRuns = true;
    commandLine.files = {onHost(fake, "c:\\a.tmf")};
    EXPECT_TRUE(handToRunningProgram(commandLine));
    ASSERT_EQ(fake.shell.handedOver.size(), 1U);
    EXPECT_EQ(fake.files.hostPath(fake.shell.handedOver[0].at(0)), fake.files.hostPath("c:\\a.tmf"));
    commandLine.newInstance = true;
    EXPECT_FALSE(handToRunningProgram(commandLine));
    EXPECT_EQ(fake.shell.handedOver.size(), 1U);
}

} // namespace
} // namespace dyeworks

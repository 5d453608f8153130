#include "Program.h"
#include "platform/qt/QtShell.h"
#include "ui/RunDyeworks.h"

#include <QDialog>
#include <QEventLoop>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <thread>

namespace dyeworks {
namespace {

/// A program that is running and listens on a socket of its own.
class OneProgram : public Launch {
protected:
    OneProgram() {
        qputenv("XDG_RUNTIME_DIR", folder_.path().toUtf8());
        putImages(fake_, {"c:\\a.tmf", "c:\\b.tmf"});
        EXPECT_TRUE(launch());
        EXPECT_TRUE(shell_.listenForOpenRequests([this](const std::vector<std::string>& paths) {
            EXPECT_TRUE(fake_.shell.deliverOpenRequest(paths));
        }));
    }
    ~OneProgram() override { qputenv("XDG_RUNTIME_DIR", runtimeFolder_); }

    /// Starts the program again, as another process would: with a shell of its own, while this one's event
    /// loop runs. True when it handed over what it was asked for.
    bool startAgain(const std::vector<std::string>& paths, const std::string& settings = "settings") {
        std::vector<std::string> full;
        for (const std::string& path : paths)
            full.push_back(fake_.files.fullPath(path));
        bool taken = false;
        QEventLoop loop;
        std::thread other([&] {
            taken = QtShell(fake_.files, settings).handToRunningInstance(full);
            QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
        });
        loop.exec();
        other.join();
        QCoreApplication::processEvents();
        return taken;
    }

    const QByteArray runtimeFolder_ = qgetenv("XDG_RUNTIME_DIR");
    QTemporaryDir folder_;
    QtShell shell_{fake_.files, "settings"};
};

TEST_F(OneProgram, TakesTheFilesOfASecondStartAndComesToTheFront) {
    frame().showMinimized();
    EXPECT_TRUE(startAgain({"c:\\a.tmf", "c:\\b.tmf"}));
    EXPECT_THAT(openImages(), ElementsAre("c:\\a.tmf", "c:\\b.tmf"));
    EXPECT_FALSE(frame().isMinimized());
    frame().showMinimized();
    EXPECT_TRUE(startAgain({}));
    EXPECT_FALSE(frame().isMinimized());
    EXPECT_EQ(openImages().size(), 2U);
}

TEST_F(OneProgram, HasNothingToDoWithOneOfOtherSettings) {
    EXPECT_FALSE(startAgain({"c:\\a.tmf"}, "other settings"));
    EXPECT_TRUE(openImages().empty());
}

TEST_F(OneProgram, OpensFilesWhenTheDialogThatIsUpHasItsAnswer) {
    QDialog question(&frame());
    QMetaObject::invokeMethod(
        &question,
        [&] {
            EXPECT_TRUE(startAgain({"c:\\a.tmf"}));
            EXPECT_TRUE(openImages().empty()) << "nothing may change behind a question";
            question.accept();
        },
        Qt::QueuedConnection);
    QSignalSpy shown(&frame(), &MdiFrame::activeChildChanged);
    question.exec();
    EXPECT_TRUE(shown.wait());
    EXPECT_THAT(openImages(), ElementsAre("c:\\a.tmf"));
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

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

using testing::ElementsAre;

/// The fakes, but for the shell.
class WithShell final : public Platform {
public:
    WithShell(Platform& rest, Shell& shell)
        : rest_(rest)
        , shell_(shell)
        , before_(installPlatform(this)) {}
    ~WithShell() override { installPlatform(before_); }

    Messages& messages() override { return rest_.messages(); }
    FileDialogs& fileDialogs() override { return rest_.fileDialogs(); }
    Files& files() override { return rest_.files(); }
    Profile& profile() override { return rest_.profile(); }
    Clipboard& clipboard() override { return rest_.clipboard(); }
    Library& library() override { return rest_.library(); }
    VersionInfo& versionInfo() override { return rest_.versionInfo(); }
    Locale& locale() override { return rest_.locale(); }
    Shell& shell() override { return shell_; }
    WaitCursor& waitCursor() override { return rest_.waitCursor(); }
    Texts& texts() override { return rest_.texts(); }

private:
    Platform& rest_;
    Shell& shell_;
    Platform* before_;
};

/// Sets variables of the process for as long as it lives.
class Environment {
public:
    explicit Environment(const QString& folder) {
        for (const char* name : {"XDG_RUNTIME_DIR", "XDG_DATA_HOME", "XDG_DATA_DIRS"}) {
            before_.emplace_back(name, qgetenv(name));
            qputenv(name, folder.toUtf8());
        }
    }
    ~Environment() {
        for (const auto& [name, value] : before_)
            qputenv(name, value);
    }

private:
    std::vector<std::pair<const char*, QByteArray>> before_;
};

/// A program that is running and listens on a socket of its own.
class OneProgram : public testing::Test {
protected:
    OneProgram() {
        defineControls(fake_);
        for (const char* path : {"c:\\a.tmf", "c:\\b.tmf"})
            fake_.files.putFile(path, imageFile(texels(4, 4, [](int, int) { return 1U; }), 4));
        commandLine_.noSplash = true;
        EXPECT_TRUE(app_.InitInstance(commandLine_));
    }
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
    [[nodiscard]] std::vector<std::string> openDocuments() {
        std::vector<std::string> paths;
        for (const CDocument* document : app_.imageTemplate().documents())
            paths.push_back(document->pathName());
        return paths;
    }

    QTemporaryDir folder_;
    Environment environment_{folder_.path()};
    FakePlatform fake_;
    QtShell shell_{fake_.files, "settings"};
    WithShell platform_{platform(), shell_};
    CommandLine commandLine_;
    CDyeworksApp app_;
};

TEST_F(OneProgram, TakesTheFilesOfASecondStartAndComesToTheFront) {
    app_.mainFrame().showMinimized();
    EXPECT_TRUE(startAgain({"c:\\a.tmf", "c:\\b.tmf"}));
    EXPECT_THAT(openDocuments(), ElementsAre("c:\\a.tmf", "c:\\b.tmf"));
    EXPECT_FALSE(app_.mainFrame().isMinimized());
    app_.mainFrame().showMinimized();
    EXPECT_TRUE(startAgain({}));
    EXPECT_FALSE(app_.mainFrame().isMinimized());
    EXPECT_EQ(openDocuments().size(), 2U);
}

TEST_F(OneProgram, HasNothingToDoWithOneOfOtherSettings) {
    EXPECT_FALSE(startAgain({"c:\\a.tmf"}, "other settings"));
    EXPECT_TRUE(openDocuments().empty());
}

TEST_F(OneProgram, OpensFilesWhenTheDialogThatIsUpHasItsAnswer) {
    QDialog question(&app_.mainFrame());
    QMetaObject::invokeMethod(
        &question,
        [&] {
            EXPECT_TRUE(startAgain({"c:\\a.tmf"}));
            EXPECT_TRUE(openDocuments().empty()) << "nothing may change behind a question";
            question.accept();
        },
        Qt::QueuedConnection);
    QSignalSpy shown(&app_.mainFrame(), &MdiFrame::activeChildChanged);
    question.exec();
    EXPECT_TRUE(shown.wait());
    EXPECT_THAT(openDocuments(), ElementsAre("c:\\a.tmf"));
}

TEST(HandingOver, IsTriedByOrdinaryStartsOnly) {
    FakePlatform fake;
    CommandLine commandLine;
    EXPECT_FALSE(handToRunningProgram(commandLine)) << "none is running";
    fake.shell.otherInstanceRuns = true;
    commandLine.files = {QString::fromStdString(fake.files.hostPath("c:\\a.tmf"))};
    EXPECT_TRUE(handToRunningProgram(commandLine));
    ASSERT_EQ(fake.shell.handedOver.size(), 1U);
    EXPECT_EQ(fake.files.hostPath(fake.shell.handedOver[0].at(0)), fake.files.hostPath("c:\\a.tmf"));
    commandLine.newInstance = true;
    EXPECT_FALSE(handToRunningProgram(commandLine));
    EXPECT_EQ(fake.shell.handedOver.size(), 1U);
}

} // namespace
} // namespace dyeworks

#include "ui/CommandLine.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace dyeworks {
namespace {

using Task = CommandLine::Task;

CommandLine parsed(const QString& line) {
    return parseCommandLine(QStringList{"Dyeworks"} + line.split(' ', Qt::SkipEmptyParts));
}

QString here(const char* name) {
    return QDir::current().filePath(name);
}

TEST(CommandLine, NamesThatBeginWithASlashAreFilesAndRelativeOnesBecomeAbsolute) {
    const CommandLine line = parsed("--attach --language ja --settings s.ini /tex/a.tlf b.tmf -- -p");
    EXPECT_FALSE(line.ended);
    EXPECT_EQ(line.task, Task::Open);
    EXPECT_TRUE(line.attach);
    EXPECT_EQ(line.language, "ja");
    EXPECT_EQ(line.settingsFile, here("s.ini"));
    EXPECT_EQ(line.files, (QStringList{"/tex/a.tlf", here("b.tmf"), here("-p")}));
}

TEST(CommandLine, TakesTheSwitchesOfOtherDesktopsBesideItsOwn) {
    const QStringList a{here("a.tmf")};
    const QStringList both{here("a.tlf"), here("a.tmf")};
    const struct {
        const char* arguments;
        Task task;
        QStringList files = {};
        QString printer = {};
        QString printFile = {};
    } cases[] = {
        {"", Task::Nothing},
        {"a.tmf", Task::Open, a},
        {"/p a.tmf", Task::Print, a},
        {"-P a.tmf", Task::Print, a},
        {"--print a.tlf a.tmf", Task::Print, both},
        {"/pt a.tmf Laser driver port", Task::PrintTo, a, "Laser"},
        {"/PT a.tmf Laser", Task::PrintTo, a, "Laser"},
        {"--print-to a.tmf o.PDF", Task::PrintTo, a, "", here("o.PDF")},
        {"--print-to a.tlf a.tmf Laser", Task::PrintTo, both, "Laser"},
        {"--new-image", Task::Open},
        {"/dde", Task::Receive},
        {"/dde a.tmf", Task::Open, a},
        {"-Embedding", Task::Serve},
        {"/Automation", Task::Serve},
        {"/register", Task::Nothing},
        {"/unregserver", Task::Unregister},
        {"--settings /p", Task::Nothing},
    };
    for (const auto& c : cases) {
        const CommandLine line = parsed(c.arguments);
        EXPECT_FALSE(line.ended) << c.arguments;
        EXPECT_EQ(line.task, c.task) << c.arguments;
        EXPECT_EQ(line.files, c.files) << c.arguments;
        EXPECT_EQ(line.printer, c.printer) << c.arguments;
        EXPECT_EQ(line.printFile, c.printFile) << c.arguments;
    }
}

TEST(CommandLine, AnExistingFileIsMeantWhereItsNameLooksLikeASwitch) {
    // No test may write to the root folder; what is there stands for "/p" and the like.
    EXPECT_EQ(parsed("/tmp").files, QStringList{"/tmp"});
    EXPECT_EQ(parsed("/tmp /p").task, Task::Print);
}

TEST(CommandLine, OnlyAnOrdinaryStartIsHandedToARunningProgram) {
    for (const char* arguments :
         {"", "a.tmf", "/dde", "--language ja --settings s.ini a.tmf", "--new-image", "--new-palette a.tmf"})
        EXPECT_TRUE(parsed(arguments).canBeHandedOver()) << arguments;
    for (const char* arguments : {"--new-instance", "--attach a.tmf", "--render o.png a.tmf", "/p a.tmf",
                                  "--print-to a.tmf o.pdf", "/embedding"})
        EXPECT_FALSE(parsed(arguments).canBeHandedOver()) << arguments;
}

TEST(CommandLine, ArgumentsThatMakeNoSenseEndTheProgramWithTwo) {
    for (const char* arguments : {"--no-such-option", "--language de", "--language", "a.tmf --render", "/p",
                                  "--print-to a.tmf", "/pt a.tmf", "--new-image --render o.png"}) {
        const CommandLine line = parsed(arguments);
        EXPECT_TRUE(line.ended) << arguments;
        EXPECT_EQ(line.exitCode, 2) << arguments;
    }
}

} // namespace
} // namespace dyeworks

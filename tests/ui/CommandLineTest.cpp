#include "ui/CommandLine.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace dyeworks {
namespace {

using Task = CommandLine::Task;

CommandLine parsed(const QString& line) {
    return parseCommandLine(QStringList{QStringLiteral("Dyeworks")} +
                            line.split(QLatin1Char(' '), Qt::SkipEmptyParts));
}

QString here(const char* name) {
    return QDir::current().filePath(QString::fromLatin1(name));
}

TEST(CommandLine, NamesThatBeginWithASlashAreFilesAndRelativeOnesBecomeAbsolute) {
    const CommandLine line =
        parsed(QStringLiteral("--attach --language ja --settings s.ini /tex/a.tlf b.tmf -- -p"));
    EXPECT_FALSE(line.ended);
    EXPECT_EQ(line.task, Task::Open);
    EXPECT_TRUE(line.attach);
    EXPECT_EQ(line.language, QStringLiteral("ja"));
    EXPECT_EQ(line.settingsFile, here("s.ini"));
    EXPECT_EQ(line.files, (QStringList{QStringLiteral("/tex/a.tlf"), here("b.tmf"), here("-p")}));
}

TEST(CommandLine, TakesTheSwitchesOfOtherDesktopsBesideItsOwn) {
    const struct {
        const char* arguments;
        Task task;
        QStringList files;
        QString printer;
        QString printFile;
    } cases[] = {
        {"", Task::Nothing, {}, {}, {}},
        {"a.tmf", Task::Open, {here("a.tmf")}, {}, {}},
        {"/p a.tmf", Task::Print, {here("a.tmf")}, {}, {}},
        {"-P a.tmf", Task::Print, {here("a.tmf")}, {}, {}},
        {"--print a.tlf a.tmf", Task::Print, {here("a.tlf"), here("a.tmf")}, {}, {}},
        {"/pt a.tmf Laser driver port", Task::PrintTo, {here("a.tmf")}, QStringLiteral("Laser"), {}},
        {"/PT a.tmf Laser", Task::PrintTo, {here("a.tmf")}, QStringLiteral("Laser"), {}},
        {"--print-to a.tmf o.PDF", Task::PrintTo, {here("a.tmf")}, {}, here("o.PDF")},
        {"--print-to a.tlf a.tmf Laser",
         Task::PrintTo,
         {here("a.tlf"), here("a.tmf")},
         QStringLiteral("Laser"),
         {}},
        {"/dde", Task::Receive, {}, {}, {}},
        {"/dde a.tmf", Task::Open, {here("a.tmf")}, {}, {}},
        {"-Embedding", Task::Serve, {}, {}, {}},
        {"/Automation", Task::Serve, {}, {}, {}},
        {"/register", Task::Nothing, {}, {}, {}},
        {"/unregserver", Task::Unregister, {}, {}, {}},
        {"--settings /p", Task::Nothing, {}, {}, {}},
    };
    for (const auto& c : cases) {
        const CommandLine line = parsed(QString::fromLatin1(c.arguments));
        EXPECT_FALSE(line.ended) << c.arguments;
        EXPECT_EQ(line.task, c.task) << c.arguments;
        EXPECT_EQ(line.files, c.files) << c.arguments;
        EXPECT_EQ(line.printer, c.printer) << c.arguments;
        EXPECT_EQ(line.printFile, c.printFile) << c.arguments;
    }
}

TEST(CommandLine, AnExistingFileIsMeantWhereItsNameLooksLikeASwitch) {
    // No test may write to the root folder; what is there stands for "/p" and the like.
    EXPECT_EQ(parsed(QStringLiteral("/tmp")).files, QStringList{QStringLiteral("/tmp")});
    EXPECT_EQ(parsed(QStringLiteral("/tmp /p")).task, Task::Print);
}

TEST(CommandLine, OnlyAnOrdinaryStartIsHandedToARunningProgram) {
    for (const char* arguments : {"", "a.tmf", "/dde", "--language ja --settings s.ini a.tmf"})
        EXPECT_TRUE(parsed(QString::fromLatin1(arguments)).canBeHandedOver()) << arguments;
    for (const char* arguments : {"--new-instance", "--attach a.tmf", "--render o.png a.tmf", "/p a.tmf",
                                  "--print-to a.tmf o.pdf", "/embedding"})
        EXPECT_FALSE(parsed(QString::fromLatin1(arguments)).canBeHandedOver()) << arguments;
}

TEST(CommandLine, ArgumentsThatMakeNoSenseEndTheProgramWithTwo) {
    for (const char* arguments : {"--no-such-option", "--language de", "--language", "a.tmf --render", "/p",
                                  "--print-to a.tmf", "/pt a.tmf"}) {
        const CommandLine line = parsed(QString::fromLatin1(arguments));
        EXPECT_TRUE(line.ended) << arguments;
        EXPECT_EQ(line.exitCode, 2) << arguments;
    }
}

} // namespace
} // namespace dyeworks

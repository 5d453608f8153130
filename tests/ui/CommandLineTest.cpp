#include "ui/CommandLine.h"

#include <QDir>
#include <gtest/gtest.h>

namespace dyeworks {
namespace {

CommandLine parsed(const QString& line) {
    return parseCommandLine(QStringList{QStringLiteral("Dyeworks")} + line.split(QLatin1Char(' ')));
}

TEST(CommandLine, NamesThatBeginWithASlashAreFilesAndRelativeOnesBecomeAbsolute) {
    const CommandLine line = parsed(QStringLiteral("--attach --language ja /tex/a.tlf b.tmf"));
    EXPECT_FALSE(line.ended);
    EXPECT_TRUE(line.attach);
    EXPECT_EQ(line.language, QStringLiteral("ja"));
    EXPECT_EQ(line.files,
              (QStringList{QStringLiteral("/tex/a.tlf"), QDir::current().filePath(QStringLiteral("b.tmf"))}));
}

TEST(CommandLine, ArgumentsThatMakeNoSenseEndTheProgramWithTwo) {
    for (const char* arguments : {"--no-such-option", "--language de", "--language", "a.tmf --render"}) {
        const CommandLine line = parsed(QString::fromLatin1(arguments));
        EXPECT_TRUE(line.ended) << arguments;
        EXPECT_EQ(line.exitCode, 2) << arguments;
    }
}

} // namespace
} // namespace dyeworks

#include "Desktop.h"
#include "platform/qt/DesktopEntries.h"

#include <QDateTime>
#include <QDirIterator>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>

namespace dyeworks {

namespace {

class ShellTest : public Desktop {
protected:
    ShellTest() {
        qputenv("XDG_DATA_HOME", host("data").toUtf8());
        qputenv("XDG_DATA_DIRS", host("shared").toUtf8());
        // The desktop's index builders would go on running in the folder when the test is over.
        qputenv("PATH", "");
    }
    ~ShellTest() override {
        qputenv("XDG_DATA_HOME", dataHome_);
        qputenv("XDG_DATA_DIRS", dataDirs_);
        qputenv("PATH", searchPath_);
    }

    [[nodiscard]] QStringList written() const {
        QStringList files;
        QDirIterator all(host("data"), QDir::Files, QDirIterator::Subdirectories);
        while (all.hasNext())
            files << all.next();
        return files;
    }

    QByteArray dataHome_ = qgetenv("XDG_DATA_HOME");
    QByteArray dataDirs_ = qgetenv("XDG_DATA_DIRS");
    QByteArray searchPath_ = qgetenv("PATH");
    QString indexBuilder_ = QStandardPaths::findExecutable(QStringLiteral("update-mime-database"));
    QString entry_ = host("data/applications/orrery-dyeworks.desktop");
    Shell& shell_ = platform_.shell();
    const std::vector<FileTypeRegistration> types_{
        {"TMF.Document", ".tmf", "image/x-orrery-tmf"},
        {"TLF.Document", ".tlf", "application/x-orrery-tlf"},
    };
};

} // namespace

TEST_F(ShellTest, DesktopWithoutAProgramForAFileOpensNothing) {
    write("page one.html", "");
    const struct {
        const char* launcher;
        const char* file;
        bool opens;
    } cases[] = {{"[ \"${1##*/}\" = page%20one.html ]", "page one.html", true},
                 {"exit 3", "page one.html", false},
                 {"kill -9 $$", "page one.html", false},
                 {"exit 0", "none.html", false}};
    qputenv("PATH", scratch_.path().toUtf8());
    for (const auto& [launcher, file, opens] : cases) {
        write("xdg-open", QByteArray("#!/bin/sh\n") + launcher);
        ASSERT_TRUE(
            QFile::setPermissions(host("xdg-open"), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        EXPECT_EQ(shell_.openWithDefaultProgram(path(file)), opens) << launcher;
    }
}

TEST_F(ShellTest, RegistersTypesThatTheDesktopThenKnows) {
    ASSERT_TRUE(shell_.registerFileTypes(types_));
    ASSERT_EQ(QProcess::execute(indexBuilder_, {host("data/mime")}), 0);
    const QByteArray globs = read(host("data/mime/globs"));
    for (const char* line :
         {"image/x-orrery-tmf:*.tmf", "text/x-orrery-tpf:*.tpf", "application/x-orrery-tlf:*.tlf"})
        EXPECT_TRUE(globs.split('\n').contains(line)) << globs.constData();
    const QByteArray entry = read(entry_);
    EXPECT_TRUE(entry.contains("\nMimeType=image/x-orrery-tmf;application/x-orrery-tlf;\n"))
        << entry.constData();
    EXPECT_TRUE(entry.contains(QCoreApplication::applicationFilePath().toUtf8())) << entry.constData();
}

TEST_F(ShellTest, RegistersIconsInEverySizeTheyAreNamedFor) {
    ASSERT_TRUE(shell_.registerFileTypes(types_));
    for (const char* name : {"apps/orrery-dyeworks", "mimetypes/image-x-orrery-tmf",
                             "mimetypes/text-x-orrery-tpf", "mimetypes/application-x-orrery-tlf"}) {
        EXPECT_TRUE(QFile::exists(host("data/icons/hicolor/scalable/") + QLatin1String(name) +
                                  QStringLiteral(".svg")))
            << name;
        for (const int side : {16, 24, 32, 48, 64, 128, 256}) {
            const QImage icon(QStringLiteral("%1/%2x%2/%3.png")
                                  .arg(host("data/icons/hicolor"))
                                  .arg(side)
                                  .arg(QLatin1String(name)));
            EXPECT_EQ(icon.size(), QSize(side, side)) << name;
            EXPECT_NE(icon.pixelColor(side / 2, side / 2).alpha(), 0) << name << ' ' << side;
        }
    }
}

TEST_F(ShellTest, RepairsOnlyWhatDiffers) {
    ASSERT_TRUE(shell_.registerFileTypes(types_));
    const QByteArray before = read(entry_);
    const QString package = host("data/mime/packages/orrery-dyeworks.xml");
    const QDateTime longAgo(QDate(2001, 2, 3), QTime(4, 5));
    QFile untouched(package);
    ASSERT_TRUE(untouched.open(QIODevice::ReadWrite) &&
                untouched.setFileTime(longAgo, QFileDevice::FileModificationTime));
    untouched.close();
    write("data/applications/orrery-dyeworks.desktop", "Exec=\"/gone/Dyeworks\"");
    EXPECT_TRUE(shell_.registerFileTypes(types_));
    EXPECT_EQ(read(entry_), before);
    EXPECT_EQ(QFileInfo(package).lastModified(), longAgo);
}

TEST_F(ShellTest, WritesNothingWhereTheProgramIsInstalledForAll) {
    ASSERT_TRUE(QDir().mkpath(host("shared/applications")));
    write("shared/applications/orrery-dyeworks.desktop", "[Desktop Entry]\n");
    EXPECT_TRUE(shell_.registerFileTypes(types_));
    EXPECT_EQ(written(), QStringList());
}

TEST_F(ShellTest, SaysThatTheUsersFoldersCannotBeWritten) {
    write("data", "a file where the folder should be");
    EXPECT_FALSE(shell_.registerFileTypes(types_));
}

TEST_F(ShellTest, UnregisteringLeavesWhatOthersHaveWritten) {
    ASSERT_TRUE(QDir().mkpath(host("data/mime/packages")));
    write("data/mime/packages/other.xml", "<mime-info/>");
    ASSERT_TRUE(shell_.registerFileTypes(types_));
    ASSERT_GT(written().size(), 1);
    EXPECT_TRUE(shell_.unregisterFileTypes());
    EXPECT_EQ(written(), QStringList(host("data/mime/packages/other.xml")));
    EXPECT_FALSE(QFile::exists(host("data/icons"))) << "empty folders stay behind";
    EXPECT_TRUE(shell_.unregisterFileTypes()) << "when there is nothing to take back";
}

TEST(DesktopFiles, QuoteTheProgramForTheExecLine) {
    const DesktopFile entry = desktopFiles(QStringLiteral("/a b/100%/\"$x`\\y"), {}).back();
    EXPECT_TRUE(entry.bytes.contains("\nExec=\"/a b/100%%/\\\\\"\\\\$x\\\\`\\\\\\\\y\" %F\n"))
        << entry.bytes.constData();
}

} // namespace dyeworks

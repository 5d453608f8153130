#include "Desktop.h"
#include "platform/qt/DesktopEntries.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace dyeworks {

namespace {

class ShellTest : public Desktop {
protected:
    ShellTest() {
        qputenv("XDG_DATA_HOME", host("data").toUtf8());
        // The desktop's index builders would go on running in the folder when the test is over.
        qputenv("PATH", "");
    }
    ~ShellTest() override {
        qputenv("XDG_DATA_HOME", dataHome_);
        qputenv("PATH", searchPath_);
    }

    QByteArray dataHome_ = qgetenv("XDG_DATA_HOME");
    QByteArray searchPath_ = qgetenv("PATH");
    QString indexBuilder_ = QStandardPaths::findExecutable(QStringLiteral("update-mime-database"));
    QString entry_ = host("data/applications/orrery-dyeworks.desktop");
    QString package_ = host("data/mime/packages/orrery-dyeworks.xml");
    std::vector<FileTypeRegistration> types_{
        {"TMF.Document", ".tmf", "image/x-orrery-tmf", "Image <4 & 8 bit>", std::string("TM\0\"\\\x01 7", 8)},
        {"TPF.Document", ".tpf", "text/x-orrery-tpf", "Project", ""}};
};

/// Stands for the desktop's launcher of default programs.
class Launcher : public QObject {
    Q_OBJECT
public:
    Launcher() { QDesktopServices::setUrlHandler(QStringLiteral("file"), this, "launch"); }
    ~Launcher() override { QDesktopServices::unsetUrlHandler(QStringLiteral("file")); }

    Q_INVOKABLE void launch(const QUrl& url) { launched << url.toLocalFile(); }

    QStringList launched;
};

} // namespace

TEST_F(ShellTest, RegistersTypesThatTheDesktopThenKnows) {
    ASSERT_TRUE(platform_.shell().registerFileTypes(types_));
    ASSERT_EQ(QProcess::execute(indexBuilder_, {host("data/mime")}), 0);
    const QByteArray globs = read(host("data/mime/globs"));
    EXPECT_TRUE(globs.endsWith("\nimage/x-orrery-tmf:*.tmf\ntext/x-orrery-tpf:*.tpf\n")) << globs.constData();
    // Two bytes of length, high byte first, then the very bytes.
    EXPECT_EQ(read(host("data/mime/magic")),
              QByteArrayLiteral("MIME-Magic\0\n[60:image/x-orrery-tmf]\n>0=\0\x08TM\0\"\\\x01 7\n"));
    EXPECT_TRUE(
        read(host("data/mime/image/x-orrery-tmf.xml")).contains("<comment>Image &lt;4 &amp; 8 bit&gt;<"));
    const QByteArray entry = read(entry_);
    EXPECT_TRUE(entry.contains("\nMimeType=image/x-orrery-tmf;text/x-orrery-tpf;\n")) << entry.constData();
    EXPECT_TRUE(entry.contains(QCoreApplication::applicationFilePath().toUtf8())) << entry.constData();
}

TEST_F(ShellTest, WritesTheRegistrationOnlyWhenItDiffers) {
    ASSERT_TRUE(platform_.shell().registerFileTypes(types_));
    const QByteArray package = read(package_);
    const QDateTime longAgo = QDateTime::fromSecsSinceEpoch(1000);
    for (const QString& path : {entry_, package_}) {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadWrite) &&
                    file.setFileTime(longAgo, QFile::FileModificationTime));
    }
    ASSERT_TRUE(platform_.shell().registerFileTypes(types_));
    EXPECT_EQ(QFileInfo(entry_).lastModified(), longAgo);
    EXPECT_EQ(QFileInfo(package_).lastModified(), longAgo);

    types_[0].description = "Image";
    ASSERT_TRUE(platform_.shell().registerFileTypes(types_));
    EXPECT_EQ(QFileInfo(entry_).lastModified(), longAgo);
    EXPECT_NE(read(package_), package);
}

TEST_F(ShellTest, TellsWhenTheUsersFoldersCannotBeWritten) {
    write("data", "a file stands where the folder should be");
    EXPECT_FALSE(platform_.shell().registerFileTypes(types_));
}

TEST(DesktopEntry, QuotesTheProgramForTheExecLine) {
    const QByteArray entry = desktopEntry(QStringLiteral("/a b/100%/\"$x`\\y"), {});
    EXPECT_TRUE(entry.contains("\nExec=\"/a b/100%%/\\\\\"\\\\$x\\\\`\\\\\\\\y\" %F\n")) << entry.constData();
}

TEST_F(ShellTest, OpensAnExistingFileWithItsDefaultProgram) {
    write("100% sky #1.html", "x");
    Launcher launcher;
    EXPECT_FALSE(platform_.shell().openWithDefaultProgram(path("gone.html")));
    EXPECT_TRUE(platform_.shell().openWithDefaultProgram(path("tex") + "\\..\\100% sky #1.html"));
    EXPECT_EQ(launcher.launched, QStringList{host("100% sky #1.html")});
}

} // namespace dyeworks

#include "ShellTest.moc"

#include "Desktop.h"
#include "platform/qt/DesktopEntries.h"

#include <QProcess>
#include <QStandardPaths>

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
    std::vector<FileTypeRegistration> types_{
        {"TMF.Document", ".tmf", "image/x-orrery-tmf", "Image <4 & 8 bit>", std::string("TM\0\"\\\x01 7", 8)},
        {"TPF.Document", ".tpf", "text/x-orrery-tpf", "Project", ""}};
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

TEST(DesktopEntry, QuotesTheProgramForTheExecLine) {
    const QByteArray entry = desktopEntry(QStringLiteral("/a b/100%/\"$x`\\y"), {});
    EXPECT_TRUE(entry.contains("\nExec=\"/a b/100%%/\\\\\"\\\\$x\\\\`\\\\\\\\y\" %F\n")) << entry.constData();
}

} // namespace dyeworks

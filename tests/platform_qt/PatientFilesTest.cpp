#include "Desktop.h"
#include "platform/posix/HostFile.h"

#include <QProgressDialog>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace dyeworks {
namespace {

using PatientFilesTest = Desktop;

TEST_F(PatientFilesTest, WritingThatHangsIsStoppedWhileTheProgramLives) {
    const QByteArray pipe = QFile::encodeName(host("pipe.tmf"));
    ASSERT_EQ(::mkfifo(pipe.constData(), 0600), 0);
    const int reader = ::open(pipe.constData(), O_RDONLY | O_NONBLOCK);
    int turns = 0;
    QTimer stopping;
    QObject::connect(&stopping, &QTimer::timeout, qApp, [&] {
        auto* const dialog = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
        if (dialog != nullptr && ++turns == 5)
            dialog->cancel();
    });
    stopping.start(20);
    const std::vector<std::byte> bytes(std::size_t{1} << 20U);
    EXPECT_TRUE(platform_.files().write(path("pipe.tmf"), bytes)) << "nobody reads";
    EXPECT_EQ(turns, 5);
    ::close(reader);
    // The next is not kept waiting.
    EXPECT_FALSE(platform_.files().write(path("a.tmf"), bytes));
    EXPECT_EQ(read(host("a.tmf")).size(), qsizetype{1} << 20U);
}

TEST_F(PatientFilesTest, WhatWasStoppedReplacesNothingLater) {
    write("a.tmf", "old");
    const std::atomic<bool> stopped = true;
    const std::span<const std::byte> piece = std::as_bytes(std::span("new"));
    EXPECT_TRUE(writeHostFile(host("a.tmf").toStdString(), FilePieces(&piece, 1), Flush::Yes, &stopped));
    EXPECT_EQ(read(host("a.tmf")), "old");
    EXPECT_EQ(QDir(scratch_.path()).entryList(QDir::Files | QDir::Hidden), QStringList("a.tmf"));
}

} // namespace
} // namespace dyeworks

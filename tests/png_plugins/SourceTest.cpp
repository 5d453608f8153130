#include "PngFiles.h"
#include "dyeworks/plugin.h"
#include "source/SourceFiles.h"
#include "source/SourceSheet.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace dyeworks::plugins {
namespace {

TEST(SourceSheet, OpensAsItWasLeft) {
    {
        SourceSheet sheet(true, nullptr);
        sheet.findChild<QLineEdit*>(QStringLiteral("Name"))->setText(QStringLiteral("2 seas"));
        sheet.findChild<QComboBox*>(QStringLiteral("Alignment"))->setCurrentIndex(6);
        sheet.accept();
    }
    const SourceChoices kept = SourceSheet(true, nullptr).choices();
    EXPECT_EQ(kept.options.name, "_2_seas");
    EXPECT_EQ(kept.options.alignment, 64);
    EXPECT_FALSE(SourceSheet(false, nullptr).choices().options.withPalette);
}

TEST(SourceFiles, BothOrNone) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("sea.h"));
    const auto image = imageOf(3, 2, 4, [](int x, int y) { return static_cast<unsigned>(x + y); });
    const ::PlugInPicture picture{image.get(), nullptr, 0, 0};
    SourceChoices choices;
    choices.kind = SourceKind::HeaderAndSource;
    choices.options.name = "sea";
    // A folder stands where the source would go.
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("sea.c")));
    EXPECT_EQ(writeSource(picture, choices, path).path, sourcePathFor(path));
    EXPECT_FALSE(QFile::exists(path));
    writeBytes(path, "old");
    EXPECT_FALSE(writeSource(picture, choices, path).reason.isEmpty());
    EXPECT_EQ(bytesOf(path), "old");
    ASSERT_TRUE(QDir(folder.path()).rmdir(QStringLiteral("sea.c")));
    EXPECT_TRUE(writeSource(picture, choices, path).reason.isEmpty());
    EXPECT_TRUE(bytesOf(sourcePathFor(path)).contains("0x01, 0x20,"));
}

} // namespace
} // namespace dyeworks::plugins

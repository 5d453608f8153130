#include "PngFiles.h"
#include "common/WritePng.h"
#include "png/PngImport.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <sys/resource.h>

namespace dyeworks::plugins {
namespace {

struct ExportCase {
    int bits;
    std::uint32_t colourType;
    int count; ///< 0 without palette.
    int first;
};

class PngExport : public testing::TestWithParam<ExportCase> {
protected:
    QTemporaryDir folder_;
    QString path_ = folder_.filePath(QStringLiteral("out.png"));
};

unsigned entryAt(int entry) {
    return static_cast<unsigned>(entry) * 40503U & 0xFFFFU;
}

// An odd width and a last texel in the high half; the lowest entries, the highest, and alpha of all kinds.
TEST_P(PngExport, KeepsTexelsAndColoursAndComesBackTheSame) {
    const auto [bits, colourType, count, first] = GetParam();
    const int colours = 1 << bits;
    const ImageRecord image =
        imageOf(37, 9, bits, [&](int x, int y) { return static_cast<unsigned>((x + 37 * y) * 7 % colours); });
    const PaletteRecord palette = count == 0 ? nullptr : paletteOf(colourType, count, entryAt);
    ASSERT_EQ(writePngFile(path_, *image, palette.get(), first), QString());
    EXPECT_EQ(bytesOf(path_).at(24), bits); // Depth, in the header chunk.

    const QImage read(path_);
    ASSERT_EQ(read.size(), QSize(37, 9));
    const PngImport back = importPng(path_, {image.get(), palette.get(), 0, first});
    ASSERT_EQ(back.refusal, QString());
    for (int y = 0; y < 9; ++y) {
        for (int x = 0; x < 37; ++x) {
            const int texel = DW_getTexel(image.get(), x, y);
            ASSERT_EQ(read.pixelIndex(x, y), texel);
            ASSERT_EQ(DW_getTexel(back.image.get(), x, y), texel);
            std::array<std::uint8_t, 4> rgba{0, 0, 0, 255};
            if (palette == nullptr)
                rgba[0] = rgba[1] = rgba[2] = static_cast<std::uint8_t>(texel * 255 / (colours - 1));
            else if (first + texel < count)
                DW_colour(palette.get(), first + texel, rgba.data());
            ASSERT_EQ(read.pixel(x, y), qRgba(rgba[0], rgba[1], rgba[2], rgba[3])) << texel;
        }
    }
    for (int i = 0; i < count; ++i)
        ASSERT_EQ(back.palette->entries[i], palette->entries[i]) << i;
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, PngExport,
    testing::Values(ExportCase{4, DW_COLOUR_RGBA, 16, 0}, ExportCase{4, DW_COLOUR_RGBA, 256, 240},
                    ExportCase{4, DW_COLOUR_IA, 256, 32}, ExportCase{8, DW_COLOUR_RGBA, 256, 0},
                    ExportCase{8, DW_COLOUR_IA, 256, 0}, ExportCase{8, DW_COLOUR_RGBA, 16, 0},
                    ExportCase{4, 0, 0, 0}, ExportCase{8, 0, 0, 0}));

TEST(PngExportFailure, LeavesTheOldFileAndSaysWhy) {
    const QTemporaryDir folder;
    const ImageRecord empty = imageOf(0, 4, 8, {});
    const QString path = folder.filePath(QStringLiteral("old.png"));
    writeBytes(path, "old");
    EXPECT_NE(writePngFile(path, *empty, nullptr, 0), QString());
    EXPECT_EQ(bytesOf(path), "old");
    const ImageRecord image = imageOf(1, 1, 8, [](int, int) { return 0U; });
    EXPECT_NE(writePngFile(folder.filePath(QStringLiteral("no/such.png")), *image, nullptr, 0), QString());
    EXPECT_NE(writePngFile(folder.path(), *image, nullptr, 0), QString());

    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit full{40, before.rlim_max}; // The header, and no more.
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &full), 0);
    const QString reason = writePngFile(path, *image, nullptr, 0);
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    EXPECT_EQ(reason, QStringLiteral("There is no space left on the disk."));
    EXPECT_EQ(bytesOf(path), "old");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

} // namespace
} // namespace dyeworks::plugins

#include "FakeHost.h"
#include "PngFiles.h"
#include "pictures/PictureFileNames.h"
#include "pictures/PicturesExport.h"

#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace dyeworks::plugins {
namespace {

std::string files(const QString& folder) {
    return QDir(folder).entryList(QDir::Files).join(QLatin1Char(';')).toStdString();
}

TEST(PictureFileNames, AreSafeAndDiffer) {
    PictureFileNames names;
    const std::pair<const char*, const char*> cases[] = {{"sea", "sea.png"},
                                                         {"Sea", "Sea (2).png"},
                                                         {"a\\b/c:d", "a_b_c_d.png"},
                                                         {"a_b_c_d", "a_b_c_d (2).png"},
                                                         {"sea (2)", "sea (2) (2).png"},
                                                         {"..", "__.png"},
                                                         {".x", "_x.png"},
                                                         {"nul", "_nul.png"},
                                                         {"con.fig", "_con.fig.png"},
                                                         {"", "_.png"},
                                                         {"海\n", "海.png"},
                                                         {"tab\tbed", "tab_bed.png"}};
    for (const auto& [name, file] : cases)
        EXPECT_EQ(names.fileFor(QString::fromUtf8(name)), QString::fromUtf8(file));
    const QString kanji = QString::fromUtf8("海").repeated(150);
    EXPECT_EQ(names.fileFor(kanji), kanji.left(66) + QStringLiteral(".png"));
}

TEST(PicturesExport, WritesPicturesAndListAndSaysWhatIsMissing) {
    host = {{{"sea", "sea.tmf", "big.tlf", 2},
             {"Sea", "\\else\\x.tmf", "", 0},
             {"past", "deep.tmf", "small.tlf", 3},
             {"open", "deep.tmf", "*palette1", 0},
             {"gone", "gone.tmf", "big.tlf", 0},
             {"grey", "sea.tmf", "gone.tlf", 0},
             {"dir", "sea.tmf", "", 0}},
            {{"\\more\\sea.tmf", 4}, {"\\else\\x.tmf", 8}, {"\\tex\\deep.tmf", 4}},
            {{"\\pal\\big.tlf", 256}, {"\\pal\\small.tlf", 16}, {"*palette1", 256}}};
    const QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("dir.png")));
    const PicturesExport result =
        exportPictures(folder.path(), projectPictures(), [](std::size_t) { return true; });

    EXPECT_EQ(result.written, 4);
    ASSERT_EQ(result.failures.size(), 3);
    EXPECT_EQ(result.failures[0].toStdString(), "gone: the image \"gone.tmf\" cannot be read.");
    EXPECT_EQ(result.failures[1].toStdString(), "grey: the palette \"gone.tlf\" cannot be read.");
    EXPECT_THAT(result.failures[2].toStdString(), testing::StartsWith("dir: "));
    EXPECT_EQ(files(folder.path()), "index.json;open.png;past.png;Sea (2).png;sea.png");

    EXPECT_EQ(QImage(folder.filePath(QStringLiteral("sea.png"))).pixel(2, 1), qRgb(16, 0, 0));
    // A bank that the palette lacks is its first.
    EXPECT_EQ(QImage(folder.filePath(QStringLiteral("past.png"))).pixel(0, 0), qRgb(0, 0, 0));
    const QJsonArray list = QJsonDocument::fromJson(bytesOf(folder.filePath(QStringLiteral("index.json"))))
                                .object()
                                .value(QStringLiteral("pictures"))
                                .toArray();
    ASSERT_EQ(list.size(), 4);
    const QJsonObject sea{{QStringLiteral("name"), QStringLiteral("sea")},
                          {QStringLiteral("file"), QStringLiteral("sea.png")},
                          {QStringLiteral("image"), QStringLiteral("sea.tmf")},
                          {QStringLiteral("palette"), QStringLiteral("big.tlf")},
                          {QStringLiteral("bank"), 2},
                          {QStringLiteral("size"), QJsonArray{3, 2}},
                          {QStringLiteral("depth"), 4}};
    EXPECT_EQ(list.at(0).toObject(), sea);
}

TEST(PicturesExport, StopsWhereItIsTold) {
    host = {{{"a", "\\a.tmf", "", 0}, {"b", "\\a.tmf", "", 0}}, {{"\\a.tmf", 4}}, {}};
    const QTemporaryDir folder;
    const PicturesExport result =
        exportPictures(folder.path(), projectPictures(), [](std::size_t done) { return done < 1; });
    EXPECT_EQ(result.written, 1);
    EXPECT_EQ(files(folder.path()), "a.png;index.json");
}

} // namespace
} // namespace dyeworks::plugins

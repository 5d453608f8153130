#include "interchange/JpegFile.h"
#include "platform/qt/QtPictureReader.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <gtest/gtest.h>

#include <span>

namespace dyeworks {

namespace {

QByteArray fileOf(const QImage& image, const char* format, int quality = -1) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    EXPECT_TRUE(buffer.open(QIODevice::WriteOnly));
    EXPECT_TRUE(image.save(&buffer, format, quality)) << format;
    return bytes;
}

QByteArray kept(const char* name) {
    QFile file(QStringLiteral(DYEWORKS_SOURCE_DIR "/fuzz/corpus/jpeg/") + QString::fromLatin1(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return file.readAll();
}

Result<Picture, PictureError> read(const QByteArray& file) {
    return QtPictureReader().read(
        std::as_bytes(std::span(file.constData(), static_cast<std::size_t>(file.size()))));
}

} // namespace

TEST(PictureReader, TablesKeepTheirOrderAndTwins) {
    QImage image(7, 5, QImage::Format_Indexed8); // Rows with bytes to spare behind them.
    image.setColorTable({qRgb(9, 8, 7), qRgb(255, 0, 0), qRgb(9, 8, 7), qRgb(0, 255, 0)});
    for (int i = 0; i < 35; ++i)
        image.setPixel(i % 7, i / 7, static_cast<uint>(i * i % 4));
    const auto read = dyeworks::read(fileOf(image, "BMP"));
    ASSERT_TRUE(read.ok());
    const Picture& picture = read.value();
    ASSERT_EQ(picture.indices.size(), 35U);
    for (std::size_t i = 0; i < 35; ++i)
        EXPECT_EQ(picture.indices[i], i * i % 4);
    ASSERT_GE(picture.colours.size(), 4U);
    EXPECT_EQ(picture.colours[0], picture.colours[2]);
    EXPECT_EQ(picture.colours[1], (Colour{255, 0, 0}));
}

TEST(PictureReader, RefusesWhatItCannotTakeWhole) {
    EXPECT_EQ(read("GIMP Palette\n").error().kind, PictureError::Kind::UnknownFormat);
    QImage image(33, 9, QImage::Format_RGB32);
    image.fill(Qt::blue);
    for (const char* format : {"JPG", "BMP"}) {
        const QByteArray whole = fileOf(image, format);
        EXPECT_TRUE(read(whole).ok()) << format;
        const auto cut = read(whole.first(whole.size() - 3));
        EXPECT_TRUE(!cut.ok() && cut.error().kind == PictureError::Kind::EndsTooEarly) << format;
    }
    QByteArray file = fileOf(image, "BMP");
    file[18 + 2] = '\x7F'; // The width's third byte.
    const PictureError error = read(file).error();
    EXPECT_EQ(error.kind, PictureError::Kind::TooLarge);
    EXPECT_EQ(error.width, (0x7F << 16) + 33);
}

TEST(PictureReader, AgreesWithTheReaderOfProgramsWithoutADesktop) {
    QImage image(37, 23, QImage::Format_RGB32);
    for (int i = 0; i < 37 * 23; ++i)
        image.setPixel(i % 37, i / 37, qRgb(i % 37 * 6, i / 37 * 11, i * 7 % 256));
    const auto plain = [](const QByteArray& file) {
        return readJpeg(std::as_bytes(std::span(file.constData(), static_cast<std::size_t>(file.size()))));
    };
    const QImage grey = image.convertToFormat(QImage::Format_Grayscale8);
    for (QByteArray file : {fileOf(image, "JPG", 90), fileOf(image, "JPG", 20), fileOf(grey, "JPG"),
                            kept("progressive"), kept("four-inks")}) {
        for (char turn = 0; turn <= 9; ++turn) {
            QByteArray turned = file;
            turned.insert(2, QByteArray("\xFF\xE1\x00\x22"
                                        "Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0",
                                        28)
                                 .append(turn)
                                 .append(7, '\0'));
            const auto here = plain(turned);
            const auto there = read(turned);
            ASSERT_TRUE(here.ok() && there.ok()) << int(turn);
            EXPECT_EQ(here.value().width, there.value().width);
            EXPECT_EQ(here.value().pixels, there.value().pixels) << int(turn);
        }
        for (qsizetype size = 3; size < file.size(); ++size)
            ASSERT_FALSE(plain(file.first(size)).ok()) << size << " of " << file.size();
    }
}

} // namespace dyeworks

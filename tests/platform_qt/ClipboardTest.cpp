#include "../paint/BmpFile.h"
#include "Desktop.h"
#include "platform/PackedDib.h"

#include <QBuffer>
#include <QClipboard>
#include <QImage>
#include <QMimeData>
#include <gmock/gmock.h>

#include <algorithm>

namespace dyeworks {

namespace {

using ClipboardTest = Desktop;
using Bytes = std::vector<std::byte>;

Bytes bytesOf(const QByteArray& array) {
    const auto view = std::as_bytes(std::span(array.constData(), static_cast<std::size_t>(array.size())));
    return {view.begin(), view.end()};
}

QByteArray arrayOf(const Bytes& bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())};
}

/// One row of texels 1, 0 in `bits` each under a header of `headerSize` bytes, whose colour 1 is the
/// blue-green-red 10, 20, 30.
Bytes dibOf(std::uint32_t headerSize, std::uint32_t bits, std::uint32_t colours, std::uint32_t coloursUsed) {
    Bytes file = BmpFile{.headerSize = headerSize,
                         .width = 2,
                         .height = 1,
                         .bits = static_cast<std::uint16_t>(bits),
                         .coloursUsed = coloursUsed,
                         .colours = colours,
                         .rowBytes = 4}
                     .bytes();
    const std::uint8_t colour[] = {10, 20, 30};
    std::ranges::copy(std::as_bytes(std::span(colour)),
                      file.begin() + 14 + headerSize + (headerSize == 12 ? 3 : 4));
    writeU32(file, file.size() - 4, bits == 8 ? 0x0001 : bits == 4 ? 0x10 : 0x80);
    return {file.begin() + 14, file.end()};
}

/// Header size, bits, colours in the table, colours that the header names.
constexpr std::array<std::uint32_t, 4> kHeaders[] = {{40, 4, 16, 0},  {40, 8, 256, 0}, {40, 8, 256, 256},
                                                     {40, 8, 5, 5},   {40, 1, 2, 0},   {12, 4, 16, 0},
                                                     {124, 8, 256, 0}};

} // namespace

TEST(PackedDib, BecomesAFileThatOtherProgramsRead) {
    for (const auto& [headerSize, bits, colours, used] : kHeaders) {
        const Bytes dib = dibOf(headerSize, bits, colours, used);
        const std::optional<Bytes> bmp = bmpFromDib(dib);
        ASSERT_TRUE(bmp);
        const QImage image = QImage::fromData(arrayOf(*bmp), "BMP");
        ASSERT_EQ(image.size(), QSize(2, 1)) << headerSize << ' ' << bits;
        EXPECT_EQ(image.pixel(0, 0), qRgb(30, 20, 10)) << headerSize << ' ' << bits;
        EXPECT_EQ(image.pixel(1, 0), qRgb(0, 0, 0)) << headerSize << ' ' << bits;
        EXPECT_EQ(dibFromBmp(*bmp), dib);
    }
}

TEST(PackedDib, ComesOutOfAFileWithoutTheGapBeforeItsPixels) {
    const Bytes dib = dibOf(124, 8, 256, 0);
    Bytes bmp = bmpFromDib(dib).value();
    bmp.insert(bmp.end() - 4, 2, std::byte{0xEE});
    writeU32(bmp, 10, 14 + 124 + 1024 + 2);
    EXPECT_EQ(dibFromBmp(bmp), dib);
}

TEST(PackedDib, GetsTheColoursThatItsFileLeavesOut) {
    // Five colours and a part of a sixth.
    for (const std::uint32_t headerSize : {12U, 124U}) {
        const std::uint32_t entry = headerSize == 12 ? 3 : 4;
        const auto at = [&](std::uint32_t colours) { return 14 + headerSize + entry * colours; };
        Bytes whole = bmpFromDib(dibOf(headerSize, 4, 16, 0)).value();
        std::fill(whole.begin() + at(5), whole.begin() + at(16), std::byte{});
        Bytes bmp = whole;
        bmp.erase(bmp.begin() + at(5) + 2, bmp.begin() + at(16));
        writeU16(bmp, at(5), 0xEEEE);
        writeU32(bmp, 10, at(5) + 2);
        EXPECT_EQ(dibFromBmp(bmp), Bytes(whole.begin() + 14, whole.end())) << headerSize;
    }
    Bytes damaged = bmpFromDib(dibOf(124, 8, 256, 0)).value();
    writeU32(damaged, 14 + 32, 0xFFFFFFFF);
    EXPECT_EQ(dibFromBmp(damaged), std::nullopt);
}

TEST(PackedDib, IsRefusedWhenCutOffOrOfNoKnownKind) {
    const Bytes whole = bmpFromDib(dibOf(40, 8, 256, 0)).value();
    for (const std::size_t size : {0U, 2U, 13U, 14U, 25U, 53U, 54U + 1023U})
        EXPECT_EQ(dibFromBmp(std::span(whole).first(size)), std::nullopt) << size;
    for (const std::uint32_t headerSize : {0U, 11U, 13U, 39U, 125U, 0xFFFFFFFFU}) {
        Bytes dib = dibOf(40, 8, 256, 0);
        writeU32(dib, 0, headerSize);
        EXPECT_EQ(bmpFromDib(dib), std::nullopt) << headerSize;
    }
    Bytes colours = dibOf(40, 8, 256, 0);
    writeU32(colours, 32, 0xFFFFFFFF);
    EXPECT_EQ(bmpFromDib(colours), std::nullopt);
    Bytes compressed = whole;
    writeU32(compressed, 14 + 16, 3);
    EXPECT_EQ(dibFromBmp(compressed), std::nullopt);
}

TEST_F(ClipboardTest, HandsABitmapToOthersAndBackUnchanged) {
    Bytes dib = dibOf(40, 4, 16, 0);
    writeU32(dib, 24, 0xABCDEF);
    ASSERT_TRUE(platform_.clipboard().setBitmap(dib));
    const QByteArray offered = QApplication::clipboard()->mimeData()->data(QStringLiteral("image/bmp"));
    EXPECT_EQ(bytesOf(offered.mid(14)), dib);
    EXPECT_EQ(QApplication::clipboard()->image().pixel(0, 0), qRgb(30, 20, 10));
    EXPECT_TRUE(platform_.clipboard().offers(ClipboardFormat::Bitmap));
    EXPECT_EQ(platform_.clipboard().bitmap(), dib);

    EXPECT_FALSE(platform_.clipboard().setBitmap(std::span(dib).first(20)));
    EXPECT_EQ(platform_.clipboard().bitmap(), dib);
}

TEST_F(ClipboardTest, TakesThePictureOfAProgramThatOffersNoBmpOrACompressedOne) {
    Bytes compressed = bmpFromDib(dibOf(40, 8, 256, 0)).value();
    writeU32(compressed, 14 + 16, 3);
    QImage picture(2, 1, QImage::Format_Indexed8);
    picture.setColorTable(QList<QRgb>(200, qRgb(30, 20, 10)));
    picture.fill(150);
    for (const bool hasBmp : {false, true}) {
        auto* data = new QMimeData;
        if (hasBmp)
            data->setData(QStringLiteral("image/bmp"), arrayOf(compressed));
        data->setImageData(picture);
        QApplication::clipboard()->setMimeData(data);
        EXPECT_TRUE(platform_.clipboard().offers(ClipboardFormat::Bitmap));
        const std::optional<Bytes> dib = platform_.clipboard().bitmap();
        ASSERT_TRUE(dib);
        EXPECT_EQ((*dib)[16], std::byte{0}) << "not compressed";
        const QImage taken = QImage::fromData(arrayOf(bmpFromDib(*dib).value()), "BMP");
        EXPECT_EQ(taken.pixelIndex(1, 0), 150);
        EXPECT_EQ(taken.pixel(1, 0), qRgb(30, 20, 10));
    }
}

TEST_F(ClipboardTest, OffersAnIndexedPictureAsSuch) {
    constexpr struct {
        std::uint32_t bits, colours;
        QImage::Format format;
    } kCases[] = {
        {1, 2, QImage::Format_Mono}, {4, 16, QImage::Format_Indexed8}, {8, 256, QImage::Format_Indexed8}};
    for (const auto& [bits, colours, format] : kCases) {
        ASSERT_TRUE(platform_.clipboard().setBitmap(dibOf(40, bits, colours, 0)));
        QByteArray png;
        QBuffer buffer(&png);
        ASSERT_TRUE(QApplication::clipboard()->image().save(&buffer, "PNG"));
        const QImage image = QImage::fromData(png, "PNG");
        EXPECT_EQ(image.format(), format) << bits;
        EXPECT_EQ(image.colorCount(), static_cast<int>(colours)) << bits;
        // Of two colours Qt makes the darker one the first.
        EXPECT_TRUE(bits == 1 || image.pixelIndex(0, 0) == 1) << bits;
        EXPECT_EQ(image.pixel(0, 0), qRgb(30, 20, 10)) << bits;
    }
}

TEST_F(ClipboardTest, OffersOnlyWhatItHolds) {
    ASSERT_TRUE(platform_.clipboard().setText("空=1\nb=2"));
    EXPECT_EQ(platform_.clipboard().text(), "空=1\nb=2");
    EXPECT_FALSE(platform_.clipboard().offers(ClipboardFormat::Bitmap));
    EXPECT_EQ(platform_.clipboard().bitmap(), std::nullopt);
    QApplication::clipboard()->clear();
    EXPECT_FALSE(platform_.clipboard().offers(ClipboardFormat::Text));
    EXPECT_EQ(platform_.clipboard().text(), std::nullopt);
}

} // namespace dyeworks

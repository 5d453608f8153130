#include "Program.h"
#include "paint/BackgroundPicture.h"

#include <QMdiArea>

#include <initializer_list>

namespace dyeworks {
namespace {

std::string little(std::uint32_t value, int count) {
    std::string text;
    for (int i = 0; i < count; ++i, value >>= 8)
        text += static_cast<char>(value);
    return text;
}

std::string bytes(std::initializer_list<unsigned char> values) {
    return {values.begin(), values.end()};
}

struct Bitmap {
    std::uint32_t width, height, bits;
    std::string colours, rows;
    std::uint32_t coloursUsed = 0, compression = 0;

    [[nodiscard]] std::string file() const {
        const std::string info = little(40, 4) + little(width, 4) + little(height, 4) + little(1, 2) +
                                 little(bits, 2) + little(compression, 4) + little(0, 12) +
                                 little(coloursUsed, 4) + little(0, 4);
        const std::string rest = little(0, 8) + info + colours + rows;
        return "BM" + little(static_cast<std::uint32_t>(6 + rest.size()), 4) + rest;
    }
};

constexpr std::uint32_t kRed = 0xFFFF0000, kGreen = 0xFF00FF00, kBlue = 0xFF0000FF, kWhite = 0xFFFFFFFF,
                        kBlack = 0xFF000000;

const std::string kFourColours = bytes({0, 0, 255, 0, 0, 255, 0, 0, 255, 0, 0, 0, 255, 255, 255, 0});

TEST(BackgroundPicture, ReadsEveryDepthFromTheTopDown) {
    FakePlatform fake;
    // Red and green in the upper row, blue and white in the lower.
    const std::vector<std::uint32_t> picture{kRed, kGreen, kBlue, kWhite};
    const struct {
        Bitmap bitmap;
        std::vector<std::uint32_t> pixels;
    } cases[] = {
        {{2, 2, 1, bytes({0, 0, 255, 0, 255, 0, 0, 0}), bytes({0x80, 0, 0, 0, 0x40, 0, 0, 0})},
         {kRed, kBlue, kBlue, kRed}},
        {{2, 2, 4, kFourColours, bytes({0x23, 0, 0, 0, 0x01, 0, 0, 0}), 4}, picture},
        {{2, 2, 8, kFourColours, bytes({2, 3, 0, 0, 0, 1, 0, 0}), 4}, picture},
        {{1, 1, 8, kFourColours, bytes({9, 0, 0, 0}), 4}, {kBlack}}, // beyond its colours
        {{2, 2, 16, "", bytes({0x1F, 0, 0xFF, 0x7F, 0, 0x7C, 0xE0, 0x03})}, picture},
        {{2, 2, 24, "", bytes({255, 0, 0, 255, 255, 255, 0, 0, 0, 0, 255, 0, 255, 0, 0, 0})}, picture},
        {{2, 2, 32, "", bytes({255, 0, 0, 0, 255, 255, 255, 9, 0, 0, 255, 255, 0, 255, 0, 0})}, picture},
        {{2, 0xFFFFFFFE, 8, kFourColours, bytes({0, 1, 0, 0, 2, 3, 0, 0}), 4}, picture}, // top row first
    };
    for (const auto& c : cases) {
        fake.files.putFile("c:\\b.bmp", c.bitmap.file());
        const BackgroundPicture read = BackgroundPicture::read("c:\\b.bmp");
        EXPECT_EQ(read.pixels, c.pixels) << c.bitmap.bits;
        EXPECT_EQ(static_cast<std::uint32_t>(read.width), c.bitmap.width);
    }
    EXPECT_THAT(fake.messages.shown, IsEmpty());
}

TEST(BackgroundPicture, IsAbsentWhenTheFileIsNoGood) {
    FakePlatform fake;
    const Bitmap good{2, 2, 8, kFourColours, bytes({2, 3, 0, 0, 0, 1, 0, 0}), 4};
    Bitmap compressed = good;
    compressed.compression = 1;
    EXPECT_TRUE(BackgroundPicture::read("c:\\b.bmp").empty()) << "not there";
    for (const std::string& file : {"MB" + good.file().substr(2), compressed.file()}) {
        EXPECT_THAT(fake.messages.shown, IsEmpty());
        fake.files.putFile("c:\\b.bmp", file);
        EXPECT_TRUE(BackgroundPicture::read("c:\\b.bmp").empty());
    }
    EXPECT_THAT(texts(fake), ElementsAre("compressed format not supported.\n"));
}

class Background : public Launch {
protected:
    [[nodiscard]] QImage shown() {
        return frame().area().viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
};

TEST_F(Background, TilesTheDocumentAreaFromItsTopLeftCornerWhateverItsSize) {
    const unsigned width = 7, height = 5;
    std::string rows;
    for (unsigned y = 0; y < height; ++y) {
        for (unsigned x = 0; x < width; ++x)
            rows += little((height - 1 - y) << 20 | x << 12 | 0xFF, 4);
    }
    fake_.files.putFile("c:\\!bg.bmp", Bitmap{width, height, 32, "", rows}.file());
    ASSERT_TRUE(launch());
    const auto check = [&](const char* when) {
        const QImage picture = shown();
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const auto wanted = static_cast<QRgb>(0xFF0000FFU | static_cast<unsigned>(y % 5) << 20 |
                                                      static_cast<unsigned>(x % 7) << 12);
                ASSERT_EQ(picture.pixel(x, y), wanted) << when << " " << x << " " << y;
            }
        }
    };
    check("at the start");
    // The file is read once.
    fake_.files.remove("c:\\!bg.bmp");
    frame().resize(533, 391);
    QCoreApplication::processEvents();
    check("resized");
}

TEST_F(Background, IsPlainWithoutAPictureAndFollowsThePalette) {
    fake_.files.putFile("c:\\!bg.bmp", "broken");
    ASSERT_TRUE(launch());
    const QColor dark(12, 34, 56);
    QPalette palette = frame().palette();
    palette.setColor(QPalette::Dark, dark);
    frame().setPalette(palette);
    const QImage picture = shown();
    EXPECT_EQ(picture.pixelColor(0, 0), dark);
    EXPECT_EQ(picture.pixelColor(picture.width() - 1, picture.height() - 1), dark);
}

} // namespace
} // namespace dyeworks

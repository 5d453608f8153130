#include "Program.h"
#include "paint/TextureCanvas.h"

#include <QMdiArea>

namespace dyeworks {
namespace {

class Background : public Launch {
protected:
    [[nodiscard]] QImage shown() {
        return frame().area().viewport()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    }
};

TEST_F(Background, TilesTheDocumentAreaFromItsTopLeftCornerWhateverItsSize) {
    TextureCanvas tile;
    ASSERT_TRUE(tile.Create(7, 5, 1, 32));
    for (std::int32_t i = 0; i < 7 * 5; ++i)
        tile.SetPixel(i % 7, i / 7, static_cast<std::uint32_t>(i / 7 << 20 | i % 7 << 12 | 0xFF));
    ASSERT_TRUE(tile.SaveBmp("c:\\!bg.bmp"));
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

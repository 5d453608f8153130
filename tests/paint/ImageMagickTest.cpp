#include "CanvasTesting.h"
#include "paint/BackgroundPicture.h"
#include "platform/LittleEndian.h"
#include "platform/fake/FakePlatform.h"

#include <cstdlib>

namespace dyeworks {
namespace {

using Colours = std::vector<std::uint8_t>; ///< Red, green, blue of each pixel, row by row.

/// What a canvas shows, pixel by pixel.
Colours coloursOf(const TextureCanvas& canvas) {
    Colours colours;
    const auto add = [&](std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
        for (const std::uint32_t channel : {red, green, blue})
            colours.push_back(static_cast<std::uint8_t>(channel));
    };
    for (std::int32_t y = 0; y < canvas.height(); ++y) {
        for (std::int32_t x = 0; x < canvas.width(); ++x) {
            const std::uint32_t value = canvas.GetPixel(x, y);
            if (canvas.bitsPerPixel() <= 8) {
                const std::uint8_t* colour = canvas.colourTable().data() + std::size_t{4} * value;
                add(colour[2], colour[1], colour[0]);
            } else {
                add(value >> 16U & 0xFFU, value >> 8U & 0xFFU, value & 0xFFU);
            }
        }
    }
    return colours;
}

Colours coloursOf(const BackgroundPicture& picture) {
    Colours colours;
    for (const std::uint32_t pixel : picture.pixels) {
        for (const unsigned shift : {16U, 8U, 0U})
            colours.push_back(static_cast<std::uint8_t>(pixel >> shift));
    }
    return colours;
}

/// Files are "c:\<name>" in the scratch folder.
class ImageMagick : public testing::Test {
protected:
    static std::string path(const std::string& name) { return "c:\\" + name; }
    [[nodiscard]] std::string host(const std::string& name) const {
        return fake_.files.hostPath(path("")) + "/" + name;
    }

    void convert(const std::string& arguments, const std::string& format, const std::string& name) const {
        const std::string command = "convert " + arguments + " '" + format + ":" + host(name) + "'";
        ASSERT_EQ(std::system(command.c_str()), 0) << command;
    }
    [[nodiscard]] Colours seen(const std::string& name) const {
        convert("'BMP:" + host(name) + "' -depth 8", "rgb", "seen.rgb");
        const std::vector<std::byte> bytes =
            fake_.files.bytesOf(path("seen.rgb")).value_or(std::vector<std::byte>{});
        Colours colours;
        for (const std::byte byte : bytes)
            colours.push_back(std::to_integer<std::uint8_t>(byte));
        return colours;
    }

    FakePlatform fake_;
};

TEST_F(ImageMagick, SeesThePixelsAndColoursThatWeOpenAndSave) {
    const struct {
        const char* arguments;
        const char* format;
        std::uint32_t headerSize;
        std::uint16_t bits;
    } cases[] = {
        {"-monochrome", "BMP2", 12, 1},
        {"", "BMP2", 12, 24},
        {"-monochrome", "BMP3", 40, 1},
        {"-colors 13", "BMP3", 40, 4},
        {"-colors 60 -compress none", "BMP3", 40, 8},
        {"", "BMP3", 40, 24},
        {"-alpha set -define bmp3:alpha=true", "BMP3", 40, 32},
        {"-monochrome", "BMP", 108, 1},
        {"-colors 13", "BMP", 124, 4},
        {"", "BMP", 124, 24},
    };
    convert("-size 9x7 -seed 3 plasma:fractal -depth 8", "PNG24", "picture.png");
    for (const auto& [arguments, format, headerSize, bits] : cases) {
        SCOPED_TRACE(std::string(format) + " " + arguments);
        convert("'" + host("picture.png") + "' " + arguments, format, "a.bmp");
        std::vector<std::byte> file = fake_.files.bytesOf(path("a.bmp")).value();
        ASSERT_EQ(readU32(file, 14), headerSize);
        for (const bool topDown : {false, true}) {
            if (topDown && headerSize == 12)
                continue;
            if (topDown) {
                writeU32(file, 22, static_cast<std::uint32_t>(-7));
                fake_.files.putFile(path("a.bmp"), file);
            }
            TextureCanvas canvas;
            ASSERT_TRUE(canvas.LoadBmp(path("a.bmp")));
            EXPECT_EQ(canvas.bitsPerPixel(), bits);
            EXPECT_EQ(canvas.width(), 9);
            EXPECT_EQ(coloursOf(canvas), seen("a.bmp"));
            EXPECT_EQ(coloursOf(BackgroundPicture::read(path("a.bmp"))), coloursOf(canvas));
            ASSERT_TRUE(canvas.SaveBmp(path("ours.bmp")));
            EXPECT_EQ(coloursOf(canvas), seen("ours.bmp"));
        }
    }
}

} // namespace
} // namespace dyeworks

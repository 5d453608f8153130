#include "project/PictureImage.h"

#include "core/TlfFormat.h"
#include "core/TmfImage.h"
#include "platform/fake/FakePlatform.h"

#include <gtest/gtest.h>

#include <limits>

namespace dyeworks {
namespace {

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();

TEST(PictureImage, ShowsTheImageThroughItsBank) {
    FakePlatform fake;
    TmfImage image;
    TlutData wide;
    TlutData narrow;
    ASSERT_TRUE(image.create(2, 1, 4) && wide.create(256, ColourType::Ia) &&
                narrow.create(16, ColourType::Ia));
    image.setTexel(1, 0, 3);
    for (std::int32_t i = 0; i < 256; ++i)
        wide.setIntensity(i, i);
    for (std::int32_t i = 0; i < 16; ++i)
        narrow.setIntensity(i, 100 + i);
    ASSERT_TRUE(image.saveTmf("c:\\a.tmf"));
    fake.files.putFile("c:\\wide.tlf", serialiseTlf(wide).value().bytes());
    fake.files.putFile("c:\\narrow.tlf", serialiseTlf(narrow).value().bytes());
    const struct {
        const char* palette;
        std::int32_t number;
        int intensity; ///< Of the texel of value 3.
    } cases[] = {{"c:\\wide.tlf", 0, 3},     {"c:\\wide.tlf", 15, 243}, {"c:\\wide.tlf", 16, 3},
                 {"c:\\wide.tlf", kMost, 3}, {"c:\\wide.tlf", -1, 3},   {"c:\\wide.tlf", -kMost - 1, 3},
                 {"c:\\narrow.tlf", 0, 103}, {"c:\\narrow.tlf", 1, 103}};
    for (const auto& c : cases) {
        const auto canvas = readPicture("c:\\a.tmf", c.palette, c.number);
        ASSERT_NE(canvas, nullptr);
        EXPECT_EQ(canvas->GetPixel(1, 0), 3U);
        EXPECT_EQ(canvas->colourTable()[std::size_t{4} * 3], c.intensity) << c.palette << c.number;
    }
}

TEST(PictureImage, IsNoneWithoutEitherFile) {
    FakePlatform fake;
    TmfImage image;
    TlutData palette;
    ASSERT_TRUE(image.create(1, 1, 8));
    ASSERT_TRUE(image.saveTmf("c:\\a.tmf"));
    ASSERT_TRUE(palette.create(256, ColourType::Rgba));
    fake.files.putFile("c:\\a.tlf", serialiseTlf(palette).value().bytes());
    fake.files.putFile("c:\\bad", "TMF?");
    EXPECT_NE(readPicture("c:\\a.tmf", "c:\\a.tlf", 0), nullptr);
    const std::pair<const char*, const char*> cases[] = {{"c:\\no", "c:\\a.tlf"},
                                                         {"c:\\a.tmf", "c:\\no"},
                                                         {"c:\\bad", "c:\\a.tlf"},
                                                         {"c:\\a.tmf", "c:\\bad"},
                                                         {"c:\\", "c:\\a.tlf"}};
    for (const auto& [imagePath, palettePath] : cases)
        EXPECT_EQ(readPicture(imagePath, palettePath, 0), nullptr) << imagePath << palettePath;
    EXPECT_TRUE(fake.messages.shown.empty());
}

} // namespace
} // namespace dyeworks

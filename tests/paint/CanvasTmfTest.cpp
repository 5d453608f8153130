#include "CanvasTesting.h"
#include "core/TmfImage.h"
#include "paint/TextureCanvas.h"
#include "platform/fake/FakePlatform.h"

namespace dyeworks {
namespace {

/// A file of either form, cut off or with more behind it, with anything in its padding.
std::string anyFile(Random& random, int bits, int width, int height) {
    std::string file{'\0', '\x12', bits == 4 ? '\2' : '\3', '\0'};
    for (const int number : {width, height, bits}) {
        for (int shift = 24; shift >= 0; shift -= 8)
            file += static_cast<char>(number >> shift & 0xFF);
    }
    file.resize(64);
    const int row = (width * bits + 7) / 8;
    const int packed = (row * height + 3) / 4 * 4;
    const int body = random.once(2) ? packed : (row + 3) / 4 * 4 * height;
    for (int i = random.once(3) ? random.between(-9, 9) : 0; i < body; ++i)
        file += static_cast<char>(random.bits());
    return file;
}

TEST(CanvasTmf, RowsReadAndWrittenStraightAreThoseOfTheImage) {
    FakePlatform fake;
    for (unsigned seed = 0; seed < 200; ++seed) {
        Random random(seed);
        const int bits = random.once(2) ? 4 : 8;
        fake.files.putFile("c:\\a.tmf", anyFile(random, bits, random.between(0, 21), random.between(0, 9)));
        TmfImage image;
        ASSERT_TRUE(image.readTmf("c:\\a.tmf"));
        const TextureCanvas expected(image);
        TextureCanvas canvas;
        ASSERT_TRUE(canvas.LoadTmf("c:\\a.tmf"));
        ASSERT_TRUE(std::ranges::equal(canvas.block(), expected.block())) << seed;
        ASSERT_EQ(canvas.changedRect(), expected.changedRect()) << seed;
        ASSERT_TRUE(canvas.SaveTmf("c:\\b.tmf") && image.saveTmf("c:\\c.tmf")) << seed;
        ASSERT_EQ(fake.files.textOf("c:\\b.tmf"), fake.files.textOf("c:\\c.tmf")) << seed;
    }
}

} // namespace
} // namespace dyeworks

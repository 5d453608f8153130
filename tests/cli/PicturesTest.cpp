// What becomes of images on their way through the program, against what was made here.

#include "cli/Program.h"

#include <gmock/gmock.h>

#include <random>

namespace dyeworks {
namespace {

using testing::StartsWith;

class Random {
public:
    explicit Random(unsigned seed)
        : engine_(seed) {}
    int below(int count) { return std::uniform_int_distribution<int>(0, count - 1)(engine_); }
    std::vector<unsigned> numbers(int count, int below_) {
        std::vector<unsigned> all;
        for (int i = 0; i < count; ++i)
            all.push_back(unsigned(below(below_)));
        return all;
    }

private:
    std::mt19937 engine_;
};

/// What two pictures differ in, as another program sees it: "0" for nothing.
std::string difference(const TestFolder& folder, const std::string& one, const std::string& other) {
    return folder.run({"-metric", "AE", one, other, "null:"}, {.program = "compare"}).err;
}

TEST(Pictures, ComeBackFromPngByteByByte) {
    Random random(1);
    const TestFolder folder;
    for (int round = 0; round < 24; ++round) {
        const int bits = random.below(2) == 0 ? 4 : 8;
        const int count = bits == 8 || random.below(2) == 0 ? 256 : 16;
        const int width = 1 + random.below(40);
        const int height = 1 + random.below(40);
        const int bank = bits == 4 && count == 256 ? random.below(16) : 0;
        const std::string image =
            tmfFile(width, height, bits, random.numbers(width * height, bits == 4 ? 16 : 256));
        const std::string palette = tlfFile(random.numbers(count, 65536), random.below(2) == 0);
        folder.write("a.tmf", image);
        folder.write("a.tlf", palette);
        ASSERT_EQ(
            folder.run({"convert", "a.tmf", "-p", "a.tlf", "-b", std::to_string(bank), "-o", "a.png"}).code,
            0);
        ASSERT_EQ(folder.run({"convert", "a.png", "-o", "b.tmf", "--palette-out", "b.tlf"}).code, 0);
        ASSERT_EQ(folder.read("b.tmf"), image);
        ASSERT_EQ(folder.read("b.tlf"), palette);
        // Without alpha, which BMP files do not have, both show the same to other programs.
        ASSERT_EQ(folder.run({"convert", "a.png", "-o", "a.bmp"}).code, 0);
        folder.run({"a.png", "-alpha", "off", "opaque.png"}, {.program = "convert"});
        ASSERT_EQ(difference(folder, "opaque.png", "a.bmp"), "0");
        ASSERT_EQ(folder.run({"render", "a.png", "-o", "r.png"}).code, 0);
        ASSERT_EQ(difference(folder, "opaque.png", "r.png"), "0");
    }
}

TEST(Pictures, AreCutScaledAndTurnedAsTold) {
    Random random(2);
    const TestFolder folder;
    for (int round = 0; round < 16; ++round) {
        const int width = 4 + random.below(20);
        const int height = 4 + random.below(20);
        const std::vector<unsigned> texels = random.numbers(width * height, 256);
        folder.write("a.tmf", tmfFile(width, height, 8, texels));
        const int left = random.below(width);
        const int top = random.below(height);
        const int w = 1 + random.below(width - left);
        const int h = 1 + random.below(height - top);
        const int sw = 1 + random.below(30);
        const int sh = 1 + random.below(30);
        // Turned to the left: the right column becomes the top row.
        std::vector<unsigned> expected;
        for (int y = 0; y < sw; ++y) {
            for (int x = 0; x < sh; ++x) {
                const int fromX = left + (2 * (sw - 1 - y) + 1) * w / (2 * sw);
                const int fromY = top + (2 * x + 1) * h / (2 * sh);
                expected.push_back(texels[std::size_t(fromY * width + fromX)]);
            }
        }
        const auto text = [](int number) { return std::to_string(number); };
        ASSERT_EQ(folder
                      .run({"convert", "a.tmf", "-o", "b.tmf", "--turn", "left", "--resize",
                            text(sw) + "x" + text(sh), "--crop",
                            text(left) + "," + text(top) + "," + text(w) + "x" + text(h)})
                      .code,
                  0);
        ASSERT_EQ(folder.read("b.tmf"), tmfFile(sh, sw, 8, expected));
    }
}

TEST(Pictures, OfColoursComeIntoFewAndIntoGivenOnes) {
    const TestFolder folder;
    folder.run({"-size", "40x30", "gradient:red-blue", "PNG24:a.png"}, {.program = "convert"});
    folder.run({"a.png", "BMP3:a.bmp"}, {.program = "convert"});
    folder.run({"a.png", "a.jpg"}, {.program = "convert"});
    folder.write("grey.tlf",
                 tlfFile({0x0001, 0x4211, 0x8421, 0xc631, 0xffff, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1}, false));
    for (const std::string name : {"a.png", "a.bmp", "a.jpg"}) {
        ASSERT_EQ(folder.run({"convert", name, "-o", "b.tmf", "--colours", "5"}).code, 0);
        EXPECT_THAT(folder.run({"info", "b.tmf"}).out,
                    StartsWith("b.tmf: TMF, 40 x 30, 4 bits, 5 colours used"));
        ASSERT_EQ(
            folder.run({"convert", name, "-p", "grey.tlf", "-o", "g.png", "--palette-out", "g.tlf"}).code, 0);
        EXPECT_EQ(folder.read("g.tlf"), folder.read("grey.tlf"));
    }
    // The same colours in another order.
    Random random(4);
    folder.write("i.tmf", tmfFile(10, 6, 8, random.numbers(60, 256)));
    std::vector<unsigned> entries = random.numbers(256, 65536);
    std::ranges::for_each(entries, [](unsigned& entry) { entry |= 1; });
    folder.write("i.tlf", tlfFile(entries, false));
    std::ranges::reverse(entries);
    folder.write("j.tlf", tlfFile(entries, false));
    ASSERT_EQ(folder.run({"convert", "i.tmf", "-p", "i.tlf", "-o", "i.png"}).code, 0);
    ASSERT_EQ(folder.run({"convert", "i.png", "-p", "j.tlf", "-o", "j.tmf"}).code, 0);
    ASSERT_EQ(folder.run({"render", "i.png", "-o", "one.png"}).code, 0);
    ASSERT_EQ(folder.run({"render", "j.tmf", "-p", "j.tlf", "-o", "other.png"}).code, 0);
    EXPECT_EQ(difference(folder, "one.png", "other.png"), "0");
}

TEST(Pictures, OfBitmapsHaveTheColoursThatTheEditorGivesThem) {
    const TestFolder folder;
    const auto bitmap = [](const std::vector<std::string>& colours) {
        std::string file = "BM";
        const auto number = [&file](unsigned value, int bytes) {
            for (; bytes > 0; --bytes, value >>= 8U)
                file += static_cast<char>(value & 255U);
        };
        const unsigned start = 54 + 4 * 16;
        for (const unsigned value : {start + 4, 0U, start, 40U, 8U, 1U})
            number(value, 4);
        for (const unsigned value : {1U, 4U})
            number(value, 2);
        for (const unsigned value : {0U, 4U, 0U, 0U, 0U, 0U})
            number(value, 4);
        for (const std::string& colour : colours)
            file += colour;
        return file + std::string(4 * (16 - colours.size()), '\0') + "\x01\x23\x45\x67";
    };
    // Blue, green, red, and the byte with alpha in bit 3.
    const std::string zero(1, '\0');
    folder.write("usual.bmp", bitmap({"\x07\x0f\xff" + zero, "\xfe\x84\x7c" + zero}));
    folder.write("alpha.bmp", bitmap({"\x07\x0f\xff\x08", "\xfe\x84\x7c\xf7"}));
    for (const auto& [name, first, second, rest] :
         {std::tuple{"usual", 0xf841U, 0x7c3fU, 1U}, std::tuple{"alpha", 0xf841U, 0x7c3eU, 0U}}) {
        std::vector<unsigned> entries(16, rest);
        entries[0] = first;
        entries[1] = second;
        const std::string palette = std::string(name) + ".tlf";
        ASSERT_EQ(
            folder.run({"convert", std::string(name) + ".bmp", "-o", "x.tmf", "--palette-out", palette}).code,
            0);
        EXPECT_EQ(folder.read(palette), tlfFile(entries, false)) << name;
    }
}

TEST(Pictures, LookTheSameWhenTheirPaletteIsArranged) {
    Random random(3);
    const TestFolder folder;
    // Free entries, twins, and texels beyond a bank that an image shows.
    const std::vector<std::vector<std::string>> operations{
        {"sort"},    {"sort", "--by", "use", "--reverse"},   {"sort", "--by", "hue", "--keep", "0,3-5"},
        {"merge"},   {"compact", "--range", "0-15"},         {"move", "--range", "2-3", "--to", "9"},
        {"compact"}, {"swap", "--range", "0-1", "--to", "6"}};
    for (const auto& operation : operations) {
        SCOPED_TRACE(testing::PrintToString(operation));
        folder.write("a.tlf", tlfFile(random.numbers(256, 40), false));
        std::vector<unsigned> texels = random.numbers(400, 100);
        std::ranges::for_each(texels, [](unsigned& texel) { texel *= 2; });
        folder.write("a.tmf", tmfFile(20, 20, 8, texels));
        std::ranges::for_each(texels, [](unsigned& texel) { texel %= 12; });
        folder.write("b.tmf", tmfFile(9, 9, 4, texels));
        const auto rendered = [&](const std::string& name) {
            EXPECT_EQ(folder.run({"render", name, "-p", "a.tlf", "-o", "r.png"}).code, 0);
            return folder.read("r.png");
        };
        const std::string large = rendered("a.tmf");
        const std::string small = rendered("b.tmf");
        const std::string before = folder.read("a.tlf") + folder.read("a.tmf") + folder.read("b.tmf");
        std::vector<std::string> arguments{"palette"};
        arguments.insert(arguments.end(), operation.begin(), operation.end());
        arguments.insert(arguments.end(), {"a.tlf", "a.tmf", "b.tmf"});
        ASSERT_EQ(folder.run(arguments).code, 0);
        EXPECT_FALSE(folder.read("a.tlf") + folder.read("a.tmf") + folder.read("b.tmf") == before);
        EXPECT_EQ(rendered("a.tmf"), large);
        EXPECT_EQ(rendered("b.tmf"), small);
    }
    // Out of the bank that the image shows no texel can go, and then nothing changes.
    const std::string before = folder.read("a.tlf") + folder.read("b.tmf");
    EXPECT_EQ(folder.run({"palette", "move", "--range", "0-11", "--to", "100", "a.tlf", "b.tmf"}).code, 3);
    EXPECT_EQ(folder.read("a.tlf") + folder.read("b.tmf"), before);
    // What was written before the file that fails is taken back.
    folder.write("large.tmf", tmfFile(40, 40, 8, random.numbers(1600, 2)));
    EXPECT_EQ(folder
                  .run({"palette", "swap", "--range", "0-1", "--to", "6", "a.tlf", "b.tmf", "large.tmf"},
                       {.tinyFiles = true})
                  .code,
              3);
    EXPECT_EQ(folder.read("a.tlf") + folder.read("b.tmf"), before);
}

} // namespace
} // namespace dyeworks

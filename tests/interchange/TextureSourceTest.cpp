#include "interchange/TextureSource.h"

#include "interchange/Texture.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

namespace dyeworks {
namespace {

namespace fs = std::filesystem;

void write(const fs::path& path, const std::string& text) {
    std::ofstream(path) << text;
}

/// What stands in the compiled arrays; fails by itself where they are not aligned.
constexpr const char* kProgram = R"(#include "a.h"
#include <stdio.h>
int main(void) {
    int i;
    for (i = 0; i < A_2_TEXEL_BYTES; ++i)
        printf("%d ", a_2_texels[i]);
    for (i = 0; i < A_2_PALETTE_COUNT; ++i)
        printf("%d %d ", a_2_palette[i] >> 8, a_2_palette[i] & 255);
    printf("%d %d %d %d", A_2_WIDTH, A_2_HEIGHT, A_2_BITS, A_2_PALETTE_FIRST);
    return (uintptr_t)a_2_texels % ALIGNMENT != 0 || (uintptr_t)a_2_palette % ALIGNMENT != 0;
}
)";

TEST(TextureSource, CompilesAsCAndCppAndHoldsTheImage) {
    std::mt19937 random(3);
    const fs::path folder =
        fs::temp_directory_path() / ("texture-source-" + std::to_string(std::random_device()()));
    fs::create_directory(folder);
    int round = 0;
    for (const std::int32_t bits : {4, 8})
        for (const bool whole : {false, true})
            for (const std::int32_t alignment : {1, 2, 64}) {
                std::vector<std::uint8_t> indices(17 * 3);
                for (auto& index : indices)
                    index = static_cast<std::uint8_t>(random() % (1U << bits));
                const TmfImage image = imageOf(17, 3, bits, indices.data());
                TlutData palette;
                ASSERT_TRUE(palette.create(256, ColourType::Rgba));
                for (std::int32_t i = 0; i < 256; ++i)
                    palette.setEntry(i, static_cast<std::uint16_t>(random()));
                const SourceOptions options{"a 2", alignment, true, true, whole};
                const bool isPair = ++round % 2 == 0;
                write(folder / "a.c", "");
                if (isPair) {
                    const auto pair = headerAndSource(image, &palette, 32, options, "a.h");
                    write(folder / "a.h", pair.value().header);
                    write(folder / "a.c", pair.value().source);
                } else {
                    write(folder / "a.h", headerWithData(image, &palette, 32, options).value());
                }
                write(folder / "main.c", kProgram);
                std::ifstream lines(folder / (isPair ? "a.c" : "a.h"));
                for (std::string line; std::getline(lines, line);)
                    ASSERT_LE(line.size(), 100U) << line;
                // By hand, and not by the functions that the writer uses.
                std::ostringstream wanted;
                for (std::int32_t y = 0; y < 3; ++y)
                    for (std::int32_t x = 0; x < 17; x += bits == 4 ? 2 : 1)
                        wanted << (bits == 8 ? image.getTexel(x, y)
                                             : image.getTexel(x, y) * 16 + image.getTexel(x + 1, y))
                               << ' ';
                const bool isBank = bits == 4 && !whole;
                for (std::int32_t i = isBank ? 32 : 0; i < (isBank ? 48 : 256); ++i)
                    wanted << palette.getEntry(i) / 256 << ' ' << palette.getEntry(i) % 256 << ' ';
                wanted << "17 3 " << bits << ' ' << (bits == 4 && whole ? 32 : 0);
                for (const char* compiler : {"cc -std=c99", "cc -std=c11", "c++ -std=c++17 -x c++"}) {
                    const std::string command =
                        "cd " + folder.string() + " && " + compiler +
                        " -Wall -Wextra -Wpedantic -Werror -DALIGNMENT=" + std::to_string(alignment) +
                        " main.c " + (isPair ? "a.c" : "") + " -o a && ./a > out";
                    ASSERT_EQ(std::system(command.c_str()), 0) << command;
                    std::stringstream printed;
                    printed << std::ifstream(folder / "out").rdbuf();
                    EXPECT_EQ(printed.str(), wanted.str()) << command;
                }
            }
    fs::remove_all(folder);
}

TEST(TextureSource, NamesBecomeValid) {
    for (const auto& [text, name] : {std::pair{"sea-side 2", "sea_side_2"},
                                     {"2nd", "_2nd"},
                                     {"int", "int_"},
                                     {"\xE7\xA9\xBA", "texture"},
                                     {"", "texture"},
                                     {"-z", "_z"},
                                     {"a \xE7\xA9\xBA"
                                      "b",
                                      "a_b"}})
        EXPECT_EQ(identifierOf(text), name);
}

TEST(TextureSource, RawPaletteStartsAligned) {
    const std::uint8_t indices[] = {1, 2, 3};
    const TmfImage image = imageOf(3, 1, 4, indices);
    TlutData palette;
    ASSERT_TRUE(palette.create(16, ColourType::Ia));
    palette.setEntry(0, 0x1234);
    const auto bytes = rawBytes(image, &palette, 0, {"", 8, true, true, false});
    ASSERT_EQ(bytes.value().size(), 8U + 32U);
    EXPECT_EQ(bytes.value()[1], std::byte{0x30});
    EXPECT_EQ(bytes.value()[8], std::byte{0x12});
    EXPECT_EQ(bytes.value()[9], std::byte{0x34});
    const auto source = headerWithData(image, &palette, 0, {"a", 8, true, true, false});
    EXPECT_NE(source.value().find(" * palette: 16 entries of 16 bits, "), std::string::npos);
    EXPECT_FALSE(rawBytes(image, nullptr, 0, {"", 8, false, true, false})) << "nothing is wanted";
}

} // namespace
} // namespace dyeworks

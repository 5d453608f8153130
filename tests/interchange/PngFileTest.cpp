#include "interchange/PngFile.h"

#include "core/TlfFormat.h"
#include "core/TmfFormat.h"
#include "interchange/EntryColour.h"
#include "interchange/JpegFile.h"
#include "interchange/PaletteFormats.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <zlib.h>

namespace dyeworks {
namespace {

using Bytes = std::vector<std::byte>;

class PngFile : public testing::Test {
protected:
    PngFile() { std::filesystem::create_directories(folder_); }
    ~PngFile() override { std::filesystem::remove_all(folder_); }

    std::uint32_t any() { return static_cast<std::uint32_t>(random_()); }

    /// Random texels, few of them often. Entries have twins, and every alpha that there is.
    Texture anyTexture(std::int32_t bits, ColourType type, std::int32_t entries, std::int32_t bank) {
        Texture texture;
        const auto width = static_cast<std::int32_t>(1 + any() % 40);
        const auto height = static_cast<std::int32_t>(1 + any() % 40);
        EXPECT_TRUE(texture.image.create(width, height, bits));
        const std::uint32_t mask = any() & 255U;
        for (std::int32_t y = 0; y < height; ++y)
            for (std::int32_t x = 0; x < width; ++x)
                texture.image.setTexel(x, y, any() & mask);
        EXPECT_TRUE(texture.palette.create(entries, type));
        for (std::int32_t i = 0; i < entries; ++i) {
            const bool isTwin = i > 0 && any() % 4 == 0;
            texture.palette.setEntry(i, isTwin ? texture.palette.getEntry(i / 2)
                                               : static_cast<std::uint16_t>(any()));
        }
        texture.firstEntry = 16 * bank;
        return texture;
    }

    static Bytes pngOf(const Texture& texture) {
        return writePng(texture.image, &texture.palette, texture.firstEntry).value();
    }

    /// What is read from the file, and what was told of it.
    static Texture textureIn(const Bytes& file, TextureReport& report) {
        const auto png = readPng(file);
        EXPECT_TRUE(png.ok()) << png.error().detail;
        return textureOf(png.value(), report).value();
    }

    std::string path(const char* name) const { return (folder_ / name).string(); }

    void keep(const char* name, const Bytes& bytes) const {
        std::ofstream(path(name), std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    }
    Bytes kept(const char* name) const {
        std::ifstream file(path(name), std::ios::binary);
        const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        const auto bytes = std::as_bytes(std::span(text));
        return {bytes.begin(), bytes.end()};
    }
    /// Runs a program in the folder. Its words do not matter, only how it ends.
    bool runs(const std::string& command) const {
        return std::system(("cd '" + folder_.string() + "' && { " + command + "; } >log 2>&1").c_str()) == 0;
    }

private:
    std::filesystem::path folder_ =
        std::filesystem::temp_directory_path() /
        ("dyeworks-png-" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
    std::mt19937 random_{18};
};

std::string tmfBytes(const TmfImage& image) {
    const auto file = layOutTmf(image);
    const auto text = [](std::span<const std::byte> bytes) {
        return std::string(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    };
    return text(file->header) + text(file->body);
}

/// The texels, the palette and where in it the image has its colours, all as their files hold them.
void expectSame(const Texture& one, const Texture& other) {
    EXPECT_EQ(tmfBytes(one.image), tmfBytes(other.image));
    EXPECT_TRUE(one.palette == other.palette);
    EXPECT_EQ(one.firstEntry, other.firstEntry);
}

TEST_F(PngFile, TexturesComeBackByteByByte) {
    for (const ColourType type : {ColourType::Rgba, ColourType::Ia}) {
        for (int round = 0; round < 64; ++round) {
            const std::int32_t bits = round % 2 == 0 ? 4 : 8;
            const std::int32_t entries = round % 5 == 0 ? 16 : 256;
            const Texture texture =
                anyTexture(bits, type, entries, bits == 4 && entries == 256 ? round / 2 % 16 : 0);
            TextureReport report;
            expectSame(textureIn(pngOf(texture), report), texture);
            EXPECT_EQ(report.rounded + report.changed, 0);
        }
    }
}

TEST_F(PngFile, OtherProgramsFindNoFaultAndGiveBackWhatTheyKeep) {
    for (const std::int32_t bits : {4, 8}) {
        for (const ColourType type : {ColourType::Rgba, ColourType::Ia}) {
            const Texture texture = anyTexture(bits, type, 256, bits == 4 ? 7 : 0);
            keep("ours.png", pngOf(texture));
            ASSERT_TRUE(runs("pngcheck -v ours.png"));

            TextureReport report;
            ASSERT_TRUE(runs("optipng -force -clobber -nx -out kept.png ours.png"));
            expectSame(textureIn(kept("kept.png"), report), texture);
            EXPECT_EQ(report.changed, 0);

            ASSERT_TRUE(runs("pngcrush -noreduce ours.png dropped.png"));
            const Texture dropped = textureIn(kept("dropped.png"), report);
            for (std::int32_t y = 0; y < texture.image.height; ++y)
                for (std::int32_t x = 0; x < texture.image.width; ++x)
                    ASSERT_EQ(dropped.image.getTexel(x, y), texture.image.getTexel(x, y));
            // Without alpha and with greys alone another colour type may hold the same.
            for (std::int32_t i = 0; i < 1 << bits; ++i)
                ASSERT_EQ(colourOf(dropped.palette, i), colourOf(texture.palette, texture.firstEntry + i))
                    << i;
        }
    }
}

// ImageMagick orders a palette anew and adds the white of its page, which takes the sixteen to eight bits.
TEST_F(PngFile, TheBackgroundThatAnotherProgramAddsIsNoColour) {
    Texture texture = anyTexture(4, ColourType::Rgba, 16, 0);
    ASSERT_TRUE(texture.image.create(16, 1, 4));
    for (std::int32_t i = 0; i < 16; ++i) {
        texture.image.setTexel(i, 0, static_cast<std::uint32_t>(15 - i));
        texture.palette.setEntry(i, static_cast<std::uint16_t>(i << 11 | 17 << 6 | 1));
    }
    keep("ours.png", pngOf(texture));
    ASSERT_TRUE(runs("convert ours.png theirs.png"));
    ASSERT_EQ(readPng(kept("theirs.png")).value().bits, 8);
    TextureReport report;
    const Texture theirs = textureIn(kept("theirs.png"), report);
    EXPECT_EQ(theirs.image.bits, 4);
    for (std::int32_t i = 0; i < 16; ++i)
        EXPECT_EQ(theirs.palette.getEntry(static_cast<std::int32_t>(theirs.image.getTexel(i, 0))),
                  texture.palette.getEntry(15 - i));
}

TEST_F(PngFile, EntriesThatWereChangedSinceAreTakenAndTold) {
    const Texture texture = anyTexture(4, ColourType::Rgba, 256, 3);
    Bytes file = pngOf(texture);
    // The third colour's green, and the chunk's checksum after its 16 colours.
    constexpr std::string_view kName = "PLTE";
    const auto bytesOfName = std::as_bytes(std::span(kName));
    const auto name = std::ranges::search(file, bytesOfName).begin();
    std::byte& green = name[4 + 3 * 2 + 1];
    green = static_cast<std::byte>(std::to_integer<unsigned>(green) ^ 0xFFU);
    auto sum = static_cast<std::uint32_t>(crc32(0, reinterpret_cast<const unsigned char*>(&*name), 4 + 48));
    for (int i = 3; i >= 0; --i, sum >>= 8U)
        name[4 + 48 + i] = static_cast<std::byte>(sum & 255U);

    TextureReport report;
    Texture read = textureIn(file, report);
    EXPECT_EQ(report.changed, 1);
    const Colour now{0, std::to_integer<std::uint8_t>(green), 0};
    EXPECT_EQ(read.palette.getGreen(48 + 2), entryOf(ColourType::Rgba, now) >> 6 & 31U);
    read.palette.setEntry(48 + 2, texture.palette.getEntry(48 + 2));
    expectSame(read, texture);
}

struct PictureKind {
    const char* arguments;
    std::int32_t bits; ///< Of the image that is made, or 0 for a picture of direct colours.
    ColourType type = ColourType::Rgba;
};

TEST_F(PngFile, KeepsTheOrderOfEveryPaletteAndTheStepsOfGrey) {
    const PictureKind kinds[] = {
        {"-size 9x7 pattern:checkerboard -colorspace gray -depth 1 -type bilevel", 4, ColourType::Rgba},
        {"-size 31x17 gradient: -depth 4 -type grayscale -define png:color-type=0 -define png:bit-depth=4", 4,
         ColourType::Ia},
        {"-size 300x256 gradient: -depth 8 -type grayscale -interlace PNG -define png:color-type=0", 8,
         ColourType::Ia},
        {"-size 64x64 plasma: -colors 200 +dither -interlace PNG -define png:color-type=3", 8},
        {"-size 64x64 plasma: -colors 3 +dither -type palette -define png:color-type=3", 4},
        {"-size 31x17 plasma: -colors 4 +dither -define png:exclude-chunks=bKGD -define png:color-type=3", 4},
        {"-size 9x9 xc:red -fill blue -draw 'point 3,4' -transparent blue -define png:color-type=2", 0},
        {"-size 20x20 plasma: -depth 16 -define png:color-type=2 -define png:bit-depth=16", 0},
        {"-size 20x20 radial-gradient:red-none -define png:color-type=6 -interlace PNG", 0},
        {"-size 20x20 gradient: -alpha set -channel A -evaluate set 30% -define png:color-type=4", 0},
    };
    for (const PictureKind& kind : kinds) {
        ASSERT_TRUE(runs(std::string("convert ") + kind.arguments + " made.png")) << kind.arguments;
        // An independent reading: 8 bits of red, green, blue and alpha of each pixel.
        ASSERT_TRUE(runs("convert made.png -depth 8 rgba:raw")) << kind.arguments;
        const Bytes raw = kept("raw");
        const auto png = readPng(kept("made.png"));
        ASSERT_TRUE(png.ok()) << kind.arguments << png.error().detail;
        const Picture& picture = png.value().picture;
        ASSERT_EQ(raw.size(), 4U * static_cast<std::size_t>(picture.width * picture.height));
        EXPECT_EQ(picture.isIndexed(), kind.bits != 0) << kind.arguments;
        std::vector<Colour> different;
        for (std::size_t i = 0; i < raw.size() / 4; ++i) {
            const Colour colour =
                picture.isIndexed() ? picture.colours[picture.indices[i]] : picture.pixels[i];
            const std::uint8_t channels[] = {colour.red, colour.green, colour.blue, colour.alpha};
            for (std::size_t c = 0; c < 4; ++c)
                // Of 16 bits they make the nearest 8, each in its way.
                ASSERT_NEAR(channels[c], std::to_integer<int>(raw[4 * i + c]), kind.bits == 0 ? 1 : 0)
                    << kind.arguments << ' ' << i << ' ' << c;
            if (std::ranges::find(different, colour) == different.end())
                different.push_back(colour);
        }
        // A palette that somebody chose comes whole, otherwise the colours that are there.
        const auto palette = readPngPalette(kept("made.png"));
        if (different.size() > 256)
            EXPECT_EQ(palette.error().kind, InterchangeError::Kind::TooManyColours) << kind.arguments;
        else
            EXPECT_EQ(palette.value().colours,
                      picture.isIndexed() && !png.value().isGrey ? picture.colours : different)
                << kind.arguments;
        if (kind.bits == 0)
            continue;
        TextureReport report;
        const Texture texture = textureOf(png.value(), report).value();
        EXPECT_EQ(texture.image.bits, kind.bits) << kind.arguments;
        EXPECT_EQ(texture.palette.colourType, kind.type) << kind.arguments;
        for (std::size_t i = 0; i < picture.indices.size(); ++i)
            ASSERT_EQ(texture.image.getTexel(static_cast<std::int32_t>(i) % picture.width,
                                             static_cast<std::int32_t>(i) / picture.width),
                      picture.indices[i]);
    }
}

TEST_F(PngFile, PhotographsAreTurnedAsAnotherProgramTurnsThem) {
    using namespace std::string_literals;
    ASSERT_TRUE(runs("convert -size 19x11 plasma: a.jpg"));
    const Bytes photo = kept("a.jpg");
    for (char turn = 0; turn <= 9; ++turn) {
        // Before what turns it stands another entry.
        const std::string exif = "\xFF\xE1\0.Exif\0\0II*\0\x08\0\0\0\2\0"
                                 "\1\1\3\0\1\0\0\0\7\0\0\0\x12\1\3\0\1\0\0\0"s +
                                 turn + "\0\0\0\0\0\0\0"s;
        const auto bytes = std::as_bytes(std::span(exif));
        Bytes turned = photo;
        turned.insert(turned.begin() + 2, bytes.begin(), bytes.end());
        keep("b.jpg", turned);
        ASSERT_TRUE(runs("convert b.jpg -auto-orient -depth 8 rgba:raw"));
        const auto read = readJpeg(turned);
        ASSERT_TRUE(read.ok()) << read.error().detail;
        const auto pixels = std::as_bytes(std::span(read.value().pixels));
        EXPECT_TRUE(std::ranges::equal(pixels, kept("raw"))) << int{turn};
        EXPECT_EQ(read.value().width, turn >= 5 && turn <= 8 ? 11 : 19);
    }
    for (std::size_t size = 0; size < photo.size(); size += 7)
        EXPECT_FALSE(readJpeg(std::span(photo).first(size)).ok()) << size;
}

TEST_F(PngFile, DamagedFilesAreRefusedOrHoldWhatTheySay) {
    const Bytes file = pngOf(anyTexture(4, ColourType::Rgba, 16, 0));
    for (std::size_t size = 0; size < file.size(); ++size)
        EXPECT_FALSE(readPng(std::span(file).first(size)).ok()) << size;
    for (std::size_t i = 0; i < file.size(); ++i) {
        Bytes damaged = file;
        damaged[i] ^= std::byte{1};
        EXPECT_FALSE(readPng(damaged).ok()) << i;
    }
    int told = 0;
    const auto stopped = readPng(file, [&](int) { return ++told < 2; });
    EXPECT_EQ(stopped.error().kind, InterchangeError::Kind::Cancelled);
    TmfImage deep;
    ASSERT_TRUE(deep.create(4, 4, 16));
    EXPECT_EQ(writePng(deep, nullptr, 0).error().kind, InterchangeError::Kind::NoTexels);
}

} // namespace
} // namespace dyeworks

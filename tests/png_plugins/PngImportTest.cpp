#include "png/PngImport.h"

#include "PngFiles.h"

#include <QImage>
#include <QTemporaryDir>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <zlib.h>

namespace dyeworks::plugins {
namespace {

class PngImporting : public testing::Test {
protected:
    [[nodiscard]] PngImport import(int bits, const TlutData* palette = nullptr, int first = 0) {
        const ImageRecord current = imageOf(2, 2, bits, [](int, int) { return 0U; });
        return importPng(path_, {current.get(), const_cast<TlutData*>(palette), 0, first});
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(QStringLiteral("in.png"));
};

unsigned noise(int x, int y) {
    return (static_cast<unsigned>(x) * 2654435761U ^ static_cast<unsigned>(y) * 40503U) >> 5;
}

/// The entry that a colour of 8 bits a channel becomes.
unsigned reduced(QRgb colour, std::uint32_t type, bool keepsHiddenColour) {
    if (type == DW_COLOUR_IA)
        return static_cast<unsigned>(qRed(colour) << 8 | qAlpha(colour));
    const unsigned alpha = qAlpha(colour) >= 128 ? 1U : 0U;
    if (alpha == 0 && !keepsHiddenColour)
        return 0;
    const auto isWidened = [](int eight) { return eight % 8 == 0 || eight % 8 == eight >> 5; };
    const bool exact = isWidened(qRed(colour)) && isWidened(qGreen(colour)) && isWidened(qBlue(colour));
    const auto five = [exact](int eight) {
        return static_cast<unsigned>(exact ? eight >> 3 : std::min((eight + 4) >> 3, 31));
    };
    return five(qRed(colour)) << 11 | five(qGreen(colour)) << 6 | five(qBlue(colour)) << 1 | alpha;
}

struct Kind {
    int colourType;
    int depth;
    bool transparent; ///< By palette or key.
};

// Twelve colours at most, so that they fit; read by Qt as well, which has its own ways for each kind.
TEST_F(PngImporting, ReadsEveryKindAsAnotherReaderDoes) {
    const std::array kinds{
        Kind{PNG_COLOR_TYPE_GRAY, 1, false},        Kind{PNG_COLOR_TYPE_GRAY, 2, true},
        Kind{PNG_COLOR_TYPE_GRAY, 4, false},        Kind{PNG_COLOR_TYPE_GRAY, 8, true},
        Kind{PNG_COLOR_TYPE_GRAY, 16, false},       Kind{PNG_COLOR_TYPE_GRAY_ALPHA, 8, false},
        Kind{PNG_COLOR_TYPE_GRAY_ALPHA, 16, false}, Kind{PNG_COLOR_TYPE_RGB, 8, true},
        Kind{PNG_COLOR_TYPE_RGB, 16, false},        Kind{PNG_COLOR_TYPE_RGB_ALPHA, 8, false},
        Kind{PNG_COLOR_TYPE_RGB_ALPHA, 16, false},  Kind{PNG_COLOR_TYPE_PALETTE, 1, true},
        Kind{PNG_COLOR_TYPE_PALETTE, 2, false},     Kind{PNG_COLOR_TYPE_PALETTE, 4, true},
        Kind{PNG_COLOR_TYPE_PALETTE, 8, true}};
    for (const Kind& kind : kinds) {
        for (const QSize size : {QSize(13, 11), QSize(1, 1), QSize(3, 9), QSize(5, 1)}) {
            for (const bool interlaced : {false, true}) {
                SCOPED_TRACE(testing::Message() << kind.colourType << ' ' << kind.depth << ' ' << size.width()
                                                << ' ' << interlaced);
                const bool indexed = kind.colourType == PNG_COLOR_TYPE_PALETTE;
                RawPng png{
                    size.width(), size.height(), kind.colourType, kind.depth, interlaced, {}, {}, {}, {}};
                const auto number = [](int x, int y) { return noise(x, y) % 12; };
                const unsigned mask = (1U << kind.depth) - 1;
                const auto colour = [&](unsigned n, int channel) {
                    return (n * 0x2F1BU + static_cast<unsigned>(channel) * 0x9E37U * (n + 1)) >> 1 & mask;
                };
                png.sample = [&](int x, int y, int channel) {
                    return indexed ? number(x, y) & mask : colour(number(x, y), channel);
                };
                png_color_16 key{};
                if (indexed) {
                    for (int i = 0; i < std::min(12, 1 << kind.depth); ++i)
                        png.colours.push_back({static_cast<png_byte>(i * 21),
                                               static_cast<png_byte>(255 - i * 9),
                                               static_cast<png_byte>(i * 77)});
                    if (kind.transparent)
                        png.alpha = {0, 127, 128};
                    png.alpha.resize(std::min(png.alpha.size(), png.colours.size()));
                } else if (kind.transparent) {
                    key.gray = key.red = static_cast<png_uint_16>(colour(number(0, 0), 0));
                    key.green = static_cast<png_uint_16>(colour(number(0, 0), 1));
                    key.blue = static_cast<png_uint_16>(colour(number(0, 0), 2));
                    png.key = &key;
                }
                writeRawPng(path_, png);
                const QImage expected(path_);
                ASSERT_FALSE(expected.isNull());
                for (const int bits : {4, 8}) {
                    const PngImport got = import(bits);
                    ASSERT_EQ(got.refusal.toStdString(), "");
                    ASSERT_EQ(got.image->width, size.width());
                    ASSERT_EQ(got.image->height, size.height());
                    for (int y = 0; y < size.height(); ++y) {
                        for (int x = 0; x < size.width(); ++x) {
                            const unsigned texel = DW_getTexel(got.image.get(), x, y);
                            ASSERT_EQ(got.palette->entries[texel],
                                      reduced(expected.pixel(x, y), got.palette->colourType,
                                              indexed || kind.colourType == PNG_COLOR_TYPE_GRAY))
                                << x << ' ' << y;
                            if (indexed) {
                                ASSERT_EQ(texel, png.sample(x, y, 0));
                            }
                        }
                    }
                }
            }
        }
    }
}

// Before channels of 16 bits lose their lower halves.
TEST_F(PngImporting, ComparesTheTransparentColourInFullDepth) {
    const png_color_16 key{0, 0x1234, 0x5678, 0x9ABC, 0};
    writeRawPng(path_, {2, 1, PNG_COLOR_TYPE_RGB, 16, false, {}, {}, &key, [](int x, int, int channel) {
                            return channel == 2 ? 0x9ABCU + static_cast<unsigned>(x)
                                                : 0x1234U + 0x4444U * static_cast<unsigned>(channel);
                        }});
    const PngImport got = import(4);
    ASSERT_EQ(got.refusal, QString());
    EXPECT_EQ(got.palette->entries[DW_getTexel(got.image.get(), 0, 0)], 0);
    EXPECT_EQ(got.palette->entries[DW_getTexel(got.image.get(), 1, 0)], 2U << 11 | 11U << 6 | 19U << 1 | 1U);
}

TEST_F(PngImporting, TakesIntensityAndFullAlphaForAnIaPalette) {
    const PaletteRecord current = paletteOf(DW_COLOUR_IA, 16, [](int) { return 0U; });
    writeRawPng(path_,
                {4, 1, PNG_COLOR_TYPE_RGB_ALPHA, 8, false, {}, {}, nullptr, [](int x, int, int channel) {
                     constexpr std::array<std::array<unsigned, 4>, 4> kColours{
                         {{255, 255, 255, 1}, {0, 0, 0, 255}, {90, 90, 90, 127}, {9, 9, 9, 0}}};
                     return kColours.at(static_cast<std::size_t>(x)).at(static_cast<std::size_t>(channel));
                 }});
    const PngImport got = import(4, current.get());
    ASSERT_NE(got.palette, nullptr);
    EXPECT_EQ(got.palette->colourType, DW_COLOUR_IA);
    constexpr std::array kEntries{0xFF01, 0x00FF, 0x5A7F, 0x0900};
    for (int x = 0; x < 4; ++x)
        EXPECT_EQ(got.palette->entries[DW_getTexel(got.image.get(), x, 0)],
                  kEntries.at(static_cast<std::size_t>(x)));
}

TEST_F(PngImporting, PutsColoursIntoTheImagesBankAlone) {
    // And of an image of 8 bits, into the entries that the file has.
    const PaletteRecord current =
        paletteOf(DW_COLOUR_RGBA, 256, [](int i) { return 0x8000U + static_cast<unsigned>(i); });
    writeRawPng(path_, {1,
                        1,
                        PNG_COLOR_TYPE_PALETTE,
                        8,
                        false,
                        std::vector<png_color>(200, {255, 255, 255}),
                        {},
                        nullptr,
                        [](int, int, int) { return 15U; }});
    for (const auto& [bits, first, end] : {std::tuple{4, 32, 48}, {8, 0, 200}}) {
        const PngImport got = import(bits, current.get(), first);
        ASSERT_NE(got.palette, nullptr);
        ASSERT_EQ(got.palette->count, 256);
        for (int i = 0; i < 256; ++i)
            ASSERT_EQ(got.palette->entries[i], i >= first && i < end ? 0xFFFF : 0x8000 + i)
                << bits << ' ' << i;
    }
}

TEST_F(PngImporting, RefusesIndicesThatDoNotFitAndSaysWhich) {
    RawPng png{2,       1, PNG_COLOR_TYPE_PALETTE, 8, false, std::vector<png_color>(20, {1, 2, 3}), {},
               nullptr, {}};
    png.sample = [](int x, int, int) { return x == 0 ? 16U : 3U; };
    writeRawPng(path_, png);
    EXPECT_THAT(import(4).refusal.toStdString(),
                testing::HasSubstr("number 16; the image has numbers up to 15"));
    EXPECT_EQ(import(8).refusal, QString());
    png.sample = [](int x, int, int) { return x == 0 ? 20U : 3U; };
    writeRawPng(path_, png);
    EXPECT_THAT(import(8).refusal.toStdString(), testing::HasSubstr("colour 20 of 20"));
}

TEST_F(PngImporting, RefusesHugeSidesBeforeItTakesMemory) {
    for (const auto& [width, height] : {std::pair{65537U, 1U}, {1U, 0x7FFFFFFFU}, {65536U, 65536U}}) {
        writeRawPng(path_,
                    {1, 1, PNG_COLOR_TYPE_RGB, 8, false, {}, {}, nullptr, [](int, int, int) { return 0U; }});
        QByteArray bytes = bytesOf(path_);
        png_save_uint_32(reinterpret_cast<png_bytep>(bytes.data()) + 16, width);
        png_save_uint_32(reinterpret_cast<png_bytep>(bytes.data()) + 20, height);
        const auto sum = crc32(0, reinterpret_cast<const Bytef*>(bytes.constData()) + 12, 17);
        png_save_uint_32(reinterpret_cast<png_bytep>(bytes.data()) + 29, static_cast<png_uint_32>(sum));
        writeBytes(path_, bytes);
        EXPECT_EQ(import(8).refusal.toStdString(),
                  "It is too large: " + std::to_string(width) + " x " + std::to_string(height) + " pixels.");
    }
}

} // namespace
} // namespace dyeworks::plugins

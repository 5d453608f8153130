#include "dyeworks/plugin.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

namespace {

struct Release {
    void operator()(TmfImage* image) const { DW_freeImage(image); }
    void operator()(TlutData* palette) const { DW_freePalette(palette); }
};
using Image = std::unique_ptr<TmfImage, Release>;
using Palette = std::unique_ptr<TlutData, Release>;
using Rows = std::vector<std::vector<std::uint8_t>>;

Image imageOf(const Rows& rows, int bits) {
    Image image(DW_newImage(static_cast<int>(rows[0].size()), static_cast<int>(rows.size()), bits));
    for (int y = 0; y < image->height; ++y) {
        for (int x = 0; x < image->width; ++x)
            DW_setTexel(image.get(), x, y, rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)]);
    }
    return image;
}

/// The template as it was built from the installed SDK, and a home folder of its own.
class Mirror : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_NE(library_, nullptr) << dlerror();
        std::string folder = testing::TempDir() + "mirror-XXXXXX";
        ASSERT_NE(mkdtemp(folder.data()), nullptr);
        home_ = folder;
        setenv("HOME", folder.c_str(), 1);
    }
    ~Mirror() override {
        if (!home_.empty())
            std::filesystem::remove_all(home_);
        if (library_ != nullptr)
            dlclose(library_);
    }
    template <typename Function>
    Function* find(const char* name) {
        return reinterpret_cast<Function*>(dlsym(library_, name));
    }
    std::string fileOf(const char* name) const {
        std::ifstream file(home_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    std::filesystem::path home_;

private:
    void* library_ = dlopen(DYEWORKS_MIRROR, RTLD_NOW | RTLD_LOCAL);
};

TEST_F(Mirror, TurnsEveryRowAround) {
    auto* const turn = find<decltype(DWPI_import)>("DWPI_import");
    for (const int bits : {4, 8}) {
        const Image image = imageOf({{1, 2, 3}, {4, 5, 15}}, bits);
        const PlugInPicture in{image.get(), nullptr, 0, 0};
        PlugInPicture out{};
        ASSERT_EQ(turn(&in, &out), 1U);
        const Image turned(out.image);
        const Image expected = imageOf({{3, 2, 1}, {15, 5, 4}}, bits);
        EXPECT_EQ(out.palette, nullptr);
        ASSERT_EQ(turned->width, 3);
        ASSERT_EQ(turned->height, 2);
        EXPECT_EQ(std::memcmp(turned->texels, expected->texels, DW_stride(3, bits) * 2), 0);
    }
}

TEST_F(Mirror, WritesColoursOfTheBankIntoANewFile) {
    auto* const write = find<decltype(DWPI_export)>("DWPI_export");
    const Image image = imageOf({{0, 1}, {14, 15}}, 4);
    const Palette palette(DW_newPalette(DW_COLOUR_RGBA, 256));
    palette->entries[32] = 0xF801; // Red.
    palette->entries[33] = 0x07C0; // Green, transparent.
    palette->entries[46] = 0x003F; // Blue.
    const Palette shorter(DW_newPalette(DW_COLOUR_IA, 16));
    shorter->entries[15] = 0x7F80;
    const std::string header = "P7\nWIDTH 2\nHEIGHT 2\nDEPTH 4\nMAXVAL 255\nTUPLTYPE RGB_ALPHA\nENDHDR\n";

    const PlugInPicture bank{image.get(), palette.get(), 0, 32};
    EXPECT_EQ(write(&bank), 1U);
    const unsigned char colours[] = {0, 0xF8, 0, 0, 0xF8, 0, 0, 255, 0, 0, 0, 0, 0, 0, 0xF8, 255};
    EXPECT_EQ(fileOf("mirror1.pam"), header + std::string(std::begin(colours), std::end(colours)));

    const PlugInPicture end{image.get(), shorter.get(), 0, 1};
    EXPECT_EQ(write(&end), 1U);
    const unsigned char greys[] = {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 255, 0x7F, 0x7F, 0x7F, 0x80};
    EXPECT_EQ(fileOf("mirror2.pam"), header + std::string(std::begin(greys), std::end(greys)));
    EXPECT_EQ(fileOf("mirror1.pam").size(), header.size() + sizeof(colours)) << "is left alone";
}

TEST_F(Mirror, WritesNothingWithoutColoursOrWithoutAHome) {
    auto* const write = find<decltype(DWPI_export)>("DWPI_export");
    const Image image = imageOf({{0, 1}}, 4);
    const Palette palette(DW_newPalette(DW_COLOUR_RGBA, 16));
    const PlugInPicture colourless{image.get(), nullptr, 0, 0};
    EXPECT_EQ(write(&colourless), 0U);
    EXPECT_TRUE(std::filesystem::is_empty(home_));
    const PlugInPicture picture{image.get(), palette.get(), 0, 0};
    for (const std::string& home : {home_.string() + "/gone", home_.string() + std::string(5000, '/')}) {
        setenv("HOME", home.c_str(), 1);
        EXPECT_EQ(write(&picture), 0U);
    }
    unsetenv("HOME");
    EXPECT_EQ(write(&picture), 0U);
    EXPECT_TRUE(std::filesystem::is_empty(home_));
}

} // namespace

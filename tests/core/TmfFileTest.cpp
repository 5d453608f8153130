#include "CoreTest.h"
#include "core/TmfImage.h"

#include <vector>

namespace dyeworks {
namespace {

using namespace std::string_literals;

constexpr std::uint32_t kTag4 = 0x00120200;
constexpr std::uint32_t kTag8 = 0x00120300;
const std::string kTmfPath = "c:\\sky.tmf";

/// An image whose texels are 1, 2, 3 … row by row from the top.
TmfImage counted(std::int32_t width, std::int32_t height, std::int32_t bits) {
    TmfImage image;
    EXPECT_TRUE(image.create(width, height, bits));
    for (std::int32_t i = 0; i < width * height; ++i)
        image.setTexel(i % width, i / width, static_cast<std::uint32_t>(i + 1));
    return image;
}

struct TmfFile : testing::Test {
    FakePlatform fake;
};
using TmfReader = TmfFile;
using TmfWriter = TmfFile;

TEST_F(TmfWriter, ClearsTheNibbleBehindAnOddRowAndWritesNoRowsOfNothing) {
    TmfImage image = counted(3, 2, 4);
    std::fill_n(image.texels, image.blockSize(), std::uint8_t{0xFF});
    ASSERT_TRUE(image.saveTmf(kTmfPath));
    EXPECT_EQ(fake.files.textOf(kTmfPath), header({kTag4, 3, 2, 4}) + "\xFF\xF0\xFF\xF0");
    ASSERT_TRUE(counted(0, 3, 8).saveTmf(kTmfPath));
    EXPECT_EQ(fake.files.textOf(kTmfPath), header({kTag8, 0, 3, 8}));
}

TEST_F(TmfWriter, FailsWithoutAWordAndLeavesTheFileAlone) {
    fake.files.putFile(kTmfPath, "old");
    EXPECT_FALSE(counted(3, 2, 16).saveTmf(kTmfPath));
    TmfImage hollow;
    hollow.width = hollow.height = hollow.bits = 8;
    EXPECT_FALSE(hollow.saveTmf(kTmfPath));
    fake.files.failNextWrite(FileError::AccessDenied);
    EXPECT_FALSE(counted(3, 2, 4).saveTmf(kTmfPath));
    EXPECT_EQ(fake.files.textOf(kTmfPath), "old");
    EXPECT_THAT(fake.messages.shown, IsEmpty());
}

TEST_F(TmfReader, TellsPackedRowsFromPaddedOnesByTheSizeOfTheBody) {
    const std::vector<std::uint32_t> ten{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, six{1, 2, 3, 4, 5, 6};
    const struct {
        const char* name;
        std::string file;
        std::vector<std::uint32_t> texels; // Row by row from the top.
    } cases[] = {
        {"packed", header({kTag8, 5, 2, 8}) + "\6\7\x08\x09\x0A\1\2\3\4\5\0\0"s, ten},
        {"padded", header({kTag8, 5, 2, 8}) + "\6\7\x08\x09\x0A***\1\2\3\4\5***", ten},
        {"less than packed",
         header({kTag8, 5, 2, 8}) + "\6\7\x08\x09\x0A***\1\2\3",
         {1, 2, 3, 0, 0, 6, 7, 8, 9, 10}},
        {"more than packed", header({kTag8, 5, 2, 8}) + "\6\7\x08\x09\x0A***\1\2\3\4\5", ten},
        {"excess", header({kTag8, 1, 1, 8}) + "\7*****", {7}},
        {"no body", header({kTag8, 2, 2, 8}), {0, 0, 0, 0}},
        {"4 bits packed", header({kTag4, 3, 2, 4}) + "\x45\x6F\x12\x3F", six},
        {"4 bits padded", header({kTag4, 3, 2, 4}) + "\x45\x6F**\x12\x3F**", six},
        {"both forms alike", header({kTag4, 8, 1, 4}) + "\x12\x34\x56\x78", {1, 2, 3, 4, 5, 6, 7, 8}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        fake.files.putFile(kTmfPath, c.file);
        TmfImage image;
        ASSERT_TRUE(image.readTmf(kTmfPath));
        std::vector<std::uint32_t> texels;
        for (std::int32_t i = 0; i < image.width * image.height; ++i)
            texels.push_back(image.getTexel(i % image.width, i / image.width));
        EXPECT_EQ(texels, c.texels);
    }
    EXPECT_THAT(fake.messages.shown, IsEmpty());
}

TEST_F(TmfReader, RefusalsSayWhyAndClearTheRecord) {
    const std::string tooShort = "[" + kTmfPath + "] file read failed.\n";
    const std::string noMemory = "not enough memory for create TMF.\n";
    const std::pair<std::string, std::string> cases[] = {
        {"", tooShort},
        {header({kTag8, 1, 1, 8}).substr(1), tooShort},
        {header({kTag8, 1, 1, 4}), "improper tag=0x120300, bits=4\n"},
        {header({kTag4, 1, 1, 8}), "improper tag=0x120200, bits=8\n"},
        {header({0xFEDCBA98, 1, 1, 0xFFFFFFFC}), "improper tag=0xfedcba98, bits=-4\n"},
        {header({kTag8, 70000, 1, 8}), noMemory},
        {header({kTag8, 0xFFFFFFFF, 1, 8}), noMemory},
        {header({kTag4, 1, 65537, 4}), noMemory},
        {header({kTag8, 65536, 65536, 8}), noMemory},
    };
    for (const auto& [bytes, text] : cases) {
        fake.messages.shown.clear();
        fake.files.putFile(kTmfPath, bytes);
        TmfImage image = counted(2, 2, 8);
        EXPECT_FALSE(image.readTmf(kTmfPath));
        EXPECT_THAT(fake.messages.shown, ElementsAre(Reports("[TMF]", text)));
        EXPECT_EQ(image.texels, nullptr);
        EXPECT_EQ(image.width + image.height + image.bits, 0);
    }
    fake.files.showHostPaths(true);
    EXPECT_FALSE(counted(2, 2, 8).readTmf("c:\\none.tmf"));
    EXPECT_EQ(fake.messages.lastText(), "[" + fake.files.hostPath("c:\\none.tmf") + "] file open failed.\n");
}

} // namespace
} // namespace dyeworks

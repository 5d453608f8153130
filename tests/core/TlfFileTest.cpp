#include "CoreTest.h"
#include "core/TlutData.h"

namespace dyeworks {
namespace {

constexpr std::uint32_t kTag16 = 0x00200100;
constexpr std::uint32_t kTag256 = 0x00200200;
const std::string kTlfPath = "c:\\sky.tlf";

std::string file(std::uint32_t tag, std::uint32_t count, std::uint32_t colourType, int entries) {
    std::string bytes = header({tag, count, colourType});
    for (int i = 0; i < entries; ++i)
        bytes += {'\x12', static_cast<char>(i)};
    return bytes;
}

struct TlfFile : testing::Test {
    FakePlatform fake;
    TlutData table;
};
using TlfReader = TlfFile;
using TlfWriter = TlfFile;

TEST_F(TlfWriter, WritesATypeThatNoReaderTakes) {
    ASSERT_TRUE(table.create(16, static_cast<ColourType>(2)));
    EXPECT_TRUE(table.saveTlf(kTlfPath));
}

TEST_F(TlfWriter, RefusesOtherCountsAndReportsWhateverFailsAsOpening) {
    fake.files.putFile(kTlfPath, "old");
    ASSERT_TRUE(table.create(32, ColourType::Rgba));
    EXPECT_FALSE(table.saveTlf(kTlfPath));
    TlutData hollow;
    hollow.count = 16;
    EXPECT_FALSE(hollow.saveTlf(kTlfPath));
    ASSERT_TRUE(table.create(16, ColourType::Rgba));
    fake.files.failNextWrite(FileError::NoSpace);
    EXPECT_FALSE(table.saveTlf(kTlfPath));
    EXPECT_EQ(fake.files.textOf(kTlfPath), "old");
    EXPECT_THAT(fake.messages.shown, ElementsAre(Reports("[TLF]", "Illegal color number = 32.\n"),
                                                 Reports("[TLF]", "Illegal color number = 16.\n"),
                                                 Reports("[TLF]", "[" + kTlfPath + "] file open failed.\n")));
}

TEST_F(TlfReader, ReadsBothSizesAndIgnoresWhatIsReservedOrFollows) {
    fake.files.putFile(kTlfPath, file(kTag16, 16, 1, 16).replace(12, 52, 52, '\xFF') + "more");
    ASSERT_TRUE(table.readTlf(kTlfPath));
    EXPECT_EQ(table.colourType, ColourType::Ia);
    EXPECT_EQ(table.count, 16);
    EXPECT_EQ(table.getEntry(15), 0x120F);
    fake.files.putFile(kTlfPath, file(kTag256, 256, 0, 256));
    ASSERT_TRUE(table.readTlf(kTlfPath));
    EXPECT_EQ(table.colourType, ColourType::Rgba);
    EXPECT_EQ(table.getEntry(255), 0x12FF);
    EXPECT_THAT(fake.messages.shown, IsEmpty());
}

TEST_F(TlfReader, RefusalsSayWhyAndOnlyAShortBodyEmptiesTheRecord) {
    const char *headerSize = "incorrect header size.\n", *headerInfo = "incorrect header information.\n";
    const char *bodySize = "incorrect body size.\n", *missing = "file open failed.\n";
    const struct {
        std::optional<std::string> file;
        const char* why;
        std::int32_t countAfter;
    } cases[] = {
        {std::nullopt, missing, 3},
        {"", headerSize, 3},
        {file(kTag16, 16, 0, 0).substr(1), headerSize, 3},
        {file(kTag16, 256, 0, 256), headerInfo, 3},
        {file(kTag256, 16, 0, 256), headerInfo, 3},
        {file(0, 0, 0, 256), headerInfo, 3},
        {file(kTag16, 16, 2, 16), headerInfo, 3},
        {file(kTag16, 16, 0, 0), bodySize, 0},
        {file(kTag16, 16, 0, 16).substr(0, 95), bodySize, 0},
        {file(kTag256, 256, 0, 100), bodySize, 0},
    };
    fake.files.showHostPaths(true);
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        fake.messages.shown.clear();
        if (c.file)
            fake.files.putFile(kTlfPath, *c.file);
        ASSERT_TRUE(table.create(3, ColourType::Ia));
        EXPECT_FALSE(table.readTlf(kTlfPath));
        EXPECT_THAT(fake.messages.shown,
                    ElementsAre(Reports("[TLF]", "[" + fake.files.hostPath(kTlfPath) + "] " + c.why)));
        EXPECT_EQ(table.count, c.countAfter);
        EXPECT_EQ(table.entries != nullptr, c.countAfter != 0);
    }
}

} // namespace
} // namespace dyeworks

#include "platform/KnownFile.h"

#include "platform/fake/FakePlatform.h"

#include <gtest/gtest.h>

namespace dyeworks {
namespace {

TEST(KnownFile, TellsAChangeInAnyPieceOfALargeFileAndNoneByATouch) {
    FakePlatform fake;
    std::string contents(200'000, 'a');
    fake.files.putFile("c:\\a", contents);
    KnownFile file("c:\\a");
    EXPECT_TRUE(file.rememberContents());
    EXPECT_FALSE(file.rememberContents());
    for (const std::size_t place : {0, 70'000, 199'999}) {
        for (const auto& [letter, state] :
             {std::pair{'b', KnownFile::State::Changed}, {'a', KnownFile::State::Same}}) {
            contents[place] = letter;
            fake.files.putFile("c:\\a", contents);
            EXPECT_EQ(file.look(), KnownFile::State::Unsettled);
            EXPECT_EQ(file.look(), state) << place;
        }
    }
    EXPECT_FALSE(file.isMissing());
    fake.files.remove("c:\\a");
    (void)file.look();
    (void)file.look();
    EXPECT_TRUE(file.isMissing());
}

} // namespace
} // namespace dyeworks

#include "platform/fake/FakePlatform.h"

#include "platform/DisplayPalette.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace dyeworks {
namespace {

TEST(FakePlatform, LeavesTheProcessAsItFoundIt) {
    FakePlatform outer;
    const std::string directory = std::filesystem::current_path().string();
    std::string scratch;
    {
        FakePlatform inner;
        scratch = inner.files.hostFolder();
        inner.files.putFile("c:\\a\\closed\\b", "x");
        std::filesystem::permissions(inner.files.hostPath("c:\\a\\closed"), std::filesystem::perms::none);
        EXPECT_EQ(&platform().files(), &inner.files);
    }
    EXPECT_EQ(&platform().files(), &outer.files);
    EXPECT_EQ(std::filesystem::current_path().string(), directory);
    EXPECT_FALSE(std::filesystem::exists(scratch));
}

TEST(FakePlatform, FailsAsManyReadsAndWritesAsItWasTold) {
    FakePlatform fake;
    fake.files.putFile("c:\\a", "old");
    fake.files.failNextRead(FileError::AccessDenied);
    fake.files.failNextWrite(FileError::NoSpace);
    fake.files.failNextWrite(FileError::ReadOnly);
    EXPECT_EQ(platform().files().read("c:\\a").error(), FileError::AccessDenied);
    EXPECT_TRUE(platform().files().read("c:\\a"));
    EXPECT_EQ(platform().files().write("c:\\a", {}), FileError::NoSpace);
    EXPECT_EQ(platform().files().write("c:\\a", {}), FileError::ReadOnly);
    EXPECT_EQ(fake.files.textOf("c:\\a"), "old");
    EXPECT_EQ(platform().files().write("c:\\a", {}), std::nullopt);
    EXPECT_EQ(fake.files.textOf("c:\\a"), "");
    EXPECT_EQ(fake.files.written(), std::vector<std::string>{"c:\\a"});
}

TEST(FakePlatform, AnswersInOrderAndHarmlesslyBeyond) {
    FakePlatform fake;
    fake.messages.answerWith({MessageAnswer::Yes, MessageAnswer::No});
    const Message question{"?", "", MessageButtons::YesNoCancel};
    EXPECT_EQ(platform().messages().show(question), MessageAnswer::Yes);
    EXPECT_EQ(platform().messages().show(question), MessageAnswer::No);
    EXPECT_EQ(platform().messages().show(question), MessageAnswer::Cancel);
    EXPECT_EQ(platform().messages().show({"?", "", MessageButtons::YesNo}), MessageAnswer::No);

    fake.dialogs.cancelNext();
    fake.dialogs.answerWith("c:\\x");
    EXPECT_EQ(platform().fileDialogs().open({}), std::nullopt);
    EXPECT_EQ(platform().fileDialogs().save({}), "c:\\x");
    EXPECT_EQ(platform().fileDialogs().open({}), std::nullopt);
    ASSERT_EQ(fake.dialogs.shown.size(), 3U);
    EXPECT_EQ(fake.dialogs.shown[1].kind, FakeFileDialogs::Kind::Save);
}

TEST(DisplayPalette, AttachesOnlyOneMatchingDescription) {
    DisplayPalette palette;
    EXPECT_FALSE(palette.create({0x300, 0, {}}));
    EXPECT_FALSE(palette.create({0x300, 2, {{1, 2, 3, 0}}}));
    EXPECT_TRUE(palette.create({0x300, 1, {{1, 2, 3, 0}}}));
    EXPECT_FALSE(palette.create({0x300, 1, {{4, 5, 6, 0}}}));
    EXPECT_EQ(palette.entries()[0].red, 1);
    palette.release();
    EXPECT_TRUE(palette.create({0x300, 1, {{4, 5, 6, 0}}}));
}

} // namespace
} // namespace dyeworks

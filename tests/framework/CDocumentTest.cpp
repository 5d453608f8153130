#include "TestDocument.h"
#include "framework/CommandRouter.h"
#include "platform/fake/FakePlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace dyeworks;
using testing::ElementsAre;

TEST(CDocument, SaveQuestionDecidesWhetherTheCallerGoesOn) {
    struct Case {
        MessageAnswer answer;
        bool saveSucceeds;
        bool goesOn;
        std::size_t saves;
        bool stillModified;
    };
    for (const Case& c :
         {Case{MessageAnswer::Yes, true, true, 1, false}, Case{MessageAnswer::Yes, false, false, 1, true},
          Case{MessageAnswer::No, true, true, 0, true}, Case{MessageAnswer::Cancel, true, false, 0, true}}) {
        FakePlatform fake;
        TestDocument document;
        document.setPathName("c:\\tex\\sky.tmf");
        document.setModified(true);
        document.saveSucceeds = c.saveSucceeds;
        fake.messages.answerWith(c.answer);
        EXPECT_EQ(document.saveModified(), c.goesOn);
        EXPECT_EQ(document.saves.size(), c.saves);
        EXPECT_EQ(document.isModified(), c.stillModified);
        ASSERT_EQ(fake.messages.shown.size(), 1U);
        EXPECT_EQ(fake.messages.lastText(), "Save changes to c:\\tex\\sky.tmf?");
        EXPECT_EQ(fake.messages.shown.back().buttons, MessageButtons::YesNoCancel);
    }
}

TEST(CDocument, SaveTakesMarksOutOfTheTitleAndAFailedOneLeavesIt) {
    const FakePlatform fake;
    TestDocument document;
    document.setPathName("c:\\tex\\sky.tmf");
    document.setTitle("sky.tmf [dawn] * ");
    document.saveSucceeds = false;
    EXPECT_FALSE(document.save());
    EXPECT_EQ(document.title(), "sky.tmf [dawn] * ");
    document.saveSucceeds = true;
    EXPECT_TRUE(document.save());
    EXPECT_EQ(document.title(), "sky.tmf");
}

TEST(CDocument, SaveCommandUsesThePathAndSaveAsAlwaysAsks) {
    const FakePlatform fake;
    TestDocument document;
    CommandRouter router([&] { return std::vector<CommandTarget*>{&document}; });
    router.run(ID_FILE_SAVE); // Without a path it has to ask as well.
    router.run(ID_FILE_SAVE);
    router.run(ID_FILE_SAVE_AS);
    EXPECT_THAT(document.saves, ElementsAre("", "c:\\tex\\chosen.tmf", ""));
    EXPECT_EQ(document.title(), "chosen.tmf");
}

TEST(CDocument, TellsAllViewsButTheSenderOfAChange) {
    TestDocument document;
    TestView sender;
    TestView other;
    document.addView(sender);
    document.addView(other);
    document.updateAllViews(&sender, 7);
    document.updateAllViews(nullptr, 8);
    document.removeView(sender);
    document.updateAllViews(nullptr, 9);
    EXPECT_THAT(sender.hints, ElementsAre(8));
    EXPECT_THAT(other.hints, ElementsAre(7, 8, 9));
}

#include "TestDocument.h"

using namespace dyeworks;
using testing::ElementsAre;

namespace {

struct CDocumentFile : testing::Test {
    FakePlatform fake;
    TestDocument document;
    CDocumentFile() { document.setPathName("c:\\tex\\sky.tmf"); }
};

} // namespace

TEST_F(CDocumentFile, SaveQuestionDecidesWhetherTheCallerGoesOn) {
    const struct {
        MessageAnswer answer;
        bool saveSucceeds, goesOn, saved, stillModified;
    } cases[] = {{MessageAnswer::Yes, true, true, true, false},
                 {MessageAnswer::Yes, false, false, true, true},
                 {MessageAnswer::No, true, true, false, true},
                 {MessageAnswer::Cancel, true, false, false, true}};
    for (const auto& c : cases) {
        SCOPED_TRACE(&c - cases);
        fake.messages.shown.clear();
        document.saves.clear();
        document.setModified(true);
        document.saveSucceeds = c.saveSucceeds;
        fake.messages.answerWith(c.answer);
        EXPECT_EQ(document.saveModified(), c.goesOn);
        EXPECT_EQ(document.saves.size(), c.saved ? 1U : 0U);
        EXPECT_EQ(document.isModified(), c.stillModified);
        ASSERT_EQ(fake.messages.shown.size(), 1U);
        EXPECT_EQ(fake.messages.lastText(), "Save changes to c:\\tex\\sky.tmf?");
        EXPECT_EQ(fake.messages.shown.back().buttons, MessageButtons::YesNoCancel);
    }
}

TEST_F(CDocumentFile, SaveTakesMarksOutOfTheTitleAndAFailedOneLeavesIt) {
    document.setTitle("sky.tmf [dawn] * ");
    document.saveSucceeds = false;
    EXPECT_FALSE(document.save());
    EXPECT_EQ(document.title(), "sky.tmf [dawn] * ");
    document.saveSucceeds = true;
    EXPECT_TRUE(document.save());
    EXPECT_EQ(document.title(), "sky.tmf");
}

TEST(CDocument, TellsAllViewsButTheSenderOfAChange) {
    TestDocument document;
    TestView sender, other;
    document.addView(sender);
    document.addView(other);
    document.updateAllViews(&sender, 7);
    document.updateAllViews(nullptr, 8);
    document.removeView(sender);
    document.updateAllViews(nullptr, 9);
    EXPECT_THAT(sender.hints, ElementsAre(8));
    EXPECT_THAT(other.hints, ElementsAre(7, 8, 9));
}

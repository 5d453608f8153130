#include "framework/CommandTable.h"

#include "platform/fake/FakePlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

using namespace dyeworks;

TEST(CommandTable, EveryRowHasItsTextsAndReachesToItsLastNumber) {
    const FakePlatform fake;
    CommandId previous = 0;
    for (const CommandRow& row : commandTable()) {
        SCOPED_TRACE(row.id);
        EXPECT_FALSE(menuText(row).empty() || statusText(row).empty() || toolTipText(row).empty());
        EXPECT_EQ(toolTipText(row).find('\n'), std::string::npos);
        EXPECT_GT(row.id, previous);
        previous = std::max(row.id, row.last);
        EXPECT_EQ(findCommand(row.id), &row);
        EXPECT_EQ(findCommand(previous), &row);
        EXPECT_NE(findCommand(previous + 1), &row);
    }
    EXPECT_EQ(findCommand(ID_RECENT_IMAGE_FIRST + 7), findCommand(ID_RECENT_IMAGE_LAST));
    EXPECT_EQ(findCommand(ID_ZOOM_X4 + 1), nullptr);
}

TEST(CommandTable, TranslatedPromptIsSplitAtItsOwnLineBreak) {
    FakePlatform fake;
    const CommandRow& row = *findCommand(ID_EDIT_UNDO);
    fake.texts.translations[row.prompt] = "Nimmt die letzte Aktion zurück\nRückgängig";
    EXPECT_EQ(statusText(row), "Nimmt die letzte Aktion zurück");
    EXPECT_EQ(toolTipText(row), "Rückgängig");
}

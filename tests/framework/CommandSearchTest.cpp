#include "framework/CommandSearch.h"

#include "framework/CommandUsage.h"
#include "framework/KanjiReading.h"
#include "platform/fake/FakePlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

using namespace dyeworks;

namespace {

/// Whether `typed` can be told off as pieces that words begin with, the plain way: every length from `least`
/// on is tried for every word. `longest`: of the pieces so far, and `wanted` of all.
bool fromWords(const std::vector<std::string>& words, std::size_t word, const std::string& typed,
               std::size_t longest, std::size_t wanted, std::size_t least = 0) {
    if (word == words.size())
        return typed.empty() && longest >= wanted;
    for (std::size_t length = least; length <= std::min(typed.size(), words[word].size()); ++length) {
        if (words[word].starts_with(typed.substr(0, length)) &&
            fromWords(words, word + 1, typed.substr(length), std::max(longest, length), wanted, least))
            return true;
    }
    return false;
}

bool scattered(const std::string& text, const std::string& typed) {
    std::size_t met = 0;
    for (const char letter : text)
        met += met < typed.size() && typed[met] == letter ? 1 : 0;
    return met == typed.size();
}

TextFit slowFit(const std::vector<std::string>& words, const std::string& typed) {
    std::string text;
    std::vector<std::string> initials;
    for (const std::string& word : words) {
        text += word;
        initials.push_back(word.substr(0, 1));
    }
    if (text == typed)
        return TextFit::Exact;
    if (text.starts_with(typed))
        return TextFit::Beginning;
    if (fromWords(words, 0, typed, 0, 0, 1))
        return TextFit::AllWords;
    if (fromWords(words, 0, typed, 0, std::min<std::size_t>(typed.size(), 2)))
        return TextFit::Words;
    if (fromWords(initials, 0, typed, 0, 0))
        return TextFit::Initials;
    if (text.find(typed) != std::string::npos)
        return TextFit::Part;
    return scattered(text, typed) ? TextFit::Scattered : TextFit::None;
}

} // namespace

TEST(CommandSearch, FitsAsThePlainWayFindsIt) {
    std::mt19937 random(7);
    const auto word = [&](std::size_t most) {
        std::string letters(1 + random() % most, 'a');
        for (char& letter : letters)
            letter = static_cast<char>('a' + random() % 3);
        return letters;
    };
    std::vector<int> met(8);
    for (int turn = 0; turn < 20000; ++turn) {
        std::vector<std::string> words(1 + random() % 4);
        std::string text;
        for (std::string& each : words)
            text += (each = word(4)) + " ";
        const std::string typed = word(6);
        const TextFit fit = fitOf(searchText(text), searchText(typed));
        ASSERT_EQ(fit, slowFit(words, typed)) << text << "/ " << typed;
        ++met[static_cast<std::size_t>(fit)];
    }
    EXPECT_THAT(met, testing::Each(testing::Gt(20)));
}

TEST(CommandSearch, TakesOutHowALetterIsWritten) {
    const struct {
        const char* text;
        const char* typed;
        TextFit fit;
    } kCases[] = {
        {"Zoom In", "ＺＯＯＭ　ｉ", TextFit::Beginning},
        {"Größe ändern", "grose a", TextFit::None},
        {"Čeština é", "cestina e", TextFit::Exact},
        {"Čeština é", "c\u030Ce", TextFit::Beginning},
        {"What's This?", "whats", TextFit::Beginning},
        {"グリッド", "ｸﾞﾘｯﾄﾞ", TextFit::Exact},
        {"パレット バー", "ぱれっとば", TextFit::Exact},
        {"ツール バー", "つるばー", TextFit::Exact},
        {"上書き保存", "保存", TextFit::Words},
        {"最近使ったプロジェクト", "ぷろじ", TextFit::Words},
        {"Preview1", "p1", TextFit::AllWords},
        {"Save As...", "...", TextFit::Beginning},
        {"\xFF\xFE", "a", TextFit::None},
    };
    for (const auto& each : kCases)
        EXPECT_EQ(fitOf(searchText(each.text), searchText(each.typed)), each.fit) << each.text << each.typed;
}

TEST(CommandSearch, RanksByFitThenNameThenWhatTheUserDoes) {
    const CommandSearch search({
        {{"Save"}, {}, {"File Save"}, false, 9},
        {{"Save"}, {}, {"Palette Save"}, true, 0},
        {{"Save As..."}, {}, {"File Save As..."}, true, 1},
        {{"選択の解除", *kanaReading("選択の解除"), "Cancel Selection"}, {}, {}, true, 0},
        {{"Undo"}, {"Undo Palette"}, {"Palette Undo"}, true, 2},
    });
    const struct {
        const char* typed;
        std::vector<std::size_t> found;
    } kCases[] = {
        {"save", {1, 0, 2}},   // The one that can be used first, whatever was used more.
        {"pa sa", {1}},        // By its menu.
        {"filesave", {0, 2}},  // The whole of it before its beginning.
        {"undo pal", {4}},     // By its tip.
        {"", {0, 4, 2, 1, 3}}, // What is used most.
        {"せんたく", {3}},     {"kaijo", {3}}, {"sentakun", {3}}, {"cansel", {3}}, {"qx", {}},
    };
    for (const auto& each : kCases)
        EXPECT_EQ(search.find(each.typed), each.found) << each.typed;
    EXPECT_EQ(kanaReading("上回る"), " うえ まわる");
}

TEST(CommandUsage, KeepsTheLastOnesAndOutlivesWhatStandsInTheSettings) {
    FakePlatform fake;
    fake.profile.sections["Command Search"]["Used"] = "57603:3 1:9 57603:4 32825:2 32777:900 x";
    CommandUsage usage;
    usage.load();
    EXPECT_EQ(usage.rank(ID_RECENT_PROJECT_FIRST), 0U);
    EXPECT_GT(usage.rank(ID_ZOOM_IN), usage.rank(ID_FILE_SAVE));
    usage.add(ID_ZOOM_IN);
    usage.add(ID_ZOOM_OUT);
    usage.add(ID_RECENT_PROJECT_FIRST);
    EXPECT_EQ(fake.profile.sections["Command Search"]["Used"], "32778:1 32777:50 57603:2");
    for (CommandId id = ID_IMAGE_RESIZE; id <= ID_IMAGE_TO_8_BITS; ++id)
        usage.add(id);
    for (CommandId id :
         {ID_VIEW_REPEAT, ID_TOOL_PEN, ID_TOOL_BOX, ID_TOOL_LINE,  ID_TOOL_PAINT, ID_TOOL_CIRCLE, ID_FLIP_X,
          ID_FLIP_Y,      ID_PREVIEW1, ID_PREVIEW2, ID_FILE_NEW,   ID_FILE_OPEN,  ID_FILE_CLOSE,  ID_OPTIONS,
          ID_APP_ABOUT,   ID_APP_EXIT, ID_HELP,     ID_HELP_INDEX, ID_EDIT_CUT,   ID_EDIT_COPY})
        usage.add(id);
    CommandUsage later;
    later.load();
    EXPECT_EQ(later.rank(ID_FILE_SAVE), 0U);
    EXPECT_EQ(later.rank(ID_ZOOM_OUT), usage.rank(ID_ZOOM_OUT));
    EXPECT_GT(later.rank(ID_EDIT_COPY), later.rank(ID_EDIT_CUT));
}

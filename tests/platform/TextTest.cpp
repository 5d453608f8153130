#include "platform/TextCase.h"
#include "platform/fake/FakePlatform.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace dyeworks {
namespace {

TEST(Text, PutsArgumentsIntoTheTranslation) {
    struct Case {
        const char* translation;
        const char* filled;
    };
    constexpr Case kCases[] = {
        {"%2: %1 %1", "why: %2.tlf %2.tlf"},
        {"100%, %, %%1", "100%, %, %%2.tlf"},
        {"%0%3%10", "%0%3%10"},
        {"%1", "%2.tlf"},
        {"%", "%"},
        {"%02", "why"},
    };
    FakePlatform fake;
    for (const Case& c : kCases) {
        fake.texts.translations[englishText(StringId::CannotSaveFile)] = c.translation;
        EXPECT_EQ(text(StringId::CannotSaveFile, {"%2.tlf", "why"}), c.filled) << c.translation;
    }
}

TEST(Text, TellsTheTenthArgumentFromTheFirst) {
    FakePlatform fake;
    fake.texts.translations[englishText(StringId::CannotSaveFile)] = "%1|%10|%100";
    EXPECT_EQ(text(StringId::CannotSaveFile, {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"}), "a|j|j0");
}

TEST(Text, DescribesEachFileErrorInItsOwnWords) {
    FakePlatform fake;
    fake.texts.mark = "~";
    std::vector<std::string> seen;
    for (int error = 0; error <= static_cast<int>(FileError::Other); ++error) {
        const std::string sentence = describe(static_cast<FileError>(error));
        EXPECT_EQ(sentence.front(), '~') << "passes the translation by: " << sentence;
        EXPECT_EQ(std::ranges::count(seen, sentence), 0) << sentence;
        seen.push_back(sentence);
    }
}

TEST(ApplicationMessage, ShowsTheTitleAndTheIconForItsButtons) {
    FakePlatform fake;
    fake.messages.answerWith(MessageAnswer::Yes);
    EXPECT_EQ(applicationMessage("Go on?", MessageButtons::YesNo), MessageAnswer::Yes);
    EXPECT_EQ(applicationMessage("Gone."), MessageAnswer::Ok);
    ASSERT_EQ(fake.messages.shown.size(), 2U);
    EXPECT_EQ(fake.messages.shown[0].icon, MessageIcon::Question);
    EXPECT_EQ(fake.messages.shown[1].icon, MessageIcon::Warning);
    EXPECT_EQ(fake.messages.shown[1].caption, "Orrery Dyeworks");
    EXPECT_EQ(fake.messages.shown[1].owner, MessageOwner::MainWindow);
}

TEST(TextCase, FoldsLettersOfEachScriptAndNothingElse) {
    struct Case {
        const char* a;
        const char* b;
        bool equal;
    };
    constexpr Case kCases[] = {
        {"Sky.TLF", "sKY.tlf", true},
        {"@[", "`{", false},
        {"\u00C9\u00DE", "\u00E9\u00FE", true},
        {"\u00D7", "\u00F7", false},
        {"\u00DF", "\u00FF", false},
        {"\u0100\u0136\u014A\u0176", "\u0101\u0137\u014B\u0177", true},
        {"\u0139\u0147\u0179\u017D\u0178", "\u013A\u0148\u017A\u017E\u00FF", true},
        {"\u0138", "\u0139", false},
        {"\u0130", "\u0131", false},
        {"\u0391\u03A9\u0401\u042F\uFF21", "\u03B1\u03C9\u0451\u044F\uFF41", true},
        {"\u7A7A", "\u7A7B", false},
        {"\x8E\xA9", "\x8E\xA8", false},
        {"\xC1\x81", "A", false},
        {"\xE3\x81", "\xE3\x81\x82", false},
        {"a", "ab", false},
    };
    for (const Case& c : kCases)
        EXPECT_EQ(equalIgnoringCase(c.a, c.b), c.equal) << c.a << " " << c.b;
}

TEST(Profile, TakesOnlyWholeNumbersInRangeForIntegers) {
    struct Case {
        const char* text;
        int number;
    };
    constexpr int kFallback = -77;
    constexpr Case kCases[] = {
        {"0", 0},
        {"-12", -12},
        {"+12", 12},
        {"2147483647", 2147483647},
        {"007", 7},
        {"-2147483648", -2147483648LL},
        {"2147483648", kFallback},
        {"", kFallback},
        {"-", kFallback},
        {"+", kFallback},
        {"+-1", kFallback},
        {" 1", kFallback},
        {"1 ", kFallback},
        {"1.0", kFallback},
        {"0x10", kFallback},
        {"true", kFallback},
    };
    FakePlatform fake;
    for (const Case& c : kCases) {
        fake.profile.setText("Settings\\Images", "Zoom", c.text);
        EXPECT_EQ(fake.profile.integer("Settings\\Images", "Zoom", kFallback), c.number) << c.text;
    }
    EXPECT_EQ(fake.profile.integer("Settings", "Zoom", kFallback), kFallback);
}

TEST(Undecorated, StripsOnlyWhatALinkerAdds) {
    struct Case {
        const char* name;
        const char* plain;
    };
    constexpr Case kCases[] = {
        {"_DWPI_import@8", "DWPI_import"},
        {"_DWPI_TPF_export@12", "DWPI_TPF_export"},
        {"DWPI_import", "DWPI_import"},
        {"_DWPI_import", "_DWPI_import"},
        {"DWPI_import@8", "DWPI_import@8"},
        {"_DWPI_import@", "_DWPI_import@"},
        {"_DWPI_import@8x", "_DWPI_import@8x"},
        {"_a@b@4", "a@b"},
        {"_@4", "_@4"},
        {"", ""},
    };
    for (const Case& c : kCases)
        EXPECT_EQ(undecorated(c.name), c.plain) << c.name;
}

} // namespace
} // namespace dyeworks

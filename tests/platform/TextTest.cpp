#include "platform/StringId.h"
#include "platform/TextCase.h"
#include "platform/fake/FakePlatform.h"

#include <gtest/gtest.h>

namespace dyeworks {
namespace {

TEST(Text, PutsArgumentsIntoTheTranslation) {
    const std::pair<const char*, const char*> cases[] = {
        {"%2: %1 %1", "why: %2.tlf %2.tlf"},
        {"100%, %, %%1", "100%, %, %%2.tlf"},
        {"%0%3%10", "%0%3%10"},
    };
    FakePlatform fake;
    for (const auto& [translation, filled] : cases) {
        fake.texts.translations[englishText(StringId::CannotSaveFile)] = translation;
        EXPECT_EQ(text(StringId::CannotSaveFile, {"%2.tlf", "why"}), filled) << translation;
    }
}

TEST(TextCase, FoldsLettersOfEachScriptAndNothingElse) {
    const std::tuple<const char*, const char*, bool> cases[] = {
        {"Sky.TLF", "sKY.tlf", true},
        {"\u00C9\u00DE", "\u00E9\u00FE", true},
        {"\u0100\u0136\u014A\u0176", "\u0101\u0137\u014B\u0177", true},
        {"\u0391\u03A9\u0401\u042F\uFF21", "\u03B1\u03C9\u0451\u044F\uFF41", true},
        {"\x8E\xA9", "\x8E\xA8", false},
        {"\xC1\x81", "A", false},
        {"a", "ab", false},
    };
    for (const auto& [a, b, equal] : cases)
        EXPECT_EQ(equalIgnoringCase(a, b), equal) << a << " " << b;
}

TEST(Profile, TakesOnlyWholeNumbersInRangeForIntegers) {
    constexpr int kFallback = -77;
    const std::pair<const char*, int> cases[] = {{"0", 0},
                                                 {"-12", -12},
                                                 {"+12", 12},
                                                 {"2147483647", 2147483647},
                                                 {"-2147483648", -2147483647 - 1},
                                                 {"2147483648", kFallback},
                                                 {"", kFallback},
                                                 {" 1", kFallback},
                                                 {"1.0", kFallback}};
    FakePlatform fake;
    for (const auto& [text, number] : cases) {
        fake.profile.setText("Settings\\Images", "Zoom", text);
        EXPECT_EQ(fake.profile.integer("Settings\\Images", "Zoom", kFallback), number) << text;
    }
    EXPECT_EQ(fake.profile.integer("Settings", "Zoom", kFallback), kFallback);
}

} // namespace
} // namespace dyeworks

#include "platform/posix/PosixLocale.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <map>
#include <optional>

namespace dyeworks {
namespace {

/// Puts environment and C locale back as they were.
class PosixLocaleTest : public testing::Test {
protected:
    PosixLocaleTest() {
        for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG", "TZ"}) {
            const char* const value = std::getenv(name);
            before_[name] = value == nullptr ? std::string() : value;
        }
    }
    ~PosixLocaleTest() override {
        for (const auto& [name, value] : before_)
            set(name, value);
        locale.rereadTimeZone();
        std::setlocale(LC_ALL, "C");
    }

    void set(const std::string& name, const std::string& value) { locale.putEnvironment(name + "=" + value); }

    PosixLocale locale;

private:
    std::map<std::string, std::string> before_;
};

TEST_F(PosixLocaleTest, ReadsTheUsersLanguageFromTheFirstVariableThatIsSet) {
    struct Case {
        const char* all;
        const char* messages;
        const char* lang;
        int number;
    };
    constexpr Case kCases[] = {
        {"", "", "", kLocaleEnglish},
        {"", "", "ja_JP.UTF-8", kLocaleJapanese},
        {"", "ja", "en_US.UTF-8", kLocaleJapanese},
        {"C.UTF-8", "ja_JP", "ja_JP", kLocaleEnglish},
        {"POSIX", "", "ja_JP", kLocaleEnglish},
        {"en_GB@euro", "", "", kLocaleEnglish},
        {"", "", "de_DE.UTF-8", 0},
        {"", "", "jav_ID", 0},
    };
    for (const Case& c : kCases) {
        set("LC_ALL", c.all);
        set("LC_MESSAGES", c.messages);
        set("LANG", c.lang);
        EXPECT_EQ(locale.userLocale(), c.number) << c.all << "|" << c.messages << "|" << c.lang;
    }
}

TEST_F(PosixLocaleTest, MovesTheTimeZone) {
    locale.putEnvironment("TZ=JST-9");
    locale.rereadTimeZone();
    const std::time_t start = 0;
    EXPECT_EQ(std::localtime(&start)->tm_hour, 9);
    locale.putEnvironment("no assignment");
    locale.putEnvironment("=x");
    locale.putEnvironment("TZ=UTC0=");
    EXPECT_STREQ(std::getenv("TZ"), "UTC0=");
}

TEST_F(PosixLocaleTest, RefusesLanguagesOfNoHost) {
    EXPECT_FALSE(locale.setRuntimeLocale("Klingon"));
    EXPECT_STREQ(std::setlocale(LC_ALL, nullptr), "C");
}

TEST_F(PosixLocaleTest, KeepsTheFullStopInNumbers) {
    const char* commaLocale = nullptr;
    for (const char* name : {"de_DE.UTF-8", "fr_FR.UTF-8", "ja_JP.UTF-8"})
        commaLocale = commaLocale == nullptr && locale.setRuntimeLocale(name) ? name : commaLocale;
    if (commaLocale == nullptr)
        GTEST_SKIP() << "no such locale here";
    EXPECT_STREQ(std::setlocale(LC_CTYPE, nullptr), commaLocale);
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
}

} // namespace
} // namespace dyeworks

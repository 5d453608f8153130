#include "platform/posix/PosixLocale.h"

#include "platform/fake/ScratchFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <map>

namespace dyeworks {
namespace {

/// Puts the environment back as it was.
class PosixLocaleTest : public testing::Test {
protected:
    PosixLocaleTest() {
        for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
            const char* const value = std::getenv(name);
            before_[name] = value == nullptr ? std::string() : value;
        }
    }
    ~PosixLocaleTest() override {
        for (const auto& [name, value] : before_)
            set(name, value);
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
        {"", "", "de_DE.UTF-8", 0},
    };
    for (const Case& c : kCases) {
        set("LC_ALL", c.all);
        set("LC_MESSAGES", c.messages);
        set("LANG", c.lang);
        EXPECT_EQ(locale.userLocale(), c.number) << c.all << "|" << c.messages << "|" << c.lang;
    }
}

TEST(PosixLocale, ReadsTheHostsLanguageFromTheFirstFileThatTellsOne) {
    const ScratchFolder scratch;
    const std::string first = scratch.path() + "/first";
    const std::string second = scratch.path() + "/second";
    std::ofstream(second) << "LANG='ja_JP.UTF-8'\n";
    const struct {
        const char* text;
        int number;
    } cases[] = {
        {"", kLocaleJapanese},
        {"# LANG=en_US\nLANGUAGE=en\nLANG=\n", kLocaleJapanese},
        {"LANG=\"en_US.UTF-8\"\n", kLocaleEnglish},
        {"LANG=ja_JP\nLANG=de_DE\n", 0},
        {"LANG=en_US\nLC_ALL=ja_JP.UTF-8", kLocaleJapanese},
    };
    for (const auto& c : cases) {
        std::ofstream(first) << c.text;
        EXPECT_EQ(PosixLocale({first, second}).systemLocale(), c.number) << c.text;
    }
    EXPECT_EQ(PosixLocale({scratch.path() + "/gone"}).systemLocale(), kLocaleEnglish);
}

} // namespace
} // namespace dyeworks

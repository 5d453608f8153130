#include "platform/posix/PosixLocale.h"

#include "platform/fake/ScratchFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <map>

namespace dyeworks {
namespace {

class PosixLocaleTest : public testing::Test {
protected:
    ~PosixLocaleTest() override {
        for (const auto& [name, value] : before_)
            locale.putEnvironment(name + ("=" + value));
    }

    void set(const char* name, const std::string& value) {
        const char* const before = std::getenv(name);
        before_.try_emplace(name, before == nullptr ? "" : before);
        locale.putEnvironment(name + ("=" + value));
    }

    PosixLocale locale;

private:
    std::map<std::string, std::string> before_;
};

TEST_F(PosixLocaleTest, ReadsTheUsersLanguageFromTheFirstVariableThatIsSet) {
    const struct {
        const char *all, *messages, *lang;
        int number;
    } cases[] = {
        {"", "", "", kLocaleEnglish},
        {"", "", "ja_JP.UTF-8", kLocaleJapanese},
        {"", "ja", "en_US.UTF-8", kLocaleJapanese},
        {"C.UTF-8", "ja_JP", "ja_JP", kLocaleEnglish},
        {"POSIX", "", "ja_JP", kLocaleEnglish},
        {"", "", "de_DE.UTF-8", 0},
    };
    for (const auto& c : cases) {
        set("LC_ALL", c.all);
        set("LC_MESSAGES", c.messages);
        set("LANG", c.lang);
        EXPECT_EQ(locale.userLocale(), c.number) << c.all << "|" << c.messages << "|" << c.lang;
    }
}

TEST(PosixLocale, ReadsTheHostsLanguageFromTheFirstFileThatTellsOne) {
    const ScratchFolder scratch;
    const std::string first = scratch.path() + "/first", second = scratch.path() + "/second";
    std::ofstream(second) << "LANG='ja_JP.UTF-8'\n";
    const std::pair<const char*, int> cases[] = {
        {"", kLocaleJapanese},
        {"# LANG=en_US\nLANGUAGE=en\nLANG=\n", kLocaleJapanese},
        {"LANG=\"en_US.UTF-8\"\n", kLocaleEnglish},
        {"LANG=ja_JP\nLANG=de_DE\n", 0},
        {"LANG=en_US\nLC_ALL=ja_JP.UTF-8", kLocaleJapanese},
    };
    for (const auto& [text, number] : cases) {
        std::ofstream(first) << text;
        EXPECT_EQ(PosixLocale({first, second}).systemLocale(), number) << text;
    }
    EXPECT_EQ(PosixLocale({scratch.path() + "/gone"}).systemLocale(), kLocaleEnglish);
}

} // namespace
} // namespace dyeworks

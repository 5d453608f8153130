#include "platform/fake/FakePlatform.h"
#include "project/CKeyValueStore.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace dyeworks {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kStorePath = "c:\\sea.tpf";

class Store : public testing::Test {
protected:
    void load(const std::string& bytes) {
        fake_.files.putFile(kStorePath, bytes);
        ASSERT_TRUE(store_.LoadFile(kStorePath));
    }
    [[nodiscard]] std::string saved() const {
        EXPECT_TRUE(store_.SaveFile(kStorePath));
        return fake_.files.textOf(kStorePath).value_or("no file");
    }
    [[nodiscard]] std::string value(const std::string& name) const {
        std::string value = "none";
        static_cast<void>(store_.GetValue(name, value));
        return value;
    }
    [[nodiscard]] std::string expanded(const std::string& text) const {
        std::string out = "failed";
        const bool done = store_.Expand(text, out);
        EXPECT_EQ(done, out != "failed") << text;
        return out;
    }

    FakePlatform fake_;
    CKeyValueStore store_;
};

TEST(StoreText, TakesAssignmentsApartAndNothingElse) {
    const struct {
        const char* text;
        StoreLine tokens;
    } kCases[] = {
        {"A=1", {"A", "=", "1"}},
        {"A \t= \t b c\t ", {"A", "=", "b c"}},
        {"X = c:\\dir # old", {"X", "=", "c:\\dir"}},
        {"A = b = c", {"A", "=", "b = c"}},
        {"A =", {"A", "=", ""}},
        {"\\Project\\Picture\\Sky = 1", {"\\Project\\Picture\\Sky", "=", "1"}},
        {"_a.B@9=1", {"_a.B@9", "=", "1"}},
        {"  A = 1", {"  A = 1"}},
        {"A # = 1", {"A # = 1"}},
        {"# A = 1", {"# A = 1"}},
        {"=A = 1", {"=A = 1"}},
        {"A-B = 1 # kept", {"A-B = 1 # kept"}},
        {"A B = 1", {"A B = 1"}},
        {"1st = 1", {"1st = 1"}},
        {"\xC3\xA9 = 1", {"\xC3\xA9 = 1"}},
        {"", {""}},
    };
    for (const auto& c : kCases) {
        StoreLine tokens{"left over"};
        EXPECT_EQ(TokenizeLine(c.text, tokens), c.tokens.size()) << c.text;
        EXPECT_EQ(tokens, c.tokens) << c.text;
    }
    EXPECT_TRUE(IsValidName(std::string(256, 'x')));
    EXPECT_FALSE(IsValidName(std::string(257, 'x')));
}

TEST(StoreText, SplitsAtRunsOfDelimiters) {
    std::vector<std::string> fields{"left over"};
    EXPECT_EQ(SplitFields(";;a,b;,c;", ";,", fields), 3U);
    EXPECT_THAT(fields, ElementsAre("a", "b", "c"));
    EXPECT_EQ(SplitFields(";;", ";", fields), 0U);
    EXPECT_THAT(fields, IsEmpty());
}

TEST_F(Store, AssignmentTakesThePlaceOfTheFirstOfItsName) {
    load("A = 1\n# A = 2\n\nA = 3\na = 4");
    EXPECT_THAT(store_.lines(), ElementsAre(StoreLine{"A", "=", "3"}, StoreLine{"# A = 2"}, StoreLine{""},
                                            StoreLine{"a", "=", "4"}));
    EXPECT_EQ(value("A"), "3");
    EXPECT_EQ(store_.AddLine("# A = 2"), 5U);
    EXPECT_EQ(store_.SetLongValue("a", -2147483647 - 1), 5U);
    EXPECT_EQ(value("a"), "-2147483648");
    EXPECT_EQ(store_.SetValue("1st", "x"), 6U);
    EXPECT_EQ(value("1st"), "none");
}

TEST_F(Store, RemovingALineMovesTheOthersUp) {
    load("A = 1\nB = 2\nC = 3\nC\nC\n");
    store_.RemoveKey("A");
    store_.RemoveKey("nothing");
    store_.RemoveLine(99);
    store_.SetValue("C", "4");
    EXPECT_EQ(saved(), "B\t=\t2\r\nC\t=\t4\r\nC\r\nC\r\n");
    // A line that is no assignment takes the value of its text with it.
    store_.RemoveLine(2);
    EXPECT_EQ(value("C"), "none");
    store_.SetValue("C", "5");
    EXPECT_EQ(saved(), "B\t=\t2\r\nC\t=\t5\r\nC\r\n");
    store_.RemoveAll();
    EXPECT_EQ(value("B"), "none");
    store_.SetValue("C", "6");
    EXPECT_EQ(saved(), "C\t=\t6\r\n");
}

TEST_F(Store, BreaksLinesBehind511Characters) {
    const std::string wide = "\xE6\x97\xA5";
    std::string text = "#";
    for (int i = 0; i < 510; ++i)
        text += wide;
    load(text + wide + "B\r\n" + std::string(600, 'x') + "\n" + std::string(511, 'y') + "\r\nA=1");
    EXPECT_THAT(store_.lines(), ElementsAre(StoreLine{text}, StoreLine{wide + "B"},
                                            StoreLine{std::string(511, 'x')}, StoreLine{std::string(89, 'x')},
                                            StoreLine{std::string(511, 'y')}, StoreLine{"A", "=", "1"}));
}

TEST_F(Store, EveryLineSurvives) {
    const std::string lines = "; note\r\n\r\n  A = 1 # x\r\nodd\rone\r\r\nA\t=\t1\r\nB-C=\ttext \r\n";
    load(lines);
    EXPECT_EQ(saved(), lines);
    // Its tabs would make it too long to be read as one line.
    store_.RemoveAll();
    load("A=" + std::string(508, 'x') + "\nB=" + std::string(506, 'y') + "\n");
    EXPECT_EQ(saved(), "A=" + std::string(508, 'x') + "\r\nB\t=\t" + std::string(506, 'y') + "\r\n");
}

TEST_F(Store, StaysInTheEncodingOfItsFile) {
    // The second byte of the first letter is the separator of paths.
    const std::string japanese = "A\t=\t\x95\x5C.tmf\r\n# \x83\x5C\r\n";
    load(japanese);
    EXPECT_EQ(value("A"), "\xE8\xA1\xA8.tmf");
    EXPECT_EQ(saved(), japanese);
    store_.SetValue("A", "\xC5\x93"); // no letter of code page 932
    EXPECT_EQ(saved(), "A\t=\t\xC5\x93\r\n# \xE3\x82\xBD\r\n");
    store_.SetValue("A", "1");
    EXPECT_EQ(saved(), "A\t=\t1\r\n# \x83\x5C\r\n");
    // In code page 932 these two would be one letter of UTF-8.
    store_.RemoveAll();
    load("A = \x93\xFA\n");
    store_.SetValue("A", "\xEF\xBE\x83\xEF\xBD\xBD");
    EXPECT_EQ(saved(), "A\t=\t\xEF\xBE\x83\xEF\xBD\xBD\r\n");

    CKeyValueStore marked;
    fake_.files.putFile(kStorePath, "\xEF\xBB\xBF"
                                    "A = \xE8\xA1\xA8\n");
    ASSERT_TRUE(marked.LoadFile(kStorePath));
    ASSERT_TRUE(marked.SaveFile(kStorePath));
    EXPECT_EQ(fake_.files.textOf(kStorePath), "\xEF\xBB\xBF"
                                              "A\t=\t\xE8\xA1\xA8\r\n");
}

TEST_F(Store, KeepsBytesOfNoEncoding) {
    load("A = \x95\x5C\n\xEF\xBB\xBF\xFF\xFF\n");
    EXPECT_EQ(saved(), "A\t=\t\x95\x5C\r\n\xEF\xBB\xBF\xFF\xFF\r\n");
}

TEST_F(Store, RefusesValuesThatAreTooLong) {
    const std::string longest = std::string(506, 'x') + "\xE8\xA1\xA8";
    EXPECT_EQ(store_.SetValue("A", longest), 1U);
    EXPECT_EQ(store_.SetValue("A", longest + "x"), 1U);
    EXPECT_EQ(store_.SetValue("B", longest + "x"), 1U);
    EXPECT_EQ(value("A"), longest);
    EXPECT_TRUE(CKeyValueStore::holds("A", longest));
    for (const std::string& lost : {longest + "x", std::string("a#b"), std::string("#"), std::string(" a"),
                                    std::string("a\t"), std::string("a\nb"), std::string("a\rb")})
        EXPECT_FALSE(CKeyValueStore::holds("A", lost)) << lost;
}

TEST_F(Store, ExpandsUntilNoReferenceIsLeft) {
    store_.SetValue("TPF_DIR", "c:\\p");
    store_.SetValue("A", "$(TPF_DIR)\\a");
    store_.SetValue("Self", "$(Self)");
    store_.SetValue("Opens", "$(");
    store_.SetValue("Empty", "");
    const struct {
        const char* text;
        const char* result;
    } kCases[] = {
        {"$(TPF_DIR)\\tex", "c:\\p\\tex"},
        {"-$(A)-$(A)", "-c:\\p\\a-c:\\p\\a"},
        {"a)b$(A)", "failed"},
        {"$(NOPE)", "failed"},
        {"$(tpf_dir)", "failed"},
        {"$(Self)", "failed"},
        {"$()", "failed"},
        {"$(A", "$(A"},
        {"A)", "A)"},
        {"$A", "$A"},
        {"$(Opens)TPF_DIR)", "c:\\p"},
        {"", ""},
    };
    for (const auto& c : kCases)
        EXPECT_EQ(expanded(c.text), c.result) << c.text;

    std::string sixteen;
    std::string text = "$(Empty)";
    for (int i = 0; i < 16; ++i)
        sixteen += "$(Empty)";
    store_.SetValue("N", sixteen);
    for (int i = 0; i < 15; ++i)
        text += "$(N)";
    EXPECT_EQ(expanded(text), "") << "256 substitutions";
    EXPECT_EQ(expanded(text + "$(Empty)"), "failed");

    const std::string longest(255, 'x');
    EXPECT_EQ(expanded(longest), longest);
    EXPECT_EQ(expanded(longest + "x"), "failed");
    store_.SetValue("Long", longest);
    EXPECT_EQ(expanded("$(Long)"), longest);
    EXPECT_EQ(expanded("x$(Long)"), "failed");
}

} // namespace
} // namespace dyeworks

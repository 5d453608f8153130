#include "notes/NotesMarkdown.h"

#include <gtest/gtest.h>

namespace dyeworks::plugins {
namespace {

TEST(NotesMarkdown, HasHeadingsByDepth) {
    NoteTree tree;
    Note* last = &tree.root();
    for (const char* title : {"1. One", "two *", "3", "4", "5", "6"})
        last = &tree.insert({last, 0}, QString::fromUtf8(title), {});
    last->text = QStringLiteral("end");
    tree.insert({&tree.root(), 1}, QStringLiteral("Last"), {});
    EXPECT_EQ(
        markdownOf(tree, QStringLiteral("my_game")).toStdString(),
        "# my\\_game\n\n## 1\\. One\n\n### two \\*\n\n#### 3\n\n##### 4\n\n###### 5\n\n###### 6\n\nend\n\n"
        "## Last\n");
}

TEST(NotesMarkdown, TextsReadAsTheyWereTyped) {
    const std::pair<const char*, const char*> cases[] = {
        {"one\ntwo", "one\\\ntwo"},
        {"one\n\n \n\ntwo\n", "one\n\ntwo"},
        {"\n\none", "one"},
        {"# no heading #", "\\# no heading \\#"},
        {"C# issue #3  ", "C# issue #3"},
        {"a\n---\nb\n===", "a\\\n\\---\\\nb\\\n\\==="},
        {"- x\n+ y\n12. z\n3) a-b", "\\- x\\\n\\+ y\\\n12\\. z\\\n3\\) a-b"},
        {"    code", "&nbsp;&nbsp;&nbsp;&nbsp;code"},
        {"<b> a_b [x](y) `c` a\\b | &amp;", "\\<b\\> a\\_b \\[x\\](y) \\`c\\` a\\\\b \\| \\&amp;"}};
    for (const auto& [typed, written] : cases) {
        NoteTree tree;
        tree.insert({&tree.root(), 0}, QStringLiteral("t"), QString::fromUtf8(typed));
        EXPECT_EQ(markdownOf(tree, QStringLiteral("p")).toStdString(),
                  std::string("# p\n\n## t\n\n") + written + "\n");
    }
}

TEST(NotesMarkdown, GoesBesideTheProject) {
    const std::pair<const char*, const char*> cases[] = {{"\\home\\kei\\my.game.tpf", "/home/kei/my.game.md"},
                                                         {"\\.tpf", "/.tpf.md"},
                                                         {"c:\\tex\\a.tpf", "a.md"},
                                                         {"\\\\server\\share\\a.tpf", "a.md"}};
    for (const auto& [project, file] : cases)
        EXPECT_EQ(markdownFileFor(QString::fromUtf8(project)).toStdString(), file);
}

} // namespace
} // namespace dyeworks::plugins

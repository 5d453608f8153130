#include "FakeHost.h"
#include "notes/NoteValues.h"

namespace dyeworks::plugins {
namespace {

TEST(NoteTitles, AreMadeFitAndDifferFromThoseBesideThem) {
    NoteTree tree;
    Note& top = tree.root();
    for (const char* title : {"Sky", "Sea (2)", "Öl", "Note"})
        tree.insert({&top, 0}, QString::fromUtf8(title), {});
    const QString kanji = QString::fromUtf8("海").repeated(150);
    tree.insert({&top, 0}, kanji, {});
    const QString emoji = QStringLiteral("x") + QString::fromUtf8("🎨").repeated(60);
    const std::tuple<QString, QString, bool> cases[] = {
        {QStringLiteral("Sea"), QStringLiteral("Sea"), true},
        {QStringLiteral("sKY"), QStringLiteral("sKY (2)"), false},
        {QStringLiteral("Sea (2)"), QStringLiteral("Sea (3)"), false},
        {QString::fromUtf8("öl "), QString::fromUtf8("öl (2)"), false},
        {QStringLiteral(" a\\b\tc\n"), QStringLiteral("a b c"), false},
        {QStringLiteral(" \t"), QStringLiteral("Note (2)"), false},
        {kanji, kanji.left(96) + QStringLiteral(" (2)"), true},
        {emoji, emoji.left(99), true}};
    for (const auto& [proposed, title, isFit] : cases) {
        EXPECT_EQ(NoteTree::titleFor(proposed, top), title);
        EXPECT_EQ(NoteTree::problemOf(proposed, top, nullptr).isEmpty(), isFit) << proposed.toStdString();
    }
    Note& sky = *tree.find(QStringLiteral("\\Project\\Notes\\Sky"));
    EXPECT_EQ(NoteTree::titleFor(QStringLiteral("SKY"), top, &sky), QStringLiteral("SKY"));
}

TEST(NoteTree, FindsNothingThatOnlyLooksLikeANote) {
    NoteTree tree;
    Note& a = tree.insert({&tree.root(), 0}, QStringLiteral("a"), {});
    tree.insert({&a, 0}, QStringLiteral("b"), {});
    for (const char* path : {"\\Project\\Notes\\a\\b", "\\Project\\Notes"})
        EXPECT_EQ(tree.pathOf(*tree.find(QString::fromUtf8(path))), QString::fromUtf8(path));
    for (const char* path : {"", "\\Project", "\\Project\\Notes2\\a", "\\Project\\Notes\\",
                             "\\Project\\Notes\\b", "\\Project\\Notes\\a\\b\\", "\\Notes\\a"})
        EXPECT_EQ(tree.find(QString::fromUtf8(path)), nullptr) << path;
}

class NoteValuesTest : public NotesTest {};

TEST_F(NoteValuesTest, EveryTextComesBackFromTheFile) {
    const QString texts[] = {QString(),
                             QStringLiteral(" a "),
                             QStringLiteral("# 100% \\ a=b ; $(TMF_DIR) %41 %"),
                             QStringLiteral("one\n  two\n\n\tthree\n"),
                             QStringLiteral("\n"),
                             QStringLiteral("\r\x01\x7F"),
                             QStringLiteral(" ").repeated(1000),
                             QStringLiteral("#").repeated(1000),
                             QStringLiteral("x").repeated(395) + QStringLiteral("   y"),
                             QString::fromUtf8("あ").repeated(1000),
                             QStringLiteral("x") + QString::fromUtf8("🎨").repeated(500)};
    NotesProject project;
    project.showNodes();
    for (const QString& text : texts)
        project.add(project.notes().root(), text.size() < 1000 ? QString::fromUtf8("=#,é %") : text, text);
    NotesProject again;
    readAgain(again);
    const auto& notes = again.notes().root().children;
    ASSERT_EQ(notes.size(), std::size(texts));
    for (std::size_t i = 0; i < notes.size(); ++i)
        EXPECT_EQ(notes[i]->text, texts[i]) << i;
    EXPECT_EQ(notes[1]->title, QString::fromUtf8("=#,é % (2)"));
}

TEST_F(NoteValuesTest, DamagedFilesGiveWhatIsThere) {
    const std::pair<std::map<QByteArray, QByteArray>, std::string> cases[] = {
        {{{"", "3"}, {"\\0", "0,0,a"}, {"\\2", "1,0,c"}}, "a(c)"},
        {{{"", "2"}, {"\\0", "7,0,a"}, {"\\1", "-4,0,b"}}, "a,b"},
        {{{"", "2"}, {"\\0", "0,a"}, {"\\1", "1,0,b"}}, "b"},
        {{{"", "2147483647"}, {"\\0", "0,2147483647,a"}, {"\\0.0", "x"}, {"\\1", "9,x,a,b"}}, "a(a,b)"},
        {{{"", "x"}, {"\\0", "0,0,a"}}, ""},
        {{{"", "2"}, {"\\0", "0,0,A"}, {"\\1", "0,0,a\\b%0A"}}, "A,a b"},
        {{{"", "2"}, {"\\0", "0,0,A"}, {"\\1", "0,0,a"}}, "A,a (2)"}};
    for (const auto& [values, expected] : cases) {
        NoteTree tree;
        const auto found = readNotes(tree, [&](const QByteArray& key) -> std::optional<QByteArray> {
            const auto value = values.find(key.mid(QByteArray(NoteTree::kPath).size()));
            return value == values.end() ? std::nullopt : std::optional(value->second);
        });
        EXPECT_EQ(NotesTest::outline(tree.root()), expected);
        EXPECT_LE(found.size(), values.size());
    }
}

} // namespace
} // namespace dyeworks::plugins

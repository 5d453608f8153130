#include "FakeHost.h"

#include <QList>

namespace dyeworks::plugins {
namespace {

constexpr std::uint32_t kNone = 0;
constexpr std::uint32_t kCtrl = DW_KEY_CONTROL;
constexpr std::uint32_t kShift = DW_KEY_SHIFT;

class NotesProjectTest : public NotesTest {
protected:
    NotesProjectTest() {
        project_.showNodes();
        Note& root = project_.notes().root();
        for (const char* title : {"a", "b", "c"})
            project_.add(root, QString::fromLatin1(title), {});
        project_.add(note(project_, "a"), QStringLiteral("x"), QStringLiteral(" 1\n#2"));
        project_.add(note(project_, "a\\x"), QStringLiteral("y"), {});
        project_.add(note(project_, "b"), QStringLiteral("X"), {});
    }

    static QString path(const char* below) {
        return QString::fromLatin1(NoteTree::kPath) + QString::fromUtf8(below);
    }
    /// A drag as the program does it; the effect, and whether the drop did anything.
    std::pair<std::uint32_t, bool> drag(const QByteArray& line, const char* target, std::uint32_t keys) {
        const std::uint32_t effect = project_.dropEffect(path(target), line.left(line.indexOf('=')), keys);
        StoreLine tokens;
        EXPECT_EQ(TokenizeLine(line.toStdString(), "\\Project\\", tokens), 3U) << line.constData();
        return {effect, effect != 0 && project_.drop(path(target), QByteArray::fromStdString(tokens[0]),
                                                     QByteArray::fromStdString(tokens[2]), effect)};
    }

    NotesProject project_;
};

TEST_F(NotesProjectTest, NodesAndFileFollowEveryChange) {
    expectNotes(project_, "a(x(y)),b(X),c");
    project_.edit(note(project_, "a\\x"), QStringLiteral("x#="), QStringLiteral("new"));
    project_.edit(note(project_, "c"), QStringLiteral("B"), {});
    expectNotes(project_, "a(x#=(y)),b(X),B (2)");
    project_.remove(note(project_, "a"));
    expectNotes(project_, "b(X),B (2)");
    project_.remove(note(project_, "B (2)"));
    project_.remove(note(project_, "b"));
    expectNotes(project_, "");
}

TEST_F(NotesProjectTest, DropsGoBehindBelowOrFirst) {
    constexpr std::uint32_t kMove = DW_DROP_MOVE;
    constexpr std::uint32_t kCopy = DW_DROP_COPY;
    constexpr std::uint32_t kBelow = DW_DROP_LINK;
    const struct {
        const char *dragged, *target;
        std::uint32_t keys, effect;
        const char* after;
    } cases[] = {{"\\a", "\\c", kNone, kMove, "b(X),c,a(x(y))"},
                 {"\\c", "\\a", kNone, kMove, "b(X),a(x(y)),c"},
                 {"\\a", "", kNone, kMove, "a(x(y)),b(X),c"},
                 {"\\a", "\\a", kNone, 0, "a(x(y)),b(X),c"},
                 {"\\a", "\\a", kCtrl, kCopy, "a(x(y)),a (2)(x(y)),b(X),c"},
                 {"\\a", "\\a", kCtrl | kShift, 0, "a(x(y)),a (2)(x(y)),b(X),c"},
                 {"\\a", "\\a\\x", kNone, 0, "a(x(y)),a (2)(x(y)),b(X),c"},
                 {"\\a", "\\a\\x\\y", kCtrl, 0, "a(x(y)),a (2)(x(y)),b(X),c"},
                 {"\\c", "\\a", kShift, kMove | kBelow, "a(x(y),c),a (2)(x(y)),b(X)"},
                 {"\\a\\x", "\\b", kShift, kMove | kBelow, "a(c),a (2)(x(y)),b(X,x (2)(y))"},
                 {"\\b\\x (2)\\y", "\\a", kNone, kMove, "a(c),y,a (2)(x(y)),b(X,x (2))"},
                 {"\\a\\c", "\\y", kCtrl | kShift, kCopy | kBelow, "a(c),y(c),a (2)(x(y)),b(X,x (2))"},
                 {"\\y", "\\Y", kNone, 0, "a(c),y(c),a (2)(x(y)),b(X,x (2))"}};
    // Each begins with what the one before it left.
    for (const auto& c : cases) {
        const auto [effect, done] = drag(project_.dragLine(path(c.dragged)), c.target, c.keys);
        EXPECT_EQ(effect, c.effect) << c.dragged << " on " << c.target;
        EXPECT_EQ(done, c.effect != 0);
        expectNotes(project_, c.after);
    }
}

TEST_F(NotesProjectTest, TitlesThatAreNoKeysCanBeDragged) {
    for (const char* title : {"1=2", "#1", "50%3D", "é#=%"}) {
        project_.add(project_.notes().root(), QString::fromUtf8(title), QStringLiteral("t=1 #2"));
        const QString from = path("\\") + QString::fromUtf8(title);
        EXPECT_TRUE(drag(project_.dragLine(from), "\\b", kShift).second) << title;
        EXPECT_EQ(project_.notes().find(from), nullptr);
    }
    expectNotes(project_, "a(x(y)),b(X,1=2,#1,50%3D,é#=%),c");
}

TEST_F(NotesProjectTest, WhatComesFromElsewhereMakesANote) {
    // A picture, a note that is not here, and one that only has the path of ours.
    const std::pair<const char*, const char*> cases[] = {
        {"\\Project\\Picture\\Sky Å=sky.tmf,sky.tlf,2",
         "Picture: Sky Å\nImage: sky.tmf\nPalette: sky.tlf\nBank: 2"},
        {"\\Project\\Picture\\Grey=grey.tmf,,0", "Picture: Grey\nImage: grey.tmf"},
        {"\\Project\\Notes\\q\\r=1%0A%232", "1\n#2"},
        {"\\Project\\Notes\\b=other", "other"}};
    for (const auto& [line, text] : cases) {
        const bool isOurs = std::string(line).find("\\b=") != std::string::npos;
        EXPECT_EQ(drag(line, "\\c", kNone), std::pair(isOurs ? DW_DROP_MOVE : DW_DROP_COPY, true)) << line;
        const auto& root = project_.notes().root().children;
        EXPECT_EQ(root[3]->text, QString::fromUtf8(text));
    }
    expectNotes(project_, "a(x(y)),b(X),c,b (2),r,Grey,Sky Å");
    for (const char* line :
         {"hello=1", "\\Project\\Notes=1", "\\Project\\Picture\\=1", "\\Project\\Other\\a=1"})
        EXPECT_EQ(project_.dropEffect(path("\\c"), QByteArray(line).split('=')[0], kNone), 0U) << line;
    EXPECT_EQ(project_.dropEffect(QStringLiteral("\\Project\\Other"), "\\Project\\Notes\\a", kNone), 0U);
}

TEST_F(NotesProjectTest, LinesThatStayAreNotSetAgain) {
    host->changes = 0;
    project_.edit(note(project_, "b"), QStringLiteral("b"), QStringLiteral("one\ntwo"));
    EXPECT_EQ(host->changes, 7) << "its own line, two of text, and those of the two notes behind it";
    expectNotes(project_, "a(x(y)),b(X),c");
    host->changes = 0;
    drag(project_.dragLine(path("\\c")), "\\b", kNone);
    EXPECT_EQ(host->changes, 0) << "it is there already";
    NotesProject again;
    readAgain(again);
    again.edit(note(again, "c"), QStringLiteral("c"), QStringLiteral("z"));
    EXPECT_EQ(host->changes, 2);
}

TEST_F(NotesProjectTest, TreesHaveAnEnd) {
    NotesProject deep;
    Note* last = &deep.notes().root();
    for (; NoteTree::hasRoom(*last, nullptr); last = last->children[0].get())
        deep.add(*last, QStringLiteral("n"), {});
    EXPECT_EQ(depthOf(*last), NoteTree::kMostLevels - 1);
    const QString bottom = deep.notes().pathOf(*last);
    deep.add(deep.notes().root(), QStringLiteral("m"), {});
    EXPECT_EQ(deep.dropEffect(bottom, "\\Project\\Notes\\m", kShift), 0U);
    EXPECT_EQ(deep.dropEffect(bottom, "\\Project\\Notes\\m", kNone), DW_DROP_MOVE);
    EXPECT_EQ(deep.dropEffect(path("\\m"), "\\Project\\Notes\\n", kShift), 0U) << "too high for below";
}

} // namespace
} // namespace dyeworks::plugins

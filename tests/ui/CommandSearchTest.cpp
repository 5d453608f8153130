#include "Program.h"
#include "framework/CommandTable.h"
#include "framework/KanjiReading.h"
#include "ui/CommandSearching.h"
#include "ui/MainMenus.h"

#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QTabBar>
#include <QTranslator>

#include <algorithm>
#include <map>
#include <set>

namespace dyeworks {
namespace {

constexpr std::size_t kMostTyped = 5; // Enter is the sixth key.

/// What somebody may type of a text: beginnings of some of its words, in their order, all of them together.
void addPieces(const SearchText& text, std::size_t word, const std::u32string& soFar, std::size_t wordsLeft,
               std::set<std::pair<std::size_t, std::u32string>>& ways) {
    if (!soFar.empty())
        ways.insert({soFar.size(), soFar});
    for (std::size_t i = word; wordsLeft > 0 && i < text.words.size(); ++i) {
        const std::size_t end = i + 1 < text.words.size() ? text.words[i + 1] : text.letters.size();
        const std::size_t most = std::min(end - text.words[i], kMostTyped - soFar.size());
        for (std::size_t length = 1; length <= most; ++length)
            addPieces(text, i + 1, soFar + text.letters.substr(text.words[i], length), wordsLeft - 1, ways);
    }
}

std::string utf8(const std::u32string& text) {
    return QString::fromStdU32String(text).toStdString();
}

/// The fewest letters of the texts that bring the command up first, or nothing.
std::string shortestWay(const CommandSearch& search, std::size_t command,
                        const std::vector<std::string>& texts) {
    std::set<std::pair<std::size_t, std::u32string>> ways;
    for (const std::string& each : texts) {
        const SearchText text = searchText(each);
        for (std::size_t length = 1; length <= std::min(kMostTyped, text.letters.size()); ++length)
            ways.insert({length, text.letters.substr(0, length)});
        addPieces(text, 0, {}, 3, ways);
    }
    for (const auto& [length, typed] : ways) {
        const std::vector<std::size_t> found = search.find(utf8(typed));
        if (!found.empty() && found.front() == command)
            return utf8(typed);
    }
    return {};
}

class CommandSearchTest : public Program {
protected:
    [[nodiscard]] std::vector<ListedCommand> listed() { return frame().searching().commands(); }
    void speakJapanese(std::span<const MenuItem> menu) {
        for (const MenuItem& item : menu) {
            if (item.title == nullptr)
                continue;
            translate(kMenuContext, item.title);
            speakJapanese(item.items);
        }
    }
    void speakJapanese() {
        ASSERT_TRUE(japanese_.load(QStringLiteral(":/translations/dyeworks_ja.qm")));
        for (const CommandRow& row : commandTable()) {
            translate(kCommandContext, row.menuText);
            translate(kCommandContext, row.prompt);
        }
        for (const auto bar : {mainMenu(), imageMenu(), projectMenu()})
            speakJapanese(bar);
    }

private:
    void translate(const char* context, const char* text) {
        fake_.texts.translations[text] = japanese_.translate(context, text).toStdString();
    }
    QTranslator japanese_;
};

/// The ways to say it that `isWanted` tells by their number and how many there are.
template <typename IsWanted>
std::vector<std::string> some(const std::vector<std::string>& ways, IsWanted isWanted) {
    std::vector<std::string> wanted;
    for (std::size_t i = 0; i < ways.size(); ++i) {
        if (isWanted(i, ways.size()))
            wanted.push_back(ways[i]);
    }
    return wanted;
}

/// Each by some of its names and nothing else, with all others able to run and used before, and it neither.
template <typename IsWanted>
void expectSixKeys(const std::vector<ListedCommand>& commands, IsWanted isWanted) {
    for (std::size_t i = 0; i < commands.size(); ++i) {
        std::vector<SearchNames> names;
        for (const ListedCommand& each : commands) {
            names.push_back(each.search);
            names.back().enabled = &each != &commands[i];
            names.back().use = &each != &commands[i] ? 1 : 0;
        }
        std::vector<std::string> texts = some(names[i].names, isWanted);
        std::ranges::copy(some(names[i].places, isWanted), std::back_inserter(texts));
        EXPECT_NE(shortestWay(CommandSearch(names), i, texts), "")
            << commands[i].name << " in " << commands[i].place;
    }
}

TEST_F(CommandSearchTest, FindsEveryCommandInSixKeysInEitherLanguage) {
    openBlank();
    openProject({"sky"});
    expectSixKeys(listed(), [](std::size_t, std::size_t) { return true; });
    speakJapanese();
    const auto english = [](std::size_t i, std::size_t count) { return i + 1 == count; };
    expectSixKeys(listed(), english);
    expectSixKeys(listed(),
                  [&](std::size_t i, std::size_t count) { return count == 1 || !english(i, count); });
}

TEST_F(CommandSearchTest, ReadsEveryJapaneseNameInKana) {
    openBlank();
    speakJapanese();
    const auto isKanji = [](char32_t code) { return code >= 0x3400 && code <= 0x9FFF; };
    for (const ListedCommand& each : listed()) {
        for (const std::string& text : {each.name, each.place}) {
            const auto reading = kanaReading(text);
            EXPECT_TRUE(reading &&
                        std::ranges::none_of(QString::fromStdString(*reading).toStdU32String(), isKanji))
                << text;
        }
    }
}

TEST_F(CommandSearchTest, TellsATrueReasonForEveryCommandThatIsDisabled) {
    fake_.files.putFile("c:\\p.tlf", paletteFile(16, [](int i) { return static_cast<unsigned>(i); }));
    putImages(fake_, {"c:\\a.tmf"});
    using Reasons = std::map<CommandId, std::string>;
    // None of `untrue` is said, and these are.
    const auto expectReasons = [&](const char* state, const std::set<std::string>& untrue, Reasons expected) {
        SCOPED_TRACE(state);
        for (const ListedCommand& each : listed()) {
            EXPECT_EQ(each.reason.empty(), each.search.enabled) << each.name;
            EXPECT_FALSE(untrue.contains(each.reason)) << each.name << ": " << each.reason;
            const auto wanted = expected.extract(each.id);
            EXPECT_TRUE(wanted.empty() || wanted.mapped() == each.reason) << each.name << ": " << each.reason;
        }
        EXPECT_TRUE(expected.empty());
    };
    const std::string noImage = "no image is open";
    const std::string imageBehind = "the active window is not an image";
    const std::string noPalette = "no palette is open";
    const std::string noProject = "no project is open";
    const std::string noDocument = "no document is open";
    const std::string nothingSelected = "nothing is selected";
    expectReasons("nothing open", {imageBehind, nothingSelected},
                  {{ID_ZOOM_IN, noImage},
                   {ID_FILE_PRINT, noImage},
                   {ID_FILE_SAVE, noDocument},
                   {ID_WINDOW_TILE_HORZ, noDocument},
                   {ID_PALETTE_SAVE, noPalette},
                   {ID_PALETTE_UNDO, noPalette},
                   {ID_RANGE_RAMP, noPalette},
                   {ID_PICTURE_CHANGE, noProject},
                   {ID_NODE_ADD, noProject},
                   {ID_ZOOM_SPECIFY, "there are no zooms but those in the menu"},
                   {ID_RECENT_IMAGE_FIRST, "no such file has been opened yet"},
                   {ID_EDIT_PASTE_NEW, "there is no picture on the clipboard"}});
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\a.tmf"));
    expectReasons("an image without palette", {noImage, imageBehind, noDocument},
                  {{ID_IMAGE_ATTACH, noPalette},
                   {ID_EDIT_COPY, nothingSelected},
                   {ID_EDIT_UNDO, "there is nothing to undo"},
                   {ID_IMAGE_TO_4_BITS, "the image does not have 8 bits"},
                   {ID_FILE_REVERT, "there are no unsaved changes"},
                   {ID_BRUSH_SMALLER, "the brush has its smallest size already"},
                   {ID_WINDOW_ARRANGE, "no window is minimized"}});
    ASSERT_TRUE(run(ID_FILE_CLOSE));
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\p.tlf"));
    expectReasons("a palette", {noPalette, imageBehind, nothingSelected},
                  {{ID_PALETTE_UNDO, "there is nothing to undo"},
                   {ID_PALETTE_SHOW_TEXELS, "no open image shows this palette"}});
    openBlank();
    ASSERT_TRUE(run(ID_TOOL_SELECT));
    ASSERT_TRUE(run(ID_EDIT_SELECT_ALL));
    expectReasons("an image with its palette and a selection",
                  {noImage, imageBehind, noPalette, nothingSelected, noDocument},
                  {{ID_IMAGE_NEW_PALETTE, "the image has a palette already"},
                   {ID_IMAGE_ATTACH, "the image is attached to the current palette already"}});
    openProject({"sky"});
    expectReasons("a project before it", {noImage, noPalette, noProject, nothingSelected, noDocument},
                  {{ID_EDIT_COPY, imageBehind},
                   {ID_PROJECT_REVERT_CHECK, "nothing was relinked, removed or added since a check"}});
}

TEST_F(CommandSearchTest, RunsWhatIsTypedAndGivesTheKeysBack) {
    openBlank();
    const auto hasKeys = [](const QWidget& widget) {
        return QTest::qWaitFor([&widget] { return QApplication::focusWidget() == &widget; });
    };
    frame().activateWindow();
    view().setFocus();
    ASSERT_TRUE(hasKeys(view()));
    const std::int32_t zoom = view().view().zoom();
    QTest::keyClick(&view(), Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
    auto* const box = frame().findChild<QDialog*>(QStringLiteral("ID_COMMAND_SEARCH"));
    ASSERT_NE(box, nullptr);
    auto& field = *box->findChild<QLineEdit*>();
    const auto& list = *box->findChild<QListView*>();
    const auto current = [&] {
        return list.currentIndex().data(Qt::AccessibleTextRole).toString().toStdString();
    };
    ASSERT_TRUE(hasKeys(field));

    // Letters that are keys of commands are letters here, and what cannot be used stays.
    QTest::keyClicks(&field, "undo");
    EXPECT_EQ(current(), "Undo, Edit, Ctrl+Z, disabled: there is nothing to undo");
    QTest::keyClick(&field, Qt::Key_Return);
    EXPECT_TRUE(box->isVisible());
    QTest::keyClick(&field, Qt::Key_Down);
    EXPECT_EQ(current(), "Undo, Palette > Entries, disabled: there is nothing to undo");
    QTest::keyClick(&field, Qt::Key_Up);
    QTest::keyClick(&field, Qt::Key_Up);
    QTest::keyClick(&field, Qt::Key_Down);
    EXPECT_EQ(list.currentIndex().row(), 0);
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_TRUE(hasKeys(view()) && !box->isVisible());

    auto& tabs = *frame().paletteBar().findChild<QTabBar*>();
    frame().paletteBar().activateWindow();
    tabs.setFocus();
    ASSERT_TRUE(hasKeys(tabs));
    ASSERT_TRUE(run(ID_COMMAND_SEARCH));
    ASSERT_TRUE(hasKeys(field));
    QInputMethodEvent composing("os", {});
    QTest::keyClicks(&field, "cl");
    QCoreApplication::sendEvent(&field, &composing);
    EXPECT_TRUE(QTest::qWaitFor([&] { return current().starts_with("Close"); }));
    QInputMethodEvent dropped;
    QCoreApplication::sendEvent(&field, &dropped);
    field.selectAll();
    QTest::keyClicks(&field, "zi");
    QTest::keyClick(&field, Qt::Key_Enter);
    EXPECT_TRUE(QTest::qWaitFor([&] { return view().view().zoom() > zoom; }));
    EXPECT_EQ(QApplication::focusWidget(), &tabs);
    EXPECT_EQ(fake_.profile.sections["Command Search"]["Used"], std::to_string(ID_ZOOM_IN) + ":1");

    // A window by its title.
    openProject({"sky"});
    ASSERT_TRUE(run(ID_COMMAND_SEARCH));
    ASSERT_TRUE(hasKeys(field));
    QTest::keyClicks(&field, "pictmf");
    EXPECT_EQ(current().substr(0, 7), "pic.tmf");
    EXPECT_THAT(current(), testing::EndsWith(", Window"));
    QTest::keyClick(&field, Qt::Key_Enter);
    EXPECT_TRUE(QTest::qWaitFor([&] { return frame().activeImageView() != nullptr; }));
}

} // namespace
} // namespace dyeworks

#include "framework/CommandTable.h"
#include "framework/KeyText.h"
#include "framework/ShortcutFile.h"
#include "platform/fake/FakePlatform.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>

namespace dyeworks {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

auto parsed(std::string_view text) {
    return parseShortcutFile(std::as_bytes(std::span(text)));
}

TEST(KeyTexts, HaveOneSpelling) {
    FakePlatform fake;
    for (const auto& [text, normal] : std::initializer_list<std::pair<const char*, const char*>>{
             {"ctrl+SHIFT+s", "Ctrl+Shift+S"},
             {"Shift+Alt+Ctrl+Meta+f35", "Meta+Ctrl+Alt+Shift+F35"},
             {"+", "+"},
             {"Ctrl++", "Ctrl++"},
             {"Ctrl+Shift++", "Ctrl+Shift++"},
             {"pgdown", "PgDown"},
             {"\xC3\xA9", "\xC3\xA9"}}) {
        EXPECT_EQ(normalKeys(text), normal) << text;
    }
    for (const char* text : {"", "Ctrl", "Ctrl+", "Ctrl++S", "++", "F36", "F0", "Hyper+S", "SS", " ", "\x1b",
                             "\xC3", "Ctrl+\xFF", "\xC3\xA9\xC3\xA9"})
        EXPECT_FALSE(normalKeys(text)) << text;
    EXPECT_EQ(comparableKeys("Shift+."), comparableKeys(">"));
    EXPECT_NE(comparableKeys("Shift+."), comparableKeys("."));
    for (const char* keys : {"Space", "Ctrl+Left", "Shift+Tab", "Alt+F", "Alt+F4", "F10"})
        EXPECT_TRUE(whyReserved(keys)) << keys;
    for (const char* keys : {"X", "Shift+Del", "Ctrl+Alt+P", "Ctrl+Backspace"})
        EXPECT_FALSE(whyReserved(keys)) << keys;
    for (const CommandRow& row : commandTable()) {
        for (const std::string& keys : Shortcuts::given(row.id))
            EXPECT_FALSE(whyReserved(keys)) << row.menuText;
    }
}

TEST(Shortcut, KeysBelongToOneCommandWhateverIsDoneWithThem) {
    FakePlatform fake;
    std::mt19937 random{5};
    const auto any = [&](std::size_t below) { return random() % below; };
    const std::vector<std::string> all{"Ctrl+S",       "X",  "B", "Shift+.", ">",
                                       "Ctrl+Shift+P", "F2", "?", "Space"};
    const std::vector<CommandId> commands{ID_FILE_SAVE,      ID_TOOL_PIXEL,     ID_TOOL_BOX,
                                          ID_ENTRY_ROW_DOWN, ID_COMMAND_SEARCH, ID_RECENT_IMAGE_FIRST};
    Shortcuts shortcuts;
    // Which command has each key, and nothing else.
    std::map<std::string, CommandId> model;
    const auto reset = [&] {
        model.clear();
        for (const CommandRow& row : commandTable()) {
            for (const std::string& keys : Shortcuts::given(row.id))
                model[comparableKeys(keys)] = row.id;
        }
    };
    reset();
    for (int step = 0; step < 400; ++step) {
        const CommandId command = commands[any(commands.size())];
        Shortcuts::Keys keys;
        for (std::size_t i = any(3); i > 0; --i)
            keys.push_back(all[any(all.size())]);
        const std::size_t what = any(20);
        if (what == 0) {
            shortcuts.resetAll();
            reset();
            continue;
        }
        if (what == 1)
            keys = Shortcuts::given(command);
        what == 1 ? shortcuts.reset(command) : shortcuts.set(command, keys);
        if (command != ID_RECENT_IMAGE_FIRST) {
            std::erase_if(model, [&](const auto& each) { return each.second == command; });
            for (const std::string& each : keys) {
                if (each != "Space")
                    model[comparableKeys(each)] = command;
            }
        }
        std::map<std::string, CommandId> now;
        for (const CommandRow& row : commandTable()) {
            for (const std::string& each : shortcuts.of(row.id)) {
                const auto [place, isNew] = now.try_emplace(comparableKeys(each), row.id);
                EXPECT_TRUE(isNew || place->second == row.id) << each;
            }
        }
        ASSERT_EQ(now, model) << step;
        EXPECT_EQ(shortcuts.isAsGiven(command), shortcuts.of(command) == Shortcuts::given(command));
        if (step % 10 != 0)
            continue;
        shortcuts.save();
        EXPECT_EQ(Shortcuts::load(), shortcuts);
        const auto again = parsed(shortcutFile(shortcuts));
        ASSERT_TRUE(again) << describe(again.error());
        EXPECT_EQ(again.value().shortcuts, shortcuts);
    }
}

TEST(ShortcutFiles, TellWhatIsWrongAndPassOverWhatIsUnknown) {
    FakePlatform fake;
    using Kind = ShortcutFileError::Kind;
    const std::string title = "Orrery Dyeworks shortcuts 1\n";
    for (const auto& [file, kind, line] : std::initializer_list<std::tuple<std::string, Kind, int>>{
             {"", Kind::NotShortcuts, 1},
             {"Orrery Dyeworks shortcuts x", Kind::NotShortcuts, 1},
             {"Orrery Dyeworks shortcuts 2", Kind::NewerVersion, 1},
             {title + "\n57603 Ctrl+S", Kind::Line, 3},
             {title + "Save = Ctrl+S", Kind::Line, 2},
             {title + "57603 = Ctrl+S Ctrl", Kind::Keys, 2},
             {title + "57603 = Space", Kind::Reserved, 2},
             {title + "57603 = F2\n57604 = F2", Kind::Twice, 3},
             {title + "57603 = F2\n57603 = F3", Kind::Twice, 3},
             {title + std::string(kLargestShortcutFile, '\n'), Kind::NotShortcuts, 0}}) {
        const auto read = parsed(file);
        ASSERT_FALSE(read) << file.substr(0, 60);
        EXPECT_EQ(read.error().kind, kind) << file.substr(0, 60);
        EXPECT_EQ(read.error().line, line) << file.substr(0, 60);
        EXPECT_FALSE(describe(read.error()).empty());
    }
    const auto read = parsed("\xEF\xBB\xBF" + title + "# mine\r\n 57603=f2 ctrl+z\r\n4711 = F9\r\n57604 =");
    ASSERT_TRUE(read) << describe(read.error());
    EXPECT_EQ(read.value().unknown, 1);
    EXPECT_THAT(read.value().shortcuts.of(ID_FILE_SAVE), ElementsAre("F2", "Ctrl+Z"));
    EXPECT_THAT(read.value().shortcuts.of(ID_EDIT_UNDO), IsEmpty()) << "it has lost them";
    EXPECT_THAT(read.value().shortcuts.of(ID_FILE_SAVE_AS), IsEmpty());
    EXPECT_THAT(read.value().shortcuts.of(ID_FILE_NEW), ElementsAre("Ctrl+N"));
    for (const ShortcutPreset& preset : shortcutPresets())
        EXPECT_EQ(parsed(shortcutFile(preset.shortcuts())).value().shortcuts, preset.shortcuts());
}

} // namespace
} // namespace dyeworks

#include "Program.h"
#include "framework/CommandTable.h"
#include "ui/MainMenus.h"

#include <QAbstractButton>
#include <QAction>
#include <QStatusBar>
#include <QToolBar>

#include <algorithm>
#include <set>

namespace dyeworks {
namespace {

using Ids = std::set<CommandId>;

const Ids kAlwaysEnabled{ID_PROJECT_NEW,      ID_PROJECT_OPEN,    ID_FILE_NEW,         ID_FILE_OPEN,
                         ID_FILE_PRINT_SETUP, ID_PALETTE_NEW,     ID_PALETTE_OPEN,     ID_OPTIONS,
                         ID_APP_ABOUT,        ID_APP_EXIT,        ID_HELP_INDEX,       ID_HELP,
                         ID_CONTEXT_HELP,     ID_VIEW_PALETTEBAR, ID_VIEW_TOOLBAR,     ID_VIEW_DRAWBAR,
                         ID_VIEW_PROJECTBAR,  ID_VIEW_STATUS_BAR, ID_VIEW_VIEWBAR,     ID_FILE_IMPORT_BMP,
                         ID_PALETTE_IMPORT,   ID_VIEW_BRUSHBAR,   ID_VIEW_FINDINGS,    ID_VIEW_USAGE,
                         ID_VIEW_BANKSBAR,    ID_TEXTURE_NEW,     ID_VIEW_FULL_SCREEN, ID_VIEW_RESET_LAYOUT,
                         ID_VIEW_START_PAGE,  ID_VIEW_CELLS_ONLY, ID_PANE_NEXT,        ID_PANE_PREVIOUS,
                         ID_COMMAND_SEARCH,   ID_VIEW_UNDO_LIST};

/// Besides, with an unchanged project, in whose window the program is.
const Ids kEnabledWithProject{
    ID_PROJECT_CLOSE,        ID_PROJECT_SAVE,   ID_PROJECT_SAVE_AS,  ID_PROJECT_PROPERTY,
    ID_PICTURE_ADD,          ID_FILE_CLOSE,     ID_FILE_SAVE,        ID_FILE_SAVE_AS,
    ID_WINDOW_NEW,           ID_WINDOW_CASCADE, ID_WINDOW_TILE_HORZ, ID_WINDOW_TILE_VERT,
    ID_RECENT_PROJECT_FIRST, ID_PROJECT_RULES,  ID_PROJECT_CHECK,    ID_PROJECT_ADD_FOLDER};

/// Besides, with a palette that is unchanged.
const Ids kEnabledWithPalette{
    ID_PALETTE_EDIT,         ID_PALETTE_CLOSE,  ID_PALETTE_SAVE, ID_PALETTE_SAVE_AS, ID_PALETTE_EXPORT,
    ID_RECENT_PALETTE_FIRST, ID_RANGE_RAMP,     ID_RANGE_ADJUST, ID_RANGE_INVERT,    ID_RANGE_REVERSE,
    ID_RANGE_FILL,           ID_PALETTE_MOVE,   ID_PALETTE_SWAP, ID_PALETTE_SORT,    ID_PALETTE_MERGE_TWINS,
    ID_PALETTE_COMPACT,      ID_ENTRY_PREVIOUS, ID_ENTRY_NEXT,   ID_ENTRY_ROW_UP,    ID_ENTRY_ROW_DOWN};

/// Besides, with an unchanged image.
const Ids kEnabledWithImage{
    // Its file and its windows.
    ID_FILE_CLOSE, ID_FILE_SAVE, ID_FILE_SAVE_AS, ID_FILE_PRINT, ID_FILE_PRINT_DIRECT, ID_FILE_PRINT_PREVIEW,
    ID_RECENT_IMAGE_FIRST, ID_WINDOW_NEW, ID_WINDOW_CASCADE, ID_WINDOW_TILE_HORZ, ID_WINDOW_TILE_VERT,
    ID_FILE_EXPORT_BMP,
    // How it is shown.
    ID_ZOOM_IN, ID_ZOOM_X1, ID_ZOOM_X2, ID_ZOOM_X3, ID_ZOOM_X4, ID_ZOOM_X6, ID_ZOOM_X8, ID_ZOOM_X12,
    ID_ZOOM_X16, ID_VIEW_GRID, ID_PREVIEW1, ID_PREVIEW2, ID_VIEW_REPEAT, ID_ENTRY_PICK,
    // The image as a whole; it has 4 bits.
    ID_IMAGE_RESIZE, ID_IMAGE_SCALE, ID_IMAGE_SHIFT, ID_IMAGE_SHIFT_HALF, ID_IMAGE_TURN_LEFT,
    ID_IMAGE_TURN_RIGHT, ID_IMAGE_TURN_HALF, ID_IMAGE_TO_8_BITS,
    // Drawing.
    ID_TOOL_PIXEL, ID_TOOL_PEN, ID_TOOL_LINE, ID_TOOL_BOX, ID_TOOL_BOX_FILL, ID_TOOL_CIRCLE,
    ID_TOOL_CIRCLE_FILL, ID_TOOL_PAINT, ID_TOOL_SELECT, ID_TOOL_ZOOM_LENS, ID_TOOL_REPLACER, ID_TOOL_SPUIT,
    ID_EDIT_SELECT_ALL, ID_DRAW_WRAP, ID_BRUSH_LARGER, ID_BRUSH_SQUARE, ID_BRUSH_ROUND, ID_MIRROR_ACROSS,
    ID_MIRROR_DOWN};

/// What a menu shows of the table; in a list of files or plug-ins each command counts.
Ids everyCommand() {
    Ids ids;
    for (const CommandRow& row : commandTable()) {
        for (CommandId id = row.id; id <= std::max(row.id, row.last); ++id)
            ids.insert(id);
    }
    return ids;
}

std::string letterOf(const QString& text) {
    const qsizetype mark = text.indexOf('&');
    return mark < 0 ? std::string() : text.mid(mark + 1, 1).toLower().toStdString();
}

std::string lettersOf(std::span<const MenuItem> items) {
    std::string letters;
    for (const MenuItem& item : items) {
        if (item.title != nullptr)
            letters += letterOf(item.title);
        else if (const CommandRow* row = findCommand(item.id))
            letters += letterOf(row->menuText);
    }
    return letters;
}

using Menu = std::span<const MenuItem>;

/// A menu and all below it.
void collect(Menu menu, std::vector<Menu>& found) {
    found.push_back(menu);
    for (const MenuItem& item : menu) {
        if (item.title != nullptr)
            collect(item.items, found);
    }
}

std::vector<Menu> menusOfTheBars() {
    std::vector<Menu> found;
    for (const Menu bar : {mainMenu(), imageMenu(), projectMenu()})
        collect(bar, found);
    return found;
}

class Commands : public Program {
protected:
    /// What somebody would take as things stand.
    [[nodiscard]] Ids taken() {
        const std::vector<CommandTarget*> chain = app_.commandChain();
        Ids ids = everyCommand();
        std::erase_if(ids, [&](CommandId id) {
            return std::ranges::none_of(chain, [&](CommandTarget* target) { return target->handles(id); });
        });
        return ids;
    }
    /// These and no others.
    void expectEnabled(const Ids& expected) {
        for (const CommandId id : everyCommand())
            EXPECT_EQ(enabled(id), expected.contains(id)) << id;
    }
};

TEST_F(Commands, AreTakenByAnObjectOfTheProgram) {
    Ids ids = taken();
    openBlank();
    ids.merge(taken());
    openProject();
    ids.merge(taken());
    Ids expected = everyCommand();
    // Stands in the zoom menu and asks for nothing.
    expected.erase(ID_ZOOM_SPECIFY);
    EXPECT_EQ(ids, expected);
}

TEST_F(Commands, AreEnabledWhereTheyCanDoSomething) {
    fake_.files.putFile("c:\\p.tlf", paletteFile(16, [](int i) { return static_cast<unsigned>(i); }));
    putImages(fake_, {"c:\\a.tmf"});
    Ids expected = kAlwaysEnabled;
    const auto alsoExpect = [&](const Ids& more) {
        expected.insert(more.begin(), more.end());
        expectEnabled(expected);
    };
    alsoExpect({});
    openProject();
    alsoExpect(kEnabledWithProject);
    ASSERT_TRUE(run(ID_PROJECT_CLOSE));
    std::erase_if(expected, [](CommandId id) { return kEnabledWithProject.contains(id); });
    alsoExpect({ID_RECENT_PROJECT_FIRST});
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\p.tlf"));
    alsoExpect(kEnabledWithPalette);
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\a.tmf"));
    expected.merge(Ids{ID_IMAGE_ATTACH, ID_IMAGE_NEW_PALETTE});
    alsoExpect(kEnabledWithImage);
    ASSERT_TRUE(run(ID_IMAGE_ATTACH));
    expected.erase(ID_IMAGE_ATTACH);
    expected.erase(ID_IMAGE_NEW_PALETTE);
    alsoExpect({ID_PALETTE_SHOW_TEXELS});
}

TEST_F(Commands, StandInAMenuAndShowTheirPromptAndToolTip) {
    Ids inMenus;
    for (const Menu menu : menusOfTheBars()) {
        for (const MenuItem& item : menu)
            inMenus.insert(item.id);
    }
    for (const CommandRow& row : commandTable()) {
        EXPECT_TRUE(inMenus.contains(row.id)) << row.id << " is in no menu";
        const QString prompt = QString::fromStdString(statusText(row));
        QAction& action = *frame().commandActions().action(row.id);
        action.showStatusText(&frame());
        EXPECT_EQ(frame().statusBar()->currentMessage(), prompt) << row.id;
        EXPECT_TRUE(action.toolTip().startsWith(QString::fromStdString(toolTipText(row)))) << row.id;
        EXPECT_TRUE(action.whatsThis().contains(prompt.toHtmlEscaped())) << row.id;
    }
}

// Translations keep the letters; that has a test of its own.
TEST_F(Commands, HaveALetterThatNoOtherOfTheirMenuHas) {
    std::vector<Menu> menus = menusOfTheBars();
    for (const auto menu : {CDyeworksView::ContextMenu::Selection, CDyeworksView::ContextMenu::Tools})
        menus.push_back(imageContextMenu(menu));
    std::string onBars;
    for (const QAbstractButton* button : frame().findChildren<QAbstractButton*>()) {
        if (const auto* bar = qobject_cast<QToolBar*>(button->parentWidget()); bar && bar->isVisible())
            onBars += letterOf(button->text());
    }
    EXPECT_EQ(onBars, "acr") << "the project bar's";
    for (const Menu menu : menus) {
        const bool isBar = menu.front().title != nullptr;
        const std::string letters = lettersOf(menu) + (isBar ? onBars : "");
        EXPECT_EQ(std::set(letters.begin(), letters.end()).size(), letters.size()) << letters;
    }
}

} // namespace
} // namespace dyeworks

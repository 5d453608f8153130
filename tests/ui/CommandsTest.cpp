#include "Program.h"
#include "framework/CommandTable.h"
#include "platform/qt/Language.h"
#include "ui/MainMenus.h"

#include <QAction>
#include <QStatusBar>
#include <QTranslator>

#include <algorithm>
#include <set>

namespace dyeworks {
namespace {

using Ids = std::set<CommandId>;

/// Nobody takes these, whatever is open.
const Ids kTakenByNobody{// Stands in the zoom menu and asks for nothing.
                         ID_ZOOM_SPECIFY};

const Ids kAlwaysEnabled{ID_PROJECT_NEW,      ID_PROJECT_OPEN,    ID_FILE_NEW,     ID_FILE_OPEN,
                         ID_FILE_PRINT_SETUP, ID_PALETTE_NEW,     ID_PALETTE_OPEN, ID_OPTIONS,
                         ID_APP_ABOUT,        ID_APP_EXIT,        ID_HELP_INDEX,   ID_HELP,
                         ID_CONTEXT_HELP,     ID_VIEW_PALETTEBAR, ID_VIEW_TOOLBAR, ID_VIEW_DRAWBAR,
                         ID_VIEW_PROJECTBAR,  ID_VIEW_STATUS_BAR, ID_VIEW_VIEWBAR, ID_FILE_IMPORT_BMP};

/// Besides, with an image that is attached to a palette, both unchanged.
const Ids kEnabledWithImage{// Its file and its windows.
                            ID_FILE_CLOSE, ID_FILE_SAVE, ID_FILE_SAVE_AS, ID_FILE_PRINT, ID_FILE_PRINT_DIRECT,
                            ID_FILE_PRINT_PREVIEW, ID_RECENT_IMAGE_FIRST, ID_WINDOW_NEW, ID_WINDOW_CASCADE,
                            ID_WINDOW_TILE_HORZ, ID_WINDOW_TILE_VERT, ID_FILE_EXPORT_BMP,
                            // How it is shown.
                            ID_ZOOM_IN, ID_ZOOM_X1, ID_ZOOM_X2, ID_ZOOM_X3, ID_ZOOM_X4, ID_ZOOM_X6,
                            ID_ZOOM_X8, ID_ZOOM_X12, ID_ZOOM_X16, ID_VIEW_GRID, ID_PREVIEW1, ID_PREVIEW2,
                            // Drawing.
                            ID_TOOL_PIXEL, ID_TOOL_PEN, ID_TOOL_LINE, ID_TOOL_BOX, ID_TOOL_BOX_FILL,
                            ID_TOOL_CIRCLE, ID_TOOL_CIRCLE_FILL, ID_TOOL_PAINT, ID_TOOL_SELECT,
                            ID_TOOL_ZOOM_LENS, ID_TOOL_REPLACER, ID_TOOL_SPUIT, ID_EDIT_SELECT_ALL,
                            // The palette's file.
                            ID_PALETTE_EDIT, ID_PALETTE_CLOSE, ID_PALETTE_SAVE, ID_PALETTE_SAVE_AS,
                            ID_RECENT_PALETTE_FIRST};

/// What a menu shows of the table; in a list of files or plug-ins each command counts.
Ids everyCommand() {
    Ids ids;
    for (const CommandRow& row : commandTable()) {
        for (CommandId id = row.id; id <= std::max(row.id, row.last); ++id)
            ids.insert(id);
    }
    return ids;
}

Ids without(Ids ids, const Ids& others) {
    std::erase_if(ids, [&](CommandId id) { return others.contains(id); });
    return ids;
}

std::string lettersOf(std::span<const MenuItem> items, const QTranslator& language) {
    std::string letters;
    for (const MenuItem& item : items) {
        const CommandRow* row = item.title == nullptr ? findCommand(item.id) : nullptr;
        if (item.title == nullptr && row == nullptr)
            continue;
        const char* source = row == nullptr ? item.title : row->menuText;
        const QString translated =
            language.translate(row == nullptr ? kMenuContext : kCommandContext, source);
        const QString text = translated.isEmpty() ? QString::fromUtf8(source) : translated;
        const qsizetype mark = text.indexOf(QLatin1Char('&'));
        if (mark >= 0)
            letters += text.mid(mark + 1, 1).toLower().toStdString();
    }
    return letters;
}

template <typename Visit>
void forEachMenu(std::span<const MenuItem> items, const Visit& visit) {
    visit(items);
    for (const MenuItem& item : items) {
        if (item.title != nullptr)
            forEachMenu(item.items, visit);
    }
}

class Commands : public Program {
protected:
    /// What somebody would take as things stand.
    [[nodiscard]] Ids taken() {
        std::vector<CommandTarget*> chain = app_.mainFrame().commandTargets();
        chain.push_back(&app_.mainFrame().paletteBar());
        chain.push_back(&app_.mainFrame().printing());
        chain.push_back(&app_);
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
    void openImage() {
        openAttached(texels(8, 8, [](int, int) { return 0U; }), 8, 256);
    }
};

TEST_F(Commands, AreTakenByAnObjectOfTheProgram) {
    Ids ids = taken();
    openImage();
    ids.merge(taken());
    openProject();
    ids.merge(taken());
    EXPECT_EQ(without(everyCommand(), ids), kTakenByNobody);
}

TEST_F(Commands, AreEnabledWhereTheyCanDoSomething) {
    expectEnabled(kAlwaysEnabled);
    openImage();
    Ids expected = kAlwaysEnabled;
    expected.insert(kEnabledWithImage.begin(), kEnabledWithImage.end());
    expectEnabled(expected);
}

TEST_F(Commands, StandInAMenuAndShowTheirPromptAndToolTip) {
    Ids inMenus;
    for (const auto menuBar : {mainMenu(), imageMenu(), projectMenu()}) {
        forEachMenu(menuBar, [&](std::span<const MenuItem> menu) {
            for (const MenuItem& item : menu)
                inMenus.insert(item.id);
        });
    }
    for (const CommandRow& row : commandTable()) {
        EXPECT_TRUE(inMenus.contains(row.id)) << row.id << " is in no menu";
        QAction* const action = app_.mainFrame().commandActions().action(row.id);
        action->showStatusText(&app_.mainFrame());
        EXPECT_EQ(app_.mainFrame().statusBar()->currentMessage().toStdString(), statusText(row));
        EXPECT_TRUE(action->toolTip().startsWith(QString::fromStdString(toolTipText(row)))) << row.id;
    }
}

TEST_F(Commands, OnABarHaveAnIcon) {
    for (const auto bar : {toolBarItems(), viewBarItems(), drawBarItems()}) {
        for (const MenuItem& item : bar)
            EXPECT_TRUE(item.id == 0 || !app_.mainFrame().commandActions().action(item.id)->icon().isNull())
                << item.id;
    }
}

TEST_F(Commands, HaveALetterThatNoOtherOfTheirMenuHas) {
    QTranslator english;
    QTranslator japanese;
    installLanguage(*QCoreApplication::instance(), std::string("ja"));
    EXPECT_TRUE(japanese.load(QStringLiteral(":/translations/dyeworks_ja.qm")));
    installLanguage(*QCoreApplication::instance(), std::string("en"));
    for (const QTranslator* language : {&english, &japanese}) {
        for (const auto menuBar : {mainMenu(), imageMenu(), projectMenu()}) {
            forEachMenu(menuBar, [&](std::span<const MenuItem> menu) {
                const std::string letters = lettersOf(menu, *language);
                EXPECT_EQ(std::set(letters.begin(), letters.end()).size(), letters.size()) << letters;
            });
        }
        for (const auto menu : {CDyeworksView::ContextMenu::Selection, CDyeworksView::ContextMenu::Tools}) {
            const std::string letters = lettersOf(imageContextMenu(menu), *language);
            EXPECT_EQ(std::set(letters.begin(), letters.end()).size(), letters.size()) << letters;
        }
    }
}

} // namespace
} // namespace dyeworks

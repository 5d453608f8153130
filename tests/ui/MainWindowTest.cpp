#include "Program.h"
#include "framework/CommandTable.h"
#include "ui/controls/SwatchGrid.h"

#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolBar>

#include <set>

namespace dyeworks {
namespace {

using MainWindow = Program;

Texels blank() {
    return texels(8, 8, [](int, int) { return 0U; });
}

TEST_F(MainWindow, CommandsAreEnabledWhenTheyCanDoSomething) {
    struct Case {
        CommandId id;
        bool atStart, palette, image, attached;
    };
    const Case cases[] = {
        {ID_FILE_NEW, true, true, true, true},         {ID_FILE_PRINT_SETUP, true, true, true, true},
        {ID_FILE_PRINT, false, false, true, true},     {ID_WINDOW_NEW, false, false, true, true},
        {ID_FILE_OPEN, true, true, true, true},        {ID_PALETTE_OPEN, true, true, true, true},
        {ID_VIEW_STATUS_BAR, true, true, true, true},  {ID_ZOOM_SPECIFY, false, false, false, false},
        {ID_APP_ABOUT, true, true, true, true},        {ID_APP_EXIT, true, true, true, true},
        {ID_PALETTE_SAVE, false, true, true, true},    {ID_PALETTE_SAVE_AS, false, true, true, true},
        {ID_PALETTE_CLOSE, false, true, true, true},   {ID_FILE_SAVE, false, false, true, true},
        {ID_FILE_SAVE_AS, false, false, true, true},   {ID_FILE_CLOSE, false, false, true, true},
        {ID_IMAGE_ATTACH, false, false, true, false},  {ID_TOOL_PEN, false, false, true, true},
        {ID_ZOOM_IN, false, false, true, true},        {ID_ZOOM_OUT, false, false, false, false},
        {ID_VIEW_GRID, false, false, true, true},      {ID_EDIT_UNDO, false, false, false, false},
        {ID_WINDOW_CASCADE, false, false, true, true},
    };
    const auto check = [&](bool Case::*expected, const char* when) {
        for (const Case& c : cases)
            EXPECT_EQ(enabled(c.id), c.*expected) << c.id << " " << when;
    };
    check(&Case::atStart, "at the start");
    fake_.files.putFile("c:\\p.tlf", paletteFile(16, [](int i) { return static_cast<unsigned>(i); }));
    fake_.files.putFile("c:\\a.tmf", imageFile(blank(), 4));
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\p.tlf"));
    check(&Case::palette, "with a palette");
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\a.tmf"));
    check(&Case::image, "with a palette and an image");
    ASSERT_TRUE(run(ID_IMAGE_ATTACH));
    check(&Case::attached, "attached");
}

QStringList titlesOf(const QMenuBar& bar) {
    QStringList titles;
    for (const QAction* top : bar.actions())
        titles += top->text().remove(QLatin1Char('&'));
    return titles;
}

TEST_F(MainWindow, MenusFollowWhatIsActive) {
    const QMenuBar& bar = *app_.mainFrame().menuBar();
    const QStringList empty{QStringLiteral("File"), QStringLiteral("View"), QStringLiteral("Palette"),
                            QStringLiteral("Help")};
    EXPECT_EQ(titlesOf(bar), empty);
    openAttached(blank(), 8, 256);
    EXPECT_EQ(titlesOf(bar).size(), 8);
    EXPECT_EQ(titlesOf(bar).last(), QStringLiteral("Help"));
    // Closed by a command of a menu that goes with the window.
    app_.mainFrame().commandActions().refresh();
    app_.mainFrame().commandActions().action(ID_FILE_CLOSE)->trigger();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(titlesOf(bar), empty);
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\tex\\pic.tmf"));
    EXPECT_EQ(titlesOf(bar).size(), 8);
}

void collect(const QMenu& menu, std::set<const QAction*>& found) {
    std::multiset<QString> letters;
    for (const QAction* item : menu.actions()) {
        found.insert(item);
        if (item->menu() != nullptr)
            collect(*item->menu(), found);
        const qsizetype mark = item->text().indexOf(QLatin1Char('&'));
        if (mark >= 0)
            letters.insert(item->text().mid(mark + 1, 1).toLower());
    }
    for (const QString& letter : letters)
        EXPECT_EQ(letters.count(letter), 1U) << qPrintable(menu.title()) << " " << qPrintable(letter);
}

TEST_F(MainWindow, EveryCommandStandsInAMenuWithAMnemonicOfItsOwnAndShowsItsPrompt) {
    openAttached(blank(), 8, 256);
    std::set<const QAction*> inMenus;
    for (const QAction* top : app_.mainFrame().menuBar()->actions())
        collect(*top->menu(), inMenus);
    for (const CommandRow& row : commandTable()) {
        QAction* action = app_.mainFrame().commandActions().action(row.id);
        EXPECT_EQ(inMenus.count(action), 1U) << row.id;
        action->showStatusText(&app_.mainFrame());
        EXPECT_EQ(app_.mainFrame().statusBar()->currentMessage().toStdString(), statusText(row));
    }
}

TEST_F(MainWindow, PanesFollowTheImage) {
    QLabel* position = app_.mainFrame().findChild<QLabel*>(QStringLiteral("ID_INDICATOR_POSITION"));
    QLabel* size = app_.mainFrame().findChild<QLabel*>(QStringLiteral("ID_INDICATOR_SIZE"));
    EXPECT_EQ(position->text(), QStringLiteral("(0, 0)"));
    EXPECT_EQ(size->text(), QStringLiteral("(0, 0) 4bit"));
    openAttached(texels(20, 9, [](int, int) { return 0U; }), 8, 256);
    EXPECT_EQ(size->text(), QStringLiteral("(20, 9) 8bit"));
    run(ID_ZOOM_X4);
    drag({{12, 3}});
    EXPECT_EQ(position->text(), QStringLiteral("(12, 3) 400%"));
    EXPECT_EQ(app_.mainFrame().windowTitle(), QStringLiteral("Orrery Dyeworks - pic.tmf [pic] * "));
    fake_.messages.answerWith(MessageAnswer::No);
    run(ID_FILE_CLOSE);
    EXPECT_EQ(size->text(), QString());
    EXPECT_EQ(app_.mainFrame().windowTitle(), QStringLiteral("Orrery Dyeworks"));
}

TEST_F(MainWindow, ThePanelListsPalettesAndChoosesTheCurrentOne) {
    fake_.files.putFile("c:\\b.tlf", paletteFile(16, [](int) { return 1U; }));
    fake_.files.putFile("c:\\a.tlf", paletteFile(256, [](int) { return 2U; }));
    ASSERT_TRUE(app_.OpenFiles({"c:\\b.tlf", "c:\\a.tlf"}, false));
    auto* palettes = app_.mainFrame().findChild<QComboBox*>(QStringLiteral("IDC_PALETTE_TABS"));
    auto* grid = app_.mainFrame().findChild<SwatchGrid*>(QStringLiteral("IDC_PALETTE_GRID"));
    auto* entry = app_.mainFrame().findChild<QLabel*>(QStringLiteral("IDC_PALETTE_ENTRY"));
    ASSERT_EQ(palettes->count(), 2);
    EXPECT_EQ(palettes->currentText(), QStringLiteral("a"));
    EXPECT_EQ(grid->cellCount(), 256);
    palettes->setFocus();
    QTest::keyClick(palettes, Qt::Key_Down);
    EXPECT_EQ(app_.paletteSet()->currentKey, "c:\\b.tlf");
    EXPECT_EQ(grid->cellCount(), 16);
    EXPECT_EQ(palettes->toolTip(), QStringLiteral("c:\\b.tlf"));

    QTest::mouseClick(grid, Qt::LeftButton, {}, grid->cellRect(6).center());
    EXPECT_EQ(app_.paletteBarCell(), 6);
    EXPECT_EQ(entry->text(), QStringLiteral("6  #0001  R0 G0 B0 A1"));
    QTest::keyClick(grid, Qt::Key_Down);
    EXPECT_EQ(app_.paletteBarCell(), 10);
    QTest::keyClick(grid, Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(grid, Qt::Key_Left);
    EXPECT_EQ(app_.paletteBarCell(), 0);
}

TEST_F(MainWindow, AttachingAnImageOfSixteenColoursOffersItsBank) {
    fake_.files.putFile("c:\\p.tlf", paletteFile(256, [](int) { return 1U; }));
    fake_.files.putFile("c:\\a.tmf", imageFile(blank(), 4));
    ASSERT_TRUE(app_.OpenFiles({"c:\\p.tlf", "c:\\a.tmf"}, false));
    auto* bank = app_.mainFrame().findChild<QWidget*>(QStringLiteral("IDC_PALETTE_NUMBER"));
    EXPECT_FALSE(bank->isVisible());
    ASSERT_TRUE(run(ID_IMAGE_ATTACH));
    EXPECT_TRUE(bank->isVisible());
    ASSERT_TRUE(bank->setProperty("value", 2));
    EXPECT_EQ(image().paletteValue(), 32);
    auto* grid = app_.mainFrame().findChild<SwatchGrid*>(QStringLiteral("IDC_PALETTE_GRID"));
    QTest::mouseClick(grid, Qt::LeftButton, {}, grid->cellRect(5 * 16 + 3).center());
    EXPECT_EQ(image().paletteValue(), 80) << "a cell of another row selects its bank";
    // A palette that the image is not attached to has no bank of it.
    fake_.files.putFile("c:\\q.tlf", paletteFile(256, [](int) { return 1U; }));
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\q.tlf"));
    EXPECT_FALSE(bank->isVisible());
    EXPECT_EQ(app_.paletteBarFirstEntry(), 0);
    app_.paletteSet()->setCurrent("c:\\p.tlf");
    app_.refreshPaletteBar();
    EXPECT_EQ(app_.paletteBarFirstEntry(), 80);
}

TEST_F(MainWindow, PlacesOfBarsSurviveARestart) {
    auto* panel = &app_.mainFrame().palettePanel();
    app_.mainFrame().addDockWidget(Qt::LeftDockWidgetArea, panel);
    ASSERT_TRUE(run(ID_VIEW_DRAWBAR));
    ASSERT_TRUE(run(ID_VIEW_STATUS_BAR));
    ASSERT_TRUE(app_.mainFrame().close());
    CDyeworksApp again;
    EXPECT_EQ(again.mainFrame().dockWidgetArea(&again.mainFrame().palettePanel()), Qt::LeftDockWidgetArea);
    EXPECT_TRUE(again.mainFrame().findChild<QToolBar*>(QStringLiteral("ID_VIEW_DRAWBAR"))->isHidden());
    EXPECT_TRUE(again.mainFrame().statusBar()->isHidden());
    setApplicationPaletteSet(app_.paletteSet());
}

} // namespace
} // namespace dyeworks

#include "Program.h"

#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHelpEvent>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QToolButton>
#include <QToolTip>
#include <QUrl>
#include <QWindow>

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
    const QStringList empty{QStringLiteral("File"),    QStringLiteral("Edit"),    QStringLiteral("View"),
                            QStringLiteral("Palette"), QStringLiteral("Project"), QStringLiteral("Help")};
    EXPECT_EQ(titlesOf(bar), empty);
    openAttached(blank(), 8, 256);
    EXPECT_EQ(titlesOf(bar).size(), 9);
    EXPECT_EQ(titlesOf(bar).last(), QStringLiteral("Help"));
    // Closed by a command of a menu that goes with the window.
    app_.mainFrame().commandActions().refresh();
    app_.mainFrame().commandActions().action(ID_FILE_CLOSE)->trigger();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(titlesOf(bar), empty);
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\tex\\pic.tmf"));
    EXPECT_EQ(titlesOf(bar).size(), 9);
}

TEST_F(MainWindow, PanesFollowTheImage) {
    QLabel* position = app_.mainFrame().findChild<QLabel*>(QStringLiteral("ID_INDICATOR_POSITION"));
    QLabel* size = app_.mainFrame().findChild<QLabel*>(QStringLiteral("ID_INDICATOR_SIZE"));
    EXPECT_EQ(position->text(), QStringLiteral("(0, 0)"));
    EXPECT_EQ(size->text(), QStringLiteral("(0, 0) 4bit"));
    openAttached(texels(20, 9, [](int, int) { return 0U; }), 8, 256);
    EXPECT_EQ(size->text(), QStringLiteral("(20, 9) 8bit"));
    run(ID_ZOOM_X4);
    run(ID_TOOL_PEN);
    drag({{12, 3}});
    EXPECT_EQ(position->text(), QStringLiteral("(12, 3) 400%"));
    EXPECT_EQ(app_.mainFrame().windowTitle(), QStringLiteral("Orrery Dyeworks - pic.tmf [pic] * "));
    fake_.messages.answerWith(MessageAnswer::No);
    run(ID_FILE_CLOSE);
    EXPECT_EQ(size->text(), QString());
    EXPECT_EQ(app_.mainFrame().windowTitle(), QStringLiteral("Orrery Dyeworks"));
}

TEST_F(MainWindow, FilesAreDroppedAsCopiesEvenWhenTheyAreMoved) {
    fake_.files.putFile("c:\\a.tmf", imageFile(texels(4, 4, [](int, int) { return 1U; }), 4));
    QMimeData files;
    files.setUrls({QUrl::fromLocalFile(QString::fromStdString(fake_.files.hostPath("c:\\a.tmf")))});
    QDragEnterEvent enter({10, 10}, Qt::CopyAction | Qt::MoveAction, &files, Qt::LeftButton,
                          Qt::ShiftModifier);
    enter.setDropAction(Qt::MoveAction);
    QCoreApplication::sendEvent(&app_.mainFrame(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    EXPECT_EQ(enter.dropAction(), Qt::CopyAction);
    QDropEvent drop({10, 10}, Qt::CopyAction | Qt::MoveAction, &files, Qt::LeftButton, Qt::ShiftModifier);
    drop.setDropAction(Qt::MoveAction);
    QCoreApplication::sendEvent(&app_.mainFrame(), &drop);
    EXPECT_TRUE(drop.isAccepted());
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction);
    EXPECT_NE(app_.mainFrame().activeImageView(), nullptr);
}

TEST_F(MainWindow, TheProjectBarOffersThePicturesOfTheOpenProject) {
    CMainFrame& frame = app_.mainFrame();
    auto* list = frame.findChild<QComboBox*>(QStringLiteral("IDC_PICTURE_LIST"));
    auto* button = frame.findChild<QToolButton*>(QStringLiteral("IDC_PICTURE_BUTTON"));
    const auto tip = [](QWidget& widget) {
        QHelpEvent help(QEvent::ToolTip, {1, 1}, widget.mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(&widget, &help);
        return QToolTip::text();
    };
    const auto expectNone = [&](const char* when) {
        EXPECT_FALSE(list->isEnabled()) << when;
        EXPECT_EQ(list->currentText(), QStringLiteral("(no picture)")) << when;
        EXPECT_FALSE(button->isEnabled()) << when;
        EXPECT_EQ(button->text(), QStringLiteral("(no picture)")) << when;
        EXPECT_EQ(app_.currentPicture(), "") << when;
        EXPECT_FALSE(enabled(1045)) << when;
    };
    expectNone("without a project");
    EXPECT_EQ(tip(*list), QStringLiteral("Project is not open yet."));

    openProject().setTitle(std::string(200, 'x'));
    expectNone("without pictures");
    EXPECT_EQ(tip(*button).size(), 127);
    ASSERT_TRUE(app_.CloseProject());
    CTPFDocument& project = openProject({"Picture1", "A & B", "Picture10"});
    EXPECT_TRUE(list->isEnabled());
    EXPECT_EQ(list->itemText(1), QStringLiteral("A & B")) << "in the project's order";
    EXPECT_EQ(app_.currentPicture(), "Picture10") << "the last one";
    frame.SelectPicture("Picture1");
    EXPECT_EQ(app_.currentPicture(), "Picture1");
    EXPECT_TRUE(enabled(1045));
    frame.SelectPicture("Picture");
    EXPECT_EQ(list->currentText(), QStringLiteral("Picture1"));
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(button->accessibleName(), QStringLiteral("A & B.tmf + A & B.tlf (2)"));
    EXPECT_TRUE(button->text().contains(QStringLiteral("A && B"))) << "no mnemonic";
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(fake_.messages.lastText(), "\"A & B.tmf\" is not found.");
    EXPECT_FALSE(project.isModified());

    ASSERT_TRUE(app_.CloseProject());
    expectNone("after it was closed");
}

TEST_F(MainWindow, TheTitleNamesTheProjectBeforeTheImage) {
    CTPFDocument& project = openProject();
    openAttached(blank(), 8, 256);
    EXPECT_EQ(app_.mainFrame().windowTitle(), QStringLiteral("Orrery Dyeworks @ sea.tpf - pic.tmf [pic]"));
    project.setPathName("c:\\proj\\lake[*].tpf");
    project.setModified(true);
    EXPECT_EQ(app_.mainFrame().windowHandle()->title(),
              QStringLiteral("Orrery Dyeworks @ lake[*].tpf * - pic.tmf [pic]"));
}

} // namespace
} // namespace dyeworks

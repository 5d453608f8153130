#include "Program.h"

#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QMenuBar>
#include <QToolButton>
#include <QToolTip>
#include <QWindow>

namespace dyeworks {
namespace {

using MainWindow = Program;

QStringList titlesOf(const QMenuBar& bar) {
    QStringList titles;
    for (const QAction* top : bar.actions())
        titles += top->text().remove('&');
    return titles;
}

TEST_F(MainWindow, MenusFollowWhatIsActive) {
    const QMenuBar& bar = *frame().menuBar();
    const QStringList empty{"File", "Edit", "View", "Palette", "Project", "Help"};
    EXPECT_EQ(titlesOf(bar), empty);
    openBlank();
    EXPECT_EQ(titlesOf(bar).size(), 9);
    EXPECT_EQ(titlesOf(bar).last(), "Help");
    // Closed by a command of a menu that goes with the window.
    frame().commandActions().refresh();
    frame().commandActions().action(ID_FILE_CLOSE)->trigger();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(titlesOf(bar), empty);
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\tex\\pic.tmf"));
    EXPECT_EQ(titlesOf(bar).size(), 9);
}

TEST_F(MainWindow, PanesFollowTheImage) {
    QLabel* position = frame().findChild<QLabel*>("ID_INDICATOR_POSITION");
    QLabel* size = frame().findChild<QLabel*>("ID_INDICATOR_SIZE");
    EXPECT_EQ(position->text(), "(0, 0)");
    EXPECT_EQ(size->text(), "(0, 0) 4bit");
    openAttached(texels(20, 9, [](int, int) { return 0U; }), 8, 256);
    EXPECT_EQ(size->text(), "(20, 9) 8bit");
    run(ID_ZOOM_X4);
    run(ID_TOOL_PEN);
    drag({{12, 3}});
    EXPECT_EQ(position->text(), "(12, 3) 400%");
    EXPECT_EQ(frame().windowTitle(), "Orrery Dyeworks - pic.tmf [pic] * ");
    fake_.messages.answerWith(MessageAnswer::No);
    run(ID_FILE_CLOSE);
    EXPECT_EQ(size->text(), QString());
    EXPECT_EQ(frame().windowTitle(), "Orrery Dyeworks");
}

TEST_F(MainWindow, TheProjectBarOffersThePicturesOfTheOpenProject) {
    auto* list = frame().findChild<QComboBox*>("IDC_PICTURE_LIST");
    auto* button = frame().findChild<QToolButton*>("IDC_PICTURE_BUTTON");
    const auto tip = [](QWidget& widget) {
        QHelpEvent help(QEvent::ToolTip, {1, 1}, widget.mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(&widget, &help);
        return QToolTip::text();
    };
    const auto expectNone = [&](const char* when) {
        SCOPED_TRACE(when);
        EXPECT_FALSE(list->isEnabled() || button->isEnabled() || enabled(1045));
        EXPECT_EQ(list->currentText(), "(no picture)");
        EXPECT_EQ(button->text(), "(no picture)");
        EXPECT_EQ(app_.currentPicture(), "");
    };
    expectNone("without a project");
    EXPECT_EQ(tip(*list), "Project is not open yet.");

    openProject().setTitle(std::string(200, 'x'));
    expectNone("without pictures");
    EXPECT_EQ(tip(*button).size(), 127);
    ASSERT_TRUE(app_.CloseProject());
    CTPFDocument& project = openProject({"Picture1", "A & B", "Picture10"});
    EXPECT_TRUE(list->isEnabled());
    EXPECT_EQ(list->itemText(1), "A & B") << "in the project's order";
    EXPECT_EQ(app_.currentPicture(), "Picture10") << "the last one";
    frame().SelectPicture("Picture1");
    EXPECT_EQ(app_.currentPicture(), "Picture1");
    EXPECT_TRUE(enabled(1045));
    frame().SelectPicture("Picture");
    EXPECT_EQ(list->currentText(), "Picture1");
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(button->accessibleName(), "A & B.tmf + A & B.tlf (2)");
    EXPECT_TRUE(button->text().contains("A && B")) << "no mnemonic";
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(fake_.messages.lastText(), "\"A & B.tmf\" is not found.");
    EXPECT_FALSE(project.isModified());

    ASSERT_TRUE(app_.CloseProject());
    expectNone("after it was closed");
}

TEST_F(MainWindow, TheTitleNamesTheProjectBeforeTheImage) {
    CTPFDocument& project = openProject();
    openBlank();
    EXPECT_EQ(frame().windowTitle(), "Orrery Dyeworks @ sea - pic.tmf [pic]");
    project.setPathName("c:\\proj\\lake[*].tpf");
    project.setModified(true);
    EXPECT_EQ(frame().windowHandle()->title(), "Orrery Dyeworks @ lake[*] * - pic.tmf [pic]");
}

} // namespace
} // namespace dyeworks

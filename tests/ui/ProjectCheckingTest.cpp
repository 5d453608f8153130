#include "Program.h"
#include "ui/FindingsDock.h"

#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTreeWidget>

namespace dyeworks {
namespace {

class ProjectChecks : public Program {
protected:
    QTreeWidget& list() { return *frame().findings().findChild<QTreeWidget*>("IDC_FINDINGS"); }
    QPushButton& button(const char* name) { return *frame().findings().findChild<QPushButton*>(name); }
    /// Lets the program run until the list takes the place of the notice, or the other way round.
    bool waitForTheOther() {
        QSignalSpy turned(frame().findings().findChild<QStackedWidget*>(), &QStackedWidget::currentChanged);
        return turned.wait();
    }
    void put(const std::string& name, unsigned value) {
        const auto colour = [value](int, int) { return value; };
        fake_.files.putFile("c:\\proj\\new\\" + name + ".tmf", imageFile(texels(4, 4, colour), 4));
        fake_.files.putFile("c:\\proj\\new\\" + name + ".tlf", paletteFile(256, [value](int entry) {
                                return static_cast<unsigned>(entry) + value;
                            }));
    }
};

TEST_F(ProjectChecks, LeadFromOneMissingFileToAllAndBack) {
    put("a", 1);
    put("b", 2);
    CTPFDocument& project = openProject({"a", "b"});
    EXPECT_FALSE(enabled(ID_PROJECT_REVERT_CHECK));
    ASSERT_TRUE(run(ID_PROJECT_CHECK));
    ASSERT_TRUE(waitForTheOther());
    ASSERT_EQ(list().topLevelItemCount(), 4);
    EXPECT_EQ(list().topLevelItem(3)->text(2).toStdString(), "Picture b");

    QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                      list().visualItemRect(list().topLevelItem(3)).center());
    EXPECT_EQ(app_.currentProject().picture(), "b");
    EXPECT_FALSE(button("IDC_PROJECT_ADD").isEnabled());
    const std::string chosen = project.paletteDirectory() + "\\new\\b.tlf";
    fake_.dialogs.answerWith(chosen);
    withNextDialog([](QDialog& sheet) {
        auto& rows = *sheet.findChild<QTreeWidget*>("IDC_CHECK_LIST");
        EXPECT_EQ(rows.topLevelItemCount(), 4);
        auto& ok = *sheet.findChild<QPushButton*>("IDOK");
        sheet.findChild<QPushButton*>("IDC_CHECK_NONE")->click();
        EXPECT_FALSE(ok.isEnabled());
        sheet.findChild<QPushButton*>("IDC_CHECK_ALL")->click();
        ok.click();
    });
    button("IDC_PROJECT_RELINK").click();
    ASSERT_TRUE(waitForTheOther());
    EXPECT_EQ(project.FilesOf("a").image, "c:\\proj\\new\\a.tmf");
    EXPECT_EQ(frame().findings().findChild<QLabel*>("IDC_PROJECT_CHECK_STATE")->text().toStdString(),
              "Nothing is wrong with the project.");

    ASSERT_TRUE(run(ID_PROJECT_REVERT_CHECK));
    ASSERT_TRUE(waitForTheOther());
    EXPECT_EQ(app_.router().state(ID_PROJECT_REVERT_CHECK).text, "Repea&t Changes of Check");
    ASSERT_TRUE(project.save());
    ASSERT_TRUE(run(ID_PROJECT_CLOSE));
    ASSERT_TRUE(waitForTheOther()) << "what was found in it goes with it";
}

TEST_F(ProjectChecks, TakeAnUnusedFileInAndAPictureOutWithoutAskingForMore) {
    put("a", 1);
    CTPFDocument& project = openProject({"gone"});
    ASSERT_TRUE(run(ID_PROJECT_CHECK));
    ASSERT_TRUE(waitForTheOther());
    list().setCurrentItem(list().topLevelItem(list().topLevelItemCount() - 1));
    button("IDC_PROJECT_ADD").click();
    EXPECT_THAT(project.pictureNames(), ElementsAre("gone", "a"));
    list().setCurrentItem(list().topLevelItem(0));
    button("IDC_PROJECT_REMOVE").click();
    EXPECT_THAT(project.pictureNames(), ElementsAre("a"));
    ASSERT_TRUE(waitForTheOther());
    ASSERT_TRUE(run(ID_PROJECT_REVERT_CHECK));
    EXPECT_THAT(project.pictureNames(), ElementsAre("gone"));
}

} // namespace
} // namespace dyeworks

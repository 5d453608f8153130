#include "Program.h"
#include "framework/widgets/IntegerField.h"
#include "project/TextureRules.h"
#include "ui/FindingsDock.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTreeWidget>

namespace dyeworks {
namespace {

class Findings : public Program {
protected:
    QTreeWidget& list() { return *frame().findings().findChild<QTreeWidget*>("IDC_FINDINGS"); }
    /// Lets the program run until the list takes the place of the notice, or the other way round.
    bool waitForTheOther() {
        QSignalSpy turned(frame().findings().findChild<QStackedWidget*>(), &QStackedWidget::currentChanged);
        return turned.wait();
    }
    /// The only row in words.
    std::string row() {
        if (list().topLevelItemCount() != 1)
            return std::to_string(list().topLevelItemCount()) + " rows";
        std::string words;
        for (int column = 0; column < list().columnCount(); ++column)
            words += (column == 0 ? "" : ": ") + list().topLevelItem(0)->text(column).toStdString();
        return words;
    }
    QPushButton& button(const char* name) { return *frame().findings().findChild<QPushButton*>(name); }
    void put(const std::string& name, unsigned value) {
        const auto colour = [value](int, int) { return value; };
        fake_.files.putFile("c:\\proj\\new\\" + name + ".tmf", imageFile(texels(4, 4, colour), 4));
        fake_.files.putFile("c:\\proj\\new\\" + name + ".tlf", paletteFile(256, [value](int entry) {
                                return static_cast<unsigned>(entry) + value;
                            }));
    }
};
using FindingsOfRules = Findings;
using ProjectChecks = Findings;

TEST_F(FindingsOfRules, ComeWithAnEditLeadToItsPlaceAndGoWithItsUndo) {
    openBlank();
    TextureLookupTable& palette = *app_.paletteSet()->lookup("");
    palette.setAlpha(0, 0);
    TextureRules rules;
    rules.blockColours = {1, 4};
    rules.firstEntryTransparent = true;
    setDefaultRules(rules);
    ASSERT_TRUE(run(ID_VIEW_FINDINGS));
    drawPixel({5, 6}, 3);
    ASSERT_TRUE(waitForTheOther());
    EXPECT_EQ(row(), "pic.tmf: Colours of a block: Texels 4, 4 to 7, 7: 2 colours, at most 1");
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                      list().visualItemRect(list().topLevelItem(0)).center());
    EXPECT_EQ(view().view().selection().texels(), (Rect{4, 4, 7, 7}));
    ASSERT_TRUE(run(ID_EDIT_UNDO));
    ASSERT_TRUE(waitForTheOther());

    ASSERT_TRUE(palette.beginEdit() && palette.setAlpha(0, 1) && palette.commitEdit());
    frame().SelectPaletteBarCell(9);
    ASSERT_TRUE(waitForTheOther());
    EXPECT_EQ(row(), "pic.tmf: First entry transparent: Entry 0: Its alpha is 1, not 0");
    list().setCurrentItem(list().topLevelItem(0));
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(frame().GetPaletteBarCell(), 0);
    ASSERT_TRUE(palette.undo());
    ASSERT_TRUE(waitForTheOther());
}

TEST_F(FindingsOfRules, FollowTheRulesOfTheSheet) {
    CTPFDocument& project = openProject({"pic"});
    putImages(fake_, {"c:\\proj\\pic.tmf"});
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\proj\\pic.tmf"));
    ASSERT_TRUE(run(ID_VIEW_FINDINGS));
    withNextDialog([](QDialog& sheet) {
        auto& ok = *sheet.findChild<QPushButton*>("IDOK");
        auto& most = *sheet.findChild<IntegerField*>("IDC_RULE_TEXEL_BYTES");
        most.setValue(0);
        EXPECT_TRUE(ok.isEnabled()) << "of a rule that is off";
        sheet.findChild<QCheckBox*>("IDC_RULE_LIMITS_TEXELS")->click();
        EXPECT_FALSE(ok.isEnabled());
        most.setValue(7);
        EXPECT_TRUE(ok.isEnabled());
        ok.click();
    });
    ASSERT_TRUE(run(ID_PROJECT_RULES));
    EXPECT_TRUE(project.isModified());
    ASSERT_TRUE(waitForTheOther());
    EXPECT_EQ(row(), "pic.tmf: Bytes of the texels: Whole image: 8 bytes, at most 7");
    ASSERT_TRUE(project.RemovePicture("pic"));
    ASSERT_TRUE(waitForTheOther()) << "the default rules, of which there are none";
}

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

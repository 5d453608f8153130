#include "Program.h"
#include "framework/widgets/IntegerField.h"
#include "project/TextureRules.h"
#include "ui/FindingsDock.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTreeWidget>

namespace dyeworks {
namespace {

class FindingsOfRules : public Program {
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
};

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

} // namespace
} // namespace dyeworks

#include "platform/fake/FakePlatform.h"
#include "ui/sheets/CIaPaletteDialog.h"
#include "ui/sheets/CRgbaPaletteDialog.h"
#include "ui/sheets/ColourControls.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace dyeworks {
namespace {

class EntryDialogs : public testing::Test {
protected:
    EntryDialogs() {
        gradientEnds() = {};
        show(rgba_, 0xFFFF);
    }
    void show(EntryDialog& dialog, std::uint16_t entry) {
        dialog_ = &dialog;
        dialog.SetValue(entry);
        dialog.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    }
    template <typename Widget>
    Widget& find(const std::string& name) {
        return *dialog_->findChild<Widget*>(QString::fromStdString(name));
    }
    std::string shown(const std::string& name) { return find<QLineEdit>(name).text().toStdString(); }
    int thumb(const std::string& name) { return find<ColourScrollBar>(name).value(); }
    void scroll(const std::string& name, QAbstractSlider::SliderAction action) {
        find<ColourScrollBar>(name).triggerAction(action);
    }
    void type(const std::string& name, const char* text) {
        auto& edit = find<QLineEdit>(name);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, QString::fromLatin1(text));
    }
    void press(const std::string& name) { find<QAbstractButton>(name).click(); }
    void key(const std::string& name, Qt::Key key) { QTest::keyClick(&find<QWidget>(name), key); }
    QColor swatch() { return find<ColourPatch>("IDC_SWATCH").colour(); }
    QColor step(int index) { return find<ColourButton>("IDC_GRADIENT_" + std::to_string(index)).colour(); }

    FakePlatform fake_;
    CRgbaPaletteDialog rgba_;
    CIaPaletteDialog intensity_;
    EntryDialog* dialog_ = nullptr;
};

TEST_F(EntryDialogs, OpensWithTheEntryAndGivesItBack) {
    for (const char* channel : {"RED", "GREEN", "BLUE"}) {
        const std::string name = std::string("IDC_") + channel;
        EXPECT_EQ(shown(name), "31");
        EXPECT_EQ(shown(name + "_HEX"), "1F");
        EXPECT_EQ(thumb(name + "_SCROLL"), 31);
    }
    EXPECT_EQ(shown("IDC_ALPHA"), "1");
    dialog_->SetValue(0x7C5E);
    EXPECT_EQ(shown("IDC_GREEN_HEX"), "11");
    EXPECT_EQ(swatch(), QColor(15 << 3, 17 << 3, 15 << 3));
    EXPECT_EQ(dialog_->GetValue(), 0x7C5E);
}

TEST_F(EntryDialogs, ReplacesNumbersBeyondTheRangeAtOnce) {
    const std::tuple<const char*, const char*, const char*, int> cases[] = {
        {"IDC_RED", "4", "4", 4 << 11},
        {"IDC_RED", "40", "31", 31 << 11},
        {"IDC_GREEN", "007", "7", 7 << 6},
        {"IDC_GREEN", "-5", "0", 0},
        {"IDC_BLUE", "9999999999", "31", 31 << 1},
        {"IDC_ALPHA", "2", "1", 1},
    };
    for (const auto& [edit, typed, expected, entry] : cases) {
        dialog_->SetValue(0);
        type(edit, typed);
        EXPECT_EQ(shown(edit), expected) << typed;
        EXPECT_EQ(thumb(std::string(edit) + "_SCROLL"), std::stoi(expected)) << typed;
        EXPECT_EQ(dialog_->GetValue(), entry) << typed;
    }
    type("IDC_RED", "12");
    type("IDC_RED", "x");
    find<QLineEdit>("IDC_RED").selectAll();
    key("IDC_RED", Qt::Key_Delete);
    EXPECT_EQ(shown("IDC_RED"), "") << "nothing is put into an empty field while it is typed in";
    find<QLineEdit>("IDC_GREEN").setFocus();
    EXPECT_EQ(shown("IDC_RED"), "12");
}

TEST_F(EntryDialogs, ScrollBarsStepAsTabled) {
    using enum QAbstractSlider::SliderAction;
    const std::tuple<QAbstractSlider::SliderAction, int, int> cases[] = {
        {SliderSingleStepSub, 5, 4}, {SliderSingleStepAdd, 5, 6}, {SliderPageStepSub, 5, 3},
        {SliderPageStepAdd, 5, 7},   {SliderToMinimum, 5, 4},     {SliderToMaximum, 5, 6},
        {SliderPageStepSub, 1, 0},   {SliderToMaximum, 31, 31},   {SliderPageStepAdd, 30, 31},
    };
    for (const auto& [action, from, to] : cases) {
        dialog_->SetValue(static_cast<std::uint16_t>(from << 6));
        scroll("IDC_GREEN_SCROLL", action);
        EXPECT_EQ(thumb("IDC_GREEN_SCROLL"), to) << action << " from " << from;
        EXPECT_EQ(shown("IDC_GREEN"), std::to_string(to));
        EXPECT_EQ(dialog_->GetValue(), to << 6);
    }
    scroll("IDC_ALPHA_SCROLL", SliderPageStepAdd);
    EXPECT_EQ(shown("IDC_ALPHA"), "1") << "not 2";

    auto& bar = find<ColourScrollBar>("IDC_BLUE_SCROLL");
    bar.setSliderDown(true);
    bar.setSliderPosition(21);
    EXPECT_EQ(shown("IDC_BLUE_HEX"), "15");
    EXPECT_EQ(dialog_->GetValue() >> 1 & 31, 21);
    QTest::keyClick(&bar, Qt::Key_Home);
    EXPECT_EQ(shown("IDC_BLUE"), "20");
    for (const auto& [key, value] : {std::pair{Qt::Key_Left, "19"}, {Qt::Key_Right, "20"}}) {
        QTest::keyClick(&bar, key);
        EXPECT_EQ(shown("IDC_BLUE"), value);
    }
}

TEST_F(EntryDialogs, GradientEndsOutliveTheDialog) {
    EXPECT_EQ(step(0), QColor(Qt::black));
    EXPECT_EQ(step(31), QColor(248, 248, 248));
    dialog_->SetValue(0xF800);
    press("IDC_GRADIENT_LEFT");
    dialog_->SetValue(0x003F);
    press("IDC_GRADIENT_RIGHT");
    EXPECT_EQ(step(0), QColor(248, 0, 0));
    EXPECT_EQ(step(30), QColor(1 << 3, 0, 29 << 3));
    press("IDC_GRADIENT_30");
    EXPECT_EQ(dialog_->GetValue(), 1 << 11 | 29 << 1 | 1) << "alpha stays";
    EXPECT_EQ(shown("IDC_BLUE_HEX"), "1D");

    CRgbaPaletteDialog next;
    dialog_ = &next;
    EXPECT_EQ(step(0), QColor(248, 0, 0));
}

TEST_F(EntryDialogs, WorksFromTheKeyboard) {
    EXPECT_EQ(dialog_->focusWidget(), &find<QWidget>("IDC_RED"));
    EXPECT_EQ(find<QLineEdit>("IDC_RED").selectedText(), QStringLiteral("31"));
    find<QWidget>("IDC_GRADIENT_0").setFocus();
    key("IDC_GRADIENT_0", Qt::Key_End);
    EXPECT_EQ(dialog_->focusWidget(), &find<QWidget>("IDC_GRADIENT_31"));
    key("IDC_GRADIENT_31", Qt::Key_Left);
    key("IDC_GRADIENT_30", Qt::Key_Space);
    EXPECT_EQ(shown("IDC_RED"), "29");
    key("IDC_GRADIENT_30", Qt::Key_Tab);
    EXPECT_EQ(dialog_->focusWidget(), &find<QWidget>("IDC_GRADIENT_RIGHT")) << "one stop for the whole row";
    key("IDC_GRADIENT_RIGHT", Qt::Key_Return);
    EXPECT_EQ(dialog_->result(), QDialog::Accepted);
    EXPECT_EQ(gradientEnds().right, (Rgb5{31, 31, 31})) << "Enter means OK, not the button";

    dialog_->show();
    key("IDC_RED", Qt::Key_Escape);
    EXPECT_EQ(dialog_->result(), QDialog::Rejected);
    EXPECT_FALSE(dialog_->isVisible());
}

TEST_F(EntryDialogs, EveryControlHasANameAndATip) {
    const QRegularExpression ids(QStringLiteral("^IDC_"));
    for (const QDialog* dialog : {static_cast<QDialog*>(&rgba_), static_cast<QDialog*>(&intensity_)}) {
        for (const QLabel* label : dialog->findChildren<QLabel*>())
            EXPECT_NE(label->buddy(), nullptr);
        for (const QWidget* widget : dialog->findChildren<QWidget*>(ids))
            EXPECT_FALSE(widget->accessibleName().isEmpty() || widget->toolTip().isEmpty())
                << widget->objectName().toStdString();
    }
}

TEST_F(EntryDialogs, IntensityAndAlphaAreEditedOfAnIntensityEntry) {
    show(intensity_, 0x80FF);
    EXPECT_EQ(shown("IDC_INTENSITY"), "128");
    EXPECT_EQ(shown("IDC_ALPHA"), "255");
    EXPECT_EQ(swatch(), QColor(128, 128, 128));
    EXPECT_EQ(dialog_->GetValue(), 0x80FF);
    type("IDC_INTENSITY", "256");
    EXPECT_EQ(shown("IDC_INTENSITY"), "255");
    EXPECT_EQ(swatch(), QColor(Qt::white));
    scroll("IDC_ALPHA_SCROLL", QAbstractSlider::SliderPageStepSub);
    EXPECT_EQ(shown("IDC_ALPHA"), "253");
    scroll("IDC_INTENSITY_SCROLL", QAbstractSlider::SliderToMinimum);
    EXPECT_EQ(dialog_->GetValue(), 0xFEFD);
}

} // namespace
} // namespace dyeworks

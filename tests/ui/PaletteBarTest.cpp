#include "Program.h"
#include "core/PaletteSet.h"
#include "framework/widgets/IntegerField.h"
#include "ui/controls/CRampSlider.h"
#include "ui/controls/CSwatchGrid.h"
#include "ui/palettebar/PaletteBarIds.h"
#include "ui/sheets/CIaPaletteDialog.h"
#include "ui/sheets/ColourControls.h"

#include <QAction>
#include <QCheckBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabBar>
#include <QToolTip>
#include <gmock/gmock.h>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

namespace dyeworks {
namespace {

using testing::ElementsAre;

using Rgb = std::tuple<int, int, int>;

/// The bar in the program, with an image that shows what its palette holds, or seems to hold.
class PaletteBarWindow : public Program {
protected:
    using Program::Program;

    CPaletteBar& bar() { return app_.mainFrame().paletteBar(); }
    template <typename Widget>
    Widget& find(const PaletteBarId& id) {
        return *bar().findChild<Widget*>(QString::fromLatin1(id.name));
    }
    QWidget& gridWindow() { return *find<CSwatchGrid>(IDC_PALETTE_GRID).controlWindow(); }
    QWidget& sliderWindow(const PaletteBarId& id) { return *find<CRampSlider>(id).controlWindow(); }

    /// A palette of 256 entries, all 0, and an image attached to it.
    void open(ColourType type, int bits = 8) {
        fake_.files.putFile("c:\\a.tmf", imageFile(texels(8, 8, [](int, int) { return 0U; }), bits));
        ASSERT_TRUE(app_.paletteSet()->newPalette(256, type, 0));
        for (int i = 0; i < 256; ++i)
            palette().setEntry(i, 0);
        bar().state().RefreshFromPalette();
        ASSERT_TRUE(app_.OpenDocumentFile("c:\\a.tmf"));
        ASSERT_TRUE(run(ID_IMAGE_ATTACH));
        activate(bar());
    }
    /// Gives a window the keys. A tool window counts as active along with its owner, without having them; and
    /// a window manager that is still placing windows passes requests over.
    static void activate(QWidget& window) {
        ASSERT_TRUE(QTest::qWaitFor([&] {
            window.activateWindow();
            return QApplication::activeWindow() == &window;
        }));
    }
    TextureLookupTable& palette() { return *app_.paletteSet()->lookup(""); }
    unsigned stored(int entry) { return palette().table.getEntry(entry); }
    /// Red, green and blue that the image shows for a value.
    Rgb seen(int value) {
        const auto colour = image().canvas().colourTable().subspan(4 * static_cast<std::size_t>(value), 3);
        return {colour[2], colour[1], colour[0]};
    }

    void click(const CSwatchGrid& grid, int cell, bool twice = false) {
        QWidget* const window = grid.controlWindow();
        for (int y = 0; y < window->height(); y += 2) {
            for (int x = 0; x < window->width(); x += 2) {
                if (grid.cellAt(x, y) != cell)
                    continue;
                QTest::mouseClick(window, Qt::LeftButton, {}, {x, y});
                return twice ? QTest::mouseDClick(window, Qt::LeftButton, {}, {x, y}) : void();
            }
        }
        ADD_FAILURE() << "cell " << cell << " is not shown";
    }
    void gridKey(Qt::Key key, Qt::KeyboardModifiers held = {}) { QTest::keyClick(&gridWindow(), key, held); }
    /// Gives the entry to the dialog that comes up next, which must begin with `start`.
    void answerDialog(ColourType type, unsigned start, std::uint16_t entry, int result) {
        withNextDialog([=](QDialog& shown) {
            EXPECT_EQ(qobject_cast<CIaPaletteDialog*>(&shown) != nullptr, type == ColourType::Ia);
            auto& dialog = dynamic_cast<EntryDialog&>(shown);
            EXPECT_EQ(dialog.GetValue(), start);
            dialog.SetValue(entry);
            dialog.done(result);
        });
    }
    void clickCell(int cell, bool twice = false) { click(find<CSwatchGrid>(IDC_PALETTE_GRID), cell, twice); }
    void type(const PaletteBarId& id, const char* text) {
        auto& edit = find<QLineEdit>(id);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, QString::fromLatin1(text));
    }
    std::string shown(const PaletteBarId& id) { return find<QLineEdit>(id).text().toStdString(); }
    void apply() { find<QPushButton>(IDC_APPLY).click(); }
    bool canApply() { return find<QPushButton>(IDC_APPLY).isEnabled(); }
};

TEST_F(PaletteBarWindow, EachWayToEditAnEntryShowsInTheImageAndIsApplied) {
    const auto toTheEnd = [this](PaletteBarId slider) {
        QTest::keyClick(&sliderWindow(slider), Qt::Key_End);
    };
    const auto blueDragged = [this] {
        QWidget& slider = sliderWindow(IDC_BLUE_SLIDER);
        const QPoint end(slider.width() - 1, slider.height() / 2);
        QTest::mousePress(&slider, Qt::LeftButton, {}, slider.rect().center());
        QTest::mouseMove(&slider, end);
        QTest::mouseRelease(&slider, Qt::LeftButton, {}, end);
    };
    const auto blueByTrackbar = [this] {
        find<QSlider>(IDC_BLUE_TRACK).triggerAction(QAbstractSlider::SliderToMaximum);
    };
    const auto fromALeftEnd = [this] {
        type(IDC_ENTRY, "7000");
        find<QPushButton>(IDC_GRADIENT_LEFT).click();
        type(IDC_ENTRY, "0");
        find<QPushButton>(IDC_GRADIENT_RIGHT).click();
        click(find<CSwatchGrid>(IDC_GRADIENT), 0);
    };
    /// Each takes the entry 0 to the value that follows, and the image to the colour.
    const std::tuple<ColourType, std::function<void()>, unsigned, Rgb> ways[] = {
        {ColourType::Rgba, [this] { type(IDC_RED, "31"); }, 0xF800, {248, 0, 0}},
        {ColourType::Rgba, [this] { find<IntegerField>(IDC_GREEN_SPIN).stepBy(2); }, 0x0080, {0, 16, 0}},
        {ColourType::Rgba, blueDragged, 0x003E, {0, 0, 248}},
        {ColourType::Rgba, blueByTrackbar, 0x003E, {0, 0, 248}},
        {ColourType::Rgba, [=] { toTheEnd(IDC_ALPHA_SLIDER); }, 0x0001, {0, 0, 0}},
        {ColourType::Rgba, [this] { click(find<CSwatchGrid>(IDC_GRADIENT), 31); }, 0xFFFE, {248, 248, 248}},
        {ColourType::Rgba, fromALeftEnd, 0x7000, {112, 0, 0}},
        {ColourType::Ia, [=] { toTheEnd(IDC_RED_SLIDER); }, 0xFF00, {255, 255, 255}},
        {ColourType::Ia, [this] { type(IDC_ALPHA, "16"); }, 0x0010, {0, 0, 0}},
    };
    for (const auto& [colours, edit, entry, colour] : ways) {
        open(colours);
        clickCell(37);
        edit();
        EXPECT_EQ(seen(37), colour) << entry;
        apply();
        EXPECT_EQ(stored(37), entry);
    }
}

TEST_F(PaletteBarWindow, TheDialogStartsWithWhatIsEditedAndWritesOnOk) {
    for (const ColourType colours : {ColourType::Rgba, ColourType::Ia}) {
        open(colours);
        for (const int result : {QDialog::Rejected, QDialog::Accepted}) {
            answerDialog(colours, 0, 0x2A10, result);
            clickCell(9, true);
            EXPECT_EQ(stored(9), result == QDialog::Accepted ? 0x2A10U : 0U);
        }
        type(IDC_ENTRY, "1110");
        answerDialog(colours, 0x1110, 0xABCC, QDialog::Accepted);
        ASSERT_TRUE(run(ID_PALETTE_EDIT));
        EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == &bar(); }));
        EXPECT_TRUE(find<QLineEdit>(IDC_ENTRY).hasFocus());
        EXPECT_EQ(seen(9), colours == ColourType::Rgba ? Rgb(168, 120, 48) : Rgb(0xAB, 0xAB, 0xAB));
        ASSERT_TRUE(run(ID_PALETTE_UNDO));
        EXPECT_EQ(stored(9), 0x2A10U);
    }
}

TEST_F(PaletteBarWindow, ASavedFileHoldsTheEntriesAsTheyWereEditedAndPasted) {
    const auto fileWith = [](const std::map<int, unsigned>& edited) {
        return paletteFile(16, [&](int i) {
            return edited.contains(i) ? edited.at(i) : static_cast<unsigned>(i) * 0x1111U;
        });
    };
    fake_.files.putFile("c:\\a.tlf", fileWith({}));
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\a.tlf"));
    clickCell(5);
    type(IDC_ENTRY, "abcd");
    apply();
    clickCell(6);
    gridKey(Qt::Key_Left, Qt::ShiftModifier);
    gridKey(Qt::Key_C, Qt::ControlModifier);
    clickCell(13);
    gridKey(Qt::Key_Left, Qt::ShiftModifier);
    gridKey(Qt::Key_V, Qt::ControlModifier);
    gridKey(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(stored(12), 0xCCCCU);
    ASSERT_TRUE(run(ID_PALETTE_REDO) && run(ID_PALETTE_SAVE));
    EXPECT_EQ(fake_.files.textOf("c:\\a.tlf"), fileWith({{5, 0xABCD}, {12, 0xABCD}, {13, 0x6666}}));
}

TEST_F(PaletteBarWindow, ABankIsChosenByCellSpinAndTyping) {
    open(ColourType::Rgba, 4);
    auto& spin = find<IntegerField>(IDC_PALETTE_NUMBER_SPIN);
    for (int i = 0; i < 256; ++i)
        palette().setRed(i, i / 16);
    clickCell(5 * 16 + 9);
    EXPECT_EQ(seen(0), Rgb(40, 0, 0));
    EXPECT_EQ(shown(IDC_PALETTE_NUMBER), "5");
    spin.setFocus();
    QTest::keyClick(&spin, Qt::Key_Up);
    EXPECT_EQ(image().paletteValue(), 96);
    EXPECT_EQ(app_.imageHost().paletteBarCell(), 6 * 16 + 9);
    frame().SetPaletteBarNumber(3);
    EXPECT_EQ(seen(0), Rgb(24, 0, 0));
    type(IDC_PALETTE_NUMBER, "99");
    EXPECT_EQ(shown(IDC_PALETTE_NUMBER), "15");
    EXPECT_EQ(seen(0), Rgb(120, 0, 0));

    // A palette that the image is not attached to has no bank of it.
    ASSERT_TRUE(app_.paletteSet()->newPalette(256, ColourType::Rgba, 0));
    EXPECT_FALSE(spin.isEnabled());
    EXPECT_EQ(app_.imageHost().paletteBarFirstEntry(), 0);
    QTest::keyClick(&find<QTabBar>(IDC_PALETTE_TABS), Qt::Key_Left);
    EXPECT_EQ(app_.imageHost().paletteBarFirstEntry(), 240);
    ASSERT_TRUE(run(ID_FILE_CLOSE));
    EXPECT_FALSE(spin.isEnabled()) << "no image shows it";
}

TEST_F(PaletteBarWindow, APreviewStaysForAnotherWindowAndEndsWithItsCause) {
    open(ColourType::Rgba);
    const CDyeworksDoc& first = image();
    const auto red = [&] { return first.canvas().colourTable()[20 * 4 + 2]; };
    fake_.files.putFile("c:\\b.tmf", imageFile(texels(8, 8, [](int, int) { return 0U; }), 8));
    const std::function<void()> causes[] = {
        [this] { find<QCheckBox>(IDC_PREVIEW).click(); },
        [this] { QTest::keyClick(&find<QLineEdit>(IDC_ENTRY), Qt::Key_Escape); },
        [this] { bar().close(); },
        [this] { ASSERT_TRUE(app_.OpenDocumentFile("c:\\b.tmf")); },
    };
    for (const auto& end : causes) {
        bar().setShown(true);
        find<QCheckBox>(IDC_PREVIEW).setChecked(true);
        app_.imageHost().selectPaletteBarCell(20);
        type(IDC_ENTRY, "F800");
        activate(app_.mainFrame());
        activate(bar());
        EXPECT_EQ(red(), 248);
        end();
        EXPECT_EQ(red(), 0);
    }
}

TEST_F(PaletteBarWindow, AValueOutOfRangeIsRefusedAndLeftBehind) {
    open(ColourType::Rgba);
    clickCell(3);
    type(IDC_GREEN, "32");
    EXPECT_EQ(fake_.messages.shown.size(), 1U);
    EXPECT_EQ(find<QLineEdit>(IDC_GREEN).selectedText(), QStringLiteral("32"));
    EXPECT_EQ(shown(IDC_ENTRY), "00C0") << "the 3 was taken";
    find<QLineEdit>(IDC_ENTRY).setFocus();
    EXPECT_EQ(shown(IDC_GREEN), "3");
    const QAction& mark = *find<QLineEdit>(IDC_ENTRY).actions().front();
    for (const bool right : {false, true}) {
        type(IDC_ENTRY, right ? "7FFF" : "12345");
        EXPECT_EQ(canApply(), right);
        EXPECT_EQ(mark.isVisible() && !mark.icon().isNull(), !right);
    }
    EXPECT_EQ(shown(IDC_RED_HEX) + shown(IDC_GREEN_HEX) + shown(IDC_ALPHA_HEX), "0F1F01");
    EXPECT_EQ(shown(IDC_RED), "15");
}

class PaletteBarWithoutSliders : public PaletteBarWindow {
protected:
    PaletteBarWithoutSliders()
        : PaletteBarWindow("RampSlider.ocx") {}
};

TEST_F(PaletteBarWithoutSliders, ChannelsAreStillTypedAndSpun) {
    EXPECT_EQ(fake_.messages.lastText(), "RampSlider.ocx is not found");
    open(ColourType::Rgba);
    clickCell(3);
    EXPECT_FALSE(find<CRampSlider>(IDC_RED_SLIDER).isVisible());
    type(IDC_RED, "31");
    QTest::keyClick(&find<IntegerField>(IDC_RED_SPIN), Qt::Key_Tab);
    EXPECT_TRUE(find<IntegerField>(IDC_GREEN_SPIN).hasFocus()) << "not in a bar that is not there";
    QTest::keyClick(&find<IntegerField>(IDC_GREEN_SPIN), Qt::Key_Up);
    EXPECT_EQ(shown(IDC_ENTRY), "F840");
}

TEST_F(PaletteBarWindow, TextFieldsKeepTheirKeysAndTheOthersAreThePalettes) {
    open(ColourType::Rgba);
    auto& entry = find<QLineEdit>(IDC_ENTRY);
    type(IDC_ENTRY, "1234");
    apply();
    type(IDC_ENTRY, "ABC0");
    entry.selectAll();
    QTest::keyClick(&entry, Qt::Key_C, Qt::ControlModifier);
    QTest::keyClick(&entry, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(shown(IDC_ENTRY), "ABC0");
    EXPECT_EQ(stored(bar().state().cells().current()), 0x1234U);
    entry.setText(QString());
    QTest::keyClick(&entry, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(shown(IDC_ENTRY), "ABC0");
    QTest::keyClick(&sliderWindow(IDC_RED_SLIDER), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(shown(IDC_ENTRY), "0000");
}

TEST_F(PaletteBarWindow, EverythingIsReachedFromTheKeyboard) {
    open(ColourType::Rgba);
    gridWindow().setFocus();
    gridKey(Qt::Key_Home, Qt::ControlModifier);
    gridKey(Qt::Key_Down);
    EXPECT_EQ(app_.imageHost().paletteBarCell(), 16);
    // A letter that the menus of the main window have too, and a button of the bar.
    gridKey(Qt::Key_R, Qt::AltModifier);
    auto& red = find<IntegerField>(IDC_RED_SPIN);
    EXPECT_TRUE(red.hasFocus());
    EXPECT_EQ(find<QLineEdit>(IDC_RED).selectedText(), QStringLiteral("0"));
    QTest::keyClick(&red, Qt::Key_R, Qt::AltModifier);
    EXPECT_TRUE(find<QRadioButton>(IDC_VIEW_RGB).hasFocus());
    gridKey(Qt::Key_G, Qt::AltModifier);
    QTest::keyClicks(&find<QLineEdit>(IDC_GREEN), QStringLiteral("7"));
    QTest::keyClick(&find<IntegerField>(IDC_GREEN_SPIN), Qt::Key_Return);
    EXPECT_EQ(stored(16), 7U << 6U);
    gridWindow().setFocus();
    answerDialog(ColourType::Rgba, 7U << 6U, 0x8000, QDialog::Accepted);
    gridKey(Qt::Key_Return);
    EXPECT_EQ(stored(16), 0x8000U);
    // Every control can be come to with the Tab key.
    std::set<QString> reached;
    for (int i = 0; i < 60; ++i) {
        QTest::keyClick(bar().focusWidget(), Qt::Key_Tab);
        for (const QWidget* at = bar().focusWidget(); at != &bar(); at = at->parentWidget())
            reached.insert(at->objectName());
    }
    for (const PaletteBarId& id :
         {IDC_PALETTE_TABS, IDC_PALETTE_GRID, IDC_VIEW_RGB, IDC_ENTRY, IDC_PREVIEW, IDC_RED_SPIN,
          IDC_RED_SLIDER, IDC_ALPHA_SLIDER, IDC_GRADIENT, IDC_GRADIENT_LEFT, IDC_GRADIENT_RIGHT})
        EXPECT_TRUE(reached.contains(QString::fromLatin1(id.name))) << id.name;
}

TEST_F(PaletteBarWindow, TheViewModeIsThatOfTheImages) {
    open(ColourType::Ia);
    palette().setEntry(5, 0x30A0);
    find<QRadioButton>(IDC_VIEW_ALPHA).click();
    EXPECT_EQ(seen(5), Rgb(0xA0, 0xA0, 0xA0));
    ASSERT_TRUE(app_.paletteSet()->newPalette(16, ColourType::Ia, 0)) << "the image is attached to another";
    find<QRadioButton>(IDC_VIEW_RGB).click();
    EXPECT_EQ(seen(5), Rgb(0x30, 0x30, 0x30));
}

TEST_F(PaletteBarWindow, TabsNameThePalettesAndChooseTheCurrentOne) {
    auto& tabs = find<QTabBar>(IDC_PALETTE_TABS);
    fake_.files.putFile("c:\\b&b.tlf", paletteFile(16, [](int) { return 1U; }));
    fake_.files.putFile("c:\\a.tlf", paletteFile(256, [](int) { return 2U; }));
    ASSERT_TRUE(app_.OpenFiles({"c:\\b&b.tlf", "c:\\a.tlf"}, false));
    ASSERT_EQ(tabs.count(), 2);
    EXPECT_EQ(tabs.currentIndex(), 0);
    EXPECT_GT(tabs.height(), 10);
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
    EXPECT_EQ(app_.paletteSet()->currentKey, "c:\\b&b.tlf");
    EXPECT_EQ(find<CSwatchGrid>(IDC_PALETTE_GRID).cellCount(), 16);
    const auto expectSecond = [&tabs](const char* title, bool unsaved) {
        EXPECT_EQ(tabs.tabText(1).toStdString(), title);
        EXPECT_EQ(tabs.tabToolTip(1).toStdString(),
                  std::string("c:\\b&b.tlf") + (unsaved ? "\nIt has unsaved changes." : ""));
        EXPECT_EQ(tabs.accessibleTabName(1).endsWith(QStringLiteral(", unsaved changes")), unsaved);
        EXPECT_EQ(tabs.tabIcon(1).isNull(), !unsaved);
    };
    type(IDC_RED, "9");
    apply();
    expectSecond("b&&b", true);
    const std::tuple<CommandId, const char*, bool> steps[] = {{ID_PALETTE_UNDO, "b&&b", false},
                                                              {ID_PALETTE_REDO, "b&&b * ", true},
                                                              {ID_PALETTE_SAVE, "b&&b", false},
                                                              {ID_PALETTE_UNDO, "b&&b", true}};
    for (const auto& [command, title, unsaved] : steps) {
        ASSERT_TRUE(run(command));
        expectSecond(title, unsaved);
    }
    fake_.messages.answerWith(MessageAnswer::No);
    ASSERT_TRUE(run(ID_PALETTE_CLOSE));
    EXPECT_EQ(tabs.count(), 1);
}

TEST_F(PaletteBarWindow, WithoutAPaletteOnlyTheTabsAreLeft) {
    const auto tipOf = [](QWidget& widget, QPoint at) {
        QToolTip::hideText();
        QHelpEvent help(QEvent::ToolTip, at, widget.mapToGlobal(at));
        QApplication::sendEvent(&widget, &help);
        return QToolTip::text().toStdString();
    };
    const auto menus = [this] {
        QTest::keyClick(&bar(), Qt::Key_F10, Qt::ShiftModifier);
        std::vector<std::string> items;
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            const QPoint asked = bar().mapToGlobal(QPoint(5, 5));
            EXPECT_EQ(menu->x(), asked.x());
            EXPECT_LE(menu->y(), asked.y()) << "where the screen ends before it, it moves up";
            for (const QAction* action : menu->actions()) {
                if (!action->isSeparator())
                    items.push_back(action->text().toStdString());
            }
            menu->close();
        }
        return items;
    };
    for (const PaletteBarId& id :
         {IDC_PALETTE_GRID, IDC_ENTRY, IDC_RED, IDC_APPLY, IDC_PREVIEW, IDC_GRADIENT})
        EXPECT_FALSE(find<QWidget>(id).isVisible()) << id.name;
    EXPECT_FALSE(find<QTabBar>(IDC_PALETTE_TABS).isEnabled());
    for (QWidget* child : bar().findChildren<QWidget*>()) {
        if (!child->isVisible())
            continue;
        EXPECT_EQ(tipOf(*child, {}), "Palette is not open yet.") << child->metaObject()->className();
        if (qobject_cast<QPushButton*>(child) != nullptr) {
            EXPECT_GT(4 * child->parentWidget()->height(), 3 * bar().height()) << "what it is the middle of";
        }
    }
    EXPECT_THAT(menus(), ElementsAre());

    open(ColourType::Ia);
    const QRect cells = gridWindow().rect();
    const QPoint at(cells.width() / 3, cells.height() / 3);
    EXPECT_EQ(tipOf(gridWindow(), at),
              std::to_string(find<CSwatchGrid>(IDC_PALETTE_GRID).cellAt(at.x(), at.y())));
    EXPECT_THAT(menus(), ElementsAre("&New", "&Open...", "&Close", "&Save", "Save &As...", "&Edit...",
                                     "A&ttach", "&Undo", "&Redo", "C&opy", "&Paste", "C&hange Entries",
                                     "Arrange En&tries", "Usa&ge", "Show Texe&ls", "Palette Cells Onl&y"));
    EXPECT_EQ(find<QLabel>(IDC_RED_LABEL).text(), QStringLiteral("&I"));
    for (const PaletteBarId& id :
         {IDC_GREEN, IDC_BLUE_SLIDER, IDC_BLUE_HEX, IDC_GRADIENT, IDC_GRADIENT_LEFT, IDC_RED_TRACK})
        EXPECT_FALSE(find<QWidget>(id).isVisible()) << id.name;
}

TEST_F(PaletteBarWindow, AtAnySizeNothingIsCut) {
    open(ColourType::Rgba);
    const QSize smallest = bar().minimumSizeHint();
    EXPECT_LE(bar().sizeHint().height(), 400) << "with a title bar above, on a small screen";
    for (const QSize size :
         {QSize(700, 300), QSize(360, 620), QSize(360, 100), QSize(100, 100), QSize(900, 700)}) {
        bar().resize(size);
        QTest::qWait(0);
        QCoreApplication::processEvents();
        EXPECT_GE(bar().width(), smallest.width());
        for (QWidget* child : bar().findChildren<QWidget*>()) {
            if (!child->isVisible() || child->parentWidget()->inherits("QTabBar") ||
                child->parentWidget()->inherits("QAbstractSpinBox"))
                continue;
            EXPECT_TRUE(child->parentWidget()->rect().contains(child->geometry()) &&
                        child->height() >= child->minimumSizeHint().height())
                << child->objectName().toStdString() << " at " << size.width() << " x " << size.height();
        }
    }
    EXPECT_TRUE(QTest::qWaitFor([this] { return gridWindow().width() > 350; })) << "the cells take the room";
}

} // namespace
} // namespace dyeworks

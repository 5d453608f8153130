#include "Program.h"
#include "core/PaletteSet.h"
#include "framework/widgets/IntegerField.h"
#include "ui/CIaPaletteDialog.h"
#include "ui/CRgbaPaletteDialog.h"
#include "ui/ColourControls.h"
#include "ui/PaletteBarIds.h"
#include "ui/controls/CRampSlider.h"
#include "ui/controls/CSwatchGrid.h"

#include <QAction>
#include <QCheckBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QTabBar>
#include <QTimer>
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
        bar().RefreshFromPalette();
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
    [[nodiscard]] unsigned stored(int entry) { return palette().table.getEntry(entry); }
    /// Red, green and blue that the image shows for a value.
    [[nodiscard]] std::tuple<int, int, int> seen(int value) {
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
                if (twice)
                    QTest::mouseDClick(window, Qt::LeftButton, {}, {x, y});
                return;
            }
        }
        ADD_FAILURE() << "cell " << cell << " is not shown";
    }
    void clickCell(int cell, bool twice = false) { click(find<CSwatchGrid>(IDC_PALETTE_GRID), cell, twice); }
    void type(const PaletteBarId& id, const char* text) {
        auto& edit = find<QLineEdit>(id);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, QString::fromLatin1(text));
    }
    std::string shown(const PaletteBarId& id) { return find<QLineEdit>(id).text().toStdString(); }
    std::vector<std::string> readOuts() {
        return {shown(IDC_RED_HEX), shown(IDC_GREEN_HEX), shown(IDC_BLUE_HEX), shown(IDC_ALPHA_HEX)};
    }
    void apply() { find<QPushButton>(IDC_APPLY).click(); }
    bool canApply() { return find<QPushButton>(IDC_APPLY).isEnabled(); }
};

struct Way {
    const char* name;
    ColourType type;
    std::function<void(PaletteBarWindow&)> edit;
    unsigned entry;
    std::tuple<int, int, int> colour; ///< That the image shows.
};

class EditingAnEntry : public PaletteBarWindow, public testing::WithParamInterface<int> {
public:
    using PaletteBarWindow::find;
    using PaletteBarWindow::sliderWindow;
    using PaletteBarWindow::type;

    /// Each takes the entry 0 to the value of its row.
    static std::vector<Way> ways() {
        const auto as = [](auto edit) {
            return [edit](PaletteBarWindow& window) { edit(static_cast<EditingAnEntry&>(window)); };
        };
        return {
            {"RedTyped", ColourType::Rgba, as([](auto& t) { t.type(IDC_RED, "31"); }), 0xF800, {248, 0, 0}},
            {"GreenSpun",
             ColourType::Rgba,
             as([](auto& t) { t.template find<IntegerField>(IDC_GREEN_SPIN).stepBy(2); }),
             0x0080,
             {0, 16, 0}},
            {"BlueDragged",
             ColourType::Rgba,
             as([](auto& t) {
                 QWidget& bar = t.sliderWindow(IDC_BLUE_SLIDER);
                 QTest::mousePress(&bar, Qt::LeftButton, {}, {bar.width() / 2, bar.height() / 2});
                 QTest::mouseMove(&bar, {bar.width() - 1, bar.height() / 2});
                 QTest::mouseRelease(&bar, Qt::LeftButton, {}, {bar.width() - 1, bar.height() / 2});
             }),
             0x003E,
             {0, 0, 248}},
            {"AlphaByKey",
             ColourType::Rgba,
             as([](auto& t) { QTest::keyClick(&t.sliderWindow(IDC_ALPHA_SLIDER), Qt::Key_End); }),
             0x0001,
             {0, 0, 0}},
            {"BlueByTrackbar",
             ColourType::Rgba,
             as([](auto& t) {
                 t.template find<QSlider>(IDC_BLUE_TRACK).triggerAction(QAbstractSlider::SliderToMaximum);
             }),
             0x003E,
             {0, 0, 248}},
            {"EntryTyped",
             ColourType::Rgba,
             as([](auto& t) { t.type(IDC_ENTRY, "7fff"); }),
             0x7FFF,
             {120, 248, 248}},
            {"FromTheStrip",
             ColourType::Rgba,
             as([](auto& t) { t.click(t.template find<CSwatchGrid>(IDC_GRADIENT), 31); }),
             0xFFFE,
             {248, 248, 248}},
            {"IntensityTyped",
             ColourType::Ia,
             as([](auto& t) { t.type(IDC_RED, "200"); }),
             0xC800,
             {200, 200, 200}},
            {"IntensityDragged",
             ColourType::Ia,
             as([](auto& t) { QTest::keyClick(&t.sliderWindow(IDC_RED_SLIDER), Qt::Key_End); }),
             0xFF00,
             {255, 255, 255}},
            {"AlphaTyped", ColourType::Ia, as([](auto& t) { t.type(IDC_ALPHA, "16"); }), 0x0010, {0, 0, 0}},
            {"EntryTypedForIntensity",
             ColourType::Ia,
             as([](auto& t) { t.type(IDC_ENTRY, "4080"); }),
             0x4080,
             {64, 64, 64}},
        };
    }
    using PaletteBarWindow::click;
};

TEST_P(EditingAnEntry, PreviewsInTheImageIsAppliedAndUndone) {
    const Way way = ways()[static_cast<std::size_t>(GetParam())];
    open(way.type);
    clickCell(37);
    EXPECT_FALSE(canApply());
    way.edit(*this);
    EXPECT_EQ(seen(37), way.colour);
    EXPECT_EQ(stored(37), 0U);
    EXPECT_FALSE(palette().canUndo());
    EXPECT_EQ(std::stoul(shown(IDC_ENTRY), nullptr, 16), way.entry);
    ASSERT_TRUE(canApply());
    apply();
    EXPECT_EQ(stored(37), way.entry);
    EXPECT_EQ(seen(37), way.colour);
    EXPECT_FALSE(canApply());
    ASSERT_TRUE(run(ID_PALETTE_UNDO));
    EXPECT_EQ(stored(37), 0U);
    EXPECT_EQ(seen(37), std::make_tuple(0, 0, 0));
    ASSERT_TRUE(run(ID_PALETTE_REDO));
    EXPECT_EQ(seen(37), way.colour);
    EXPECT_FALSE(enabled(ID_PALETTE_REDO));
}

INSTANTIATE_TEST_SUITE_P(ByEachWay, EditingAnEntry,
                         testing::Range(0, static_cast<int>(EditingAnEntry::ways().size())),
                         [](const auto& test) {
                             return EditingAnEntry::ways()[static_cast<std::size_t>(test.param)].name;
                         });

TEST_F(PaletteBarWindow, TheDialogStartsWithWhatIsEditedAndWritesOnOk) {
    const std::pair<ColourType, unsigned> cases[] = {{ColourType::Rgba, 0x0841}, {ColourType::Ia, 0x2A10}};
    for (const auto& [colours, entry] : cases) {
        open(colours);
        for (const int answer : {QDialog::Rejected, QDialog::Accepted}) {
            QTimer::singleShot(0, &bar(), [&, wanted = entry] {
                auto* dialog = qobject_cast<EntryDialog*>(QApplication::activeModalWidget());
                ASSERT_NE(dialog, nullptr);
                EXPECT_EQ(dialog->GetValue(), 0U);
                dialog->SetValue(static_cast<std::uint16_t>(wanted));
                dialog->done(answer);
            });
            clickCell(9, true);
            EXPECT_EQ(stored(9), answer == QDialog::Accepted ? entry : 0U);
        }
        type(IDC_ENTRY, "1110");
        QTimer::singleShot(0, &bar(), [] {
            auto* dialog = qobject_cast<EntryDialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            EXPECT_EQ(dialog->GetValue(), 0x1110U);
            dialog->accept();
        });
        ASSERT_TRUE(run(ID_PALETTE_EDIT));
        EXPECT_EQ(stored(9), 0x1110U);
    }
}

TEST_F(PaletteBarWindow, PastingARangeIsOneStep) {
    open(ColourType::Ia);
    for (int i = 0; i < 4; ++i)
        palette().setEntry(i, static_cast<std::uint16_t>(0x1020 * (i + 1)));
    bar().RefreshFromPalette();
    EXPECT_FALSE(enabled(ID_PALETTE_COPY));
    clickCell(0);
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(&gridWindow(), Qt::Key_Right, Qt::ShiftModifier);
    QTest::keyClick(&gridWindow(), Qt::Key_C, Qt::ControlModifier);
    clickCell(40);
    QTest::keyClick(&gridWindow(), Qt::Key_V, Qt::ControlModifier);
    EXPECT_THAT((std::vector{stored(40), stored(41), stored(42), stored(43), stored(44)}),
                ElementsAre(0x1020, 0x2040, 0x3060, 0x4080, 0));
    EXPECT_EQ(shown(IDC_ENTRY), "1020");
    EXPECT_EQ(seen(41), std::make_tuple(32, 32, 32));
    QTest::keyClick(&gridWindow(), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(stored(40) + stored(43), 0U);
    EXPECT_FALSE(palette().canUndo());
}

TEST_F(PaletteBarWindow, ASavedFileHoldsTheEntriesAsTheyWereEdited) {
    for (const bool intensity : {false, true}) {
        const auto fileWith = [&](const std::map<int, unsigned>& edited) {
            std::string file = paletteFile(16, [&](int i) {
                return edited.contains(i) ? edited.at(i) : static_cast<unsigned>(i) * 0x1111U;
            });
            file[11] = intensity ? 1 : 0;
            return file;
        };
        const std::string path = intensity ? "c:\\ia.tlf" : "c:\\rgba.tlf";
        fake_.files.putFile(path, fileWith({}));
        ASSERT_TRUE(app_.OpenDocumentFile(path));
        clickCell(5);
        type(IDC_ENTRY, "abcd");
        apply();
        clickCell(6);
        type(IDC_RED, "5");
        apply();
        QTest::keyClick(&gridWindow(), Qt::Key_Left, Qt::ShiftModifier);
        QTest::keyClick(&gridWindow(), Qt::Key_C, Qt::ControlModifier);
        clickCell(8);
        QTest::keyClick(&gridWindow(), Qt::Key_V, Qt::ControlModifier);
        clickCell(15);
        type(IDC_ENTRY, "0");
        apply();
        ASSERT_TRUE(run(ID_PALETTE_UNDO) && run(ID_PALETTE_SAVE));
        const unsigned reddened = intensity ? 0x0566 : 0x2E66;
        EXPECT_EQ(fake_.files.textOf(path),
                  fileWith({{5, 0xABCD}, {6, reddened}, {8, 0xABCD}, {9, reddened}}))
            << path;
    }
}

TEST_F(PaletteBarWindow, ABankIsChosenByCellSpinAndTyping) {
    open(ColourType::Rgba, 4);
    auto& spin = find<IntegerField>(IDC_PALETTE_NUMBER_SPIN);
    EXPECT_TRUE(spin.isEnabled());
    for (int i = 0; i < 256; ++i)
        palette().setRed(i, i / 16);
    clickCell(5 * 16 + 3);
    EXPECT_EQ(image().paletteValue(), 80);
    EXPECT_EQ(seen(0), std::make_tuple(40, 0, 0));
    EXPECT_EQ(shown(IDC_PALETTE_NUMBER), "5");
    clickCell(5 * 16 + 9);
    EXPECT_EQ(image().paletteValue(), 80);
    spin.setFocus();
    QTest::keyClick(&spin, Qt::Key_Up);
    EXPECT_EQ(image().paletteValue(), 96);
    EXPECT_EQ(bar().CurrentCell(), 6 * 16 + 9);
    type(IDC_PALETTE_NUMBER, "12");
    EXPECT_EQ(seen(0), std::make_tuple(96, 0, 0));
    type(IDC_PALETTE_NUMBER, "99");
    EXPECT_EQ(shown(IDC_PALETTE_NUMBER), "15");
    EXPECT_EQ(app_.paletteBarFirstEntry(), 240);

    // A palette that the image is not attached to has no bank of it.
    ASSERT_TRUE(app_.paletteSet()->newPalette(256, ColourType::Rgba, 0));
    EXPECT_FALSE(spin.isEnabled());
    EXPECT_EQ(app_.paletteBarFirstEntry(), 0);
    QTest::keyClick(&find<QTabBar>(IDC_PALETTE_TABS), Qt::Key_Left);
    EXPECT_EQ(app_.paletteBarFirstEntry(), 240);
}

TEST_F(PaletteBarWindow, APreviewEndsWithItsCause) {
    open(ColourType::Rgba);
    clickCell(20);
    const std::pair<const char*, std::function<void()>> causes[] = {
        {"another cell", [this] { clickCell(21); }},
        {"preview off", [this] { find<QCheckBox>(IDC_PREVIEW).click(); }},
        {"escape", [this] { QTest::keyClick(&find<QLineEdit>(IDC_ENTRY), Qt::Key_Escape); }},
        {"closed", [this] { bar().close(); }},
        {"another palette", [this] { ASSERT_TRUE(app_.paletteSet()->newPalette(16, ColourType::Rgba, 0)); }},
    };
    for (const auto& [name, end] : causes) {
        bar().setShown(true);
        find<QCheckBox>(IDC_PREVIEW).setChecked(true);
        bar().SelectCell(20);
        type(IDC_ENTRY, "F800");
        EXPECT_EQ(seen(20), std::make_tuple(248, 0, 0)) << name;
        end();
        EXPECT_EQ(seen(20), std::make_tuple(0, 0, 0)) << name;
    }
}

TEST_F(PaletteBarWindow, AnotherWindowKeepsWhatIsEditedAnotherImageDoesNot) {
    open(ColourType::Rgba);
    const CDyeworksDoc& first = image();
    type(IDC_ENTRY, "F800");
    for (QWidget* window : {static_cast<QWidget*>(&app_.mainFrame()), static_cast<QWidget*>(&bar())}) {
        activate(*window);
        EXPECT_TRUE(canApply());
    }
    const int cell = bar().CurrentCell();
    EXPECT_EQ(seen(cell), std::make_tuple(248, 0, 0));
    fake_.files.putFile("c:\\b.tmf", imageFile(texels(8, 8, [](int, int) { return 0U; }), 8));
    ASSERT_TRUE(app_.OpenDocumentFile("c:\\b.tmf"));
    EXPECT_FALSE(canApply());
    EXPECT_EQ(first.canvas().colourTable()[static_cast<std::size_t>(cell) * 4 + 2], 0);
}

TEST_F(PaletteBarWindow, AValueOutOfRangeIsRefusedAndLeftBehind) {
    open(ColourType::Rgba);
    clickCell(3);
    type(IDC_GREEN, "32");
    EXPECT_EQ(fake_.messages.lastText(), "Please enter an integer between 0 and 31.");
    EXPECT_EQ(find<QLineEdit>(IDC_GREEN).selectedText(), QStringLiteral("32"));
    EXPECT_EQ(shown(IDC_ENTRY), "00C0") << "the 3 was taken";
    find<QLineEdit>(IDC_ENTRY).setFocus();
    EXPECT_EQ(shown(IDC_GREEN), "3");

    const QAction& mark = *find<QLineEdit>(IDC_ENTRY).actions().front();
    for (const char* wrong : {"12345", "xyz"}) {
        type(IDC_ENTRY, wrong);
        EXPECT_TRUE(mark.isVisible() && !mark.icon().isNull()) << wrong;
        EXPECT_FALSE(canApply()) << wrong;
        EXPECT_EQ(shown(IDC_ENTRY), wrong);
    }
    type(IDC_ENTRY, "7FFF");
    EXPECT_FALSE(mark.isVisible());
    EXPECT_THAT(readOuts(), ElementsAre("0F", "1F", "1F", "01"));
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
    EXPECT_EQ(seen(3), std::make_tuple(248, 8, 0));
    apply();
    EXPECT_EQ(stored(3), 0xF840U);
}

TEST_F(PaletteBarWindow, TextFieldsKeepTheirKeysAndTheOthersAreThePalettes) {
    open(ColourType::Rgba);
    clickCell(3);
    type(IDC_ENTRY, "1234");
    apply();
    auto& entry = find<QLineEdit>(IDC_ENTRY);
    type(IDC_ENTRY, "ABC0");
    entry.selectAll();
    QTest::keyClick(&entry, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("ABC0"));
    QTest::keyClick(&entry, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_NE(shown(IDC_ENTRY), "ABC0");
    EXPECT_EQ(stored(3), 0x1234U);
    entry.setText(QString());
    QTest::keyClick(&entry, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(shown(IDC_ENTRY), "ABC0");
    EXPECT_TRUE(canApply());
    QTest::keyClick(&sliderWindow(IDC_RED_SLIDER), Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(stored(3), 0U);
}

TEST_F(PaletteBarWindow, EverythingIsReachedFromTheKeyboard) {
    open(ColourType::Rgba);
    gridWindow().setFocus();
    QTest::keyClick(&gridWindow(), Qt::Key_Home, Qt::ControlModifier);
    QTest::keyClick(&gridWindow(), Qt::Key_Down);
    EXPECT_EQ(app_.paletteBarCell(), 16);
    // A letter that the menus of the main window have too, and a button of the bar.
    QTest::keyClick(&gridWindow(), Qt::Key_R, Qt::AltModifier);
    auto& red = find<IntegerField>(IDC_RED_SPIN);
    EXPECT_TRUE(red.hasFocus());
    EXPECT_EQ(find<QLineEdit>(IDC_RED).selectedText(), QStringLiteral("0"));
    QTest::keyClick(&red, Qt::Key_R, Qt::AltModifier);
    EXPECT_TRUE(find<QRadioButton>(IDC_VIEW_RGB).hasFocus());
    QTest::keyClick(&gridWindow(), Qt::Key_G, Qt::AltModifier);
    QTest::keyClicks(&find<QLineEdit>(IDC_GREEN), QStringLiteral("7"));
    QTest::keyClick(&find<IntegerField>(IDC_GREEN_SPIN), Qt::Key_Return);
    EXPECT_EQ(stored(16), 7U << 6U);
    gridWindow().setFocus();
    QTimer::singleShot(0, &bar(), [] {
        auto* dialog = qobject_cast<CRgbaPaletteDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->SetValue(0x8000);
        dialog->accept();
    });
    QTest::keyClick(&gridWindow(), Qt::Key_Return);
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
    EXPECT_EQ(app_.paletteSet()->alphaView, 1);
    EXPECT_EQ(seen(5), std::make_tuple(0xA0, 0xA0, 0xA0));
    find<QRadioButton>(IDC_VIEW_RGB).click();
    EXPECT_EQ(seen(5), std::make_tuple(0x30, 0x30, 0x30));
}

TEST_F(PaletteBarWindow, TabsNameThePalettesAndChooseTheCurrentOne) {
    auto& tabs = find<QTabBar>(IDC_PALETTE_TABS);
    fake_.files.putFile("c:\\b&b.tlf", paletteFile(16, [](int) { return 1U; }));
    fake_.files.putFile("c:\\a.tlf", paletteFile(256, [](int) { return 2U; }));
    ASSERT_TRUE(app_.OpenFiles({"c:\\b&b.tlf", "c:\\a.tlf"}, false));
    ASSERT_EQ(tabs.count(), 2);
    EXPECT_EQ(tabs.currentIndex(), 0);
    EXPECT_EQ(tabs.tabText(1), QStringLiteral("b&&b"));
    EXPECT_EQ(tabs.tabToolTip(1), QStringLiteral("c:\\b&b.tlf"));
    EXPECT_GT(tabs.height(), 10);
    app_.selectPaletteBarCell(200);
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(1).center());
    EXPECT_EQ(app_.paletteSet()->currentKey, "c:\\b&b.tlf");
    EXPECT_EQ(find<CSwatchGrid>(IDC_PALETTE_GRID).cellCount(), 16);
    EXPECT_EQ(app_.paletteBarCell(), 15);
    type(IDC_RED, "9");
    apply();
    ASSERT_TRUE(run(ID_PALETTE_UNDO) && run(ID_PALETTE_REDO));
    EXPECT_EQ(tabs.tabText(1), QStringLiteral("b&&b * "));
    ASSERT_TRUE(run(ID_PALETTE_UNDO));
    EXPECT_EQ(tabs.tabText(1), QStringLiteral("b&&b"));
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
        QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(), bar().mapToGlobal(QPoint()));
        QApplication::sendEvent(&bar(), &asked);
        std::vector<std::string> items;
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            EXPECT_EQ(menu->pos(), bar().mapToGlobal(QPoint(5, 5)));
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
    for (const CommandId id : {ID_PALETTE_EDIT, ID_PALETTE_COPY, ID_PALETTE_PASTE, ID_PALETTE_UNDO})
        EXPECT_FALSE(enabled(id)) << id;
    for (QWidget* child : bar().findChildren<QWidget*>()) {
        if (child->isVisible()) {
            EXPECT_EQ(tipOf(*child, {}), "Palette is not open yet.") << child->metaObject()->className();
        }
    }
    EXPECT_THAT(menus(), ElementsAre());

    open(ColourType::Ia);
    const QRect cells = gridWindow().rect();
    const QPoint at(cells.width() / 3, cells.height() / 3);
    EXPECT_EQ(tipOf(gridWindow(), at),
              std::to_string(find<CSwatchGrid>(IDC_PALETTE_GRID).cellAt(at.x(), at.y())));
    EXPECT_THAT(menus(), ElementsAre("&New", "&Open...", "&Close", "&Save", "Save &As...", "&Edit...",
                                     "A&ttach", "&Undo", "&Redo", "C&opy", "&Paste"));
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
            EXPECT_TRUE(child->parentWidget()->rect().contains(child->geometry()))
                << child->objectName().toStdString() << " at " << size.width() << " x " << size.height();
            EXPECT_GE(child->height(), child->minimumSizeHint().height())
                << child->objectName().toStdString() << " at " << size.width() << " x " << size.height();
        }
    }
    EXPECT_TRUE(QTest::qWaitFor([this] { return gridWindow().width() > 350; })) << "the cells take the room";
}

} // namespace
} // namespace dyeworks

#include "Program.h"
#include "core/PaletteSet.h"
#include "core/StepList.h"
#include "framework/CommandTable.h"
#include "framework/widgets/IntegerField.h"
#include "platform/StringId.h"
#include "ui/UndoListDock.h"
#include "ui/UndoListModel.h"

#include <QListView>
#include <QTabBar>
#include <QTimer>

#include <algorithm>
#include <set>

namespace dyeworks {
namespace {

class UndoList : public Program {
protected:
    void open() {
        openAttached(pattern(12, 12), 8, 256);
        frame().resize(1200, 800);
        frame().show();
        ASSERT_TRUE(run(ID_VIEW_UNDO_LIST));
        settle();
    }
    [[nodiscard]] QListView& list() { return *frame().findChild<QListView*>("IDC_UNDO_LIST"); }
    [[nodiscard]] QTabBar& tabs() { return *frame().findChild<QTabBar*>("IDC_UNDO_LIST_OWNER"); }
    /// The rows as screen readers tell them.
    [[nodiscard]] std::vector<std::string> told() {
        settle();
        std::vector<std::string> rows;
        for (int row = 0; row < list().model()->rowCount(); ++row)
            rows.push_back(
                list().model()->index(row, 0).data(Qt::AccessibleTextRole).toString().toStdString());
        return rows;
    }
    void click(int row) {
        const QRect place = list().visualRect(list().model()->index(row, 0));
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, place.center());
        settle();
    }
    void stroke(CommandId tool, int at) {
        ASSERT_TRUE(run(tool));
        app_.imageHost().selectPaletteBarCell(200 + at);
        drag({{at, 1}, {at + 1, 4}});
    }
    [[nodiscard]] TextureLookupTable& palette() { return *app_.paletteSet()->lookup(""); }
};

TEST_F(UndoList, GoesWhereItIsClickedAndWhereEnterIsPressed) {
    open();
    const Texels before = canvas();
    stroke(ID_TOOL_PEN, 1);
    const Texels pen = canvas();
    stroke(ID_TOOL_BOX_FILL, 5);
    const Texels box = canvas();
    EXPECT_THAT(told(), ElementsAre("1 of 3: Opened", "2 of 3: Pen", "3 of 3: Box Fill, current"));
    click(0);
    EXPECT_EQ(canvas(), before);
    EXPECT_EQ(image().title(), "pic.tmf [pic]");
    EXPECT_THAT(told(),
                ElementsAre("1 of 3: Opened, current", "2 of 3: Pen, undone", "3 of 3: Box Fill, undone"));
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_End);
    QTest::keyClick(&list(), Qt::Key_Up);
    EXPECT_EQ(canvas(), before) << "arrows only look";
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(canvas(), pen);
    EXPECT_EQ(image().title(), "pic.tmf [pic] * ");
    EXPECT_EQ(list().currentIndex().row(), 1);
    click(2);
    EXPECT_EQ(canvas(), box);
    // A piece that floats belongs to no step yet.
    run(ID_TOOL_SELECT);
    drag({{2, 2}, {5, 5}});
    drag({{3, 4}, {6, 6}});
    click(1);
    EXPECT_TRUE(view().view().selection().hasFloatingPiece());
    EXPECT_EQ(told().size(), 4U);
    run(ID_CANCEL_SELECTION);
    click(1);
    EXPECT_EQ(canvas(), pen);
    stroke(ID_TOOL_LINE, 7);
    EXPECT_THAT(told(), ElementsAre("1 of 3: Opened", "2 of 3: Pen", "3 of 3: Line, current"));
}

TEST_F(UndoList, ShowsWhatIsWorkedInAndTheOtherByItsSwitch) {
    open();
    stroke(ID_TOOL_PEN, 1);
    ASSERT_EQ(told().size(), 2U);
    EXPECT_EQ(tabs().tabText(0), "Image: pic.tmf");
    // From the menu, while the keys are in the image.
    ASSERT_TRUE(run(ID_RANGE_INVERT));
    const std::uint16_t inverted = palette().table.getEntry(3);
    EXPECT_THAT(told(), ElementsAre("1 of 2: Opened", "2 of 2: Invert Entries, current"));
    EXPECT_EQ(tabs().tabText(tabs().currentIndex()), "Palette: pic.tlf");
    click(0);
    EXPECT_NE(palette().table.getEntry(3), inverted);
    EXPECT_FALSE(palette().hasUnsavedChanges());
    click(1);
    EXPECT_EQ(palette().table.getEntry(3), inverted);
    // A joint step stands in both.
    tabs().setCurrentIndex(0);
    EXPECT_EQ(told().size(), 2U);
    QTimer::singleShot(0, [] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->accept(); });
    ASSERT_TRUE(run(ID_PALETTE_SORT));
    EXPECT_EQ(told().back(), "3 of 3: Sort Entries, current");
    tabs().setCurrentIndex(1);
    EXPECT_EQ(told().back(), "3 of 3: Sort Entries, current");
    click(1);
    EXPECT_FALSE(image().edits().canRedo() && !palette().canRedo());
    stroke(ID_TOOL_PEN, 4);
    EXPECT_EQ(told().back(), "3 of 3: Pen, current");
    ASSERT_TRUE(run(ID_FILE_SAVE) && run(ID_FILE_CLOSE));
    EXPECT_EQ(told().size(), 0U);
    EXPECT_FALSE(list().isVisible()) << "a sentence stands in its place";
}

/// Walks through all there is and looks at the steps that this made.
class StepNames : public UndoList {
protected:
    void look(const UndoHistory& steps, CommandId id) {
        for (const UndoRecord* record = steps.first(); record != nullptr; record = record->next) {
            if (record->name)
                names_.insert(*record->name);
            else
                ADD_FAILURE() << "command " << id << " makes a step without a name";
        }
    }
    void look(CommandId id) {
        look(*image().edits().steps, id);
        look(*palette().history, id);
    }
    /// Accepts the dialogs that come up, a field having taken another number, and if one comes again another
    /// field, but not for ever.
    void acceptDialogs() {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr)
            return;
        const QList<IntegerField*> fields = dialog->findChildren<IntegerField*>();
        if (!fields.isEmpty())
            QTest::keyClick(fields.at(attempts_ % fields.size()), Qt::Key_Up);
        if (++attempts_ < 5)
            dialog->accept();
        else
            dialog->reject();
    }

    int attempts_ = 0; ///< For the same command.
    std::set<StringId> names_;
};

TEST_F(StepNames, AreThereForEveryToolAndCommand) {
    // These end or print what is open, or wait for a click.
    const std::set<CommandId> left{ID_APP_EXIT,     ID_FILE_CLOSE,        ID_PALETTE_CLOSE,
                                   ID_FILE_PRINT,   ID_FILE_PRINT_SETUP,  ID_FILE_PRINT_PREVIEW,
                                   ID_CONTEXT_HELP, ID_FILE_PRINT_DIRECT, ID_VIEW_FULL_SCREEN};
    open();
    QTimer dialogs;
    QObject::connect(&dialogs, &QTimer::timeout, [this] { acceptDialogs(); });
    dialogs.start(0);
    int column = 0;
    for (const CommandId tool : {ID_TOOL_PIXEL, ID_TOOL_PEN, ID_TOOL_LINE, ID_TOOL_BOX, ID_TOOL_BOX_FILL,
                                 ID_TOOL_CIRCLE, ID_TOOL_CIRCLE_FILL, ID_TOOL_PAINT, ID_TOOL_REPLACER}) {
        ASSERT_NO_FATAL_FAILURE(stroke(tool, column++));
        look(tool);
    }
    for (const CommandRow& row : commandTable()) {
        if (left.contains(row.id) || row.last != 0)
            continue;
        // What floats is placed.
        run(ID_CANCEL_SELECTION);
        look(row.id);
        image().GoTo(stepsOf(image().edits()).front().position);
        palette().goTo(0);
        run(ID_TOOL_SELECT);
        drag({{1, 1}, {4, 4}});
        if (row.id == ID_CANCEL_SELECTION)
            drag({{2, 3}, {3, 3}});
        if (row.id == ID_IMAGE_TO_8_BITS)
            run(ID_IMAGE_TO_4_BITS);
        attempts_ = 0;
        run(row.id);
        // Some lead to another window.
        ASSERT_TRUE(app_.OpenDocumentFile("c:\\tex\\pic.tmf"));
        look(row.id);
    }
    for (const StringId name :
         {StringId::StepPixel,       StringId::StepPen,        StringId::StepPaint,
          StringId::StepReplacer,    StringId::StepCircleFill, StringId::StepLift,
          StringId::StepPlace,       StringId::StepCut,        StringId::StepFlipX,
          StringId::StepTurnLeft,    StringId::StepResize,     StringId::StepScale,
          StringId::StepCrop,        StringId::StepShift,      StringId::StepShiftHalf,
          StringId::StepTo4Bits,     StringId::StepTo8Bits,    StringId::StepRamp,
          StringId::StepAdjust,      StringId::StepInvert,     StringId::StepReverse,
          StringId::StepFillEntries, StringId::StepEditEntry,  StringId::StepSortEntries,
          StringId::StepCompact})
        EXPECT_TRUE(names_.contains(name)) << text(name);
}

} // namespace
} // namespace dyeworks

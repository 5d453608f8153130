#include "Desk.h"
#include "ui/CMainFrame.h"
#include "ui/palettebar/CPaletteBar.h"

#include <QAbstractButton>
#include <QDialog>
#include <QLineEdit>
#include <QTabBar>

#include <algorithm>

namespace dyeworks {

namespace {

void open(Desk& desk, const std::vector<int>& n) {
    const std::string path = Desk::palettePath(n[0]);
    // A file that is slow to come has a dialog come up, for which what is dragged is let go of. So that it
    // does not depend on that, it is now.
    desk.app().giveUpDrags();
    if (desk.model.active != nullptr)
        desk.model.active->cancel();
    desk.fake.dialogs.answerWith(path);
    desk.run(ID_PALETTE_OPEN);
    desk.model.openPalette(path);
}

void make(Desk& desk, const std::vector<int>& n) {
    desk.withNextDialog([&](QDialog& sheet) {
        for (const char* const button : {n[0] == 0 ? "IDC_BITMODE_4BIT" : "IDC_BITMODE_8BIT",
                                         n[1] == 0 ? "IDC_COLORTYPE_RGBA" : "IDC_COLORTYPE_IA"})
            sheet.findChild<QAbstractButton*>(QLatin1String(button))->click();
        sheet.findChild<QLineEdit*>(QStringLiteral("IDC_DEFAULT_ALPHA"))->setText(QString::number(n[2]));
        sheet.findChild<QAbstractButton*>(QStringLiteral("IDOK"))->click();
    });
    // What is dragged is let go of for a dialog.
    if (desk.model.active != nullptr)
        desk.model.active->cancel();
    desk.run(ID_PALETTE_NEW);
    desk.model.newPalette(n[1], n[0] == 0 ? 16 : 256, n[2]);
}

void close(Desk& desk, const std::vector<int>& n) {
    if (desk.model.current() == nullptr)
        return;
    const PaletteModel& palette = *desk.model.current();
    const Answers answers{n[0], Desk::palettePath(n[1])};
    if (palette.hasUnsavedChanges()) {
        desk.answerNext(answers.answer);
        if (answers.answer == 0 && palette.unnamed())
            desk.fake.dialogs.answerWith(answers.file);
    }
    desk.run(ID_PALETTE_CLOSE);
    desk.model.closePalette(answers);
}

void save(Desk& desk, const std::vector<int>& n) {
    if (desk.model.current() == nullptr)
        return;
    const bool as = n[0] == 0;
    const std::string path = Desk::palettePath(n[1]);
    if (as || desk.model.current()->unnamed())
        desk.fake.dialogs.answerWith(path);
    desk.run(as ? ID_PALETTE_SAVE_AS : ID_PALETTE_SAVE);
    desk.model.savePalette(as, path);
}

void tab(Desk& desk, const std::vector<int>& n) {
    if (desk.model.palettes.empty())
        return;
    const int index = n[0] % static_cast<int>(desk.model.palettes.size());
    desk.frame().paletteBar().findChild<QTabBar*>()->setCurrentIndex(index);
    desk.model.currentPalette = std::next(desk.model.palettes.begin(), index)->first;
}

void entry(Desk& desk, const std::vector<int>& n) {
    PaletteModel* const palette = desk.model.current();
    if (palette == nullptr)
        return;
    PlainTable table = palette->table();
    const std::size_t at = static_cast<std::size_t>(n[0]) % table.entries.size();
    CPaletteBar& bar = desk.frame().paletteBar();
    desk.app().imageHost().selectPaletteBarCell(static_cast<int>(at));
    auto* const field = bar.findChild<QLineEdit*>(QStringLiteral("IDC_ENTRY"));
    field->setText(QString::number(n[1], 16));
    Q_EMIT field->textEdited(field->text());
    bar.findChild<QAbstractButton*>(QStringLiteral("IDC_APPLY"))->click();
    table.entries[at] = static_cast<std::uint16_t>(n[1]);
    palette->edit(std::move(table));
    desk.model.refreshImages();
}

void undo(Desk& desk, const std::vector<int>& n) {
    const bool back = n[0] == 0;
    const CommandId id = back ? ID_PALETTE_UNDO : ID_PALETTE_REDO;
    const bool enabled = desk.model.enabled(id).value_or(false);
    const std::size_t asked = desk.model.messages;
    desk.model.undoPalette(back, n[1]);
    if (desk.model.messages > asked)
        desk.answerNext(n[1]);
    desk.expectRun(id, enabled);
}

void moveEntry(Desk& desk, const std::vector<int>& n) {
    // What is dragged is taken back before the texels are looked at.
    desk.app().giveUpDrags();
    if (desk.model.active != nullptr)
        desk.model.active->cancel();
    if (desk.model.current() == nullptr || !desk.model.movesSilently())
        return;
    const int count = static_cast<int>(desk.model.current()->table().entries.size());
    const int entry = n[0] % count;
    const int place = n[1] % count;
    if (entry == place)
        return;
    desk.model.moveEntry(static_cast<std::size_t>(entry), static_cast<std::size_t>(place));
    Q_EMIT desk.frame().paletteBar().entriesDropped(entry, entry, place);
}

/// Turns the colours of a few entries round, or their order.
void changeRange(Desk& desk, const std::vector<int>& n) {
    PaletteModel* const palette = desk.model.current();
    if (palette == nullptr)
        return;
    PlainTable table = palette->table();
    const int count = static_cast<int>(table.entries.size());
    // One cell alone is no range.
    const int first = n[0] % (count - 1);
    const int last = std::min(first + 1 + n[1], count - 1);
    const bool inverts = n[2] == 0;
    const auto begin = table.entries.begin() + first;
    const auto end = table.entries.begin() + last + 1;
    if (inverts) {
        // All bits of the colour, none of alpha.
        for (auto entry = begin; entry != end; ++entry)
            *entry = static_cast<std::uint16_t>(*entry ^ (table.type == 0 ? 0xFFFEU : 0xFF00U));
    } else {
        std::reverse(begin, end);
    }
    desk.frame().paletteBar().selectEntries({first, last});
    desk.expectRun(inverts ? ID_RANGE_INVERT : ID_RANGE_REVERSE, true);
    if (table == palette->table())
        return;
    palette->edit(std::move(table));
    desk.model.refreshImages();
}

void copyCells(Desk& desk, const std::vector<int>& n) {
    const PaletteModel* const palette = desk.model.current();
    if (palette == nullptr)
        return;
    const int count = static_cast<int>(palette->table().entries.size());
    const int first = n[0] % (count - 1);
    const int last = std::min(first + 1 + n[1], count - 1);
    desk.frame().paletteBar().selectEntries({first, last});
    desk.expectRun(ID_PALETTE_COPY, true);
    desk.model.copiedCells.clear();
    for (int entry = first; entry <= last; ++entry)
        desk.model.copiedCells.push_back(palette->table().cell(static_cast<std::size_t>(entry)));
}

/// What does not fit behind its place stays away. Cells that look the same are no step.
void pasteCells(Desk& desk, const std::vector<int>& n) {
    PaletteModel* const palette = desk.model.current();
    if (palette == nullptr || desk.model.copiedCells.empty())
        return;
    PlainTable table = palette->table();
    const int count = static_cast<int>(table.entries.size());
    const int place = n[0] % (count - 1);
    desk.frame().paletteBar().selectEntries({place, place + 1});
    desk.expectRun(ID_PALETTE_PASTE, true);
    bool any = false;
    auto at = static_cast<std::size_t>(place);
    for (const std::uint32_t value : desk.model.copiedCells) {
        if (at < table.entries.size()) {
            any = any || value != table.cell(at);
            table.setCell(at++, value);
        }
    }
    if (!any)
        return;
    palette->edit(std::move(table));
    desk.model.refreshImages();
}

} // namespace

const std::vector<Verb>& paletteVerbs() {
    static const std::vector<Verb> verbs{{"open-palette", 15, {Desk::kPalettes}, open},
                                         {"new-palette", 6, {2, 2, 2}, make},
                                         {"close-palette", 8, {3, Desk::kPalettes}, close},
                                         {"save-palette", 10, {3, Desk::kPalettes}, save},
                                         {"tab", 10, {8}, tab},
                                         {"entry", 40, {256, 65536}, entry},
                                         {"undo-entry", 25, {2, 2}, undo},
                                         {"move-entry", 15, {256, 256}, moveEntry},
                                         {"change-range", 10, {256, 20, 2}, changeRange},
                                         {"copy-cells", 10, {256, 20}, copyCells},
                                         {"paste-cells", 12, {256}, pasteCells}};
    return verbs;
}

} // namespace dyeworks

#include "ui/EntryOrderCommands.h"

#include "core/PaletteSet.h"
#include "paint/CDyeworksDoc.h"
#include "palette/EntryOrderPlan.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "project/CTPFDocument.h"
#include "ui/CMainFrame.h"
#include "ui/CurrentProject.h"
#include "ui/ImagesOfPalette.h"
#include "ui/OpenImages.h"
#include "ui/Workspace.h"
#include "ui/palettebar/CPaletteBar.h"
#include "ui/sheets/EntryOrderSheet.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

namespace dyeworks {

namespace {

/// Every open image follows with all its texels, and no picture is left behind.
bool speaksForItself(const EntryOrder& order, const TlutData& table, const ImagesOfPalette& images) {
    const EntryOrderPlan plan = planOf(order, table, images.openImages());
    const bool leavesTexels = std::ranges::any_of(
        plan.images, [](const EntryOrderPlan::Image& image) { return image.follows.beyond > 0; });
    return plan.canBeDone() && !leavesTexels && images.closedPictures().empty();
}

StringId nameOf(EntryOperation operation) {
    switch (operation) {
    case EntryOperation::Move:
        return StringId::StepMoveEntries;
    case EntryOperation::Swap:
        return StringId::StepSwapEntries;
    case EntryOperation::Sort:
        return StringId::StepSortEntries;
    case EntryOperation::MergeTwins:
        return StringId::StepMergeTwins;
    case EntryOperation::Compact:
        break;
    }
    return StringId::StepCompact;
}

} // namespace

EntryOrderCommands::EntryOrderCommands(Workspace& workspace)
    : workspace_(workspace) {
    onRange(ID_PALETTE_MOVE, ID_PALETTE_COMPACT, &EntryOrderCommands::OnOrder,
            &EntryOrderCommands::OnUpdateOrder);
}

void EntryOrderCommands::start(CPaletteBar& bar) {
    QObject::connect(&bar, &CPaletteBar::entriesDropped, &bar, [this](int first, int last, int place) {
        moveTo({first, last}, place);
    });
}

/// One entry alone can be moved or swapped; anything else is done to the whole palette then.
EntryOrder EntryOrderCommands::proposal(EntryOperation operation) const {
    const PaletteCells& cells = workspace_.mainFrame().paletteBar().state().cells();
    const TlutData& table = workspace_.paletteSet()->lookup("")->table;
    const bool goesSomewhere = operation == EntryOperation::Move || operation == EntryOperation::Swap;
    EntryOrder order;
    order.operation = operation;
    order.range = {0, table.count - 1};
    const std::optional<EntryRange> selected = cells.selectedRange();
    if (selected && (goesSomewhere || selected->first < selected->last)) {
        order.range = *selected;
    } else if (goesSomewhere) {
        const std::int32_t current = cells.currentEntry().value_or(0);
        order.range = {current, current};
    }
    order.target = order.range.first;
    // Texels of value 0 are mostly what is seen through.
    order.kept.set(0, operation == EntryOperation::Sort || operation == EntryOperation::Compact);
    return order;
}

void EntryOrderCommands::openPictures(const std::vector<std::string>& names) const {
    for (const std::string& name : names) {
        if (CTPFDocument* const project = workspace_.currentProject().document())
            project->OpenPicture(name);
    }
}

void EntryOrderCommands::OnOrder(CommandId id) {
    carryOut(proposal(static_cast<EntryOperation>(id - ID_PALETTE_MOVE)), Sheet::Always);
}

void EntryOrderCommands::moveTo(EntryRange range, std::int32_t place) {
    const TextureLookupTable* const palette = workspace_.paletteSet()->lookup("");
    if (palette == nullptr || palette->table.count > EntryMap::kMostEntries)
        return;
    EntryOrder order;
    order.operation = EntryOperation::Move;
    // Cells behind the last entry may be dragged, too.
    order.range = {range.first, std::min(range.last, palette->table.count - 1)};
    const std::int32_t length = order.range.last - order.range.first + 1;
    if (length <= 0)
        return;
    order.target = std::min(place, palette->table.count - length);
    carryOut(order, Sheet::WhereNeeded);
}

void EntryOrderCommands::carryOut(EntryOrder order, Sheet sheet) {
    PaletteSet& set = *workspace_.paletteSet();
    const std::string key = set.currentKey;
    const auto find = [&] {
        return ImagesOfPalette(*set.lookup(key), openImages(workspace_),
                               workspace_.currentProject().document());
    };
    // What floats belongs to the images that the sheet tells of.
    for (CDyeworksDoc* image : openImages(workspace_)) {
        if (image->GetAttachedPalette() == set.lookup(key) && !image->settlePieces())
            return;
    }
    order.insideBanks = showBanks(find().openImages(), set.lookup(key)->table);
    for (;; sheet = Sheet::Always) {
        const ImagesOfPalette shown = find();
        if (sheet == Sheet::Always || !speaksForItself(order, set.lookup(key)->table, shown)) {
            const TextureLookupTable& palette = *set.lookup(key);
            const std::string title = palette.title.substr(0, palette.title.find(" * "));
            EntryOrderSheet dialog(order, palette.table, title, shown, &workspace_.mainFrame());
            if (dialog.exec() != QDialog::Accepted || !dialog.order())
                return;
            order = *dialog.order();
            if (dialog.opensPictures())
                openPictures(shown.closedPictures());
        }
        // The palette may have gone while the sheet was open, or images may have come.
        if (set.lookup(key) == nullptr)
            return;
        ImagesOfPalette now = find();
        const EntryOrderPlan plan = planOf(order, set.lookup(key)->table, now.openImages());
        if (plan.canBeDone()) {
            const bool isDone = now.rearrange(*plan.map, nameOf(order.operation));
            if (isDone && order.operation == EntryOperation::Move && set.currentKey == key)
                workspace_.mainFrame().paletteBar().selectEntries(
                    {order.target, order.target + order.range.last - order.range.first});
            return;
        }
        applicationMessage(text(plan.leavesBank() ? StringId::OrderRefused : StringId::OrderNothing));
    }
}

void EntryOrderCommands::OnUpdateOrder(CommandUi& ui) {
    const TextureLookupTable* const palette = workspace_.paletteSet()->lookup("");
    ui.require(palette != nullptr, StringId::WhyNoPalette);
    ui.require(palette != nullptr && palette->table.count > 0 &&
                   palette->table.count <= EntryMap::kMostEntries,
               StringId::WhyPaletteSize);
}

} // namespace dyeworks

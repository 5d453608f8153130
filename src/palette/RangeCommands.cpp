#include "palette/RangeCommands.h"

#include "core/PaletteSet.h"
#include "palette/EntryOperations.h"
#include "palette/PaletteBarState.h"
#include "palette/RangeAdjustment.h"
#include "platform/StringId.h"

namespace dyeworks {

RangeCommands::RangeCommands(PaletteBarState& state, PaletteBarHost& host, RangeView& view)
    : state_(state)
    , host_(host)
    , view_(view) {
    using Self = RangeCommands;
    on(ID_RANGE_RAMP, &Self::OnRamp, &Self::OnUpdateRamp);
    on(ID_RANGE_ADJUST, &Self::OnAdjust, &Self::OnUpdateRange);
    on(ID_RANGE_INVERT, &Self::OnInvert, &Self::OnUpdateRange);
    on(ID_RANGE_REVERSE, &Self::OnReverse, &Self::OnUpdateRange);
    on(ID_RANGE_FILL, &Self::OnFill, &Self::OnUpdateFill);
}

std::optional<EntryRange> RangeCommands::target() const {
    const TextureLookupTable* const palette = state_.palette().get();
    if (palette == nullptr || palette->table.count == 0 || state_.cells().blockIsSelected())
        return std::nullopt;
    return state_.cells().selectedRange().value_or(EntryRange{0, palette->table.count - 1});
}

void RangeCommands::replace(TextureLookupTable& palette, const TlutData& table, StringId name) {
    if (table == palette.table)
        return;
    const auto write = [&](TextureLookupTable& edited) {
        for (std::int32_t i = 0; i < table.count; ++i)
            edited.setEntry(i, table.getEntry(i));
    };
    state_.edit(palette, write, name);
}

void RangeCommands::change(const std::function<void(TlutData&, EntryRange)>& operation, StringId name) {
    const auto range = target();
    if (!range)
        return;
    TextureLookupTable& palette = *state_.palette().get();
    TlutData table = palette.table;
    operation(table, *range);
    replace(palette, table, name);
}

void RangeCommands::OnUpdateRange(CommandUi& ui) {
    const TextureLookupTable* const palette = state_.palette().get();
    ui.require(palette != nullptr, StringId::WhyNoPalette);
    ui.require(palette != nullptr && palette->table.count > 0, StringId::WhyPaletteSize);
    ui.require(target().has_value(), StringId::WhyBlockSelected);
}

void RangeCommands::OnRamp() {
    change(rampEntries, StringId::StepRamp);
}

void RangeCommands::OnUpdateRamp(CommandUi& ui) {
    const auto range = target();
    OnUpdateRange(ui);
    ui.require(range && range->last - range->first > 1, StringId::WhyFewEntries);
}

void RangeCommands::OnInvert() {
    change(invertEntries, StringId::StepInvert);
}

void RangeCommands::OnReverse() {
    change(reverseEntries, StringId::StepReverse);
}

void RangeCommands::OnFill() {
    const auto fill = [value = state_.entry().value()](TlutData& table, EntryRange range) {
        fillEntries(table, range, value);
    };
    change(fill, StringId::StepFillEntries);
}

void RangeCommands::OnUpdateFill(CommandUi& ui) {
    OnUpdateRange(ui);
    ui.require(state_.cells().currentEntry().has_value(), StringId::WhyNoEntry);
    ui.require(!state_.editor().textIsWrong(), StringId::WhyEntryTextWrong);
}

void RangeCommands::OnAdjust() {
    const auto range = target();
    if (!range)
        return;
    RangeAdjustment adjustment(state_, host_, host_.paletteSet()->currentKey, *range);
    if (!view_.askAdjustment(adjustment))
        return;
    if (TextureLookupTable* const palette = adjustment.palette())
        replace(*palette, adjustment.result(), StringId::StepAdjust);
}

} // namespace dyeworks

#include "palette/EntryEditor.h"

#include "core/TextureLookupTable.h"
#include "palette/ChannelRow.h"
#include "palette/NumberText.h"
#include "platform/Platform.h"
#include "platform/StringId.h"

#include <algorithm>
#include <array>
#include <utility>

namespace dyeworks {

namespace {

/// The scroll codes that move a trackbar for good: pages, dragging and the ends.
constexpr std::array kTrackbarCodes{2, 3, 5, 6, 7};

} // namespace

EntryEditor::EntryEditor(PaletteBarHost& host, const CurrentPalette& palette, const PaletteCells& cells,
                         PaletteBarChanges& changes)
    : palette_(palette)
    , cells_(cells)
    , changes_(changes)
    , preview_(host, palette) {}

bool EntryEditor::ChannelTyped(Channel channel, std::string_view text) {
    const ChannelRow row = channelRow(palette_.colourType(), channel);
    // A field that is empty is about to be filled.
    if (!cells_.started() || !row.visible || text.find_first_not_of(' ') == std::string_view::npos)
        return true;
    const auto number = parseNumber(text);
    if (!number || *number < 0 || *number > row.highest) {
        applicationMessage(dyeworks::text(StringId::IntegerOutOfRange, {"0", std::to_string(row.highest)}));
        return false;
    }
    setChannel(channel, *number, Source::ChannelEdits);
    return true;
}

void EntryEditor::SliderMoved(Channel channel, std::int32_t value) {
    setChannel(channel, value, Source::Sliders);
}

void EntryEditor::TrackbarScrolled(Channel channel, std::int32_t code, std::int32_t position) {
    if (std::ranges::find(kTrackbarCodes, code) != kTrackbarCodes.end())
        setChannel(channel, position, Source::Trackbars);
}

void EntryEditor::setChannel(Channel channel, std::int32_t value, Source source) {
    const ChannelRow row = channelRow(palette_.colourType(), channel);
    if (!cells_.started() || !row.visible)
        return;
    entry_.setChannel(channel, std::clamp(value, 0, row.highest));
    SyncControls(source);
}

void EntryEditor::EntryTyped(std::string text) {
    if (!cells_.started() || !palette_.exists())
        return;
    entry_.setText(std::move(text));
    SyncControls(Source::EntryText);
}

void EntryEditor::SyncControls(Source source) {
    if (!cells_.started())
        return;
    const PaletteBarChanges::Action action(changes_, PaletteBarChanges::kValues);
    const TextureLookupTable* const palette = palette_.get();
    const auto index = cells_.currentEntry();
    if (source == Source::Palette)
        entry_.read(palette == nullptr ? nullptr : &palette->table, index);
    else if (!index)
        return;
    else if (source == Source::EntryText)
        entry_.takeText(palette->table.colourType);
    else
        entry_.takeChannels(palette_.ComposeEntry(entry_.channels()));
    preview_.show(index, entry_);
}

void EntryEditor::PreviewChecked(bool checked) {
    if (!cells_.started() || checked == preview())
        return;
    const PaletteBarChanges::Action action(changes_, PaletteBarChanges::kValues);
    if (checked)
        preview_.turnOn(cells_.currentEntry(), entry_);
    else
        preview_.turnOff();
}

void EntryEditor::ShowAgain() {
    if (entry_.pending())
        preview_.show(cells_.currentEntry(), entry_);
}

void EntryEditor::SetShown(bool shown) {
    if (preview_.setShown(shown) && shown)
        ShowAgain();
}

ColourRef EntryEditor::colour(ViewMode mode) const {
    const auto type = palette_.colourType();
    return type ? entryColour(*type, entry_.value(), mode) : 0U;
}

bool EntryEditor::CanApply() const {
    return entry_.pending() && cells_.currentEntry() && entry_.ParseEntryText();
}

bool EntryEditor::canAsk() const {
    return cells_.currentEntry() && channelRow(palette_.colourType(), Channel::Red).visible;
}

} // namespace dyeworks

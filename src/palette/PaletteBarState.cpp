#include "palette/PaletteBarState.h"

#include "core/PaletteSet.h"
#include "palette/NumberText.h"
#include "palette/PaletteBarChange.h"
#include "platform/Platform.h"

#include <algorithm>
#include <array>
#include <utility>

namespace dyeworks {

namespace {

/// The scroll codes that move a trackbar for good: pages, dragging and the ends.
constexpr std::array kTrackbarCodes{2, 3, 5, 6, 7};

} // namespace

PaletteBarState::PaletteBarState(PaletteBarHost& host, PaletteBarView& view)
    : host_(host)
    , view_(view) {}

void PaletteBarState::Start(PaletteGrid& grid, PaletteGrid& strip) {
    const Change change(*this, Change::kValues | Change::kLayout | Change::kTabs);
    grid.setMarker(PaletteGrid::kCurrentCell, PaletteGrid::kNowhere);
    for (std::int32_t marker = PaletteGrid::kCurrentCell; marker <= PaletteGrid::kLastMarker; ++marker) {
        if (marker != PaletteGrid::kCurrentCell)
            grid.setMarker(marker, PaletteGrid::kSwitchedOff);
        strip.setMarker(marker, PaletteGrid::kSwitchedOff);
    }
    grid.setSelectable(true);
    strip.setCellCount(kGradientSteps);
    strip.setLayout(kGradientSteps, 1);
    grid_ = &grid;
    strip_ = &strip;
    FillStrip();
    RefreshFromPalette();
    ConfigureChannels();
}

TextureLookupTable* PaletteBarState::currentPalette() const {
    PaletteSet* const set = host_.paletteSet();
    if (set == nullptr)
        return nullptr;
    const auto position = set->palettes.find(set->currentKey);
    return position == set->palettes.end() ? nullptr : position->second.get();
}

ColourType PaletteBarState::colourType() const {
    return currentPalette()->table.colourType;
}

std::int32_t PaletteBarState::CurrentCell() const {
    return initialised() && hasPalette() ? grid_->marker(PaletteGrid::kCurrentCell) : PaletteGrid::kNowhere;
}

std::optional<std::int32_t> PaletteBarState::currentEntry() const {
    const std::int32_t cell = CurrentCell();
    if (cell < 0 || cell >= currentPalette()->table.count)
        return std::nullopt;
    return cell;
}

std::uint16_t PaletteBarState::ComposeEntry(const ChannelValues& channels) const {
    return hasPalette() ? composeEntry(colourType(), channels) : std::uint16_t{0};
}

bool PaletteBarState::ChannelTyped(Channel channel, std::string_view text) {
    const ChannelRow row = channelRow(channel);
    // A field that is empty is about to be filled.
    if (!initialised() || !row.visible || text.find_first_not_of(' ') == std::string_view::npos)
        return true;
    const auto number = parseNumber(text);
    if (!number || *number < 0 || *number > row.highest) {
        applicationMessage(dyeworks::text(StringId::IntegerOutOfRange, {"0", std::to_string(row.highest)}));
        return false;
    }
    setChannel(channel, *number, Source::ChannelEdits);
    return true;
}

void PaletteBarState::SliderMoved(Channel channel, std::int32_t value) {
    setChannel(channel, value, Source::Sliders);
}

void PaletteBarState::TrackbarScrolled(Channel channel, std::int32_t code, std::int32_t position) {
    if (std::find(kTrackbarCodes.begin(), kTrackbarCodes.end(), code) != kTrackbarCodes.end())
        setChannel(channel, position, Source::Trackbars);
}

void PaletteBarState::setChannel(Channel channel, std::int32_t value, Source source) {
    const ChannelRow row = channelRow(channel);
    if (!initialised() || !row.visible)
        return;
    channels_[channel] = std::clamp(value, 0, row.highest);
    SyncControls(source);
}

void PaletteBarState::EntryTyped(std::string text) {
    if (!initialised() || !hasPalette())
        return;
    entryText_ = std::move(text);
    SyncControls(Source::EntryText);
}

void PaletteBarState::SyncControls(Source source) {
    if (!initialised())
        return;
    const Change change(*this, Change::kValues);
    switch (source) {
    case Source::Palette:
        readEntry();
        break;
    case Source::ChannelEdits:
    case Source::Trackbars:
    case Source::Sliders:
        if (!currentEntry())
            return;
        entry_ = ComposeEntry(channels_);
        entryText_ = dyeworks::entryText(entry_);
        pending_ = true;
        break;
    case Source::EntryText:
        if (!currentEntry())
            return;
        if (const auto typed = ParseEntryText()) {
            entry_ = *typed;
            channels_ = channelsOf(colourType(), entry_);
        }
        pending_ = true;
        break;
    }
    showPreview();
}

void PaletteBarState::readEntry() {
    const auto index = currentEntry();
    entry_ = index ? currentPalette()->table.getEntry(*index) : std::uint16_t{0};
    channels_ = index ? channelsOf(colourType(), entry_) : ChannelValues{};
    entryText_ = hasPalette() ? dyeworks::entryText(entry_) : std::string();
    pending_ = false;
}

/// Shows the edited value in the images of the palette, or the stored one while no other is being edited.
void PaletteBarState::showPreview() {
    PaletteSet* const set = host_.paletteSet();
    if (set == nullptr || previewedKey_ != set->currentKey)
        endPreview();
    const auto index = currentEntry();
    if (!index || !preview_ || !shown_)
        return endPreview();
    TextureLookupTable copy(*currentPalette());
    copy.setEntry(*index, entry_);
    host_.BroadcastPaletteChange(set->currentKey, copy);
    previewedKey_ = pending_ ? set->currentKey : std::string();
}

/// Shows the stored colours where an edited value is shown. A palette that is gone has no images any more.
void PaletteBarState::endPreview() {
    const std::string key = std::exchange(previewedKey_, std::string());
    PaletteSet* const set = host_.paletteSet();
    if (key.empty() || set == nullptr)
        return;
    const auto position = set->palettes.find(key);
    if (position != set->palettes.end())
        host_.BroadcastPaletteChange(key, *position->second);
}

void PaletteBarState::PreviewChecked(bool checked) {
    if (!initialised() || checked == preview_)
        return;
    const Change change(*this, Change::kValues);
    preview_ = checked;
    if (preview_) {
        showPreview();
    } else {
        previewedKey_.clear();
        host_.RefreshImagePalettes();
    }
}

void PaletteBarState::SetShown(bool shown) {
    if (!initialised() || shown == shown_)
        return;
    shown_ = shown;
    if (!shown_)
        endPreview();
    else if (pending_)
        showPreview();
}

} // namespace dyeworks

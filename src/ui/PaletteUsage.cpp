#include "ui/PaletteUsage.h"

#include "core/PaletteSet.h"
#include "framework/DocumentTemplate.h"
#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "ui/CMainFrame.h"
#include "ui/Workspace.h"
#include "ui/palettebar/CPaletteBar.h"

#include <optional>

namespace dyeworks {

namespace {

constexpr const char* kSection = "Usage";
constexpr const char* kShownEntry = "Shown";

} // namespace

PaletteUsage::PaletteUsage(Workspace& workspace)
    : workspace_(workspace)
    , flash_([this](bool standsOut) { standOut(standsOut); }) {
    soon_.setSingleShot(true);
    QObject::connect(&soon_, &QTimer::timeout, &soon_, [this] { refresh(); });
    on(ID_VIEW_USAGE, &PaletteUsage::OnToggle, &PaletteUsage::OnUpdateToggle);
    on(ID_PALETTE_SHOW_TEXELS, &PaletteUsage::OnShowTexels, &PaletteUsage::OnUpdateShowTexels);
}

PaletteUsage::~PaletteUsage() = default;

void PaletteUsage::start(CPaletteBar& bar) {
    on_ = platform().profile().integer(kSection, kShownEntry, 0) != 0;
    QObject::connect(&bar, &CPaletteBar::shownAnew, &soon_, [this] { refreshSoon(); });
}

std::vector<std::uint64_t> PaletteUsage::usage(const std::string& key) {
    const TextureLookupTable* const palette = workspace_.paletteSet()->lookup(key);
    return palette == nullptr ? std::vector<std::uint64_t>() : entryUsage(*this, key, palette->table.count);
}

std::vector<CDyeworksDoc*> PaletteUsage::imagesOf(const std::string& key) const {
    std::vector<CDyeworksDoc*> images;
    const TextureLookupTable* const palette = workspace_.paletteSet()->lookup(key);
    if (palette == nullptr)
        return images;
    for (CDocument* document : workspace_.imageTemplate().documents()) {
        auto& image = static_cast<CDyeworksDoc&>(*document);
        if (image.GetAttachedPalette() == palette)
            images.push_back(&image);
    }
    return images;
}

std::vector<CountedImages::Image> PaletteUsage::attachedTo(const std::string& key) {
    std::vector<Image> attached;
    for (CDyeworksDoc* image : imagesOf(key))
        attached.push_back({image->firstEntryFor(*image->GetAttachedPalette()), image->texelCounts()});
    return attached;
}

void PaletteUsage::imageChanged(bool texels) {
    if (texels)
        flash_.end();
    refreshSoon();
}

void PaletteUsage::refreshSoon() {
    if (on_ && workspace_.hasMainFrame() && !soon_.isActive())
        soon_.start(0);
}

void PaletteUsage::refresh() {
    if (!workspace_.hasMainFrame())
        return;
    CPaletteBar& bar = workspace_.mainFrame().paletteBar();
    const TextureLookupTable* const palette = workspace_.paletteSet()->lookup("");
    if (!on_ || palette == nullptr)
        return bar.showRemarks({});
    // Entries of two banks never show in one image.
    const bool banked = bar.state().cells().inBankMode();
    bar.showRemarks(entryRemarks(palette->table, usage(workspace_.paletteSet()->currentKey),
                                 banked ? PaletteCells::kBankSize : palette->table.count));
}

void PaletteUsage::standOut(bool standsOut) {
    for (CDyeworksDoc* image : imagesOf(flashedKey_)) {
        const std::int32_t value = flashedEntry_ - image->firstEntryFor(*image->GetAttachedPalette());
        for (DocumentView* each : image->views()) {
            if (auto* const view = dynamic_cast<CDyeworksView*>(each))
                view->StandOut(standsOut && value >= 0 ? std::optional(static_cast<std::uint32_t>(value))
                                                       : std::nullopt);
        }
    }
}

std::int32_t PaletteUsage::currentEntry() const {
    if (!workspace_.hasMainFrame())
        return -1;
    return workspace_.mainFrame().paletteBar().state().cells().currentEntry().value_or(-1);
}

void PaletteUsage::OnToggle() {
    on_ = !on_;
    platform().profile().setInteger(kSection, kShownEntry, on_ ? 1 : 0);
    refresh();
}

void PaletteUsage::OnUpdateToggle(CommandUi& ui) {
    ui.checked = on_;
}

void PaletteUsage::OnShowTexels() {
    flash_.end();
    flashedKey_ = workspace_.paletteSet()->currentKey;
    flashedEntry_ = currentEntry();
    const std::vector<std::uint64_t> texels = usage(flashedKey_);
    if (texels[static_cast<std::size_t>(flashedEntry_)] == 0) {
        workspace_.mainFrame().SetStatusText(text(StringId::ShowTexelsNone, {std::to_string(flashedEntry_)}),
                                             0);
        return;
    }
    flash_.start();
}

void PaletteUsage::OnUpdateShowTexels(CommandUi& ui) {
    ui.enabled = currentEntry() >= 0 && !imagesOf(workspace_.paletteSet()->currentKey).empty();
}

} // namespace dyeworks

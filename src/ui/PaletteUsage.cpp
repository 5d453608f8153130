#include "ui/PaletteUsage.h"

#include "core/PaletteSet.h"
#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "ui/CMainFrame.h"
#include "ui/ImagesOfPalette.h"
#include "ui/OpenImages.h"
#include "ui/Workspace.h"
#include "ui/palettebar/CPaletteBar.h"

#include <optional>

namespace dyeworks {

namespace {

constexpr const char* kUsageSection = "Usage";
constexpr const char* kUsageEntry = "Shown";

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
    on_ = platform().profile().integer(kUsageSection, kUsageEntry, 0) != 0;
    QObject::connect(&bar, &CPaletteBar::shownAnew, &soon_, [this] { refreshSoon(); });
}

EntryCounts PaletteUsage::usage(const std::string& key) const {
    TextureLookupTable* const palette = workspace_.paletteSet()->lookup(key);
    if (palette == nullptr)
        return {};
    const ImagesOfPalette images(*palette, openImages(workspace_), nullptr);
    return useOfEntries(images.openImages(), palette->table.count);
}

std::vector<CDyeworksDoc*> PaletteUsage::imagesOf(const std::string& key) const {
    const TextureLookupTable* const palette = workspace_.paletteSet()->lookup(key);
    std::vector<CDyeworksDoc*> images = openImages(workspace_);
    std::erase_if(images, [&](const CDyeworksDoc* image) {
        return palette == nullptr || image->GetAttachedPalette() != palette;
    });
    return images;
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
                                 banked ? kBankSize : palette->table.count));
}

void PaletteUsage::standOut(bool standsOut) {
    for (CDyeworksDoc* image : imagesOf(flashedKey_)) {
        const std::int32_t value = flashedEntry_ - image->firstShownEntry();
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
    platform().profile().setInteger(kUsageSection, kUsageEntry, on_ ? 1 : 0);
    refresh();
}

void PaletteUsage::OnUpdateToggle(CommandUi& ui) {
    ui.checked = on_;
}

void PaletteUsage::OnShowTexels() {
    flash_.end();
    flashedKey_ = workspace_.paletteSet()->currentKey;
    flashedEntry_ = currentEntry();
    if (usage(flashedKey_)[static_cast<std::size_t>(flashedEntry_)] == 0) {
        workspace_.mainFrame().SetStatusText(text(StringId::ShowTexelsNone, {std::to_string(flashedEntry_)}),
                                             0);
        return;
    }
    flash_.start();
}

void PaletteUsage::OnUpdateShowTexels(CommandUi& ui) {
    const bool paletteIsOpen = workspace_.paletteSet()->lookup("") != nullptr;
    ui.require(currentEntry() >= 0, paletteIsOpen ? StringId::WhyNoEntry : StringId::WhyNoPalette);
    if (ui.enabled)
        ui.require(!imagesOf(workspace_.paletteSet()->currentKey).empty(), StringId::WhyNoImageShows);
}

} // namespace dyeworks

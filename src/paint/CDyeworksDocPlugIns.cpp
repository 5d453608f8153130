#include "core/PaletteSet.h"
#include "paint/CDyeworksDoc.h"
#include "paint/CanvasDifference.h"
#include "paint/ImagePlugIns.h"
#include "platform/StringId.h"

#include <string>
#include <utility>

namespace dyeworks {

namespace {

/// Calls of one preview inside each other.
constexpr int kMostPreviewCalls = 2;

} // namespace

TlutData* CDyeworksDoc::attachedTable() const {
    TextureLookupTable* const palette = GetAttachedPalette();
    return palette == nullptr ? nullptr : &palette->table;
}

/// The bank stays with the image while that shows in a palette, or in none, that has no banks.
std::int32_t CDyeworksDoc::firstEntryForPlugIns() const {
    const TlutData* const table = attachedTable();
    return canvas_.bitsPerPixel() == 4 && table != nullptr && table->count == 256 ? paletteValue_ : 0;
}

/// A preview may change the image, which leads back here from inside its call. It is then shown what became
/// of the image, but not what it makes of that again; the other one is always given the newest state.
void CDyeworksDoc::RefreshPreviews() {
    if ((!previews_[0].on && !previews_[1].on) || !host_.isActiveImage(*this))
        return;
    ++newestShown_;
    for (std::int32_t which = 0; which < kPreviews; ++which) {
        Preview& preview = previews_.at(static_cast<std::size_t>(which));
        if (!preview.on || std::exchange(preview.seen, newestShown_) == newestShown_)
            continue;
        if (preview.calls < kMostPreviewCalls)
            showInPreview(which);
    }
}

void CDyeworksDoc::showInPreview(std::int32_t which) {
    const std::unique_ptr<TmfImage> image = canvas_.ToImage();
    if (image == nullptr)
        return;
    Preview& preview = previews_.at(static_cast<std::size_t>(which));
    ++preview.calls;
    const bool shown =
        host_.imagePlugIns().PreviewImage(image.get(), attachedTable(), firstEntryForPlugIns(), which) != 0;
    --preview.calls;
    // It may also have gone off during the call, and have shown something after that.
    if (!shown || !preview.on)
        switchPreviewOff(which);
}

void CDyeworksDoc::switchPreviewOff(std::int32_t which) {
    previews_.at(static_cast<std::size_t>(which)).on = false;
    host_.imagePlugIns().PreviewOff(which);
}

void CDyeworksDoc::TakeOverPreviews() {
    for (std::int32_t which = 0; which < kPreviews; ++which) {
        if (!previews_.at(static_cast<std::size_t>(which)).on)
            host_.imagePlugIns().PreviewOff(which);
    }
    RefreshPreviews();
}

void CDyeworksDoc::ImportThrough(std::int32_t plugIn) {
    takeBackDrags();
    const std::unique_ptr<TmfImage> image = canvas_.ToImage();
    if (image == nullptr)
        return;
    const PaletteSet* const set = host_.paletteSet();
    const std::string current = set == nullptr ? "" : set->currentKey;
    const std::int32_t firstEntry = firstEntryForPlugIns();
    std::unique_ptr<TextureCanvas> brought =
        host_.imagePlugIns().ImportImage(plugIn, image.get(), attachedTable(), firstEntry);

    const std::unique_ptr<TextureCanvas> before = canvas_.Clone();
    canvas_.FromImage(*image);
    counts_.forget();
    texelsChanged();
    const Rect whole{0, 0, canvas_.width() - 1, canvas_.height() - 1};
    if (before == nullptr || differingRect(*before, canvas_, whole))
        edits_.loseSavedPosition();
    host_.imageChanged(*this, whole);
    if (!IsAttached()) {
        // A palette that was brought has its colours from the entry on that the plug-in was told.
        if (set != nullptr && set->currentKey != current)
            paletteValue_ = firstEntry;
        Attach();
    }
    // The plug-in may have changed it while the bar shows another one.
    RefreshOwnPalette();

    ImageViewer* const viewer = host_.activeView();
    if (brought == nullptr || viewer == nullptr)
        return;
    viewer->RepaintNow();
    viewer->SetFloatingPiece(std::move(brought), StringId::StepPlugInPiece);
}

void CDyeworksDoc::ExportThrough(std::int32_t plugIn) {
    takeBackDrags();
    const std::unique_ptr<TmfImage> image = canvas_.ToImage();
    host_.imagePlugIns().ExportImage(plugIn, image.get(), attachedTable(), firstEntryForPlugIns());
}

void CDyeworksDoc::OnTogglePreview(CommandId id) {
    Preview& preview = previews_.at(id - ID_PREVIEW1);
    if (preview.on) {
        switchPreviewOff(static_cast<std::int32_t>(id - ID_PREVIEW1));
        return;
    }
    preview.on = true;
    RefreshPreviews();
}

void CDyeworksDoc::OnUpdatePreview(CommandUi& ui) {
    ui.checked = previews_.at(ui.id - ID_PREVIEW1).on;
}

void CDyeworksDoc::OnImport(CommandId id) {
    ImportThrough(static_cast<std::int32_t>(id - ID_IMPORT_FIRST));
}

void CDyeworksDoc::OnUpdateImport(CommandUi& ui) {
    showListEntry(ui, ID_IMPORT_FIRST, host_.imagePlugIns().importNames());
}

void CDyeworksDoc::OnExport(CommandId id) {
    ExportThrough(static_cast<std::int32_t>(id - ID_EXPORT_FIRST));
}

void CDyeworksDoc::OnUpdateExport(CommandUi& ui) {
    showListEntry(ui, ID_EXPORT_FIRST, host_.imagePlugIns().exportNames());
}

} // namespace dyeworks

#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"
#include "paint/CanvasDifference.h"
#include "paint/ImagePlugIns.h"
#include "paint/ViewWindow.h"

namespace dyeworks {

TlutData* CDyeworksDoc::attachedTable() const {
    TextureLookupTable* const palette = GetAttachedPalette();
    return palette == nullptr ? nullptr : &palette->table;
}

/// The bank stays with the image while that shows in a palette, or in none, that has no banks.
std::int32_t CDyeworksDoc::firstEntryForPlugIns() const {
    const TlutData* const table = attachedTable();
    return canvas_.bitsPerPixel() == 4 && table != nullptr && table->count == 256 ? paletteValue_ : 0;
}

void CDyeworksDoc::RefreshPreviews() {
    if ((!previews_[0] && !previews_[1]) || !host_.isActiveImage(*this))
        return;
    const std::unique_ptr<TmfImage> image = canvas_.ToImage();
    if (image == nullptr)
        return;
    for (std::int32_t which = 0; which < 2; ++which) {
        bool& shown = previews_.at(static_cast<std::size_t>(which));
        if (shown)
            shown = host_.imagePlugIns().PreviewImage(image.get(), attachedTable(), firstEntryForPlugIns(),
                                                      which) != 0;
    }
}

void CDyeworksDoc::ImportThrough(std::int32_t plugIn) {
    takeBackDrags();
    const std::unique_ptr<TmfImage> image = canvas_.ToImage();
    if (image == nullptr)
        return;
    std::unique_ptr<TextureCanvas> brought =
        host_.imagePlugIns().ImportImage(plugIn, image.get(), attachedTable(), firstEntryForPlugIns());

    const std::unique_ptr<TextureCanvas> before = canvas_.Clone();
    canvas_.FromImage(*image);
    const Rect whole{0, 0, canvas_.width() - 1, canvas_.height() - 1};
    if (before == nullptr || differingRect(*before, canvas_, whole))
        savedPosition_ = kUnreachable;
    if (!IsAttached())
        Attach();
    RefreshPalette();

    CDyeworksView* const view = host_.activeView();
    if (brought == nullptr || view == nullptr)
        return;
    view->window().repaintNow();
    view->SetFloatingPiece(std::move(brought));
}

void CDyeworksDoc::ExportThrough(std::int32_t plugIn) {
    takeBackDrags();
    const std::unique_ptr<TmfImage> image = canvas_.ToImage();
    host_.imagePlugIns().ExportImage(plugIn, image.get(), attachedTable(), firstEntryForPlugIns());
}

void CDyeworksDoc::OnTogglePreview(CommandId id) {
    bool& shown = previews_.at(id - ID_PREVIEW1);
    shown = !shown;
    if (shown)
        RefreshPreviews();
}

void CDyeworksDoc::OnUpdatePreview(CommandUi& ui) {
    ui.checked = previews_.at(ui.id - ID_PREVIEW1);
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

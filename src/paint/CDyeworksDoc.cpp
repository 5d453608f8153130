#include "paint/CDyeworksDoc.h"

#include "core/PaletteSet.h"
#include "platform/StringId.h"
#include "platform/TextCase.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace dyeworks {

namespace {

constexpr const char* kModifiedMark = " * ";

} // namespace

CDyeworksDoc::CDyeworksDoc(ImageHost& host, DocumentTemplate* documentTemplate)
    : CDocument(documentTemplate)
    , host_(host)
    , makeRecord_(&ImageUndoRecord::make) {
    onRange(ID_PREVIEW1, ID_PREVIEW2, &CDyeworksDoc::OnTogglePreview, &CDyeworksDoc::OnUpdatePreview);
    onRange(ID_IMPORT_FIRST, ID_IMPORT_LAST, &CDyeworksDoc::OnImport, &CDyeworksDoc::OnUpdateImport);
    onRange(ID_EXPORT_FIRST, ID_EXPORT_LAST, &CDyeworksDoc::OnExport, &CDyeworksDoc::OnUpdateExport);
    on(ID_IMAGE_ATTACH, &CDyeworksDoc::Attach, &CDyeworksDoc::OnUpdateAttach);
    on(ID_IMAGE_ADD_TO_PROJECT, &CDyeworksDoc::AddToProject, &CDyeworksDoc::OnUpdateAddToProject);
    on(ID_FILE_EXPORT_BMP, &CDyeworksDoc::ExportBmp);
    on(ID_FILE_REVERT, &CDyeworksDoc::Revert, &CDyeworksDoc::OnUpdateRevert);
}

CDyeworksDoc::~CDyeworksDoc() {
    openEdit_.reset();
    if (host_.lastActivatedImage() == this)
        host_.setLastActivatedImage(nullptr);
    host_.imageClosed();
}

TextureLookupTable* CDyeworksDoc::GetAttachedPalette() const {
    PaletteSet* const set = host_.paletteSet();
    return attachedName_.empty() || set == nullptr ? nullptr : set->lookup(attachedName_);
}

void CDyeworksDoc::Attach() {
    PaletteSet* const set = host_.paletteSet();
    if (set == nullptr)
        return;
    attachedName_.clear();
    set->complete(attachedName_);
    UpdateTitle();
    // The bar shows the bank of the attached palette, which the colours are taken from.
    host_.refreshPaletteBar();
    RefreshPalette();
}

void CDyeworksDoc::RefreshPalette() {
    refreshPalette(false);
}

void CDyeworksDoc::RefreshOwnPalette() {
    refreshPalette(true);
}

void CDyeworksDoc::refreshPalette(bool ofAnyPalette) {
    PaletteSet* const set = host_.paletteSet();
    if (!attachedName_.empty() && set != nullptr) {
        if (!set->complete(attachedName_))
            attachedName_.clear();
        else if (ofAnyPalette || attachedName_ == set->currentKey)
            takeColours(*set->lookup(attachedName_));
        UpdateTitle();
    }
    host_.imageChanged(*this, std::nullopt);
    updateAllViews(nullptr, kHintColours);
    RefreshPreviews();
    canvas_.ResetChangedRect();
}

void CDyeworksDoc::PaletteChanged(const std::string& name, const TextureLookupTable* palette) {
    if (palette == nullptr)
        return;
    if (!attachedName_.empty() && equalIgnoringCase(name, attachedName_))
        takeColours(*palette);
    host_.imageChanged(*this, std::nullopt);
    updateAllViews(nullptr, kHintColours);
    RefreshPreviews();
    canvas_.ResetChangedRect();
}

/// What floats above the image goes along: it is placed there by values, not by colours. What comes from
/// elsewhere keeps colours of its own until then.
void CDyeworksDoc::takeColours(const TextureLookupTable& palette) {
    const auto colours = std::as_const(canvas_).colourTable();
    const std::vector<std::uint8_t> before(colours.begin(), colours.end());
    canvas_.ApplyPalette(palette, firstEntryFor(palette));
    if (!std::ranges::equal(before, colours))
        forEachViewer([](ImageViewer& viewer) { viewer.RecolourFloatingPiece(); });
}

/// The palette bar shows the bank of the active image while that is attached to the current palette; any
/// other image keeps to the one it was last given, as long as the palette reaches that far.
std::int32_t CDyeworksDoc::firstEntryFor(const TextureLookupTable& palette) const {
    const PaletteSet* const set = host_.paletteSet();
    if (set != nullptr && attachedName_ == set->currentKey && host_.isActiveImage(*this))
        return host_.paletteBarFirstEntry();
    const auto colours = static_cast<std::int32_t>(canvas_.GetColorCount());
    return paletteValue_ >= 0 && paletteValue_ <= palette.table.count - colours ? paletteValue_ : 0;
}

std::int32_t CDyeworksDoc::firstShownEntry() const {
    const TextureLookupTable* const palette = GetAttachedPalette();
    return palette == nullptr || canvas_.bitsPerPixel() >= 8 ? 0 : firstEntryFor(*palette);
}

void CDyeworksDoc::UpdateTitle() {
    baseName_ = nameWithoutParts();
    std::string composed = baseName_;
    if (IsAttached()) {
        std::string palette;
        host_.paletteSet()->getTitle(attachedName_, palette);
        composed += " [" + palette + "]";
    }
    if (isModified())
        composed += kModifiedMark;
    composedTitle_ = composed;
    setTitle(composed);
}

/// A title that is not the one composed here is a new name, given by the framework.
const std::string& CDyeworksDoc::nameWithoutParts() const {
    return title() == composedTitle_ ? baseName_ : title();
}

const DisplayPalette* CDyeworksDoc::GetDisplayPalette() {
    PaletteSet* const set = host_.paletteSet();
    const TextureLookupTable* const palette = set == nullptr ? nullptr : set->lookup("");
    if (palette == nullptr)
        return nullptr;
    displayPalette_.release();
    return palette->createPalette(displayPalette_) ? &displayPalette_ : nullptr;
}

void CDyeworksDoc::setPathName(const std::string& path) {
    CDocument::setPathName(path);
    // Also when the file goes by the very title that was composed last.
    baseName_ = title();
    composedTitle_ = title();
    UpdateTitle();
}

void CDyeworksDoc::setModified(bool modified) {
    CDocument::setModified(modified);
    UpdateTitle();
}

std::string CDyeworksDoc::displayName() const {
    return pathName().empty() ? nameWithoutParts() : CDocument::displayName();
}

std::vector<FloatingPiece> CDyeworksDoc::floatingPieces() const {
    std::vector<FloatingPiece> pieces;
    forEachViewer([&](const ImageViewer& viewer) {
        if (const auto piece = viewer.floatingPiece())
            pieces.push_back(*piece);
    });
    return pieces;
}

bool CDyeworksDoc::hasUnsavedChanges() const {
    bool floats = false;
    forEachViewer([&](const ImageViewer& viewer) { floats = floats || viewer.hasFloatingPiece(); });
    return floats || CDocument::hasUnsavedChanges() || !edits_.standsAtSavedPosition();
}

void CDyeworksDoc::OnUpdateAttach(CommandUi& ui) {
    PaletteSet* const set = host_.paletteSet();
    ui.require(set != nullptr && !set->palettes.empty(), StringId::WhyNoPalette);
    ui.require(set != nullptr && attachedName_ != set->currentKey, StringId::WhyAttachedAlready);
}

} // namespace dyeworks

#include "paint/CDyeworksDoc.h"
#include "paint/CanvasDepth.h"
#include "paint/CanvasDifference.h"
#include "paint/OpenProject.h"
#include "paint/WholeImageRecord.h"
#include "platform/Platform.h"
#include "platform/StringId.h"

#include <new>
#include <utility>

namespace dyeworks {

void CDyeworksDoc::texelsChanged() {
    static std::uint64_t latest = 0;
    texelState_ = ++latest;
}

bool CDyeworksDoc::openEdit(ImageViewer* viewer) {
    endOpenEdit();
    if (!snapshot_.take(canvas_))
        return false;
    ImageEditHost& host = *this;
    openEdit_ = std::make_unique<ImageEdit>(host, canvas_, snapshot_, viewer);
    return true;
}

ImageEdit* CDyeworksDoc::BeginEdit(ImageViewer* viewer) {
    if (!openEdit(viewer))
        applicationWarning(text(StringId::NotEnoughMemory), text(StringId::MemoryAdvice));
    return openEdit_.get();
}

void CDyeworksDoc::ShowEdit() {
    if (openEdit_ != nullptr)
        openEdit_->show();
}

void CDyeworksDoc::CommitEdit(std::optional<StringId> name) {
    const std::unique_ptr<ImageEdit> edit = std::move(openEdit_);
    if (edit == nullptr)
        return;
    edit->commit(name);
    showEverywhere(edit->viewer());
}

void CDyeworksDoc::DropEdit() {
    if (openEdit_ == nullptr)
        return;
    std::unique_ptr<ImageEdit>(std::move(openEdit_)).reset();
    RefreshPreviews();
}

/// Whether the user lets an edit go on that cannot be undone.
bool CDyeworksDoc::goesWithoutUndo() {
    return applicationMessage(text(StringId::WithoutUndoQuestion), MessageButtons::YesNo) ==
           MessageAnswer::Yes;
}

void CDyeworksDoc::editedWithoutUndo(ImageViewer* viewer) {
    if (canvas_.changedRect()) {
        counts_.forget();
        historyMoved_ = unrecorded_ = true;
        texelsChanged();
        edits_.loseSavedPosition();
    }
    showEverywhere(viewer);
}

bool CDyeworksDoc::SetImage(const TmfImage& image, std::optional<StringId> name) {
    takeBackDrags();
    const TextureCanvas source(image);
    if (!openEdit(nullptr))
        return false;
    if (!canvas_.CopyFrom(source)) {
        openEdit_.reset();
        return false;
    }
    CommitEdit(name);
    return true;
}

const TexelCounts::Values& CDyeworksDoc::texelCounts() {
    if (!counts_.known())
        counts_.count(openEdit_ == nullptr ? canvas_ : *snapshot_.canvas());
    return counts_.values();
}

void CDyeworksDoc::tellTexelsChanged() {
    if (canvas_.changedRect())
        host_.imageChanged(*this, canvas_.changedRect());
}

void CDyeworksDoc::showDrawn(ImageViewer* viewer) {
    if (viewer != nullptr)
        viewer->InvalidateChanged();
    tellTexelsChanged();
    canvas_.ResetChangedRect();
    RefreshPreviews();
}

void CDyeworksDoc::showTakenBack(ImageViewer* viewer) {
    if (viewer != nullptr)
        viewer->InvalidateChanged();
    tellTexelsChanged();
    updateAllViews(viewer, kHintPixels);
    canvas_.ResetChangedRect();
}

bool CDyeworksDoc::recordStep(const TextureCanvas& before, const Rect& changed, const TouchedTiles& touched,
                              std::optional<StringId> name) {
    historyMoved_ = true;
    counts_.change(before, canvas_, changed, touched);
    texelsChanged();
    std::unique_ptr<ImageUndoRecord> record = makeRecord_(before, canvas_, changed);
    if (record != nullptr)
        record->name = name;
    const bool recorded = edits_.add(std::move(record));
    unrecorded_ = unrecorded_ || !recorded;
    return recorded;
}

/// Shows the changed rectangle in all views and brings modified flag and title in step with the history.
void CDyeworksDoc::showEverywhere(ImageViewer* viewer) {
    if (viewer != nullptr)
        viewer->InvalidateChanged();
    followHistory();
    tellTexelsChanged();
    updateAllViews(viewer, kHintPixels);
    RefreshPreviews();
    canvas_.ResetChangedRect();
}

/// Without a current record nothing has been done, or everything has been undone.
void CDyeworksDoc::followHistory() {
    // An edit that recorded nothing must not mark a document that was just saved.
    if (!historyMoved_)
        return;
    historyMoved_ = false;
    setModified(edits_.canUndo() || unrecorded_);
}

bool CDyeworksDoc::ReplaceImage(const CanvasMaker& make, const Replacing& how) {
    bool floats = false;
    forEachViewer([&](const ImageViewer& viewer) { floats = floats || viewer.hasFloatingPiece(); });
    // Pieces must not be placed for nothing.
    const bool hopeless = floats && make(canvas_) == nullptr;
    if (!hopeless && !settlePieces())
        return false;
    const std::uint16_t depth = canvas_.bitsPerPixel();
    std::unique_ptr<TextureCanvas> made = hopeless ? nullptr : make(canvas_);
    const bool same = made != nullptr && made->width() == canvas_.width() &&
                      made->height() == canvas_.height() && made->bitsPerPixel() == canvas_.bitsPerPixel();
    const Rect whole{0, 0, canvas_.width() - 1, canvas_.height() - 1};
    if (same && !differingRect(*made, canvas_, whole))
        return true;
    const auto entry = how.firstEntry
                           ? std::optional(WholeImageRecord::FirstEntry{&paletteValue_, *how.firstEntry})
                           : std::nullopt;
    std::unique_ptr<WholeImageRecord> record;
    if (made != nullptr)
        record.reset(new (std::nothrow) WholeImageRecord(std::move(made), entry, how.moved));
    if (record == nullptr) {
        applicationWarning(text(StringId::NotEnoughMemory), text(StringId::MemoryAdvice));
        return false;
    }
    record->name = how.name;
    record->redo(&canvas_);
    historyMoved_ = true;
    texelsChanged();
    static_cast<void>(edits_.add(std::move(record)));
    showReplaced(how.moved);
    tellProject(depth);
    return true;
}

/// Pictures of the project keep the palette number that they name. At 4 bits that has to be the bank that the
/// image was made for, and at 8 bits, where there are no banks, 0.
void CDyeworksDoc::tellProject(std::uint16_t depthBefore) const {
    const OpenProject* const project = host_.openProject();
    if (project == nullptr || pathName().empty() || canvas_.bitsPerPixel() == depthBefore)
        return;
    const std::int32_t number = canvas_.bitsPerPixel() == 4 ? paletteValue_ / kBankSize : 0;
    const std::vector<std::string> names = project->PicturesOfOtherNumber(pathName(), number);
    host_.setStatusText(names.empty()
                            ? std::string()
                            : text(StringId::PicturesNameOtherNumber,
                                   {std::to_string(names.size()), names.front(), std::to_string(number)}),
                        kMessagePane);
}

/// The canvas is another one: everything that depends on its size, its depth or its colours follows. A piece
/// that floats stays where it is.
void CDyeworksDoc::showReplaced(Point moved) {
    snapshot_.forget();
    counts_.forget();
    forEachViewer([](ImageViewer& viewer) {
        if (!viewer.hasFloatingPiece())
            viewer.DropSelection();
    });
    followHistory();
    // The bar shows the bank of the image, which the colours are taken from.
    host_.refreshPaletteBar();
    if (const TextureLookupTable* const palette = GetAttachedPalette())
        takeColours(*palette);
    forEachViewer([moved](ImageViewer& viewer) { viewer.SizeChanged(moved); });
    host_.imageChanged(*this, Rect{0, 0, canvas_.width() - 1, canvas_.height() - 1});
    RefreshOwnPalette();
}

void CDyeworksDoc::endOpenEdit() {
    if (openEdit_ == nullptr)
        return;
    // First the drag, so that no event of it reaches an edit that has gone while previews are shown.
    if (ImageViewer* const viewer = openEdit_->viewer())
        viewer->CancelDrag();
    DropEdit();
}

/// What a drag has done so far belongs to no step yet: it must neither be saved nor mixed with other edits.
void CDyeworksDoc::takeBackDrags() {
    endOpenEdit();
    forEachViewer([](ImageViewer& viewer) { viewer.CancelDrag(); });
}

/// The image is another one, which is what its file holds.
void CDyeworksDoc::contentsAreSaved(HistoryStart start) {
    edits_.restartSaved(start);
    counts_.forget();
    unrecorded_ = false;
    texelsChanged();
}

} // namespace dyeworks

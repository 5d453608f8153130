#pragma once

#include "core/EditHistory.h"
#include "core/JointStep.h"
#include "framework/CDocument.h"
#include "paint/CanvasSnapshot.h"
#include "paint/ImageEdit.h"
#include "paint/ImageHost.h"
#include "paint/ImageUndoRecord.h"
#include "paint/ImageViewer.h"
#include "paint/Rect.h"
#include "paint/TexelCounts.h"
#include "paint/TextureCanvas.h"
#include "platform/DisplayPalette.h"
#include "platform/Text.h"

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace dyeworks {

class TextureLookupTable;

/// The document of an image: its canvas, the name of the palette that it is attached to, and the history of
/// its edits. Rectangles are inclusive texels unless said otherwise.
class CDyeworksDoc : public CDocument, private ImageEditHost, private JointDocument {
public:
    /// Cuts the pieces of an undo step; null when it cannot.
    using RecordFactory = std::function<std::unique_ptr<ImageUndoRecord>(
        const TextureCanvas& beforeEdit, const TextureCanvas& afterEdit, const Rect& rectangle)>;

    /// `host` must outlive the document.
    explicit CDyeworksDoc(ImageHost& host, DocumentTemplate* documentTemplate = nullptr);
    ~CDyeworksDoc() override;
    CDyeworksDoc(const CDyeworksDoc&) = delete;
    CDyeworksDoc& operator=(const CDyeworksDoc&) = delete;

    [[nodiscard]] ImageHost& host() const noexcept { return host_; }
    [[nodiscard]] TextureCanvas& canvas() noexcept { return canvas_; }
    [[nodiscard]] const TextureCanvas& canvas() const noexcept { return canvas_; }
    [[nodiscard]] const EditHistory& edits() const noexcept { return edits_; }
    /// The image without what an open edit has drawn so far.
    [[nodiscard]] const TextureCanvas& settledCanvas() const noexcept {
        return openEdit_ == nullptr ? canvas_ : *snapshot_.canvas();
    }

    // Edits: all that changes the canvas. `viewer` is the one that causes it, or null.
    /// Opens an edit, which the document owns: it is drawn through, shown with `ShowEdit`, and ended with
    /// `CommitEdit` or `DropEdit`. One that is open already, and its drag, are taken back. Null when there is
    /// no memory to take the edit back with, which the user has been told.
    ///
    /// The document ends an open edit by itself, and tells its viewer with `CancelDrag`, before anything else
    /// changes the image, saves it or replaces it.
    [[nodiscard]] ImageEdit* BeginEdit(ImageViewer* viewer);
    /// Shows what was drawn through the open edit in its viewer and in the previews, which may end it.
    void ShowEdit();
    /// Makes the open edit one undo step of that name and shows it in all views. One that leaves every texel
    /// as it was records none.
    void CommitEdit(std::optional<StringId> name = {});
    /// Takes the open edit back.
    void DropEdit();
    /// An edit from begin to commit, under a name for the user. Without memory to undo it the user is asked
    /// first; false when it was left then.
    template <typename Draw>
    bool Edit(ImageViewer* viewer, Draw draw, std::optional<StringId> name = {}) {
        endOpenEdit();
        if (snapshot_.take(canvas_)) {
            ImageEdit edit(*this, canvas_, snapshot_, viewer);
            draw(canvas_);
            edit.commit(name);
            showEverywhere(viewer);
        } else {
            if (!goesWithoutUndo())
                return false;
            draw(canvas_);
            editedWithoutUndo(viewer);
        }
        return true;
    }
    /// Takes over the image's texels. False, changing nothing, unless size and depth are the document's and
    /// there is memory for it; the caller tells.
    bool SetImage(const TmfImage& image, std::optional<StringId> name = {});
    /// Makes the new image of the old one; null when there is no memory for it.
    using CanvasMaker = std::function<std::unique_ptr<TextureCanvas>(const TextureCanvas& canvas)>;
    struct Replacing {
        std::optional<StringId> name{};           ///< Of the step, for the user.
        std::optional<std::int32_t> firstEntry{}; ///< Becomes the palette value.
        Point moved{};                            ///< By how much the picture lies further right and down.
    };
    /// Gives the image another canvas, maybe of another size or depth, as one step of the history. Pieces
    /// that float are placed first, and nothing is selected any more. False, changing nothing, when a piece
    /// floats on, and without memory, which the user has been told.
    bool ReplaceImage(const CanvasMaker& make, const Replacing& how);
    bool ReplaceImage(const CanvasMaker& make) { return ReplaceImage(make, {}); }

    /// Another number after each change of the texels, once the edit has been committed; no other image, nor
    /// this one before, has had it.
    [[nodiscard]] std::uint64_t texelState() const noexcept { return texelState_; }
    /// Whether an edit is open: the canvas then holds what may be taken back.
    [[nodiscard]] bool isBeingEdited() const noexcept { return openEdit_ != nullptr; }

    /// Takes back the edit that is open or that a drag has recorded, otherwise the last step. False when
    /// there is none. A step that belongs to other documents, too, is taken back (done again) in all of them.
    bool Undo();
    [[nodiscard]] bool CanUndo() const { return openEdit_ != nullptr || edits_.canUndo(); }
    bool Redo();
    /// Steps until the history stands at `position`, as `JointStep::moveTo` does it. False, changing nothing,
    /// while an edit is open or a piece floats.
    bool GoTo(std::int32_t position);
    /// For steps that this image shares with others.
    [[nodiscard]] JointDocument& jointSide() noexcept { return *this; }
    /// What its views show above it, in the order in which it would be placed.
    [[nodiscard]] std::vector<FloatingPiece> floatingPieces() const;
    /// Ends drags and puts pieces that float into the image. False when one floats on.
    [[nodiscard]] bool settlePieces();

    /// How many texels of the image have each value, without what an open edit has drawn so far. They are
    /// counted at the first call; from then on the counts follow each edit at the cost of what it changes.
    [[nodiscard]] const TexelCounts::Values& texelCounts();
    void ClearUndo() { edits_.restart(); }
    /// Replaces what copies the canvas as it is before an edit; null when it cannot. It is
    /// `TextureCanvas::Clone`.
    void setSnapshotFactory(CanvasSnapshot::Factory factory) { snapshot_.setFactory(std::move(factory)); }
    /// Replaces what cuts the pieces of undo steps, `ImageUndoRecord::make`.
    void setRecordFactory(RecordFactory factory) { makeRecord_ = std::move(factory); }

    // Palettes.
    /// Key of the attached palette in the palette set; empty when there is none.
    [[nodiscard]] const std::string& attachedName() const noexcept { return attachedName_; }
    /// Attaches to the palette that goes by `name`, open or not, without taking its colours.
    void setAttachedName(const std::string& name) { attachedName_ = name; }
    /// Null when no palette is attached or it is not open.
    [[nodiscard]] TextureLookupTable* GetAttachedPalette() const;
    [[nodiscard]] bool IsAttached() const { return GetAttachedPalette() != nullptr; }
    /// Attaches the current palette; without one the document is detached.
    void Attach();
    /// Takes the colours of the attached palette if that is the current one, detaches from a palette that is
    /// no longer open, and redraws all views.
    void RefreshPalette();
    /// The same, whether or not the attached palette is the current one.
    void RefreshOwnPalette();
    /// Shows the colours of `palette`, which may be a passing copy, if it goes by the attached name (compared
    /// without regard to case), and redraws all views.
    void PaletteChanged(const std::string& name, const TextureLookupTable* palette);
    /// A display palette of the current palette's colours, made anew by each call and valid until the next;
    /// null without a current palette.
    [[nodiscard]] const DisplayPalette* GetDisplayPalette();
    /// First palette entry that the image uses: what the palette bar stored when its bank was last chosen for
    /// this image.
    [[nodiscard]] std::int32_t paletteValue() const noexcept { return paletteValue_; }
    void setPaletteValue(std::int32_t value) noexcept { paletteValue_ = value; }
    /// The entry of the attached palette that value 0 shows; 0 without one and from 8 bits on.
    [[nodiscard]] std::int32_t firstShownEntry() const;

    /// Entry of `palette`, the attached one or a copy of it, that the value 0 shows.
    [[nodiscard]] std::int32_t firstEntryFor(const TextureLookupTable& palette) const;

    // Plug-ins, by their numbers in the lists of `ImagePlugIns`.
    /// The image has become the active one: the previews that are on for it show it, the others are off.
    void TakeOverPreviews();
    void setPathName(const std::string& path) override;
    /// Asks what the image is to be like. False when that was cancelled or the image could not be made.
    bool onNewDocument() override;
    /// Makes a document that is new one of these texels, which no file holds yet. False when there is no
    /// memory.
    [[nodiscard]] bool CreateFrom(const TmfImage& image);
    /// The same of a bitmap's texels.
    [[nodiscard]] bool CreateFrom(const BmpImage& bitmap);
    /// A bitmap's colours become a new palette.
    bool onOpenDocument(const std::string& path) override;
    bool onSaveDocument(const std::string& path) override;
    /// One step of the history, so that what was here comes back with Undo. What floats is placed before.
    bool reloadFile() override;
    void markUnsaved() override;
    void onCloseDocument() override;
    [[nodiscard]] std::string displayName() const override;
    /// Also when the history stands elsewhere than it stood when the file was last written, and while a piece
    /// floats above the image.
    [[nodiscard]] bool hasUnsavedChanges() const override;

private:
    void setModified(bool modified) override;
    /// Lets the plug-in change the image, which is no step of the history. What it brings besides becomes the
    /// active view's floating piece.
    void ImportThrough(std::int32_t plugIn);
    void ExportThrough(std::int32_t plugIn);

    /// Adds the image and its palette to the open project as a picture, which takes a palette to be attached
    /// and a file to be there; asks for what is missing.
    void AddToProject();
    /// Writes a copy of the image as a bitmap to a file that is asked for, which does not become the
    /// document's. Failures are reported.
    void ExportBmp();
    /// Goes back to what the file holds, after asking when that would lose something.
    void Revert();
    /// Shows the image in the previews that are on, if this is the active image. One that fails is switched
    /// off.
    void RefreshPreviews();
    /// Composes the title anew: name, " [palette]" when attached, " * " when modified.
    void UpdateTitle();

    // Hints that views are updated with.
    static constexpr int kHintPixels = 0;  ///< The canvas's changed rectangle has new pixels.
    static constexpr int kHintColours = 1; ///< The image shows in other colours.

    void showDrawn(ImageViewer* viewer) override;
    void showTakenBack(ImageViewer* viewer) override;
    bool recordStep(const TextureCanvas& before, const Rect& changed, const TouchedTiles& touched,
                    std::optional<StringId> name) override;
    void tellTexelsChanged();
    [[nodiscard]] std::string jointName() const override { return displayName(); }
    [[nodiscard]] const EditHistory& jointHistory() const override { return edits_; }
    void settle() override { takeBackDrags(); }
    bool moveAlone(StepWay way) override;
    void take(std::unique_ptr<UndoRecord> record) override;
    void showMoved() override;
    void followMap(const UndoRecord& record, StepWay way);
    void showAlone() override;
    void showEverywhere(ImageViewer* viewer);
    [[nodiscard]] bool openEdit(ImageViewer* viewer);
    void endOpenEdit();
    void texelsChanged();
    [[nodiscard]] static bool goesWithoutUndo();
    void editedWithoutUndo(ImageViewer* viewer);
    void contentsAreSaved(HistoryStart start);
    void contentsAreInFile();
    void contentsAreUnsaved();

    static constexpr std::int32_t kPreviews = 2;
    struct Preview {
        bool on = false;
        int calls = 0;          ///< That have not come back.
        std::uint64_t seen = 0; ///< State of the image that it was last given.
    };

    /// Calls `visit` with each of the document's image views.
    template <typename Visit>
    void forEachViewer(Visit visit) const {
        for (DocumentView* view : std::vector(views())) {
            if (auto* const viewer = dynamic_cast<ImageViewer*>(view))
                visit(*viewer);
        }
    }
    void takeBackDrags();
    void followHistory();
    void showReplaced(Point moved);
    void tellProject(std::uint16_t depthBefore) const;
    void refreshPalette(bool ofAnyPalette);
    void takeColours(const TextureLookupTable& palette);
    [[nodiscard]] const std::string& nameWithoutParts() const;
    [[nodiscard]] TlutData* attachedTable() const;
    [[nodiscard]] std::int32_t firstEntryForPlugIns() const;
    void showInPreview(std::int32_t which);
    void switchPreviewOff(std::int32_t which);
    [[nodiscard]] std::string nameToSaveUnder() const;
    void makePaletteOfColours();
    /// False when the file could not be written or belongs to another document, which has been reported.
    [[nodiscard]] bool writeCanvas(const std::string& path) const;
    /// Leaves what the image was in `contents`, or that as it is.
    void takeContents(TextureCanvas& contents);

    void OnTogglePreview(CommandId id);
    void OnUpdatePreview(CommandUi& ui);
    void OnImport(CommandId id);
    void OnUpdateImport(CommandUi& ui);
    void OnExport(CommandId id);
    void OnUpdateExport(CommandUi& ui);
    void OnUpdateAttach(CommandUi& ui);
    void OnUpdateAddToProject(CommandUi& ui);
    void OnUpdateRevert(CommandUi& ui);

    ImageHost& host_;
    TextureCanvas canvas_;
    CanvasSnapshot snapshot_;
    TexelCounts counts_;
    EditHistory edits_{MessageIcon::Warning};
    RecordFactory makeRecord_;
    std::unique_ptr<ImageEdit> openEdit_;
    std::array<Preview, kPreviews> previews_{};
    std::uint64_t newestShown_ = 0; ///< Counts the states of the image that were to be shown.
    std::uint64_t texelState_ = 0;
    bool historyMoved_ = false; ///< Since the flag and the title last followed it.
    bool unrecorded_ = false;   ///< An edit that no step tells of has been made since the last save.
    /// Steps have brought another canvas, which has not been shown yet; by how much the picture has moved.
    std::optional<Point> replaced_;
    DisplayPalette displayPalette_;
    std::string attachedName_;
    std::int32_t paletteValue_ = 0;
    std::string baseName_;
    std::string composedTitle_; ///< The title as it was last made of its parts.
};

} // namespace dyeworks

#pragma once

#include "core/UndoHistory.h"
#include "framework/CDocument.h"
#include "paint/CDyeworksView.h"
#include "paint/ImageHost.h"
#include "paint/ImageUndoRecord.h"
#include "paint/Rect.h"
#include "paint/TextureCanvas.h"
#include "platform/DisplayPalette.h"

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
class CDyeworksDoc : public CDocument {
public:
    /// Cuts the pieces of an undo step; null when it cannot.
    using RecordFactory = std::function<std::unique_ptr<ImageUndoRecord>(
        const TextureCanvas& beforeEdit, const TextureCanvas& afterEdit, const Rect& rectangle)>;

    /// Copies the canvas as it is before an edit; null when it cannot.
    using SnapshotFactory = std::function<std::unique_ptr<TextureCanvas>(const TextureCanvas& canvas)>;

    /// `host` must outlive the document.
    explicit CDyeworksDoc(ImageHost& host, DocumentTemplate* documentTemplate = nullptr);
    ~CDyeworksDoc() override;

    [[nodiscard]] ImageHost& host() const noexcept { return host_; }
    [[nodiscard]] TextureCanvas& canvas() noexcept { return canvas_; }
    [[nodiscard]] const TextureCanvas& canvas() const noexcept { return canvas_; }
    [[nodiscard]] const UndoHistory& history() const noexcept { return *history_; }

    // Edits. Each takes a snapshot (asking, without memory for it, whether to go on and not be undone),
    // draws, records an undo step and refreshes the views; `view` is the one that caused it, or null. An edit
    // that leaves every pixel as it was records no step. While the stroke flag is set they only draw and
    // refresh `view`.
    void Line(CDyeworksView* view, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
              std::uint32_t value);
    void Box(CDyeworksView* view, const Rect& rectangle, std::uint32_t value);
    void FilledBox(CDyeworksView* view, const Rect& rectangle, std::uint32_t value);
    void Ellipse(CDyeworksView* view, const Rect& rectangle, std::uint32_t value);
    void FilledEllipse(CDyeworksView* view, const Rect& rectangle, std::uint32_t value);
    void Fill(CDyeworksView* view, std::int32_t x, std::int32_t y, std::uint32_t value);
    /// A rectangle of zeroes means the whole image.
    void Replace(CDyeworksView* view, const Rect& rectangle, std::int32_t x, std::int32_t y,
                 std::uint32_t value);
    void Pixel(CDyeworksView* view, std::int32_t x, std::int32_t y, std::uint32_t value);
    /// `flags` as in `TextureCanvas::Flip`.
    void Flip(CDyeworksView* view, const Rect& rectangle, std::uint32_t flags);
    /// Scales the piece into the rectangle (right and bottom exclusive).
    void PlaceFloatingPiece(CDyeworksView* view, const TextureCanvas& piece, const Rect& rectangle);
    /// Takes over the image's texels. False, changing nothing, unless size and depth are the document's and
    /// there is memory for it; the caller tells.
    bool SetImage(CDyeworksView* view, const TmfImage& image);

    // What edits are made of.
    /// Keeps a copy of the canvas as it is before an edit. False when there is no memory for it.
    bool TakeSnapshot();
    /// The same for a drag, which can go on without it in no case: the user is told.
    [[nodiscard]] bool BeginStroke();
    /// Records what became of `rectangle` (the canvas's changed rectangle when none is given) since the
    /// snapshot. False when nothing changed and when the step could not be made, which the user has then been
    /// told.
    bool RecordUndoStep(const std::optional<Rect>& rectangle = std::nullopt);
    /// Puts the canvas back to the snapshot, if anything was drawn since, and refreshes `view`.
    void RestoreSnapshot(CDyeworksView* view);
    /// While set, snapshots and undo steps are not taken and refreshes reach only the view that draws.
    void SetStrokeFlag(bool stroke) noexcept { stroke_ = stroke; }
    /// Shows the changed rectangle in `view` and all other views, brings modified flag and title in step with
    /// the history, and resets the changed rectangle.
    void AfterEdit(CDyeworksView* view);

    bool Undo();
    bool Redo();
    [[nodiscard]] bool CanUndo() const;
    [[nodiscard]] bool CanRedo() const;
    void ClearUndo();
    /// Replaces what copies the canvas for a snapshot; null when it cannot. It is `TextureCanvas::Clone`.
    void setSnapshotFactory(SnapshotFactory factory) { makeSnapshot_ = std::move(factory); }
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
    /// Composes the title anew: name, " [palette]" when attached, " * " when modified.
    void UpdateTitle();
    /// A display palette of the current palette's colours, made anew by each call and valid until the next;
    /// null without a current palette.
    [[nodiscard]] const DisplayPalette* GetDisplayPalette();
    /// Columns and rows in which the palette bar lays out this image's colours.
    [[nodiscard]] Size SwatchGridSize() const;
    /// First palette entry that the image uses: what the palette bar stored when its bank was last chosen for
    /// this image.
    [[nodiscard]] std::int32_t paletteValue() const noexcept { return paletteValue_; }
    void setPaletteValue(std::int32_t value) noexcept { paletteValue_ = value; }

    /// A copy of the pixels, or null when it cannot be made.
    [[nodiscard]] std::unique_ptr<TmfImage> GetImage() const { return canvas_.ToImage(); }

    // Plug-ins, by their numbers in the lists of `ImagePlugIns`.
    /// Shows the image in the previews that are on, if this is the active image. One that fails is switched
    /// off.
    void RefreshPreviews();
    /// The image has become the active one: the previews that are on for it show it, the others are off.
    void TakeOverPreviews();
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

    void setPathName(const std::string& path) override;
    void setModified(bool modified) override;
    /// Asks what the image is to be like. False when that was cancelled or the image could not be made.
    bool onNewDocument() override;
    /// A bitmap's colours become a new palette.
    bool onOpenDocument(const std::string& path) override;
    bool onSaveDocument(const std::string& path) override;
    void onCloseDocument() override;
    [[nodiscard]] std::string displayName() const override;
    /// Also when the history stands elsewhere than it stood when the file was last written, and while a piece
    /// floats above the image.
    [[nodiscard]] bool hasUnsavedChanges() const override;

private:
    // Hints that views are updated with.
    static constexpr int kHintPixels = 0;  ///< The canvas's changed rectangle has new pixels.
    static constexpr int kHintColours = 1; ///< The image shows in other colours.

    /// Saved position of a file whose contents no step of the history leads back to.
    static constexpr std::int32_t kUnreachable = -1;

    static constexpr std::int32_t kPreviews = 2;
    struct Preview {
        bool on = false;
        int calls = 0;          ///< That have not come back.
        std::uint64_t seen = 0; ///< State of the image that it was last given.
    };

    template <typename Draw>
    void edit(CDyeworksView* view, Draw draw);
    [[nodiscard]] bool beginEdit();
    void replaceHistory(std::int32_t savedPosition);
    /// Calls `visit` with each of the document's image views.
    template <typename Visit>
    void forEachView(Visit visit) const {
        for (DocumentView* view : std::vector(views())) {
            if (auto* const imageView = dynamic_cast<CDyeworksView*>(view))
                visit(*imageView);
        }
    }
    void takeBackDrags();
    void dropSelections();
    void followHistory();
    void refreshPalette(bool ofAnyPalette);
    [[nodiscard]] std::int32_t firstEntryFor(const TextureLookupTable& palette) const;
    [[nodiscard]] const std::string& nameWithoutParts() const;
    [[nodiscard]] TlutData* attachedTable() const;
    [[nodiscard]] std::int32_t firstEntryForPlugIns() const;
    void showInPreview(std::int32_t which);
    void switchPreviewOff(std::int32_t which);
    [[nodiscard]] std::string nameToSaveUnder() const;
    void makePaletteOfColours();
    /// Ends drags and puts pieces that float into the image.
    void settleForSaving();
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
    std::unique_ptr<UndoHistory> history_;
    RecordFactory makeRecord_;
    SnapshotFactory makeSnapshot_ = &TextureCanvas::Clone;
    std::unique_ptr<TextureCanvas> snapshot_;
    bool stroke_ = false;
    std::array<Preview, kPreviews> previews_{};
    std::uint64_t newestShown_ = 0;  ///< Counts the states of the image that were to be shown.
    bool historyMoved_ = false;      ///< Since the flag and the title last followed it.
    std::int32_t savedPosition_ = 0; ///< History position that the file holds.
    bool unrecorded_ = false;        ///< An edit that no step tells of has been made since the last save.
    DisplayPalette displayPalette_;
    std::string attachedName_;
    std::int32_t paletteValue_ = 0;
    std::string baseName_;
    std::string composedTitle_; ///< The title as it was last made of its parts.
};

} // namespace dyeworks

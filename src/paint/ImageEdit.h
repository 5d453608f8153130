#pragma once

#include "paint/CanvasSnapshot.h"
#include "paint/Rect.h"
#include "paint/TextureCanvas.h"
#include "paint/TouchedTiles.h"
#include "platform/Text.h"

#include <optional>

namespace dyeworks {

class ImageViewer;

/// What an edit asks of the document whose image it changes.
class ImageEditHost {
public:
    virtual ~ImageEditHost() = default;

    /// Shows the canvas's changed rectangle: while the edit is open in its own viewer, with the previews;
    /// after it was taken back everywhere, because others may have been painted in between.
    virtual void showDrawn(ImageViewer* viewer) = 0;
    virtual void showTakenBack(ImageViewer* viewer) = 0;
    /// Adds the step from `before` to what the canvas is now within `changed` (inclusive), where nothing but
    /// what was touched differs. False when it could not be made, which the user has then been told.
    virtual bool recordStep(const TextureCanvas& before, const Rect& changed, const TouchedTiles& touched,
                            std::optional<StringId> name) = 0;
};

/// One change of an image, from its first texel to its undo step. It is drawn through, shown as often as
/// wished, and committed as one step; destroyed without that, it takes everything back.
///
/// `CDyeworksDoc::BeginEdit` makes it and owns it; the document may end it at any time.
class ImageEdit {
public:
    /// The snapshot has been taken of the canvas. `viewer` is where the edit is drawn, or null. All must
    /// outlive the edit.
    ImageEdit(ImageEditHost& host, TextureCanvas& canvas, const CanvasSnapshot& snapshot,
              ImageViewer* viewer);
    ~ImageEdit();
    ImageEdit(const ImageEdit&) = delete;
    ImageEdit& operator=(const ImageEdit&) = delete;

    /// To be drawn on.
    [[nodiscard]] TextureCanvas& canvas() noexcept { return canvas_; }
    [[nodiscard]] ImageViewer* viewer() const noexcept { return viewer_; }

    /// Shows what was drawn since the last time in the edit's viewer and in the previews.
    void show();
    /// Puts the image back to what it was when the edit began; it goes on from there.
    void takeBack();
    /// Records what the edit has changed as one step of the history, under a name for the user; the canvas's
    /// changed rectangle is then all that it has touched. False when no texel differs, and when the step
    /// could not be made.
    bool commit(std::optional<StringId> name);

private:
    void noteChanges();

    ImageEditHost& host_;
    TextureCanvas& canvas_;
    const CanvasSnapshot& snapshot_;
    ImageViewer* viewer_;
    /// What the edit has changed (inclusive). Kept here because the canvas's own changed rectangle starts
    /// anew whenever it has been shown.
    std::optional<Rect> touched_;
    TouchedTiles touchedTiles_;
    bool takenBack_ = false; ///< Since it was shown last: the previews still have what was drawn before.
    bool committed_ = false;
};

} // namespace dyeworks

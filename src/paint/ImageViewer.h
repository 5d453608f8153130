#pragma once

#include "framework/DocumentView.h"
#include "paint/Rect.h"
#include "platform/Text.h"

#include <memory>
#include <optional>

namespace dyeworks {

class TextureCanvas;

/// Texels that float above an image, and where they would be put into it (right and bottom inside).
struct FloatingPiece {
    const TextureCanvas* texels = nullptr;
    Rect place;

    bool operator==(const FloatingPiece&) const = default;
};

/// A view of an image, as the image's document knows it.
class ImageViewer : public DocumentView {
public:
    /// Asks for a repaint of the canvas's changed rectangle. False when it is empty.
    virtual bool InvalidateChanged() = 0;
    /// The canvas has another size or depth. What the view showed of it lies `moved` texels further right and
    /// down now.
    virtual void SizeChanged(Point moved) = 0;

    /// Ends a drag and takes back what it has done so far.
    virtual void CancelDrag() = 0;

    /// Whether a piece floats above the image, which belongs to no image yet.
    [[nodiscard]] virtual bool hasFloatingPiece() const = 0;
    /// That piece, as long as nothing happens to it.
    [[nodiscard]] virtual std::optional<FloatingPiece> floatingPiece() const = 0;
    /// Lets the piece float from the anchor on, moved into the image as far as it fits, and selects it with
    /// the Select tool. One that floats already is committed. A null or empty piece changes nothing.
    /// `name` is that of the step that places it.
    virtual void SetFloatingPiece(std::unique_ptr<TextureCanvas> piece, StringId name) = 0;
    /// Gives the floating piece, if there is one, the colours that its values have in the image.
    virtual void RecolourFloatingPiece() = 0;
    /// Puts the floating piece, if there is one, into the image; then nothing is selected. False when it
    /// floats on, because the user left an edit that could not be undone.
    virtual bool CommitFloatingPiece(bool redraw) = 0;
    /// Forgets the floating piece and what is selected, which shows until the next repaint.
    virtual void DropSelection() = 0;

    /// Carries out the repaints that were asked for, before it returns.
    virtual void RepaintNow() = 0;
};

} // namespace dyeworks

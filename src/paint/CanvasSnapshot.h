#pragma once

#include "paint/TextureCanvas.h"

#include <functional>
#include <memory>
#include <utility>

namespace dyeworks {

/// A canvas as it was before an edit. Kept from one edit to the next, so that taking it costs what was
/// written since, not the whole image. It relies on the canvas's written rectangle and settles it.
class CanvasSnapshot {
public:
    /// Copies a canvas; null when it cannot.
    using Factory = std::function<std::unique_ptr<TextureCanvas>(const TextureCanvas& canvas)>;
    /// Replaces what copies the canvas, `TextureCanvas::Clone`.
    void setFactory(Factory factory) { copyOf_ = std::move(factory); }

    /// Makes the snapshot what the canvas is now. False, leaving none, when there is no memory for it.
    [[nodiscard]] bool take(TextureCanvas& canvas);
    /// Puts the canvas back to the snapshot. Its changed rectangle is extended by what was written.
    void restore(TextureCanvas& canvas) const;
    /// The canvas is another one now.
    void forget() { copy_.reset(); }

    /// Null when there is none.
    [[nodiscard]] const TextureCanvas* canvas() const noexcept { return copy_.get(); }

private:
    Factory copyOf_ = &TextureCanvas::Clone;
    std::unique_ptr<TextureCanvas> copy_;
};

} // namespace dyeworks

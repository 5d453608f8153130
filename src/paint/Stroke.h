#pragma once

#include "paint/Rect.h"

namespace dyeworks {

class CDyeworksView;

/// What a drag draws on the canvas before its edit is complete. It shows in the view that draws it and in the
/// previews, and can be taken back.
class Stroke {
public:
    /// `view` must outlive the stroke.
    explicit Stroke(CDyeworksView& view)
        : view_(view) {}

    /// False when there is no memory to take the stroke back with.
    [[nodiscard]] bool begin();

    /// Runs `edit`, an edit of the document or of its canvas, as a part of the stroke.
    template <typename Edit>
    void draw(Edit edit) {
        setStrokeFlag(true);
        edit();
        setStrokeFlag(false);
        noteChanges();
    }

    /// Puts the canvas back to what it was at `begin`.
    void takeBack();
    /// The same at the end of a drag that is given up, for the previews too.
    void cancel();

    /// The canvas's changes since `begin` (inclusive, inverted when there are none). Kept here because the
    /// canvas's own changed rectangle starts anew whenever somebody has shown it.
    [[nodiscard]] const Rect& touched() const noexcept { return touched_; }

private:
    static constexpr Rect kNothing{0, 0, -1, -1};

    void setStrokeFlag(bool stroke);
    void noteChanges();

    CDyeworksView& view_;
    Rect touched_ = kNothing;
};

} // namespace dyeworks

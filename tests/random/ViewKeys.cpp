#include "ViewModel.h"

#include <algorithm>
#include <cmath>

namespace dyeworks {

namespace {

/// Of the copies around the image the one that has it, or is the nearest to it.
std::int32_t copyAlong(std::int32_t texel, std::int32_t size) {
    return texel < 0 ? -size : texel >= size ? size : 0;
}

} // namespace

/// Left of the image and above it lie copies, or else nothing, for which its edge counts as far as a texel.
Point ViewModel::texel(Point position) const {
    const auto along = [this](std::int32_t pixel) {
        return repeated ? static_cast<std::int32_t>(std::floor(1.0 * pixel / zoom)) : pixel / zoom;
    };
    return {along(position.x), along(position.y)};
}

Point ViewModel::copyWith(Point texel) const {
    const PlainImage& image = document.image();
    return repeated ? Point{copyAlong(texel.x, image.width), copyAlong(texel.y, image.height)} : Point{};
}

void ViewModel::key(Key key, bool shift) {
    if (key == Key::Escape && dragging_) {
        cancel();
        return;
    }
    if (key == Key::Enter && heldByKeys())
        return letGo();
    if (key == Key::Escape || key == Key::Enter) {
        if (!exists() && !piece)
            return;
        if (selecting())
            dragging_ = false;
        if (key == Key::Escape)
            piece.reset();
        commit();
        return;
    }
    if (key == Key::I || key == Key::O)
        return zoomStep(key == Key::O);
    if (!exists())
        return;
    const Point way{(key == Key::Right ? 1 : 0) - (key == Key::Left ? 1 : 0),
                    (key == Key::Down ? 1 : 0) - (key == Key::Up ? 1 : 0)};
    selection = Rect{selection->left + (shift ? 0 : way.x), selection->top + (shift ? 0 : way.y),
                     selection->right + way.x, selection->bottom + way.y};
}

/// The middle of the texel, or a handle that reaches into it: by corners, then sides.
Point ViewModel::pointedAt(Point texel) const {
    Point best{texel.x * zoom + zoom / 2, texel.y * zoom + zoom / 2};
    if (dragging_ || shared_.tool != Tool::Select)
        return best;
    TrackerHit hit = hitAt(best);
    for (std::int32_t i = 0; i < zoom * zoom; ++i) {
        const Point at{texel.x * zoom + i % zoom, texel.y * zoom + i / zoom};
        const TrackerHit here = hitAt(at);
        if (here != TrackerHit::None && (hit == TrackerHit::None || here < hit)) {
            best = at;
            hit = here;
        }
    }
    return best;
}

void ViewModel::hold(Point texel, bool control, bool alt) {
    heldAt_ = texel;
    heldWith_ = {pointedAt(texel), control, alt};
    press(heldWith_);
    byKeys_ = true;
    walked_ = false;
    // Nothing that could be dragged.
    if (dragging_ && (atPress_ == Tool::Pixel || atPress_ == Tool::ZoomLens))
        letGo();
}

void ViewModel::walk(Point texel) {
    walked_ = walked_ || texel != heldAt_;
    heldAt_ = texel;
    move({pointedAt(texel), heldWith_.control, heldWith_.alt});
}

void ViewModel::letGo() {
    release({pointedAt(heldAt_), heldWith_.control, heldWith_.alt});
}

} // namespace dyeworks

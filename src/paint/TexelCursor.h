#pragma once

#include "paint/KeyEvent.h"
#include "paint/PointerEvent.h"
#include "paint/Rect.h"
#include "paint/Surface.h"

#include <optional>

namespace dyeworks {

/// Where the keys point in an image, and whether they hold a tool down there. It never leaves the image.
class TexelCursor {
public:
    /// How far an arrow key leads together with Ctrl, in texels.
    static constexpr std::int32_t kFarStep = 8;

    [[nodiscard]] bool isShown() const noexcept { return shown_; }
    /// The texel that it stands on, or stood on when it was last shown; nothing before.
    [[nodiscard]] const std::optional<Point>& texel() const noexcept { return texel_; }
    /// Shows it at the texel of the image that is the nearest to `texel`.
    void showAt(Point texel, Size image);
    void hide();

    /// Where a key leads from `texel` in an image of that size; nothing for a key that does not walk. Beyond
    /// the edges lies nothing.
    [[nodiscard]] static std::optional<Point> walked(Point texel, const KeyEvent& key, Size image);

    /// A tool goes down at the cursor, with the keys that are held then.
    void press(const KeyEvent& key);
    /// The tool goes up, or its drag has ended otherwise.
    void release() noexcept { held_ = false; }
    [[nodiscard]] bool holdsTool() const noexcept { return held_; }
    /// Whether it was moved since the tool went down.
    [[nodiscard]] bool hasDragged() const noexcept { return dragged_; }

    /// What the pointer would report at `client` with the keys that were held when the tool went down. Shift,
    /// which would have the pointer scroll, stands for Alt, which desktops keep to themselves with the blank.
    [[nodiscard]] PointerEvent eventAt(Point client, PointerButton button) const;

private:
    std::optional<Point> texel_;
    bool shown_ = false;
    bool held_ = false;
    bool dragged_ = false;
    bool control_ = false;
    bool centred_ = false;
};

/// What the cursor takes up around `texel`, the area of a texel, in content coordinates: more than the texel
/// where that is small, more again while a tool is held down, and nothing outside the content. Right and
/// bottom exclusive.
[[nodiscard]] Rect texelCursorArea(const Rect& texel, Size content, bool holdsTool);

/// Draws the cursor along the inside of that area: lines of two colours, one of which is seen on anything.
/// What lies outside the surface is left out.
void drawTexelCursor(const Surface& surface, const Rect& area, bool holdsTool);

} // namespace dyeworks

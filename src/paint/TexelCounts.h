#pragma once

#include "paint/Rect.h"
#include "platform/ByteLookUp.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace dyeworks {

class TextureCanvas;
class TouchedTiles;

/// How many texels of an image have each value. Whoever changes the image tells of it, and the counts follow
/// at the cost of what has changed. A canvas of more than 8 bits has colours in place of values: nothing of
/// it is counted.
class TexelCounts {
public:
    using Values = std::array<std::uint64_t, 256>;

    /// False until `count`, and again after `forget`: nothing else does anything then.
    [[nodiscard]] bool known() const noexcept { return known_; }
    [[nodiscard]] const Values& values() const noexcept { return values_; }

    /// Of the whole canvas, for whoever does not follow its changes.
    [[nodiscard]] static Values of(const TextureCanvas& canvas);

    /// Counts the whole canvas.
    void count(const TextureCanvas& canvas);
    /// What was counted is not what the image is any more.
    void forget() noexcept { known_ = false; }

    // Rectangles are inclusive and lie in the canvas.
    /// The texels of the rectangle are about to change: takes them away.
    void leave(const TextureCanvas& canvas, const Rect& texels);
    /// They have changed: adds them.
    void enter(const TextureCanvas& canvas, const Rect& texels);
    /// The same for a change whose both sides are at hand, two canvases of the same size and depth. What was
    /// not touched is not looked at.
    void change(const TextureCanvas& before, const TextureCanvas& after, const Rect& texels,
                const TouchedTiles& touched);
    /// Every texel has the value now that the map has for its own.
    void renumber(const ByteTable& map);

private:
    void add(const TextureCanvas& canvas, const Rect& texels, std::uint64_t each);

    Values values_{};
    bool known_ = false;
};

} // namespace dyeworks

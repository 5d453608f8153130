#pragma once

#include "ui/controls/swatchgrid/SwatchGeometry.h"

#include <optional>

namespace dyeworks {

/// Cells, one after the other, that are being dragged to another place, from the press on. Until the pointer
/// has gone some way it may still become a click.
class SwatchDrag {
public:
    /// Cells `first` to `last` are taken hold of at `grabbed`, with the pointer at a point of the window.
    SwatchDrag(int first, int last, int grabbed, const QPointF& pressed)
        : first_(first)
        , last_(last)
        , grabbed_(grabbed)
        , pressed_(pressed) {}

    void moveTo(const QPointF& point, const SwatchGeometry& geometry);

    [[nodiscard]] int first() const noexcept { return first_; }
    [[nodiscard]] int last() const noexcept { return last_; }
    [[nodiscard]] int grabbed() const noexcept { return grabbed_; }
    [[nodiscard]] bool hasBegun() const noexcept { return hasBegun_; }
    /// Where the cells would be put in; nothing where they stay as they are.
    [[nodiscard]] std::optional<SwatchGeometry::Gap> gap() const;
    /// Where the first of them would stand then.
    [[nodiscard]] std::optional<int> place() const;

private:
    int first_;
    int last_;
    int grabbed_;
    QPointF pressed_;
    bool hasBegun_ = false;
    SwatchGeometry::Gap gap_;
};

} // namespace dyeworks

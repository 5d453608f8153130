#pragma once

#include "paint/Brush.h"

namespace dyeworks {

/// How all tools draw, in all images.
struct DrawingOptions {
    Brush brush; ///< Of points, lines and outlines.
    bool mirrorAcross =
        false;               ///< From left to right: everything is drawn on both sides of the middle column.
    bool mirrorDown = false; ///< From top to bottom.
    bool wrap = false;       ///< What leaves the image on one side comes in at the other.

    bool operator==(const DrawingOptions&) const = default;

    [[nodiscard]] bool mirrors() const noexcept { return mirrorAcross || mirrorDown; }
    /// Whether a tool draws nothing but the shape itself.
    [[nodiscard]] bool plain() const noexcept { return brush.size == 1 && !mirrors() && !wrap; }
};

/// Is told when the options have become others.
class DrawingOptionsListener {
public:
    virtual ~DrawingOptionsListener() = default;
    virtual void drawingOptionsChanged() = 0;
};

/// The options that are chosen. They are plain at first.
[[nodiscard]] const DrawingOptions& drawingOptions() noexcept;
/// Chooses others and keeps them in the settings; a brush out of its range is held to it.
void setDrawingOptions(const DrawingOptions& options);
/// Chooses those that the settings keep.
void restoreDrawingOptions();

/// Until it is removed, which it must be before it ends.
void addDrawingOptionsListener(DrawingOptionsListener& listener);
void removeDrawingOptionsListener(DrawingOptionsListener& listener);

} // namespace dyeworks

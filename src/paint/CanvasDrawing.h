#pragma once

#include "paint/DrawingOptions.h"
#include "paint/Rect.h"

#include <cstdint>
#include <vector>

namespace dyeworks {

class TextureCanvas;

/// Draws on a canvas as the drawing options say: with the brush, on both sides of the middle, around the
/// edges. With plain options each call is the canvas's own primitive. Otherwise a shape has the same texels
/// as it would have on a canvas without edges, each drawn with the brush (filled shapes without), mirrored,
/// and then, when it wraps, folded back into the image. Costs the texels that are touched. Corners are
/// inclusive and may come in any order, as for the canvas.
class CanvasDrawing {
public:
    /// `canvas` must outlive this object, which draws with `value`.
    CanvasDrawing(TextureCanvas& canvas, const DrawingOptions& options, std::uint32_t value)
        : canvas_(canvas)
        , options_(options)
        , value_(value) {}

    void point(Point at);
    void line(Point from, Point to);
    void box(Point a, Point b);
    void filledBox(Point a, Point b);
    void ellipse(Point a, Point b);
    void filledEllipse(Point a, Point b);
    /// Fills the 4-connected region around the seed, and around its mirror images, one after the other. With
    /// wrap, opposite edges of the image touch.
    void floodFill(Point seed);

    // Pieces; neither brush, mirror nor value are for them.
    /// Scales the piece into the place (right and bottom inside), nearest neighbour.
    void paste(const TextureCanvas& piece, const Rect& place);
    /// Gives `piece`, which was cut from the canvas at `place` (right and bottom inside), what comes in from
    /// the other side where the place lies outside.
    void completePiece(TextureCanvas& piece, const Rect& place) const;

private:
    class FoldingPen;

    [[nodiscard]] std::vector<Point> mirrorImages(Point at) const;
    [[nodiscard]] Rect ellipseBox(Point a, Point b) const;
    void fillAround(Point seed);

    TextureCanvas& canvas_;
    DrawingOptions options_;
    std::uint32_t value_;
};

} // namespace dyeworks

#pragma once

#include "viewer/ViewerPicture.h"

#include <QImage>
#include <QPoint>
#include <QRgb>

#include <optional>

namespace dyeworks::plugins {

/// Squares in two colours, the first of them at the top left corner.
struct Checkerboard {
    int side = 8; ///< In pixels, at least 1.
    QRgb light = 0xFFFFFFFF;
    QRgb dark = 0xFFCCCCCC;
};

/// Draws a picture that repeats without end, each texel as `zoom` x `zoom` pixels of the target (at least 1),
/// nearest neighbour. The target's first pixel is the pixel `origin` of the pattern, which has no negative
/// coordinate. Colours are laid over the checkerboard by their alpha, or, without one, shown opaque.
/// `target` is of Format_RGB32; the picture is not empty.
void renderTiles(QImage& target, QPoint origin, const ViewerPicture& picture, int zoom,
                 const std::optional<Checkerboard>& board);

} // namespace dyeworks::plugins

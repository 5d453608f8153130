#include "paint/ViewRenderer.h"

#include "paint/SelectionTracker.h"
#include "paint/SurfaceDrawing.h"
#include "paint/TextureCanvas.h"
#include "paint/ViewGeometry.h"
#include "paint/WrapCopies.h"

#include <algorithm>
#include <cstddef>

namespace dyeworks {

namespace {

/// Texels from one grid line to the next.
constexpr std::int32_t kGridTexels = 8;
/// Side of the pattern that grid lines are drawn with; it repeats from the logical origin on.
constexpr std::int32_t kPatternSide = 8;
constexpr std::uint32_t kBareWhite = 0x00ffffff;
/// Pixels of a dash of a mirror line; a power of two.
constexpr std::int32_t kMirrorDash = 4;
/// Rows that are finished before the next ones are begun, so that the grid finds them in the cache.
constexpr std::int32_t kBandRows = 32;

/// The first number from `from` on that leaves `rest` when divided by `period`; none is negative.
std::int32_t firstFrom(std::int32_t from, std::int32_t rest, std::int32_t period) {
    return from + (rest - from % period + period) % period;
}

/// Whether white lies further from a colour (blue, green, red) than black does; weights of ITU-R BT.601.
bool isDark(const std::uint8_t* quad) {
    return 114 * quad[0] + 587 * quad[1] + 299 * quad[2] < 1000 * 128;
}

} // namespace

ViewRenderer::ViewRenderer(const TextureCanvas& canvas, const ViewLook& look)
    : canvas_(canvas)
    , look_(look) {
    if (!look.standingOut || *look.standingOut >= canvas.GetColorCount())
        return;
    colours_.assign(canvas.colourTable().begin(), canvas.colourTable().end());
    std::uint8_t* const quad = colours_.data() + 4 * std::size_t{*look.standingOut};
    std::fill_n(quad, 3, isDark(quad) ? std::uint8_t{255} : std::uint8_t{0});
}

void ViewRenderer::draw(Surface& surface, const Rect& area) const {
    const Rect visible = intersection(area, reachOf(surface));
    if (isEmpty(visible))
        return;
    if (look_.noPalette) {
        fillArea(surface, visible, look_.outsideColour);
        return;
    }
    if (look_.imageShown) {
        const Rect image = imageArea();
        const Rect copies{-image.right, -image.bottom, 2 * image.right, 2 * image.bottom};
        drawOutside(surface, visible, intersection(visible, look_.repeated ? copies : image));
        forEachCopy(surface, visible, [this](const Surface& copy, const Rect& part, bool isImage) {
            drawBands(copy, part, isImage && look_.gridShown);
        });
        drawMirrorLines(surface, intersection(visible, image));
    }
    if (look_.selection)
        drawSelection(surface, visible);
}

Rect ViewRenderer::imageArea() const {
    return {0, 0, canvas_.width() * look_.zoom, canvas_.height() * look_.zoom};
}

/// Calls `draw(surface, area, isImage)` for the image and each of its copies, as far as they are visible:
/// with the surface from where the copy has the image's coordinates, the visible part of it, and whether it
/// is the image itself.
template <typename Draw>
void ViewRenderer::forEachCopy(const Surface& surface, const Rect& visible, Draw draw) const {
    const Rect image = imageArea();
    const std::int32_t reach = look_.repeated ? 1 : 0;
    for (std::int32_t row = -reach; row <= reach; ++row) {
        for (std::int32_t column = -reach; column <= reach; ++column) {
            const Point way{column * image.right, row * image.bottom};
            const Rect area = intersection(image, {visible.left - way.x, visible.top - way.y,
                                                   visible.right - way.x, visible.bottom - way.y});
            if (isEmpty(area))
                continue;
            Surface copy = surface;
            copy.originX -= way.x;
            copy.originY -= way.y;
            draw(copy, area, row == 0 && column == 0);
        }
    }
}

void ViewRenderer::drawBands(const Surface& surface, const Rect& area, bool gridShown) const {
    const std::int32_t bandRows = (kBandRows + look_.zoom - 1) / look_.zoom * look_.zoom;
    Rect band = area;
    for (; band.top < area.bottom; band.top = band.bottom) {
        // Bands end where texels do, so that no row is looked up twice.
        band.bottom = std::min((band.top / bandRows + 1) * bandRows, area.bottom);
        drawImage(surface, band);
        if (gridShown)
            drawGrid(surface, band);
    }
}

void ViewRenderer::drawOutside(const Surface& surface, const Rect& visible, const Rect& image) const {
    if (isEmpty(image)) {
        fillArea(surface, visible, look_.outsideColour);
        return;
    }
    fillArea(surface, {visible.left, visible.top, visible.right, image.top}, look_.outsideColour);
    fillArea(surface, {visible.left, image.top, image.left, image.bottom}, look_.outsideColour);
    fillArea(surface, {image.right, image.top, visible.right, image.bottom}, look_.outsideColour);
    fillArea(surface, {visible.left, image.bottom, visible.right, visible.bottom}, look_.outsideColour);
}

void ViewRenderer::drawImage(const Surface& surface, const Rect& area) const {
    // Whole texels are drawn, and cut at the edges of the area.
    Surface part = partOf(surface, area);
    const std::int32_t zoom = look_.zoom;
    const Rect texels{area.left / zoom, area.top / zoom, std::min(area.right / zoom + 1, canvas_.width()),
                      std::min(area.bottom / zoom + 1, canvas_.height())};
    const Rect place{texels.left * zoom, texels.top * zoom, texels.right * zoom, texels.bottom * zoom};
    // What a depth without colours leaves out would show what the surface happens to hold.
    const std::int32_t rows = colours_.empty() ? canvas_.Draw(part, place, texels)
                                               : canvas_.DrawInColours(part, place, texels, colours_);
    if (rows == 0)
        fillArea(part, area, look_.outsideColour);
}

void ViewRenderer::drawGrid(const Surface& surface, const Rect& area) const {
    // The pen draws where its pattern is white and merges with what is there. At zoom 1 the pattern has one
    // white pixel at its corner, at larger zooms it is a checkerboard that is white where x + y is odd. Lines
    // lie at multiples of its side: a horizontal line is white in every period-th column, and all vertical
    // lines are white in the same rows. At zoom 1 a horizontal line has the white pixels of all the vertical
    // ones that cross it.
    const std::int32_t step = kGridTexels * look_.zoom;
    const std::int32_t period = look_.zoom == 1 ? kPatternSide : 2;
    const std::int32_t rest = look_.zoom == 1 ? 0 : 1;

    const std::int32_t firstLine = firstFrom(std::max(area.left, 1), 0, step);
    const std::int32_t firstWhite = firstFrom(area.left, rest, period);
    for (std::int32_t y = area.top; y < area.bottom; ++y) {
        std::uint32_t* const row = pixelAt(surface, area.left, y);
        const bool horizontal = y % step == 0 && y > 0;
        if (y % period == rest && !(horizontal && look_.zoom == 1)) {
            for (std::int32_t x = firstLine; x < area.right; x += step)
                row[x - area.left] |= kBareWhite;
        }
        if (horizontal) {
            for (std::int32_t x = firstWhite; x < area.right; x += period)
                row[x - area.left] |= kBareWhite;
        }
    }
}

/// Dashes of two colours, one of which is seen on any image.
void ViewRenderer::drawMirrorLines(const Surface& surface, const Rect& area) const {
    const auto colourAt = [](std::int32_t along) { return (along & kMirrorDash) == 0 ? kWhite : kBlack; };
    const Rect image = imageArea();
    const std::int32_t x = image.right / 2;
    const std::int32_t y = image.bottom / 2;
    if (look_.mirrorsAcross && area.left <= x && x < area.right) {
        for (std::int32_t at = area.top; at < area.bottom; ++at)
            *pixelAt(surface, x, at) = colourAt(at);
    }
    if (look_.mirrorsDown && area.top <= y && y < area.bottom) {
        for (std::int32_t at = area.left; at < area.right; ++at)
            *pixelAt(surface, at, y) = colourAt(at);
    }
}

void ViewRenderer::drawFloating(const Surface& surface, const Rect& visible) const {
    const SelectionLook& selection = *look_.selection;
    const ViewGeometry geometry(look_.zoom, {canvas_.width(), canvas_.height()}, {}, {});
    const TextureCanvas& piece = *selection.floating;
    const auto drawAt = [&](Surface part, const Rect& texels) {
        piece.Draw(part, geometry.logicalArea(texels), {0, 0, piece.width(), piece.height()});
    };
    drawAt(partOf(surface, visible), selection.texels);
    if (!selection.floatingWraps)
        return;
    forEachCopy(surface, visible, [&](const Surface& copy, const Rect& area, bool) {
        forEachWrapCopy(selection.texels, {canvas_.width(), canvas_.height()}, [&](Point way) {
            const Rect& texels = selection.texels;
            drawAt(partOf(copy, area),
                   {texels.left + way.x, texels.top + way.y, texels.right + way.x, texels.bottom + way.y});
        });
    });
}

void ViewRenderer::drawSelection(const Surface& surface, const Rect& visible) const {
    const SelectionLook& selection = *look_.selection;
    const ViewGeometry geometry(look_.zoom, {canvas_.width(), canvas_.height()}, {}, {});
    if (selection.floating != nullptr)
        drawFloating(surface, visible);
    const Rect frame = geometry.selectionFrame(selection.texels);
    SelectionTracker(frame, selection.trackerStyle).draw(surface, visible);
    const std::int32_t whiteRest = selection.antsPhase ? 1 : 0;
    drawOutline(surface, grown(frame, 1), visible,
                [whiteRest](std::int32_t x, std::int32_t y, std::uint32_t& pixel) {
                    const bool white = (((x >> 1) + (y >> 1)) & 1) == whiteRest;
                    pixel = white ? kWhite : kBlack;
                });
}

} // namespace dyeworks

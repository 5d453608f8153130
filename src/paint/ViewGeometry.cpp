#include "paint/ViewGeometry.h"

#include "paint/WrapCopies.h"

namespace dyeworks {

namespace {

std::int32_t clampedTo(std::int32_t position, std::int32_t content, std::int32_t client) {
    return std::max(std::min(position, content - client), 0);
}

std::int32_t keptUnder(std::int32_t texel, std::int32_t zoom, std::int32_t point, std::int32_t content,
                       std::int32_t client, std::int32_t present, std::int32_t origin) {
    return content == client ? present : clampedTo(zoom * texel + origin - point, content, client);
}

std::int32_t copyAlong(std::int32_t texel, std::int32_t size) {
    if (size <= 0)
        return 0;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(floorDivided(texel, size), -1, 1)) * size;
}

} // namespace

ViewGeometry::ViewGeometry(std::int32_t zoom, Size image, Size client, Point scroll, bool repeated)
    : zoom_(holdZoom(zoom))
    , image_(image)
    , client_(client)
    , scroll_(scroll)
    , repeated_(repeated) {}

std::int32_t ViewGeometry::holdZoom(std::int32_t zoom) {
    return std::clamp(zoom, kMinZoom, kMaxZoom);
}

std::int32_t ViewGeometry::zoomedIn(std::int32_t zoom) {
    const std::int32_t step = zoom < 4 ? 1 : zoom < 8 ? 2 : 4;
    return holdZoom(zoom + step);
}

std::int32_t ViewGeometry::zoomedOut(std::int32_t zoom) {
    const std::int32_t step = zoom <= 4 ? 1 : zoom <= 8 ? 2 : 4;
    return holdZoom(zoom - step);
}

Size ViewGeometry::contentSize() const {
    const std::int32_t images = repeated_ ? 3 : 1;
    return {images * image_.width * zoom_, images * image_.height * zoom_};
}

Point ViewGeometry::origin() const {
    return repeated_ ? Point{image_.width * zoom_, image_.height * zoom_} : Point{};
}

Point ViewGeometry::shift() const {
    return {scroll_.x - origin().x, scroll_.y - origin().y};
}

Point ViewGeometry::texelAt(Point client) const {
    const Point logical{client.x + shift().x, client.y + shift().y};
    if (!repeated_)
        return {logical.x / zoom_, logical.y / zoom_};
    return {static_cast<std::int32_t>(floorDivided(logical.x, zoom_)),
            static_cast<std::int32_t>(floorDivided(logical.y, zoom_))};
}

Point ViewGeometry::copyAt(Point texel) const {
    return repeated_ ? Point{copyAlong(texel.x, image_.width), copyAlong(texel.y, image_.height)} : Point{};
}

Rect ViewGeometry::logicalArea(const Rect& texels) const {
    return {texels.left * zoom_, texels.top * zoom_, (texels.right + 1) * zoom_, (texels.bottom + 1) * zoom_};
}

Rect ViewGeometry::clientArea(const Rect& texels) const {
    const Rect area = logicalArea(texels);
    return {area.left - shift().x, area.top - shift().y, area.right - shift().x, area.bottom - shift().y};
}

Rect ViewGeometry::selectionFrame(const Rect& texels) const {
    const Rect area = logicalArea(texels);
    return {area.left + 1, area.top + 1, area.right - 1, area.bottom - 1};
}

Rect ViewGeometry::clientFrame(const Rect& texels) const {
    const Rect frame = selectionFrame(texels);
    return {frame.left - shift().x, frame.top - shift().y, frame.right - shift().x, frame.bottom - shift().y};
}

Point ViewGeometry::clampedScroll(Point scroll) const {
    const Size content = contentSize();
    return {clampedTo(scroll.x, content.width, client_.width),
            clampedTo(scroll.y, content.height, client_.height)};
}

Point ViewGeometry::scrollToKeep(Point texel, Point client) const {
    const Size content = contentSize();
    return {keptUnder(texel.x, zoom_, client.x, content.width, client_.width, scroll_.x, origin().x),
            keptUnder(texel.y, zoom_, client.y, content.height, client_.height, scroll_.y, origin().y)};
}

} // namespace dyeworks

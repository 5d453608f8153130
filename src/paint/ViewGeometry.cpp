#include "paint/ViewGeometry.h"

namespace dyeworks {

namespace {

std::int32_t clampedTo(std::int32_t position, std::int32_t content, std::int32_t client) {
    return std::max(std::min(position, content - client), 0);
}

std::int32_t keptUnder(std::int32_t texel, std::int32_t zoom, std::int32_t point, std::int32_t content,
                       std::int32_t client, std::int32_t present) {
    return content == client ? present : clampedTo(zoom * texel - point, content, client);
}

} // namespace

ViewGeometry::ViewGeometry(std::int32_t zoom, Size image, Size client, Point scroll)
    : zoom_(holdZoom(zoom))
    , image_(image)
    , client_(client)
    , scroll_(scroll) {}

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
    return {image_.width * zoom_, image_.height * zoom_};
}

Point ViewGeometry::texelAt(Point client) const {
    return {(client.x + scroll_.x) / zoom_, (client.y + scroll_.y) / zoom_};
}

Rect ViewGeometry::logicalArea(const Rect& texels) const {
    return {texels.left * zoom_, texels.top * zoom_, (texels.right + 1) * zoom_, (texels.bottom + 1) * zoom_};
}

Rect ViewGeometry::clientArea(const Rect& texels) const {
    const Rect area = logicalArea(texels);
    return {area.left - scroll_.x, area.top - scroll_.y, area.right - scroll_.x, area.bottom - scroll_.y};
}

Rect ViewGeometry::selectionFrame(const Rect& texels) const {
    const Rect area = logicalArea(texels);
    return {area.left + 1, area.top + 1, area.right - 1, area.bottom - 1};
}

Rect ViewGeometry::clientFrame(const Rect& texels) const {
    const Rect frame = selectionFrame(texels);
    return {frame.left - scroll_.x, frame.top - scroll_.y, frame.right - scroll_.x, frame.bottom - scroll_.y};
}

Point ViewGeometry::clampedScroll(Point scroll) const {
    const Size content = contentSize();
    return {clampedTo(scroll.x, content.width, client_.width),
            clampedTo(scroll.y, content.height, client_.height)};
}

Point ViewGeometry::scrollToKeep(Point texel, Point client) const {
    const Size content = contentSize();
    return {keptUnder(texel.x, zoom_, client.x, content.width, client_.width, scroll_.x),
            keptUnder(texel.y, zoom_, client.y, content.height, client_.height, scroll_.y)};
}

} // namespace dyeworks

#pragma once

#include "paint/Rect.h"

#include <cstdint>

namespace dyeworks {

class CDyeworksDoc;
class ImageSelection;
class ImageViewer;

/// What a tool asks of the view that it works in.
class ToolHost {
public:
    virtual ~ToolHost() = default;

    [[nodiscard]] virtual CDyeworksDoc& document() const noexcept = 0;
    [[nodiscard]] virtual ImageViewer& viewer() noexcept = 0;
    [[nodiscard]] virtual ImageSelection& selection() noexcept = 0;
    /// The value that the tools write, within the image's depth.
    [[nodiscard]] virtual std::uint32_t drawingValue() const noexcept = 0;
    /// Zooms so that the texel under the client point stays there as far as the view can scroll.
    virtual void ZoomAt(Point client, bool out) = 0;
};

} // namespace dyeworks

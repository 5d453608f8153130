#pragma once

#include "paint/DrawTool.h"

namespace dyeworks {

/// Zoom Lens: zooms where the button is released, in, or out when Ctrl is held then.
class ZoomLensTool final : public DrawTool {
public:
    using DrawTool::DrawTool;
    bool press(Point /*texel*/, const PointerEvent& /*event*/) override { return true; }
    void release(Point texel, const PointerEvent& event) override;
};

} // namespace dyeworks

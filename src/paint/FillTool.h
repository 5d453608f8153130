#pragma once

#include "paint/DrawTool.h"

namespace dyeworks {

/// Paint: fills the region under the pointer at the press.
class FillTool final : public DrawTool {
public:
    using DrawTool::DrawTool;
    bool press(Point texel, const PointerEvent& event) override;
};

} // namespace dyeworks

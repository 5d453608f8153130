#pragma once

#include "paint/DrawTool.h"

namespace dyeworks {

/// Replacer: gives every texel of the selection that equals the one under the press the drawing value;
/// without a selection, every such texel of the image.
class ReplacerTool final : public DrawTool {
public:
    using DrawTool::DrawTool;
    bool press(Point texel, const PointerEvent& event) override;
};

} // namespace dyeworks

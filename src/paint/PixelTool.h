#pragma once

#include "paint/DrawTool.h"

#include <cstdint>
#include <optional>

namespace dyeworks {

/// Pixel: one texel, written at the press.
class PixelTool final : public DrawTool {
public:
    using DrawTool::DrawTool;
    bool press(Point texel, const PointerEvent& event) override;
    void cancel() override;

private:
    std::optional<std::int32_t> step_; ///< History position of the undo step that the press recorded.
};

} // namespace dyeworks

#pragma once

#include "paint/DrawTool.h"

namespace dyeworks {

class ImageEdit;

/// Pen: a freehand line that follows the pointer; the whole stroke is one undo step.
class PenTool final : public DrawTool {
public:
    using DrawTool::DrawTool;
    bool press(Point texel, const PointerEvent& event) override;
    void move(Point texel, const PointerEvent& event) override;
    void release(Point texel, const PointerEvent& event) override;
    void cancel() override;

private:
    void follow(Point texel);

    ImageEdit* edit_ = nullptr;
    Point anchor_; ///< Up to where the line has been drawn.
};

} // namespace dyeworks

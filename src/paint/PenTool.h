#pragma once

#include "paint/DrawTool.h"
#include "paint/Stroke.h"

namespace dyeworks {

/// Pen: a freehand line that follows the pointer; the whole stroke is one undo step.
class PenTool final : public DrawTool {
public:
    explicit PenTool(CDyeworksView& view)
        : DrawTool(view)
        , stroke_(view) {}

    bool press(Point texel, const PointerEvent& event) override;
    void move(Point texel, const PointerEvent& event) override;
    void release(Point texel, const PointerEvent& event) override;
    void cancel() override { stroke_.cancel(); }

private:
    void follow(Point texel);

    Stroke stroke_;
    Point anchor_; ///< Up to where the line has been drawn.
};

} // namespace dyeworks

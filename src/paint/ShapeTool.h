#pragma once

#include "paint/DrawTool.h"
#include "paint/Stroke.h"

namespace dyeworks {

/// Line, Box, Box Fill, Circle and Circle Fill: a rubber band from the press to the pointer, or around the
/// press when Alt was held at it. A line ends where the button is released, the other shapes at the last
/// move.
/// They show a frame around what they draw.
class ShapeTool final : public DrawTool {
public:
    ShapeTool(Tool shape, CDyeworksView& view)
        : DrawTool(view)
        , shape_(shape)
        , stroke_(view) {}

    bool press(Point texel, const PointerEvent& event) override;
    void move(Point texel, const PointerEvent& event) override;
    void release(Point texel, const PointerEvent& event) override;
    void cancel() override;

private:
    void follow(Point texel);
    void drawShape();
    void showFrame(std::uint32_t redrawRequest);
    void hideFrame();

    Tool shape_;
    Stroke stroke_;
    bool centred_ = false;
    Point centre_;
    Point anchor_;
    Point current_;
    Point previous_; ///< Texel of the last move.
};

} // namespace dyeworks

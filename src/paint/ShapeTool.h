#pragma once

#include "paint/CurrentTool.h"
#include "paint/DrawTool.h"

#include <cstdint>

namespace dyeworks {

class ImageEdit;

/// Line, Box, Box Fill, Circle and Circle Fill: a rubber band from the press to the pointer, or around the
/// press when Alt was held at it. A line ends where the button is released, the other shapes at the last
/// move.
/// They show a frame around what they draw.
class ShapeTool final : public DrawTool {
public:
    ShapeTool(Tool shape, ToolHost& host)
        : DrawTool(host)
        , shape_(shape) {}

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
    ImageEdit* edit_ = nullptr;
    bool centred_ = false;
    Point centre_;
    Point anchor_;
    Point current_;
    Point previous_; ///< Texel of the last move.
};

} // namespace dyeworks

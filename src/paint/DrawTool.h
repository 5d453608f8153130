#pragma once

#include "paint/CanvasDrawing.h"
#include "paint/DrawingOptions.h"
#include "paint/PointerEvent.h"
#include "paint/Rect.h"
#include "paint/ToolHost.h"

namespace dyeworks {

/// What a tool does from a press of the pointer to its release. An object serves one press. Points are
/// texels, possibly outside the image. What a tool draws through an open edit is shown when its call returns.
class DrawTool {
public:
    /// `host` must outlive the tool.
    explicit DrawTool(ToolHost& host)
        : host_(host) {}
    virtual ~DrawTool() = default;
    DrawTool(const DrawTool&) = delete;
    DrawTool& operator=(const DrawTool&) = delete;

    /// True when a drag begins; otherwise the press was all, and none of the others is called.
    virtual bool press(Point texel, const PointerEvent& event) = 0;
    virtual void move(Point /*texel*/, const PointerEvent& /*event*/) {}
    virtual void release(Point /*texel*/, const PointerEvent& /*event*/) {}
    /// Instead of `release`: leaves the image as it was before the press. An edit that the tool had open has
    /// been taken back if the document ended it.
    virtual void cancel() {}

protected:
    [[nodiscard]] ToolHost& host() const noexcept { return host_; }
    [[nodiscard]] CDyeworksDoc& document() const noexcept { return host_.document(); }
    [[nodiscard]] ImageViewer& viewer() const noexcept { return host_.viewer(); }
    [[nodiscard]] ImageSelection& selection() const noexcept { return host_.selection(); }
    /// To draw on the canvas in the value and with the options that are chosen now.
    [[nodiscard]] CanvasDrawing drawingOn(TextureCanvas& canvas) const {
        return {canvas, drawingOptions(), host_.drawingValue()};
    }

private:
    ToolHost& host_;
};

} // namespace dyeworks

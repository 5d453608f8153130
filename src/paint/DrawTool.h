#pragma once

#include "paint/CurrentTool.h"
#include "paint/PointerEvent.h"
#include "paint/Rect.h"

#include <memory>

namespace dyeworks {

class CDyeworksDoc;
class CDyeworksView;

/// What a tool does from a press of the pointer to its release. An object serves one press. Points are
/// texels, possibly outside the image.
class DrawTool {
public:
    /// `view` must outlive the tool.
    explicit DrawTool(CDyeworksView& view)
        : view_(view) {}
    virtual ~DrawTool() = default;
    DrawTool(const DrawTool&) = delete;
    DrawTool& operator=(const DrawTool&) = delete;

    /// True when a drag begins; otherwise the press was all, and none of the others is called.
    virtual bool press(Point texel, const PointerEvent& event) = 0;
    virtual void move(Point /*texel*/, const PointerEvent& /*event*/) {}
    virtual void release(Point /*texel*/, const PointerEvent& /*event*/) {}
    /// Instead of `release`: leaves the image as it was before the press.
    virtual void cancel() {}

protected:
    [[nodiscard]] CDyeworksView& view() const noexcept { return view_; }
    [[nodiscard]] CDyeworksDoc& document() const noexcept;

private:
    CDyeworksView& view_;
};

[[nodiscard]] std::unique_ptr<DrawTool> makeDrawTool(Tool tool, CDyeworksView& view);

} // namespace dyeworks

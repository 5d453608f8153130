#include "paint/DrawTool.h"

#include "paint/CDyeworksView.h"
#include "paint/FillTool.h"
#include "paint/PenTool.h"
#include "paint/PixelTool.h"
#include "paint/ShapeTool.h"

namespace dyeworks {

CDyeworksDoc& DrawTool::document() const noexcept {
    return view_.document();
}

std::unique_ptr<DrawTool> makeDrawTool(Tool tool, CDyeworksView& view) {
    switch (tool) {
    case Tool::Pixel:
        return std::make_unique<PixelTool>(view);
    case Tool::Pen:
        return std::make_unique<PenTool>(view);
    case Tool::Line:
    case Tool::Box:
    case Tool::BoxFill:
    case Tool::Circle:
    case Tool::CircleFill:
        return std::make_unique<ShapeTool>(tool, view);
    case Tool::Paint:
        break;
    }
    return std::make_unique<FillTool>(view);
}

} // namespace dyeworks

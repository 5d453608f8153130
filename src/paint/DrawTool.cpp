#include "paint/DrawTool.h"

#include "paint/CDyeworksView.h"
#include "paint/FillTool.h"
#include "paint/PenTool.h"
#include "paint/PixelTool.h"
#include "paint/ReplacerTool.h"
#include "paint/SelectTool.h"
#include "paint/ShapeTool.h"
#include "paint/ZoomLensTool.h"

namespace dyeworks {

CDyeworksDoc& DrawTool::document() const noexcept {
    return view_.document();
}

std::unique_ptr<DrawTool> makeDrawTool(Tool tool, CDyeworksView& view) {
    switch (tool) {
    case Tool::Select:
        return std::make_unique<SelectTool>(view);
    case Tool::ZoomLens:
        return std::make_unique<ZoomLensTool>(view);
    case Tool::Replacer:
        return std::make_unique<ReplacerTool>(view);
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

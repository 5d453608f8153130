#include "paint/MakeDrawTool.h"

#include "paint/FillTool.h"
#include "paint/PenTool.h"
#include "paint/PixelTool.h"
#include "paint/ReplacerTool.h"
#include "paint/SelectTool.h"
#include "paint/ShapeTool.h"
#include "paint/ZoomLensTool.h"

namespace dyeworks {

std::unique_ptr<DrawTool> makeDrawTool(Tool tool, ToolHost& host) {
    switch (tool) {
    case Tool::Select:
        return std::make_unique<SelectTool>(host);
    case Tool::ZoomLens:
        return std::make_unique<ZoomLensTool>(host);
    case Tool::Replacer:
        return std::make_unique<ReplacerTool>(host);
    case Tool::Pixel:
        return std::make_unique<PixelTool>(host);
    case Tool::Pen:
        return std::make_unique<PenTool>(host);
    case Tool::Line:
    case Tool::Box:
    case Tool::BoxFill:
    case Tool::Circle:
    case Tool::CircleFill:
        return std::make_unique<ShapeTool>(tool, host);
    case Tool::Paint:
        break;
    }
    return std::make_unique<FillTool>(host);
}

} // namespace dyeworks

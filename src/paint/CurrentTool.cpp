#include "paint/CurrentTool.h"

namespace dyeworks {

namespace {

Tool chosenTool = Tool::Select;

} // namespace

Tool currentTool() noexcept {
    return chosenTool;
}

void setCurrentTool(Tool tool) noexcept {
    chosenTool = tool;
}

} // namespace dyeworks

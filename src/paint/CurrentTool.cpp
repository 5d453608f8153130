#include "paint/CurrentTool.h"

namespace dyeworks {

namespace {

Tool chosen = Tool::Select;

} // namespace

Tool currentTool() noexcept {
    return chosen;
}

void setCurrentTool(Tool tool) noexcept {
    chosen = tool;
}

} // namespace dyeworks

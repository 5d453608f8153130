#pragma once

#include "paint/CurrentTool.h"
#include "paint/DrawTool.h"

#include <memory>

namespace dyeworks {

/// The object that serves one press with `tool`. `host` must outlive it.
[[nodiscard]] std::unique_ptr<DrawTool> makeDrawTool(Tool tool, ToolHost& host);

} // namespace dyeworks

#pragma once

namespace dyeworks {

/// The tools, under the numbers that the program has always given them.
enum class Tool {
    Select = 0,
    Pixel = 1,
    Pen = 2,
    Line = 3,
    Box = 4,
    BoxFill = 5,
    Circle = 6,
    CircleFill = 7,
    Paint = 8,
    ZoomLens = 10,
    Replacer = 11
};

/// Whether the tool leaves a selection as it is and works with it. All others draw, and end it.
[[nodiscard]] constexpr bool keepsSelection(Tool tool) noexcept {
    return tool == Tool::Select || tool == Tool::ZoomLens || tool == Tool::Replacer;
}

/// The tool that is chosen, one for all image views.
[[nodiscard]] Tool currentTool() noexcept;
void setCurrentTool(Tool tool) noexcept;

} // namespace dyeworks

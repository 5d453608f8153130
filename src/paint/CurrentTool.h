#pragma once

namespace dyeworks {

/// The drawing tools, under the numbers that the program has always given them.
enum class Tool { Pixel = 1, Pen = 2, Line = 3, Box = 4, BoxFill = 5, Circle = 6, CircleFill = 7, Paint = 8 };

/// The tool that is chosen, one for all image views.
[[nodiscard]] Tool currentTool() noexcept;
void setCurrentTool(Tool tool) noexcept;

} // namespace dyeworks

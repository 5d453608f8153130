#pragma once

#include <optional>
#include <string>

namespace dyeworks {

/// Where a window stands and how, in pixels of what contains it (the screen, or the document area).
struct WindowPlacement {
    /// In `flags`: a minimized window becomes maximized when it is restored.
    static constexpr int kRestoreToMaximized = 2;

    // Values of `showCommand`.
    static constexpr int kHidden = 0;
    static constexpr int kShowNormal = 1;
    static constexpr int kShowMinimized = 2;
    static constexpr int kShowMaximized = 3;

    int flags = 0;
    int showCommand = kShowNormal;
    // Top left corner while minimized and while maximized; -1 leaves it to the window system.
    int minX = -1;
    int minY = -1;
    int maxX = -1;
    int maxY = -1;
    // The rectangle while neither, right and bottom exclusive.
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    /// Whether the rectangle holds a pixel and its numbers are of a size that screens can have.
    [[nodiscard]] bool hasRectangle() const noexcept;

    bool operator==(const WindowPlacement&) const = default;
};

/// "flags:showCommand:minX:minY:maxX:maxY:left:top:right:bottom" in decimal.
[[nodiscard]] std::string formatWindowPlacement(const WindowPlacement& placement);

/// Nothing unless all ten fields are integers, which may be written in decimal, octal (a leading 0) or
/// hexadecimal (0x). What follows the tenth is ignored.
[[nodiscard]] std::optional<WindowPlacement> parseWindowPlacement(const std::string& text);

// A window's placement in the user's settings, in section "Settings" under the name `entry`.
[[nodiscard]] std::optional<WindowPlacement> readWindowPlacement(const std::string& entry);
void writeWindowPlacement(const std::string& entry, const WindowPlacement& placement);

} // namespace dyeworks

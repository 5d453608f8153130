#include "framework/WindowPlacement.h"

#include "platform/Platform.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <limits>

namespace dyeworks {

namespace {

constexpr const char* kPlacementSection = "Settings";

constexpr std::array kFields{&WindowPlacement::flags, &WindowPlacement::showCommand, &WindowPlacement::minX,
                             &WindowPlacement::minY,  &WindowPlacement::maxX,        &WindowPlacement::maxY,
                             &WindowPlacement::left,  &WindowPlacement::top,         &WindowPlacement::right,
                             &WindowPlacement::bottom};

constexpr int kFarthest = 1 << 20; // Pixels from the origin, beyond which stands nothing but damage.

} // namespace

bool WindowPlacement::hasRectangle() const noexcept {
    for (const int edge : {left, top, right, bottom}) {
        if (edge < -kFarthest || edge > kFarthest)
            return false;
    }
    return left < right && top < bottom;
}

std::string formatWindowPlacement(const WindowPlacement& placement) {
    std::string text;
    for (const auto field : kFields) {
        if (!text.empty())
            text += ':';
        text += std::to_string(placement.*field);
    }
    return text;
}

std::optional<WindowPlacement> parseWindowPlacement(const std::string& text) {
    WindowPlacement placement;
    const char* position = text.c_str();
    for (std::size_t i = 0; i < kFields.size(); ++i) {
        if (i > 0 && *position++ != ':')
            return std::nullopt;
        char* end = nullptr;
        errno = 0;
        const long value = std::strtol(position, &end, 0);
        if (end == position || errno == ERANGE || value < std::numeric_limits<int>::min() ||
            value > std::numeric_limits<int>::max())
            return std::nullopt;
        placement.*kFields[i] = static_cast<int>(value);
        position = end;
    }
    return placement;
}

std::optional<WindowPlacement> readWindowPlacement(const std::string& entry) {
    const std::optional<std::string> text = platform().profile().text(kPlacementSection, entry);
    return text ? parseWindowPlacement(*text) : std::nullopt;
}

void writeWindowPlacement(const std::string& entry, const WindowPlacement& placement) {
    platform().profile().setText(kPlacementSection, entry, formatWindowPlacement(placement));
}

} // namespace dyeworks

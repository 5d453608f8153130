#include "paint/DrawingOptions.h"

#include "platform/Platform.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace dyeworks {

namespace {

constexpr const char* kSection = "Drawing";
constexpr const char* kSizeEntry = "BrushSize";
constexpr const char* kRoundEntry = "RoundBrush";
constexpr const char* kAcrossEntry = "MirrorAcross";
constexpr const char* kDownEntry = "MirrorDown";
constexpr const char* kWrapEntry = "Wrap";

DrawingOptions chosenOptions;
std::vector<DrawingOptionsListener*> listeners;

void choose(DrawingOptions options) {
    options.brush.size = std::clamp(options.brush.size, 1, Brush::kMaxSize);
    if (std::exchange(chosenOptions, options) == options)
        return;
    for (DrawingOptionsListener* listener : std::vector(listeners))
        listener->drawingOptionsChanged();
}

} // namespace

const DrawingOptions& drawingOptions() noexcept {
    return chosenOptions;
}

void setDrawingOptions(const DrawingOptions& options) {
    choose(options);
    Profile& profile = platform().profile();
    profile.setInteger(kSection, kSizeEntry, chosenOptions.brush.size);
    profile.setInteger(kSection, kRoundEntry, chosenOptions.brush.round ? 1 : 0);
    profile.setInteger(kSection, kAcrossEntry, chosenOptions.mirrorAcross ? 1 : 0);
    profile.setInteger(kSection, kDownEntry, chosenOptions.mirrorDown ? 1 : 0);
    profile.setInteger(kSection, kWrapEntry, chosenOptions.wrap ? 1 : 0);
}

void restoreDrawingOptions() {
    const Profile& profile = platform().profile();
    const auto isOn = [&profile](const char* entry) { return profile.integer(kSection, entry, 0) != 0; };
    choose({{profile.integer(kSection, kSizeEntry, 1), isOn(kRoundEntry)},
            isOn(kAcrossEntry),
            isOn(kDownEntry),
            isOn(kWrapEntry)});
}

void addDrawingOptionsListener(DrawingOptionsListener& listener) {
    listeners.push_back(&listener);
}

void removeDrawingOptionsListener(DrawingOptionsListener& listener) {
    std::erase(listeners, &listener);
}

} // namespace dyeworks

#include "core/PaletteSet.h"
#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"
#include "paint/DrawTool.h"
#include "paint/RememberedPalette.h"
#include "paint/ViewWindow.h"
#include "platform/Platform.h"

namespace dyeworks {

namespace {

constexpr const char* kGridEntry = "ShowGrid";
constexpr const char* kRepeatEntry = "Repeat";
constexpr const char* kZoomEntry = "zoom";
constexpr const char* kXEntry = "x";
constexpr const char* kYEntry = "y";
constexpr const char* kAttachEntry = "Attach";

std::string sectionOf(const std::string& path) {
    return "Settings\\Images\\" + path;
}

} // namespace

std::string rememberedPalette(const std::string& imagePath) {
    return platform().profile().textOr(sectionOf(imagePath), kAttachEntry, "");
}

void CDyeworksView::restoreSettings() {
    const std::string& path = document_.pathName();
    if (path.empty())
        return;
    const std::optional<WindowPlacement> placement = readWindowPlacement(path);
    if (!placement)
        return;
    const Profile& profile = platform().profile();
    const std::string section = sectionOf(path);
    gridShown_ = profile.integer(section, kGridEntry, 1) != 0;
    repeated_ = profile.integer(section, kRepeatEntry, 0) != 0;
    zoom_ = ViewGeometry::holdZoom(profile.integer(section, kZoomEntry, 1));
    window_.setContentSize(contentSize());
    restoreAttachment(profile.textOr(section, kAttachEntry, ""));
    // A further window does not cover the one that stands there.
    if (document_.views().size() == 1)
        window_.setPlacement(*placement);
    else
        window_.fitFrame();
    restoredScroll_ = Point{profile.integer(section, kXEntry, 0), profile.integer(section, kYEntry, 0)};
    scrollTo(*restoredScroll_);
}

/// A further window on an image leaves it the palette that it is attached to by now.
void CDyeworksView::restoreAttachment(const std::string& name) {
    if (document_.views().size() > 1)
        return;
    document_.setAttachedName(name);
    const TextureLookupTable* const palette = document_.GetAttachedPalette();
    if (palette == nullptr)
        return;
    document_.canvas().ApplyPalette(*palette, 0);
    document_.RefreshPalette();
}

void CDyeworksView::saveSettings() const {
    const std::string& path = document_.pathName();
    const Files& files = platform().files();
    if (!document_.host().keepsImageSettings() || path.empty() || !files.answers(path) ||
        !files.exists(path) || files.isDirectory(path))
        return;
    const std::optional<WindowPlacement> placement = window_.placement();
    if (!placement)
        return;
    writeWindowPlacement(path, *placement);
    Profile& profile = platform().profile();
    const std::string section = sectionOf(path);
    const Point scroll = restoredScroll_.value_or(window_.scrollPosition());
    profile.setInteger(section, kGridEntry, gridShown_ ? 1 : 0);
    profile.setInteger(section, kRepeatEntry, repeated_ ? 1 : 0);
    profile.setInteger(section, kZoomEntry, zoom_);
    profile.setInteger(section, kXEntry, scroll.x);
    profile.setInteger(section, kYEntry, scroll.y);
    profile.setText(section, kAttachEntry, document_.attachedName());
}

} // namespace dyeworks

#pragma once

#include "core/PaletteSet.h"
#include "plugin/PlugInHost.h"

#include <string>
#include <vector>

namespace dyeworks {

/// An application without windows; it remembers what it was asked to show.
class FakePlugInHost : public PlugInHost {
public:
    CTPFDocument* openProject() const override { return openedProject; }
    CDyeworksDoc* findImage(const std::string& /*path*/) const override { return nullptr; }
    PaletteSet* paletteSet() const override { return hasPalettes ? &palettes : nullptr; }
    void refreshPaletteBar() override { ++refreshes; }
    void showAbout() override { ++abouts; }
    void tellPlugInFailed(const std::string& fileName) override { failures.push_back(fileName); }

    CTPFDocument* openedProject = nullptr;
    mutable PaletteSet palettes;
    bool hasPalettes = true;
    int refreshes = 0;
    int abouts = 0;
    std::vector<std::string> failures; ///< Of which plug-ins.
};

} // namespace dyeworks

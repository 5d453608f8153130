#pragma once

#include "plugin/PlugInFailures.h"

#include <string>

namespace dyeworks {

class CDyeworksDoc;
class CTPFDocument;
class PaletteSet;

/// What plug-ins, and the calls to them, ask of the application.
class PlugInHost : public PlugInFailures {
public:
    /// The open project, or null.
    [[nodiscard]] virtual CTPFDocument* openProject() const = 0;
    /// The open image of this file, or null; the full paths are compared without regard to case.
    [[nodiscard]] virtual CDyeworksDoc* findImage(const std::string& path) const = 0;
    /// The open palettes, or null while there is no set.
    [[nodiscard]] virtual PaletteSet* paletteSet() const = 0;
    /// Shows the current palette anew.
    virtual void refreshPaletteBar() = 0;
    /// Shows the About box until the user closes it.
    virtual void showAbout() = 0;
    /// Tells the user in passing.
    void tellPlugInFailed(const std::string& fileName) override = 0;
};

} // namespace dyeworks

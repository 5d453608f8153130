#pragma once

#include <functional>
#include <memory>
#include <string>

namespace dyeworks {

class CMainFrame;
class MainFrameHost;
class PaletteSet;

/// What start-up is made of and may fail to get. Whoever starts the program may put others in their place.
struct StartUpParts {
    StartUpParts();

    /// Clipboard, drag and drop and the hosting of controls. False when the desktop does not give them.
    std::function<bool()> startObjectServices;
    /// Null when there is not enough memory, here and below. The window is not shown yet.
    std::function<std::unique_ptr<CMainFrame>(MainFrameHost&)> makeMainFrame;
    std::function<std::unique_ptr<PaletteSet>()> makePaletteSet;
    /// The program's own file, for `HangNotice`; empty: nobody is asked.
    std::string program;
};

} // namespace dyeworks

#pragma once

#include "paint/widgets/ImageView.h"
#include "platform/fake/FakePlatform.h"
#include "project/CTPFDocument.h"
#include "ui/CDyeworksApp.h"
#include "ui/CMainFrame.h"
#include "ui/CPaletteBar.h"
#include "ui/CommandLine.h"

#include <QTest>

#include <functional>
#include <string>
#include <vector>

namespace dyeworks {

/// Texels by row and column, the way a test thinks of an image.
using Texels = std::vector<std::vector<unsigned>>;

Texels texels(int width, int height, const std::function<unsigned(int x, int y)>& valueAt);

/// The bytes of an image file, written by hand and not by the program's code.
std::string imageFile(const Texels& image, int bits);
/// The bytes of a palette file of 16 or 256 entries.
std::string paletteFile(int count, const std::function<unsigned(int entry)>& entryAt);

/// Lets the companion controls, the real ones, be found.
void defineControls(FakePlatform& fake);

/// The program on a platform of fakes, its window open on the offscreen display.
class Program : public testing::Test {
protected:
    /// With all companion controls but this one.
    explicit Program(const char* missingControl = "");

    /// Opens "c:\tex\pic.tmf" with these texels and "c:\tex\pic.tlf", attached.
    void openAttached(const Texels& image, int bits, int paletteEntries);
    [[nodiscard]] ImageView& view() { return *app_.mainFrame().activeImageView(); }
    [[nodiscard]] CDyeworksDoc& image() { return view().view().document(); }
    /// Opens the project "c:\proj\sea.tpf" with pictures of these names, each "<name>.tmf" and "<name>.tlf"
    /// with number 2, none of which is there.
    CTPFDocument& openProject(const std::vector<std::string>& pictures = {});
    /// What the image holds now.
    [[nodiscard]] Texels canvas();

    bool run(CommandId id) { return app_.router().run(id); }
    [[nodiscard]] bool enabled(CommandId id) { return app_.router().state(id).enabled; }
    /// The client point in the middle of a texel.
    [[nodiscard]] QPoint at(int x, int y);
    /// Presses at the first of the texels, moves along them, releases at the last.
    void drag(const std::vector<QPoint>& texelPath, Qt::KeyboardModifiers modifiers = {});

    FakePlatform fake_;
    CDyeworksApp app_;
};

} // namespace dyeworks

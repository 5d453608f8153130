#pragma once

#include "paint/widgets/ImageView.h"
#include "platform/fake/FakePlatform.h"
#include "project/CTPFDocument.h"
#include "ui/CDyeworksApp.h"
#include "ui/CMainFrame.h"
#include "ui/CommandLine.h"
#include "ui/palettebar/CPaletteBar.h"

#include <QDialog>
#include <QTest>

#include <functional>
#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace dyeworks {

using testing::ElementsAre;
using testing::IsEmpty;

/// Texels by row and column, the way a test thinks of an image.
using Texels = std::vector<std::vector<unsigned>>;

Texels texels(int width, int height, const std::function<unsigned(int x, int y)>& valueAt);

/// One whose neighbours differ.
Texels pattern(int width, int height);

/// The bytes of an image file of 4 or 8 bits.
std::string imageFile(const Texels& image, int bits);
/// The bytes of a palette file of 16 or 256 entries.
std::string paletteFile(int count, const std::function<unsigned(int entry)>& entryAt);

/// Lets the companion controls, the real ones, be found.
void defineControls(FakePlatform& fake);
/// Puts images of 4 by 4 texels of value 1 there.
void putImages(FakePlatform& fake, std::initializer_list<const char*> paths);
/// Most tests begin in an empty window.
void leaveOutStartPage(FakePlatform& fake);
/// What the message boxes said, oldest first.
std::vector<std::string> texts(const FakePlatform& fake);
/// A path as the desktop has it.
QString onHost(FakePlatform& fake, const std::string& path);

/// Lets `use` have the dialog that comes up next.
void withNextDialog(std::function<void(QDialog&)> use);

/// The program on a platform of fakes, its window open on the offscreen display.
class Program : public testing::Test {
protected:
    /// With all companion controls but this one.
    explicit Program(const char* missingControl = "");

    /// Opens "c:\tex\pic.tmf" with these texels and "c:\tex\pic.tlf", attached.
    void openAttached(const Texels& image, int bits, int paletteEntries);
    /// The same with 8 by 8 texels of value 0 and a palette of 256 entries.
    void openBlank();
    /// Sets one texel by hand.
    void drawPixel(QPoint texel, int entry);
    /// Gives the current palette an unsaved change.
    void changePalette();
    [[nodiscard]] ImageView& view() { return *app_.mainFrame().activeImageView(); }
    [[nodiscard]] CDyeworksDoc& image() { return view().view().document(); }
    /// Opens the project "c:\proj\sea.tpf" with pictures of these names, each "<name>.tmf" and "<name>.tlf"
    /// with number 2, none of which is there.
    CTPFDocument& openProject(const std::vector<std::string>& pictures = {});
    /// What the image holds now.
    [[nodiscard]] Texels canvas();

    [[nodiscard]] CMainFrame& frame() { return app_.mainFrame(); }
    bool run(CommandId id) { return app_.router().run(id); }
    /// Lets bars and docks show what has happened.
    static void settle() {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
    }
    [[nodiscard]] bool enabled(CommandId id) { return app_.router().state(id).enabled; }
    /// The client point in the middle of a texel.
    [[nodiscard]] QPoint at(int x, int y);
    /// Tells the view of a move of the mouse, to a client point.
    void moveMouse(QPoint place, Qt::MouseButtons held, Qt::KeyboardModifiers modifiers = {});
    /// Presses at the first of the texels, moves along them, releases at the last.
    void drag(const std::vector<QPoint>& texelPath, Qt::KeyboardModifiers modifiers = {});

    FakePlatform fake_;
    CDyeworksApp app_;
};

/// The program before its start, with the settings that an earlier one left behind.
class Launch : public testing::Test {
protected:
    Launch() {
        defineControls(fake_);
        leaveOutStartPage(fake_);
        commandLine_.noSplash = true;
    }

    /// Starts the program, in the place of one that is running.
    bool launch(StartUpParts parts = {}) {
        app_.reset();
        app_ = std::make_unique<CDyeworksApp>(std::move(parts));
        return app_->InitInstance(commandLine_);
    }
    /// A path as it comes in from the host, where there are no drives.
    [[nodiscard]] std::string fromHost(const std::string& path) const {
        return fake_.files.fromHostPath(fake_.files.hostPath(path));
    }
    /// Asks for files on the command line.
    void ask(const std::vector<std::string>& paths) {
        commandLine_.task = CommandLine::Task::Open;
        commandLine_.files.clear();
        for (const std::string& path : paths)
            commandLine_.files << onHost(fake_, path);
    }
    [[nodiscard]] CMainFrame& frame() { return app_->mainFrame(); }
    [[nodiscard]] std::vector<std::string> openImages() {
        std::vector<std::string> paths;
        for (const CDocument* document : app_->imageTemplate().documents())
            paths.push_back(document->pathName());
        return paths;
    }
    bool run(CommandId id) { return app_->router().run(id); }

    FakePlatform fake_;
    CommandLine commandLine_;
    std::unique_ptr<CDyeworksApp> app_;
};

/// The program, started again and again with the settings that it left behind.
class Restart : public Launch {
protected:
    Restart() { start(); }

    void start() { ASSERT_TRUE(launch()); }
    void leaveAndStart() {
        ASSERT_TRUE(frame().close());
        ASSERT_EQ(app_->ExitInstance(), 0);
        start();
    }
};

} // namespace dyeworks

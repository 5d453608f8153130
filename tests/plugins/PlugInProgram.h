#pragma once

#include "../ui/Program.h"
#include "project/widgets/ProjectTreeWidget.h"

#include <QMimeData>

#include <string>
#include <vector>

namespace dyeworks {

using Lines = std::vector<std::string>;

/// The program with plug-ins in its folder, which are real libraries. About boxes close by themselves.
class PlugInProgram : public Launch {
protected:
    PlugInProgram();
    ~PlugInProgram() override;

    /// Puts a copy of a library of the tests into the folder, under this name.
    void install(const std::string& library, const std::string& file);
    /// Starts the program.
    void start();
    /// Opens the image, 24 by 8 texels of 8 bits, all 1, and its palette, attached to it.
    void openImage();
    /// Opens the project, which has one picture.
    void openProject();
    /// Leaves the program without saving.
    void leave();

    [[nodiscard]] ImageView& view() { return *frame().activeImageView(); }
    [[nodiscard]] CDyeworksDoc& image() { return view().view().document(); }
    [[nodiscard]] TextureLookupTable& palette() { return *app_->paletteSet()->lookup(kPalette); }
    [[nodiscard]] unsigned texel(int x, int y) { return image().canvas().GetPixel(x, y); }
    /// Width and height of the piece that floats; none where none does.
    [[nodiscard]] QSize piece();
    /// The texts of the menu entries from `first` on that are shown.
    [[nodiscard]] Lines menu(CommandId first);
    [[nodiscard]] CTPFDocument& project() { return dynamic_cast<CTPFDocument&>(*app_->projectDocument()); }
    /// The tree of the project, whose window comes to the front.
    ProjectTreeWidget& tree();
    [[nodiscard]] QModelIndex node(const std::string& path);
    /// Drags the first node over the other one and drops it there. What the drop would do before it is done.
    Qt::DropAction drag(const std::string& from, const std::string& to, Qt::KeyboardModifiers keys = {});
    /// What the plug-ins noted since the last call.
    Lines log();

    static constexpr const char* kImage = "c:\\tex\\pic.tmf";
    static constexpr const char* kPalette = "c:\\tex\\pic.tlf";
    static constexpr const char* kProject = "c:\\proj\\sea.tpf";

    Lines status_;                  ///< What the status line said in passing.
    int abouts_ = 0;                ///< Boxes that came up.
    int repaints_ = 0;              ///< Of the image's view.
    std::function<void()> onAbout_; ///< Called while the box is up.

private:
    class Watch;

    std::unique_ptr<QObject> watch_;
};

} // namespace dyeworks

#pragma once

#include "interchange/PngFile.h"
#include "ui/OpenedFile.h"

#include <optional>
#include <string>

namespace dyeworks {

class Workspace;

/// Opens the pictures of other programs as new images, each attached to its palette. Neither is saved yet,
/// and neither is there when something fails.
class PictureImport {
public:
    /// `workspace` must outlive it.
    explicit PictureImport(Workspace& workspace)
        : workspace_(workspace) {}

    /// False: nobody is there to choose how colours are to be reduced, and they become a new palette of 256.
    void setAsks(bool asks) noexcept { asks_ = asks; }

    /// Opens a file if it is none of this program's own and holds a picture; failures have been reported.
    /// Nothing for any other file, which the ordinary way opens or refuses.
    [[nodiscard]] std::optional<OpenedFile> openFile(const std::string& path);
    /// Opens a picture under this name. One of direct colours goes through the sheet "Reduce Colours", whose
    /// Cancel opens nothing and is no failure.
    OpenedFile open(const PngPicture& png, const std::string& name);

private:
    struct Palette;
    OpenedFile openIndexed(const PngPicture& png, const std::string& name);
    OpenedFile openReduced(const Picture& picture, const std::string& name);
    OpenedFile show(const TmfImage& image, const Palette& palette, const std::string& name);
    void tell(const std::string& text);

    Workspace& workspace_;
    bool asks_ = true;
};

} // namespace dyeworks

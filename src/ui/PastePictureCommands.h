#pragma once

#include "framework/CommandTarget.h"
#include "interchange/PngFile.h"

#include <optional>

namespace dyeworks {

class PictureImport;
class Workspace;

/// The commands that take pictures of other programs from the clipboard with their colours.
class PastePictureCommands : public CommandTarget {
public:
    /// Both must outlive it.
    PastePictureCommands(Workspace& workspace, PictureImport& pictures);

private:
    struct Target;
    [[nodiscard]] std::optional<Target> target() const;
    [[nodiscard]] std::optional<PngPicture> picture() const;
    void OnPasteNewImage();
    void OnUpdatePasteNewImage(CommandUi& ui);
    void OnPasteMatching();
    void OnUpdatePasteMatching(CommandUi& ui);

    Workspace& workspace_;
    PictureImport& pictures_;
};

} // namespace dyeworks

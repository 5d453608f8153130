#pragma once

#include "framework/CommandTarget.h"

namespace dyeworks {

class CDyeworksDoc;
class Workspace;

/// The commands that bring an image and a palette together from the start, for people who have neither yet.
class NewTextureCommands : public CommandTarget {
public:
    /// `workspace` must outlive it.
    explicit NewTextureCommands(Workspace& workspace);

private:
    void OnNewTexture();
    void OnNewPaletteForImage();
    void OnUpdateNewPaletteForImage(CommandUi& ui);
    [[nodiscard]] CDyeworksDoc* activeImage() const;

    Workspace& workspace_;
};

} // namespace dyeworks

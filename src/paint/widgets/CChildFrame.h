#pragma once

#include "framework/widgets/ChildFrame.h"
#include "platform/DisplayPalette.h"

#include <vector>

namespace dyeworks {

/// The frame of an image window: keeps the display palette of its image and realises it.
class CChildFrame : public ChildFrame {
    Q_OBJECT

public:
    using ChildFrame::ChildFrame;

    /// Realises the palette at once. It is not owned; null takes the present one away. Returns the one
    /// before.
    const DisplayPalette* SetPalette(const DisplayPalette* palette);

    /// True, with a repaint of the whole frame under way, when a colour is not the one that was realised
    /// last. Without a palette nothing is realised.
    bool RealizePalette();

private:
    const DisplayPalette* palette_ = nullptr;
    std::vector<PaletteEntry> realized_;
};

} // namespace dyeworks

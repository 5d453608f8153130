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

    /// Realises the palette at once. It belongs to the frame's document or outlives the frame; null takes the
    /// present one away. Returns the one before.
    const DisplayPalette* SetPalette(const DisplayPalette* palette);

    /// True, with a repaint of the whole frame under way, when a colour is not the one that was realised
    /// last; the other frames then hear of it. Without a palette nothing is realised.
    bool RealizePalette();

    /// The frame is about to come to the front, where its colours count. As `RealizePalette`.
    bool OnQueryNewPalette() { return RealizePalette(); }
    /// A window realised other colours than before. Realises those of this frame, unless the window is the
    /// frame or lies in it.
    void OnPaletteChanged(const QWidget& window);

protected:
    bool event(QEvent* event) override;

private:
    const DisplayPalette* palette_ = nullptr;
    std::vector<PaletteEntry> realized_;
};

} // namespace dyeworks

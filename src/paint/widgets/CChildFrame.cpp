#include "paint/widgets/CChildFrame.h"

#include <utility>

namespace dyeworks {

const DisplayPalette* CChildFrame::SetPalette(const DisplayPalette* palette) {
    const DisplayPalette* before = std::exchange(palette_, palette);
    RealizePalette();
    return before;
}

bool CChildFrame::RealizePalette() {
    if (palette_ == nullptr || !palette_->valid() || palette_->entries() == realized_)
        return false;
    realized_ = palette_->entries();
    update();
    return true;
}

} // namespace dyeworks

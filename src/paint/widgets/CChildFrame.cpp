#include "paint/widgets/CChildFrame.h"

#include <QEvent>
#include <QMdiArea>

#include <utility>

namespace dyeworks {

const DisplayPalette* CChildFrame::SetPalette(const DisplayPalette* palette) {
    const DisplayPalette* before = std::exchange(palette_, palette);
    RealizePalette();
    return before;
}

bool CChildFrame::RealizePalette() {
    // A frame that has closed may have lost the palette with its document.
    if (document() == nullptr || palette_ == nullptr || !palette_->valid() ||
        palette_->entries() == realized_)
        return false;
    realized_ = palette_->entries();
    update();
    if (mdiArea() != nullptr) {
        for (QMdiSubWindow* window : mdiArea()->subWindowList()) {
            if (auto* const frame = qobject_cast<CChildFrame*>(window))
                frame->OnPaletteChanged(*this);
        }
    }
    return true;
}

void CChildFrame::OnPaletteChanged(const QWidget& window) {
    if (&window != this && !isAncestorOf(&window))
        RealizePalette();
}

bool CChildFrame::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate)
        OnQueryNewPalette();
    return ChildFrame::event(event);
}

} // namespace dyeworks

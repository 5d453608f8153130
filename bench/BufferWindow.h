#pragma once

#include "paint/CDyeworksView.h"
#include "paint/ViewWindow.h"

#include <atomic>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace dyeworks {

/// A window that paints into memory what it is asked to.
class BufferWindow : public ViewWindow {
public:
    explicit BufferWindow(Size client)
        : client_(client)
        , pixels_(static_cast<std::size_t>(client.width) * static_cast<std::size_t>(client.height)) {}

    void show(CDyeworksView& view) { view_ = &view; }

    Size clientSize() const override { return client_; }
    Point scrollPosition() const override { return {}; }
    void scrollTo(Point /*position*/) override {}
    void setContentSize(Size /*size*/) override {}
    void invalidate(const Rect& area) override {
        const Rect inside = intersection(area, {0, 0, client_.width, client_.height});
        if (inside.left < inside.right && inside.top < inside.bottom)
            stale_.push_back(inside);
    }
    void invalidateAll() override { invalidate({0, 0, client_.width, client_.height}); }
    void repaintNow() override {
        const ImageSelection::RedrawRequest request = view_->BeginPaint();
        Surface surface{pixels_.data(), client_.width, client_.height, client_.width, 0, 0};
        const std::uint32_t bits = request.bits == 0 ? 0 : request.bits | ImageSelection::kRedrawImage;
        for (const Rect& area : std::exchange(stale_, {}))
            view_->Paint(surface, area, kBackground, bits);
        // What was painted counts as seen.
        std::atomic_signal_fence(std::memory_order_acq_rel);
    }
    void capturePointer() override {}
    void releasePointer() override {}
    void setCursor(CursorShape /*shape*/) override {}
    void fitFrame() override {}
    std::optional<WindowPlacement> placement() const override { return std::nullopt; }
    void setPlacement(const WindowPlacement& /*placement*/) override {}
    void setDisplayPalette(const DisplayPalette* /*palette*/) override {}
    void startTicking(int /*milliseconds*/) override {}
    void stopTicking() override {}
    Point pointerPosition() const override { return {}; }
    bool shiftHeld() const override { return false; }

private:
    static constexpr std::uint32_t kBackground = 0xFFEFEFEF;

    Size client_;
    std::vector<std::uint32_t> pixels_;
    std::vector<Rect> stale_;
    CDyeworksView* view_ = nullptr;
};

} // namespace dyeworks

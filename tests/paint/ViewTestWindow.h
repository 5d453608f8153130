#pragma once

#include "DocTestHost.h"
#include "paint/CDyeworksView.h"
#include "paint/ViewWindow.h"

#include <algorithm>
#include <vector>

namespace dyeworks {

/// A window of 40 by 30 pixels that only remembers. Like a desktop, it reports the capture as lost whenever
/// the view gives it up.
class FakeViewWindow : public ViewWindow {
public:
    Size clientSize() const override { return client; }
    Point scrollPosition() const override { return scroll; }
    void scrollTo(Point position) override { scroll = position; }
    void setContentSize(Size size) override { content = size; }
    void invalidate(const Rect& area) override { invalidated.push_back(area); }
    void invalidateAll() override { ++fullRepaints; }
    void repaintNow() override {
        ++repaints;
        if (view != nullptr)
            paintedRequest = view->BeginPaint().bits;
    }
    void capturePointer() override { captured = true; }
    void releasePointer() override {
        captured = false;
        if (view != nullptr)
            view->PointerCaptureLost();
    }
    void setCursor(CursorShape shape) override { cursor = shape; }
    void fitFrame() override { fitted = content; }
    std::optional<WindowPlacement> placement() const override { return place; }
    void setPlacement(const WindowPlacement& placement) override { place = placement; }
    void setDisplayPalette(const DisplayPalette* palette) override { displayPalette = palette; }
    void startTicking(int milliseconds) override { interval = milliseconds; }
    void stopTicking() override { interval = 0; }
    Point pointerPosition() const override { return pointer; }
    bool shiftHeld() const override { return false; }

    Size client{40, 30};
    Point scroll;
    Size content;
    Size fitted; ///< Content that the frame was last fitted to.
    std::vector<Rect> invalidated;
    int fullRepaints = 0;
    bool captured = false;
    int repaints = 0;
    std::uint32_t paintedRequest = 0; ///< Of the last repaint.
    std::optional<WindowPlacement> place;
    const DisplayPalette* displayPalette = nullptr;
    int interval = 0; ///< In milliseconds; 0 while it does not tick.
    Point pointer;
    CursorShape cursor = CursorShape::Arrow;
    CDyeworksView* view = nullptr;
};

/// A window that keeps what it shows and, like a desktop, paints only what it was asked to.
class PaintingWindow : public FakeViewWindow {
public:
    static constexpr std::uint32_t kOutside = 0xFF808080;

    void scrollTo(Point position) override {
        FakeViewWindow::scrollTo(position);
        invalidateAll();
    }
    void invalidate(const Rect& area) override {
        const Rect inside = intersection(area, {0, 0, client.width, client.height});
        for (std::int32_t y = inside.top; y < inside.bottom; ++y) {
            for (std::int32_t x = inside.left; x < inside.right; ++x)
                stale_[index(x, y)] = true;
        }
    }
    void invalidateAll() override { stale_.assign(pixelCount(), true); }
    void repaintNow() override {
        if (view == nullptr || std::ranges::find(stale_, true) == stale_.end())
            return;
        const ImageSelection::RedrawRequest request = view->BeginPaint();
        const Rect& limit = request.clientArea;
        const auto ordinary = painted(0);
        const auto limited = painted(request.bits | ImageSelection::kRedrawImage);
        for (std::int32_t y = 0; y < client.height; ++y) {
            for (std::int32_t x = 0; x < client.width; ++x) {
                const bool inLimit = request.bits != 0 && x >= limit.left && x < limit.right &&
                                     y >= limit.top && y < limit.bottom;
                if (stale_[index(x, y)])
                    shown[index(x, y)] = (inLimit ? limited : ordinary)[index(x, y)];
            }
        }
        stale_.assign(pixelCount(), false);
    }
    void resize(Size size) {
        client = size;
        shown.assign(pixelCount(), 0);
        invalidateAll();
    }
    /// What a paint of the whole window shows.
    [[nodiscard]] std::vector<std::uint32_t> painted(std::uint32_t request) const {
        return drawn([&](Surface& surface, const Rect& area) {
            view->Paint(surface, area, kOutside, request);
            view->PaintBrush(surface);
            view->PaintTexelCursor(surface);
        });
    }
    /// The window's pixels after `draw`, which is given its logical area.
    template <typename Draw>
    [[nodiscard]] std::vector<std::uint32_t> drawn(Draw draw) const {
        std::vector<std::uint32_t> pixels(pixelCount());
        Surface surface{pixels.data(), client.width, client.height, client.width, scroll.x, scroll.y};
        draw(surface, Rect{scroll.x, scroll.y, scroll.x + client.width, scroll.y + client.height});
        return pixels;
    }

    std::vector<std::uint32_t> shown = std::vector<std::uint32_t>(pixelCount());

private:
    [[nodiscard]] std::size_t pixelCount() const { return index(0, client.height); }
    [[nodiscard]] std::size_t index(std::int32_t x, std::int32_t y) const {
        return static_cast<std::size_t>(y * client.width + x);
    }

    std::vector<bool> stale_ = std::vector<bool>(pixelCount(), true);
};

/// The keys held at a pointer event.
struct Keys {
    bool shift = false;
    bool control = false;
    bool alt = false;
};

/// The fixture's document in a view that draws with value 9.
class ViewFixture : public DocFixture {
protected:
    ViewFixture() {
        window.view = &view;
        view.InitialUpdate();
        host.cell = 9;
    }
    ~ViewFixture() override { window.view = nullptr; }

    static PointerEvent event(Point at, PointerButton button, Keys keys) {
        return {at, keys.shift, keys.control, keys.alt, button};
    }
    void press(Point at, Keys keys = {}) { view.PointerPressed(event(at, PointerButton::Left, keys)); }
    void move(Point at, Keys keys = {}) { view.PointerMoved(event(at, PointerButton::None, keys)); }
    void release(Point at, Keys keys = {}) { view.PointerReleased(event(at, PointerButton::Left, keys)); }

    FakeViewWindow window;
    CDyeworksView view{document, window};
};

} // namespace dyeworks

#pragma once

#include "DocTestHost.h"
#include "paint/CDyeworksView.h"
#include "paint/ViewWindow.h"

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

#include "bench/Baseline.h"
#include "bench/Cases.h"
#include "core/PaletteSet.h"
#include "paint/CDyeworksDoc.h"
#include "paint/CDyeworksView.h"
#include "paint/DrawingOptions.h"
#include "paint/ViewWindow.h"
#include "palette/PaletteBarHost.h"
#include "palette/PaletteBarState.h"
#include "palette/PaletteGrid.h"

#include <benchmark/benchmark.h>

#include <array>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace dyeworks {

namespace {

constexpr std::uint32_t kButtonFace = 0xFFEFEFEF;

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
            view_->Paint(surface, area, kButtonFace, bits);
        benchmark::ClobberMemory();
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
    Size client_;
    std::vector<std::uint32_t> pixels_;
    std::vector<Rect> stale_;
    CDyeworksView* view_ = nullptr;
};

/// An application with palettes and one window, which is active.
class OneViewHost : public ImageHost {
public:
    PaletteSet* paletteSet() override { return &palettes; }
    std::int32_t paletteBarFirstEntry() const override { return 0; }
    std::int32_t paletteBarCell() const override { return 5; }
    void selectPaletteBarCell(std::int32_t /*cell*/) override {}
    void refreshPaletteBar() override {}
    std::optional<std::string> savePaletteAs(const std::string& /*key*/) override { return std::nullopt; }
    void setStatusText(const std::string& /*text*/, int /*pane*/) override {}
    bool isActiveImage(const CDyeworksDoc& /*document*/) const override { return true; }
    CDyeworksView* activeView() const override { return nullptr; }
    ImagePlugIns& imagePlugIns() override { std::abort(); }
    OpenProject* openProject() override { return nullptr; }
    std::optional<NewImage> askNewImage() override { return std::nullopt; }
    std::optional<ImageWork> askImageWork(const ImageWork& /*proposed*/,
                                          const TextureCanvas& /*image*/) override {
        return std::nullopt;
    }
    void AskUseProject() override {}
    const CDyeworksDoc* lastActivatedImage() const override { return nullptr; }
    void setLastActivatedImage(const CDyeworksDoc* /*document*/) override {}

    PaletteSet palettes;
};

/// An image of 8 bits, attached to a palette, in a window.
struct ShownImage {
    ShownImage(std::int32_t side, Size client)
        : window(client)
        , document(host) {
        if (!document.canvas().Create(side, side, 1, 8) ||
            !host.palettes.newPalette(256, ColourType::Rgba, 1))
            std::abort();
        view = std::make_unique<CDyeworksView>(document, window);
        window.show(*view);
        view->InitialUpdate();
        document.Attach();
        for (std::int32_t y = 0; y < side; ++y)
            document.canvas().DrawLine(0, y, side - 1, y, static_cast<std::uint32_t>(y));
        document.canvas().ResetChangedRect();
        window.invalidateAll();
        window.repaintNow();
    }

    OneViewHost host;
    BufferWindow window;
    CDyeworksDoc document;
    std::unique_ptr<CDyeworksView> view;
};

constexpr std::int32_t kLargeSide = 4096;
constexpr Size kLargeWindow{2100, 2100};

PointerEvent pointer(Point at, PointerButton button = PointerButton::None) {
    PointerEvent event;
    event.position = at;
    event.button = button;
    return event;
}

/// Measures a move of the pen with a brush of 16 texels in an image, with the repaint that it brings, against
/// the same in a small image.
void addBrushMove(std::int32_t side) {
    constexpr const char* kSmall = "Brush16-move/64";
    const std::string name = "Brush16-move/" + std::to_string(side);
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
        ShownImage image(side, {64, 64});
        setCurrentTool(Tool::Pen);
        DrawingOptions options;
        options.brush = {Brush::kMaxSize, true};
        setDrawingOptions(options);
        image.view->PointerPressed(pointer({20, 20}, PointerButton::Left));
        bool there = false;
        for (auto _ : state) {
            there = !there;
            image.view->PointerMoved(pointer(there ? Point{40, 32} : Point{20, 20}));
            image.window.repaintNow();
        }
        image.view->CancelDrag();
        setDrawingOptions({});
        state.SetLabel(kSmall);
    })->Unit(benchmark::kMicrosecond);
}

/// Measures each of the `moves` of a drag with the repaint that it brings. `press` begins the drag; `at(n)`
/// is where move number n leads. `pixels`: those of the rectangle that changes with each.
void addDrag(const std::string& name, Tool tool, std::int32_t moves, std::size_t pixels,
             const std::function<void(ShownImage&)>& press, const std::function<Point(std::int32_t)>& at) {
    const std::string base = baseline(Baseline::Memcpy, pixels * sizeof(std::uint32_t));
    benchmark::RegisterBenchmark((name + "/4096").c_str(),
                                 [=](benchmark::State& state) {
                                     ShownImage image(kLargeSide, kLargeWindow);
                                     setCurrentTool(tool);
                                     press(image);
                                     std::int32_t turn = 0;
                                     for (auto _ : state) {
                                         image.view->PointerMoved(pointer(at(turn++)));
                                         image.window.repaintNow();
                                     }
                                     image.view->CancelDrag();
                                     state.SetLabel(base);
                                 })
        ->Unit(benchmark::kMicrosecond)
        ->Iterations(moves);
}

void pressAt(ShownImage& image, Point at) {
    image.view->PointerPressed(pointer(at, PointerButton::Left));
}

/// 0, 1, 2 and on up to `top`, and back the same way.
std::int32_t toAndFro(std::int32_t step, std::int32_t top) {
    const std::int32_t rest = step % (2 * top);
    return rest <= top ? rest : 2 * top - rest;
}

void addDrags() {
    constexpr std::int32_t kStep = 128; // Of a quick stroke, in pixels each way.
    addDrag(
        "Pen-move", Tool::Pen, 1000, std::size_t{kStep} * kStep,
        [](ShownImage& image) {
            pressAt(image, {9, 9});
        },
        [](std::int32_t turn) {
            return Point{9 + kStep * toAndFro(turn + 1, 15), 9 + kStep * toAndFro(turn + 1, 13)};
        });
    constexpr std::int32_t kEllipse = 2000;
    addDrag(
        "Ellipse-move", Tool::Circle, 100, std::size_t{kEllipse} * kEllipse,
        [](ShownImage& image) {
            pressAt(image, {4, 4});
        },
        [](std::int32_t turn) {
            return Point{kEllipse + toAndFro(turn + 1, 9), kEllipse + toAndFro(turn + 1, 7)};
        });
    constexpr std::int32_t kPiece = 1024;
    addDrag(
        "Piece-move", Tool::Select, 100, std::size_t{kPiece} * kPiece,
        [](ShownImage& image) {
            pressAt(image, {8, 8});
            image.view->PointerMoved(pointer({7 + kPiece, 7 + kPiece}));
            image.view->PointerReleased(pointer({7 + kPiece, 7 + kPiece}, PointerButton::Left));
            pressAt(image, {500, 500});
        },
        [](std::int32_t turn) {
            return Point{501 + turn, 500 + turn / 2};
        });
}

/// A grid of cells that only keeps them.
class KeptGrid : public PaletteGrid {
public:
    void setBankMode(bool /*on*/) override {}
    void setSelectable(bool /*on*/) override {}
    void setCellCount(std::int32_t count) override { values_.resize(static_cast<std::size_t>(count)); }
    void setLayout(std::int32_t /*columns*/, std::int32_t /*rows*/) override {}
    std::int32_t cellCount() const override { return static_cast<std::int32_t>(values_.size()); }
    void setValue(std::int32_t cell, std::uint32_t value) override {
        values_.at(static_cast<std::size_t>(cell)) = value;
    }
    std::uint32_t value(std::int32_t cell) const override {
        return values_.at(static_cast<std::size_t>(cell));
    }
    void setColour(std::int32_t /*cell*/, std::uint32_t /*colour*/) override {}
    void setMarker(std::int32_t marker, std::int32_t cell) override {
        markers_.at(static_cast<std::size_t>(marker)) = cell;
    }
    std::int32_t marker(std::int32_t marker) const override {
        return markers_.at(static_cast<std::size_t>(marker));
    }
    std::optional<Cell> selection() const override { return std::nullopt; }
    Selected selectedCells() const override { return {}; }
    bool copy() override { return false; }
    bool hasCopiedCells() const override { return false; }
    bool paste(Cell /*cell*/) override { return false; }
    void redraw() override {}

private:
    std::vector<std::uint32_t> values_;
    std::array<std::int32_t, kLastMarker + 1> markers_{};
};

/// The palette bar of that application.
class BarOf : public PaletteBarHost, private PaletteBarView {
public:
    explicit BarOf(ShownImage& image)
        : image_(image)
        , state_(*this, *this) {
        state_.Start(grid_, strip_);
        state_.RefreshFromPalette();
        state_.SelectCell(5);
    }
    PaletteBarState& state() { return state_; }

    PaletteSet* paletteSet() override { return &image_.host.palettes; }
    std::optional<Image> activeImage() const override { return Image{8, 0}; }
    void setActivePaletteValue(std::int32_t /*firstEntry*/) override {}
    void BroadcastPaletteChange(const std::string& key, const TextureLookupTable& palette) override {
        image_.document.PaletteChanged(key, &palette);
    }
    void RefreshImagePalettes() override { image_.document.RefreshPalette(); }
    void RefreshAllImages() override { image_.document.RefreshOwnPalette(); }
    void showMessage(const std::string& /*text*/) override {}

private:
    void valuesChanged() override {}
    void layoutChanged() override {}
    void tabsChanged() override {}
    std::optional<std::uint16_t> askEntry(ColourType /*type*/, std::uint16_t /*start*/) override {
        return std::nullopt;
    }

    ShownImage& image_;
    KeptGrid grid_;
    KeptGrid strip_;
    PaletteBarState state_;
};

void addPreview() {
    constexpr std::int32_t kSide = 1024;
    constexpr const char* kRepaints = "TwoRepaints/1024";
    benchmark::RegisterBenchmark(kRepaints, [](benchmark::State& state) {
        ShownImage image(kSide, {kSide, kSide});
        for (auto _ : state) {
            for (int i = 0; i < 2; ++i) {
                image.window.invalidateAll();
                image.window.repaintNow();
            }
        }
    })->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("PreviewStep/1024", [=](benchmark::State& state) {
        ShownImage image(kSide, {kSide, kSide});
        BarOf bar(image);
        std::int32_t turn = 0;
        for (auto _ : state) {
            bar.state().editor().SliderMoved(Channel::Red, ++turn % 32);
            image.window.repaintNow();
        }
        state.SetLabel(kRepaints);
    })->Unit(benchmark::kMicrosecond);
}

} // namespace

void registerViewCases() {
    addDrags();
    for (const std::int32_t side : {64, kLargeSide})
        addBrushMove(side);
    addPreview();
}

} // namespace dyeworks

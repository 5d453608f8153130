#include "bench/Baseline.h"
#include "bench/Cases.h"
#include "paint/SurfaceDrawing.h"
#include "paint/TextureCanvas.h"
#include "paint/ViewRenderer.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <string>
#include <utility>
#include <vector>

namespace dyeworks {

namespace {

constexpr std::int32_t kWidth = 1920;
constexpr std::int32_t kHeight = 1080;
constexpr std::size_t kPixels = std::size_t{kWidth} * kHeight;

void fillWithPattern(TextureCanvas& canvas, std::int32_t side, std::uint16_t bits) {
    if (!canvas.Create(side, side, 1, bits))
        std::abort();
    for (std::int32_t i = 0; i < side * side; ++i)
        canvas.SetPixel(i % side, i / side, static_cast<std::uint32_t>(i * 7 + i / side));
}

/// Measures `draw(canvas, surface)`, with a surface of the whole screen, which draws `pixels` of it.
template <typename Draw>
void registerScreenCase(const std::string& name, std::int32_t side, std::uint16_t bits, std::size_t pixels,
                        Draw draw,
                        const std::string& base = baseline(Baseline::Memset,
                                                           kPixels * sizeof(std::uint32_t))) {
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
        TextureCanvas canvas;
        fillWithPattern(canvas, side, bits);
        std::vector<std::uint32_t> buffer(kPixels);
        Surface surface{buffer.data(), kWidth, kHeight, kWidth, 0, 0};
        for (auto _ : state) {
            draw(std::as_const(canvas), surface);
            benchmark::ClobberMemory();
        }
        state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(pixels));
        state.SetLabel(base);
    })->Unit(benchmark::kMicrosecond);
}

void registerDraw(std::int32_t zoom, std::uint16_t bits) {
    registerScreenCase("Draw-zoom" + std::to_string(zoom) + "/" + std::to_string(bits) + "bit/1920x1080",
                       2048, bits, kPixels, [zoom](const TextureCanvas& canvas, Surface& surface) {
                           canvas.Draw(surface, {0, 0, 2048 * zoom, 2048 * zoom}, {0, 0, 2048, 2048});
                       });
}

/// A repaint of `area` of a view that shows the grid.
void registerRepaint(const std::string& what, std::int32_t zoom, std::uint16_t bits, const Rect& area) {
    const std::int64_t pixels = std::int64_t{area.right - area.left} * (area.bottom - area.top);
    registerScreenCase(what + "-zoom" + std::to_string(zoom) + "/" + std::to_string(bits) + "bit/4096", 4096,
                       bits, static_cast<std::size_t>(pixels),
                       [=](const TextureCanvas& canvas, Surface& surface) {
                           ViewLook look;
                           look.zoom = zoom;
                           ViewRenderer(canvas, look).draw(surface, area);
                       });
}

/// A repaint of the screen around the corner where an image of `side` texels meets three of its copies,
/// against that of the image alone.
void registerRepeat(std::int32_t side) {
    registerScreenCase(
        "RepaintRepeated-zoom4/8bit/" + std::to_string(side), side, 8, kPixels,
        [](const TextureCanvas& canvas, Surface& surface) {
            ViewLook look;
            look.zoom = 4;
            look.repeated = true;
            Surface around = surface;
            around.originX = -kWidth / 3;
            around.originY = -kHeight / 3;
            ViewRenderer(canvas, look).draw(around, reachOf(around));
        },
        "Repaint-zoom4/8bit/4096");
}

} // namespace

void registerDrawCases() {
    for (const std::uint16_t bits : {std::uint16_t{4}, std::uint16_t{8}}) {
        for (const std::int32_t zoom : {1, 3, 4, 16})
            registerDraw(zoom, bits);
        for (const std::int32_t zoom : {1, 2, 3, 4, 6, 8, 12, 16})
            registerRepaint("Repaint", zoom, bits, {0, 0, kWidth, kHeight});
        // The area that an edit of one texel invalidates.
        registerRepaint("RepaintTexel", 16, bits, {160, 160, 176, 176});
    }
    // The smaller one fills the screen with its copies.
    for (const std::int32_t side : {160, 4096})
        registerRepeat(side);
}

} // namespace dyeworks

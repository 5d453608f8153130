#include "bench/Baseline.h"
#include "bench/Cases.h"
#include "paint/CanvasDepth.h"
#include "paint/CanvasTransform.h"
#include "paint/TextureCanvas.h"

#include <benchmark/benchmark.h>

#include <functional>
#include <memory>
#include <random>
#include <string>

namespace dyeworks {

namespace {

/// One step of a case; `turn` counts up, so that a step can undo what the one before did.
using Step = std::function<void(TextureCanvas& canvas, std::uint32_t turn)>;

std::unique_ptr<TextureCanvas> blankCanvas(std::int32_t side, std::uint16_t bits) {
    auto canvas = std::make_unique<TextureCanvas>();
    if (!canvas->Create(side, side, 1, bits))
        std::abort();
    return canvas;
}

/// Values 0 to 3 without any order.
std::unique_ptr<TextureCanvas> noisyCanvas(std::int32_t side, std::uint16_t bits) {
    auto canvas = blankCanvas(side, bits);
    std::mt19937 random(1);
    for (std::int32_t y = 0; y < side; ++y) {
        for (std::int32_t x = 0; x < side; ++x)
            canvas->SetPixel(x, y, static_cast<std::uint32_t>(random()) & 3U);
    }
    return canvas;
}

/// Corridors of 0 between walls of 1: from each cell one leads up or left, so that all hang together.
std::unique_ptr<TextureCanvas> maze(std::int32_t side, std::uint16_t bits) {
    auto canvas = blankCanvas(side, bits);
    canvas->FillBox(0, 0, side - 1, side - 1, 1);
    std::mt19937 random(2);
    for (std::int32_t y = 0; y < side; y += 2) {
        for (std::int32_t x = 0; x < side; x += 2) {
            canvas->SetPixel(x, y, 0);
            if (y > 0 && (x == 0 || (random() & 1U) != 0))
                canvas->SetPixel(x, y - 1, 0);
            else if (x > 0)
                canvas->SetPixel(x - 1, y, 0);
        }
    }
    return canvas;
}

/// A checkerboard whose dark squares are joined: 1 where both coordinates are odd, else 0.
std::unique_ptr<TextureCanvas> checkerboard(std::int32_t side, std::uint16_t bits) {
    auto canvas = blankCanvas(side, bits);
    for (std::int32_t y = 1; y < side; y += 2) {
        for (std::int32_t x = 1; x < side; x += 2)
            canvas->SetPixel(x, y, 1);
    }
    return canvas;
}

using Maker = std::unique_ptr<TextureCanvas> (*)(std::int32_t side, std::uint16_t bits);

void add(const std::string& name, std::int32_t side, std::uint16_t bits, Baseline against, Maker make,
         const Step& step) {
    const std::int64_t texels = std::int64_t{side} * side;
    const std::string base = baseline(against, static_cast<std::size_t>(texels * bits / 8));
    const std::string full = name + "/" + std::to_string(bits) + "bit/" + std::to_string(side);
    benchmark::RegisterBenchmark(full.c_str(), [=](benchmark::State& state) {
        const auto canvas = make(side, bits);
        std::uint32_t turn = 0;
        for (auto _ : state) {
            step(*canvas, ++turn);
            benchmark::ClobberMemory();
        }
        state.SetItemsProcessed(state.iterations() * texels);
        state.SetLabel(base);
    })->Unit(benchmark::kMicrosecond);
}

/// A fill that starts from the same picture each time; putting it back is not measured.
void addFill(const std::string& name, std::int32_t side, std::uint16_t bits, Maker make) {
    const std::int64_t texels = std::int64_t{side} * side;
    const std::string base = baseline(Baseline::Memset, static_cast<std::size_t>(texels * bits / 8));
    const std::string full = "FloodFill-" + name + "/" + std::to_string(bits) + "bit/" + std::to_string(side);
    benchmark::RegisterBenchmark(full.c_str(), [=](benchmark::State& state) {
        const auto original = make(side, bits);
        const auto canvas = original->Clone();
        for (auto _ : state) {
            canvas->FloodFill(side / 2, side / 2, 5);
            benchmark::ClobberMemory();
            state.PauseTiming();
            canvas->CopyFrom(*original);
            state.ResumeTiming();
        }
        state.SetItemsProcessed(state.iterations() * texels);
        state.SetLabel(base);
    })->Unit(benchmark::kMicrosecond);
}

void addShapes(std::int32_t side, std::uint16_t bits) {
    const std::int32_t last = side - 1;
    add("DrawLine", side, bits, Baseline::Memset, blankCanvas,
        [=](TextureCanvas& canvas, std::uint32_t turn) { canvas.DrawLine(0, 0, last, last / 2, turn); });
    add("DrawBox", side, bits, Baseline::Memset, blankCanvas,
        [=](TextureCanvas& canvas, std::uint32_t turn) { canvas.DrawBox(0, 0, last, last, turn); });
    add("FillBox", side, bits, Baseline::Memset, blankCanvas,
        [=](TextureCanvas& canvas, std::uint32_t turn) { canvas.FillBox(0, 0, last, last, turn); });
    add("DrawEllipse", side, bits, Baseline::Memset, blankCanvas,
        [=](TextureCanvas& canvas, std::uint32_t turn) { canvas.DrawEllipse(0, 0, last, last, turn); });
    add("FillEllipse", side, bits, Baseline::Memset, blankCanvas,
        [=](TextureCanvas& canvas, std::uint32_t turn) { canvas.FillEllipse(0, 0, last, last, turn); });
    addFill("area", side, bits, blankCanvas);
    addFill("maze", side, bits, maze);
    addFill("checkerboard", side, bits, checkerboard);
    add("ReplaceColor", side, bits, Baseline::Memcpy, noisyCanvas,
        [=](TextureCanvas& canvas, std::uint32_t turn) {
            canvas.SetPixel(0, 0, turn % 2 != 0 ? 2 : 7);
            canvas.ReplaceColor({0, 0, last, last}, 0, 0, turn % 2 != 0 ? 7 : 2);
        });
    const struct {
        const char* name;
        std::uint32_t flags;
    } flips[] = {{"Flip-horizontal", 1}, {"Flip-vertical", 2}, {"Flip-both", 3}};
    for (const auto& [name, flags] : flips) {
        add(name, side, bits, Baseline::Memcpy, noisyCanvas,
            [last, flags = flags](TextureCanvas& canvas, std::uint32_t) {
                canvas.Flip(0, 0, last, last, flags);
            });
    }
}

void addCopies(std::int32_t side, std::uint16_t bits) {
    const std::int32_t last = side - 1;
    const std::shared_ptr<TextureCanvas> other = noisyCanvas(side, bits);
    add("CopyTo", side, bits, Baseline::Memcpy, blankCanvas,
        [other](TextureCanvas& canvas, std::uint32_t) { other->CopyTo(canvas, 0, 0); });
    add("CopyTo-shifted", side, bits, Baseline::Memcpy, blankCanvas,
        [other](TextureCanvas& canvas, std::uint32_t) { other->CopyTo(canvas, 1, 1); });
    add("CopyRect", side, bits, Baseline::MemcpyFresh, noisyCanvas,
        [=](TextureCanvas& canvas, std::uint32_t) {
            benchmark::DoNotOptimize(canvas.CopyRect(0, 0, last, last));
        });
    add("Clone", side, bits, Baseline::MemcpyFresh, noisyCanvas,
        [](TextureCanvas& canvas, std::uint32_t) { benchmark::DoNotOptimize(canvas.Clone()); });
    add("CopyFrom", side, bits, Baseline::Memcpy, blankCanvas,
        [other](TextureCanvas& canvas, std::uint32_t) { canvas.CopyFrom(*other); });
    const std::shared_ptr<TextureCanvas> quarter = noisyCanvas(side / 4, bits);
    add("StretchPaste-x4", side, bits, Baseline::Memcpy, blankCanvas,
        [=](TextureCanvas& canvas, std::uint32_t) { canvas.StretchPaste(*quarter, 0, 0, side, side); });
    add("ToImage", side, bits, Baseline::MemcpyFresh, noisyCanvas,
        [](TextureCanvas& canvas, std::uint32_t) { benchmark::DoNotOptimize(canvas.ToImage()); });
    const std::shared_ptr<TmfImage> image = other->ToImage();
    add("FromImage", side, bits, Baseline::Memcpy, blankCanvas,
        [image](TextureCanvas& canvas, std::uint32_t) { canvas.FromImage(*image); });
    add("ApplyPalette", side, bits, Baseline::Memset, blankCanvas, [](TextureCanvas& canvas, std::uint32_t) {
        static const TextureLookupTable palette = [] {
            TlutData table;
            static_cast<void>(table.create(256, ColourType::Rgba));
            return TextureLookupTable(table);
        }();
        canvas.ApplyPalette(palette, 0);
    });
}

/// What makes another canvas of the whole.
void addTransforms(std::int32_t side, std::uint16_t bits) {
    const auto addMaker = [=](const char* name, auto make) {
        add(name, side, bits, Baseline::MemcpyFresh, noisyCanvas,
            [make](TextureCanvas& canvas, std::uint32_t) { benchmark::DoNotOptimize(make(canvas)); });
    };
    const Size whole{side, side};
    addMaker("Turn-right", [](const TextureCanvas& canvas) { return turned(canvas, Turn::Right); });
    addMaker("Turn-left", [](const TextureCanvas& canvas) { return turned(canvas, Turn::Left); });
    addMaker("Shift", [](const TextureCanvas& canvas) { return shifted(canvas, {101, 51}); });
    addMaker("Resize", [=](const TextureCanvas& canvas) { return resized(canvas, whole, {8, 8}, 3); });
    addMaker("Crop", [=](const TextureCanvas& canvas) {
        return resized(canvas, {side - 16, side - 16}, {-8, -8}, 0);
    });
    addMaker("Scale-half", [=](const TextureCanvas& canvas) { return scaled(canvas, {side / 2, side / 2}); });
    if (bits == 8) {
        addMaker("To-4-bits", [](const TextureCanvas& canvas) {
            return inFourBits(canvas, IndexMap{1, 2, 3, 0}, 0);
        });
    } else {
        addMaker("To-8-bits", [](const TextureCanvas& canvas) { return inEightBits(canvas, 3); });
    }
}

} // namespace

void registerCanvasCases() {
    for (const std::int32_t side : {256, 4096}) {
        for (const std::uint16_t bits : {std::uint16_t{4}, std::uint16_t{8}}) {
            addShapes(side, bits);
            addCopies(side, bits);
            addTransforms(side, bits);
        }
    }
}

} // namespace dyeworks

#include "bench/Baseline.h"
#include "bench/Cases.h"
#include "paint/TextureCanvas.h"

#include <benchmark/benchmark.h>

#include <string>
#include <vector>

namespace dyeworks {

void registerDrawCases() {
    constexpr std::int32_t kWidth = 1920;
    constexpr std::int32_t kHeight = 1080;
    constexpr std::size_t kPixels = std::size_t{kWidth} * kHeight;
    const std::string base = baseline(Baseline::Memset, kPixels * sizeof(std::uint32_t));
    for (const std::uint16_t bits : {std::uint16_t{4}, std::uint16_t{8}}) {
        for (const std::int32_t zoom : {1, 3, 4, 16}) {
            const std::string name =
                "Draw-zoom" + std::to_string(zoom) + "/" + std::to_string(bits) + "bit/1920x1080";
            benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
                TextureCanvas canvas;
                if (!canvas.Create(2048, 2048, 1, bits))
                    std::abort();
                for (std::int32_t i = 0; i < 2048 * 2048; ++i)
                    canvas.SetPixel(i % 2048, i / 2048, static_cast<std::uint32_t>(i * 7 + i / 2048));
                std::vector<std::uint32_t> pixels(kPixels);
                Surface surface{pixels.data(), kWidth, kHeight, kWidth, 0, 0};
                for (auto _ : state) {
                    canvas.Draw(surface, {0, 0, 2048 * zoom, 2048 * zoom}, {0, 0, 2048, 2048});
                    benchmark::ClobberMemory();
                }
                state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(kPixels));
                state.SetLabel(base);
            })->Unit(benchmark::kMicrosecond);
        }
    }
}

} // namespace dyeworks

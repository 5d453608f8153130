#include "bench/Baseline.h"
#include "bench/Cases.h"
#include "paint/TextureCanvas.h"
#include "project/RuleCheck.h"

#include <benchmark/benchmark.h>

#include <random>
#include <string>

namespace dyeworks {

namespace {

constexpr std::int32_t kSide = 4096;

/// All rules about texels, none of which finds anything.
void ruleCheck(benchmark::State& state, std::uint16_t bits) {
    TextureCanvas canvas;
    canvas.Create(kSide, kSide, 1, bits);
    std::mt19937 random(1);
    for (std::uint8_t& byte : canvas.pixelRows())
        byte = static_cast<std::uint8_t>(random()) & 0x77;
    TlutData palette;
    // One entry less than there are values, so that each texel has to be looked at.
    if (!palette.create((1 << bits) - 1, ColourType::Rgba))
        state.SkipWithError("no memory");
    TextureRules rules;
    rules.blockColours = {256, 8};
    rules.indexesInPalette = true;
    for (auto _ : state) {
        if (!checkRules(rules, canvas, &palette, 0))
            state.SkipWithError("stopped");
    }
}

} // namespace

void registerRuleCases() {
    for (const std::uint16_t bits : {std::uint16_t{4}, std::uint16_t{8}}) {
        const std::string base = baseline(Baseline::Memcpy, std::size_t{kSide} * kSide * bits / 8);
        benchmark::RegisterBenchmark(("RuleCheck/" + std::to_string(bits) + "bit/4096").c_str(),
                                     [=](benchmark::State& state) {
                                         ruleCheck(state, bits);
                                         state.SetLabel(base);
                                     })
            ->Unit(benchmark::kMicrosecond);
    }
}

} // namespace dyeworks

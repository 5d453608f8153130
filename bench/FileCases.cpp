#include "bench/Baseline.h"
#include "bench/Cases.h"
#include "core/TlutData.h"
#include "core/TmfImage.h"
#include "paint/TextureCanvas.h"

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

namespace dyeworks {

namespace {

constexpr std::int32_t kSide = 4096;

void add(const std::string& name, Baseline against, std::size_t bytes, const std::function<bool()>& prepare,
         const std::function<bool()>& step) {
    const std::string base = baseline(against, bytes);
    benchmark::RegisterBenchmark(name.c_str(),
                                 [=](benchmark::State& state) {
                                     if (!prepare())
                                         state.SkipWithError("could not be prepared");
                                     for (auto _ : state) {
                                         if (!step())
                                             state.SkipWithError("failed");
                                     }
                                     state.SetLabel(base);
                                 })
        ->UseRealTime()
        ->Unit(benchmark::kMicrosecond);
}

TextureCanvas& canvasOf(std::uint16_t bits) {
    static TextureCanvas canvas;
    if (canvas.bitsPerPixel() != bits && canvas.Create(kSide, kSide, 1, bits))
        canvas.DrawEllipse(0, 0, kSide - 1, kSide - 1, 3);
    return canvas;
}

void addImageFiles(std::uint16_t bits) {
    const std::string depth = "/" + std::to_string(bits) + "bit/" + std::to_string(kSide);
    const std::string path = "c:\\bench.tmf";
    const std::size_t bytes = std::size_t{kSide} * kSide * bits / 8 + 64;
    const auto save = [=] { return canvasOf(bits).SaveTmf(path); };
    add(
        "saveTmf" + depth, Baseline::Write, bytes,
        [=] {
            static_cast<void>(canvasOf(bits));
            return true;
        },
        [=] {
            const static std::unique_ptr<TmfImage> images[] = {canvasOf(4).ToImage(), canvasOf(8).ToImage()};
            return images[bits / 8]->saveTmf(path);
        });
    add("readTmf" + depth, Baseline::Read, bytes, save, [=] {
        TmfImage image;
        return image.readTmf(path);
    });
    add("SaveTmf-canvas" + depth, Baseline::Write, bytes, save, save);
    add("LoadTmf-canvas" + depth, Baseline::Read, bytes, save, [=] {
        TextureCanvas canvas;
        return canvas.LoadTmf(path);
    });
    add("SaveBmp-canvas" + depth, Baseline::Write, bytes, save,
        [=] { return canvasOf(bits).SaveBmp("c:\\bench.bmp"); });
    add(
        "LoadBmp-canvas" + depth, Baseline::Read, bytes,
        [=] { return canvasOf(bits).SaveBmp("c:\\bench.bmp"); },
        [=] {
            TextureCanvas canvas;
            return canvas.LoadBmp("c:\\bench.bmp");
        });
}

} // namespace

void registerFileCases() {
    addImageFiles(4);
    addImageFiles(8);
    constexpr std::size_t kTlfBytes = 576;
    const auto save = [] {
        TlutData table;
        return table.create(256, ColourType::Rgba) && table.saveTlf("c:\\bench.tlf");
    };
    add("readTlf/256", Baseline::Read, kTlfBytes, save, [] {
        TlutData table;
        return table.readTlf("c:\\bench.tlf");
    });
    add("saveTlf/256", Baseline::Replace, kTlfBytes, save, save);
}

} // namespace dyeworks

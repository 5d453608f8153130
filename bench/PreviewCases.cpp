#include "bench/Baseline.h"
#include "bench/Cases.h"
#include "common/Records.h"
#include "viewer/ViewerView.h"
#include "viewer/ViewerWindow.h"

#include <QApplication>
#include <benchmark/benchmark.h>

#include <cstdlib>

namespace dyeworks {

namespace {

constexpr std::int32_t kSide = 1024;
/// The texels that change are all in sight.
constexpr std::int32_t kVisible = 256;

/// A texel of the image changes in each turn, or an entry of its palette.
enum class Change { Texel, Entry };

void showChanges(benchmark::State& state, Change change, bool painted) {
    const plugins::ImageRecord image(DW_newImage(kSide, kSide, 8));
    const plugins::PaletteRecord palette(DW_newPalette(DW_COLOUR_RGBA, 256));
    plugins::ViewerWindow window(1);
    const PlugInPicture picture{image.get(), palette.get(), 0, 0};
    std::int32_t turn = 0;
    for (auto _ : state) {
        turn = (turn + 1) % kVisible;
        if (change == Change::Texel)
            DW_setTexel(image.get(), turn, turn,
                        static_cast<std::uint8_t>(DW_getTexel(image.get(), turn, turn) + 1));
        else
            ++palette->entries[0];
        if (!window.showPicture(picture))
            std::abort();
        if (painted)
            QApplication::processEvents();
    }
}

void add(const char* name, Change change, bool painted) {
    const std::string label = baseline(Baseline::Memcpy, std::size_t{kSide} * kSide);
    benchmark::RegisterBenchmark(name, [=](benchmark::State& state) {
        showChanges(state, change, painted);
        state.SetLabel(label);
    });
}

} // namespace

void registerPreviewCases() {
    add("PreviewCallTexel", Change::Texel, false);
    add("PreviewCallPalette", Change::Entry, false);
    add("PreviewPaintedTexel", Change::Texel, true);
    add("PreviewPaintedPalette", Change::Entry, true);
}

} // namespace dyeworks

#include "bench/BareHost.h"
#include "bench/Cases.h"
#include "core/PaletteSet.h"
#include "paint/CDyeworksDoc.h"
#include "paint/TexelCounts.h"
#include "paint/TouchedTiles.h"
#include "ui/BanksBar.h"
#include "ui/ImageVariants.h"
#include "ui/ThumbnailSheet.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>

#include <ctime>
#include <functional>
#include <string>
#include <vector>

namespace dyeworks {

namespace {

constexpr std::int32_t kSide = 4096;
constexpr std::int32_t kMoves = 512;
constexpr std::int32_t kStep = kSide / kMoves;

/// Processor time of this thread in seconds: other programs do not count.
double processorTime() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + 1e-9 * static_cast<double>(now.tv_nsec);
}

/// A stroke from corner to corner. `moved` is told of the texels of each move before they are shown.
void strokeAcross(CDyeworksDoc& document, std::uint32_t value,
                  const std::function<void(const Rect& texels)>& moved) {
    ImageEdit* const edit = document.BeginEdit(nullptr);
    if (edit == nullptr)
        std::abort();
    for (std::int32_t n = 0; n < kMoves; ++n) {
        edit->canvas().DrawLine(n * kStep, n * kStep, n * kStep + kStep - 1, n * kStep + kStep - 1, value);
        moved(*edit->canvas().changedRect());
        document.ShowEdit();
    }
    document.CommitEdit();
}

/// What the document does for the counts is done once more beside it and measured alone: a difference between
/// strokes with and without it would be lost in how much strokes differ.
void usageOfStroke(benchmark::State& state, std::uint16_t bits) {
    BareHost host;
    CDyeworksDoc document(host);
    if (!document.canvas().Create(kSide, kSide, 1, bits))
        state.SkipWithError("no memory");
    strokeAcross(document, 1, [](const Rect&) {});
    benchmark::DoNotOptimize(document.texelCounts());
    std::uint32_t turn = 1;
    double whole = 0;
    double counting = 0;
    for (auto _ : state) {
        const auto before = document.canvas().Clone();
        TexelCounts counts;
        counts.count(*before);
        std::vector<Rect> moves;
        const double start = processorTime();
        strokeAcross(document, ++turn, [&](const Rect& texels) { moves.push_back(texels); });
        const double took = processorTime() - start;
        whole += took;
        state.SetIterationTime(took);

        const double again = processorTime();
        TouchedTiles tiles({kSide, kSide});
        for (const Rect& texels : moves)
            tiles.add(texels);
        counts.change(*before, document.canvas(), {0, 0, kSide - 1, kSide - 1}, tiles);
        counting += processorTime() - again;
        if (counts.values() != document.texelCounts())
            state.SkipWithError("another count");
        document.ClearUndo();
    }
    state.counters["share-percent"] = 100 * counting / whole;
}

/// One image of 4 bits with a palette of 256 entries, attached.
class PaletteHost : public BareHost, public BanksBarHost {
public:
    PaletteHost() {
        static_cast<void>(set_.newPalette(256, ColourType::Rgba, 1));
        static_cast<void>(document_.canvas().Create(256, 256, 1, 4));
        document_.setAttachedName(set_.currentKey);
    }
    PaletteSet* paletteSet() override { return &set_; }
    void imageChanged(const CDyeworksDoc& image, const std::optional<Rect>& texels) override {
        if (bar != nullptr)
            bar->imageChanged(image, texels);
    }
    CDyeworksDoc* activeImage() const override { return &document_; }
    const PaletteSet& openPalettes() const override { return set_; }
    void chooseBank(std::int32_t /*number*/) override {}
    void attachActiveTo(const std::string& /*key*/) override {}

    BanksBar* bar = nullptr;

private:
    PaletteSet set_;
    mutable CDyeworksDoc document_{*this};
};

void settle() {
    for (int i = 0; i < 3; ++i)
        QCoreApplication::processEvents();
}

void banksMove(benchmark::State& state) {
    PaletteHost host;
    CDyeworksDoc& document = *host.activeImage();
    BanksBar bar(host);
    host.bar = &bar;
    bar.resize(bar.sizeHint());
    bar.show();
    settle();
    ImageEdit* const edit = document.BeginEdit(nullptr);
    std::int32_t turn = 0;
    for (auto _ : state) {
        const std::int32_t at = ++turn * 7 % 240;
        edit->canvas().DrawLine(at, 240 - at, at + 12, 250 - at, static_cast<std::uint32_t>(turn) % 16);
        document.ShowEdit();
        bar.refresh();
        QCoreApplication::processEvents();
    }
    document.DropEdit();
    host.bar = nullptr;
}

void banksOneThumbnail(benchmark::State& state) {
    PaletteHost host;
    CDyeworksDoc& document = *host.activeImage();
    BanksBar bar(host);
    ThumbnailSheet sheet(1);
    sheet.resize(bar.sizeHint() / 4);
    const std::vector<ImageVariant> all = bankVariants(document, {host.openPalettes(), {}, nullptr});
    sheet.showAll(document.canvas(), {all.front()});
    sheet.show();
    settle();
    for (auto _ : state) {
        sheet.showAll(document.canvas(), {all.front()});
        QCoreApplication::processEvents();
    }
}

} // namespace

void registerPaletteUseCases() {
    for (const std::uint16_t bits : {std::uint16_t{4}, std::uint16_t{8}})
        benchmark::RegisterBenchmark(("UsageOfStroke/" + std::to_string(bits) + "bit/4096").c_str(),
                                     [bits](benchmark::State& state) { usageOfStroke(state, bits); })
            ->UseManualTime()
            ->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("Banks-move/256", banksMove)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("Banks-one-thumbnail/256", banksOneThumbnail)->Unit(benchmark::kMicrosecond);
}

} // namespace dyeworks

#include "bench/BareHost.h"
#include "bench/Baseline.h"
#include "bench/Cases.h"
#include "core/PaletteSet.h"
#include "paint/CDyeworksDoc.h"
#include "platform/StringId.h"
#include "ui/ImagesOfPalette.h"

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <functional>
#include <malloc.h>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <vector>

namespace dyeworks {

namespace {

constexpr std::int32_t kSide = 4096;
constexpr std::size_t kTexels = std::size_t{kSide} * kSide;
constexpr Rect kWhole{0, 0, kSide - 1, kSide - 1};

/// Bytes that the program holds on the heap.
std::size_t heldBytes() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void pixel(CDyeworksDoc& document, std::int32_t x, std::int32_t y, std::uint32_t value) {
    document.Edit(nullptr, [=](TextureCanvas& canvas) { canvas.PutPixel(x, y, value); });
}

void fill(CDyeworksDoc& document, std::uint32_t value) {
    document.Edit(nullptr, [=](TextureCanvas& canvas) {
        canvas.FillBox(kWhole.left, kWhole.top, kWhole.right, kWhole.bottom, value);
    });
}

using Step = std::function<void(CDyeworksDoc& document, std::uint32_t turn)>;

/// Measures steps on an image that has been edited all over once and holds values without any order.
void add(const std::string& name, std::uint16_t bits, Baseline against, std::size_t bytes, const Step& step) {
    const std::string base = baseline(against, bytes);
    const std::string full = name + "/" + std::to_string(bits) + "bit/" + std::to_string(kSide);
    benchmark::RegisterBenchmark(full.c_str(), [=](benchmark::State& state) {
        BareHost host;
        CDyeworksDoc document(host);
        if (!document.canvas().Create(kSide, kSide, 1, bits))
            state.SkipWithError("no memory");
        fill(document, 3);
        pixel(document, 0, 0, 1);
        document.ClearUndo();
        std::uint32_t turn = 0;
        for (auto _ : state) {
            step(document, ++turn);
            benchmark::ClobberMemory();
        }
        state.SetLabel(base);
    })->Unit(benchmark::kMicrosecond);
}

void stroke(CDyeworksDoc& document, std::int32_t x, std::int32_t y, std::uint32_t value) {
    ImageEdit* const edit = document.BeginEdit(nullptr);
    if (edit == nullptr)
        std::abort();
    for (std::int32_t n = 0; n < 32; ++n) {
        edit->canvas().DrawLine(x + n, y, x + 31 - n, y + 31, value);
        document.ShowEdit();
    }
    document.CommitEdit();
}

void addHundredStrokes(std::uint16_t bits) {
    const std::string name =
        "HundredStrokes-of-32x32/" + std::to_string(bits) + "bit/" + std::to_string(kSide);
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
        BareHost host;
        CDyeworksDoc document(host);
        if (!document.canvas().Create(kSide, kSide, 1, bits))
            state.SkipWithError("no memory");
        pixel(document, 0, 0, 1); // the snapshot is there from now on
        document.ClearUndo();
        std::uint32_t turn = 0;
        std::size_t before = 0;
        std::size_t after = 0;
        for (auto _ : state) {
            before = heldBytes();
            ++turn;
            for (std::int32_t n = 0; n < 100; ++n)
                stroke(document, n * 40, n * 37, turn);
            after = heldBytes();
            document.ClearUndo();
        }
        state.counters["undo-bytes"] = static_cast<double>(after - before);
    })->Unit(benchmark::kMicrosecond);
}

/// With the palettes that documents are attached to.
class HostOfPalettes : public BareHost {
public:
    PaletteSet* paletteSet() override { return &palettes; }
    PaletteSet palettes;
};

/// A palette is sorted, turn by turn the other way round, with four attached images of 1024x1024 texels;
/// those of 4 bits show a bank each.
void addSort(std::uint16_t bits) {
    constexpr std::int32_t kImageSide = 1024;
    const std::size_t bytes = std::size_t{4} * kImageSide * kImageSide * bits / 8;
    const std::string base = baseline(Baseline::Memcpy, bytes);
    const std::string name = "Sort-with-four-images/" + std::to_string(bits) + "bit/1024";
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State& state) {
        HostOfPalettes host;
        host.palettes.newPalette(256, ColourType::Rgba, 1);
        TextureLookupTable& palette = *host.palettes.lookup("");
        std::mt19937 random(1);
        for (std::int32_t i = 0; i < 256; ++i)
            palette.setEntry(i, static_cast<std::uint16_t>(random()));
        std::vector<std::unique_ptr<CDyeworksDoc>> documents;
        std::vector<CDyeworksDoc*> images;
        for (int n = 0; n < 4; ++n) {
            CDyeworksDoc& image = *documents.emplace_back(std::make_unique<CDyeworksDoc>(host));
            if (!image.canvas().Create(kImageSide, kImageSide, 1, bits))
                state.SkipWithError("no memory");
            for (std::uint8_t& texel : image.canvas().pixelRows())
                texel = static_cast<std::uint8_t>(random());
            image.setAttachedName(host.palettes.currentKey);
            image.setPaletteValue(bits == 4 ? 16 * n : 0);
            images.push_back(&image);
        }
        EntryOrder order;
        order.range = {0, 255};
        order.insideBanks = bits == 4;
        for (auto _ : state) {
            order.reversed = !order.reversed;
            const auto map = mapOf(order, palette.table, {});
            if (!map || !ImagesOfPalette(palette, images, nullptr).rearrange(*map, StringId::StepSortEntries))
                state.SkipWithError("not sorted");
            benchmark::ClobberMemory();
        }
        state.SetLabel(base);
    })->Unit(benchmark::kMicrosecond);
}

} // namespace

void registerDocumentCases() {
    for (const std::uint16_t bits : {std::uint16_t{4}, std::uint16_t{8}}) {
        addSort(bits);
        const std::size_t bytes = kTexels * bits / 8;
        add("Edit-texel", bits, Baseline::Memcpy, bytes, [](CDyeworksDoc& document, std::uint32_t turn) {
            // Another value in each round along the row.
            pixel(document, static_cast<std::int32_t>(turn * 97 % kSide), 5, turn + turn / kSide);
        });
        add("Undo-redo-texel", bits, Baseline::Memcpy, bytes, [](CDyeworksDoc& document, std::uint32_t turn) {
            if (turn == 1)
                pixel(document, 9, 9, 2);
            document.Undo();
            document.Redo();
        });
        // The history is emptied each time, as the baseline frees what it has copied into.
        add("RecordStep-whole", bits, Baseline::MemcpyFresh, 2 * bytes,
            [](CDyeworksDoc& document, std::uint32_t turn) {
                document.Edit(nullptr, [=](TextureCanvas& canvas) {
                    canvas.SetPixel(0, 0, turn);
                    canvas.SetPixel(kSide - 1, kSide - 1, turn);
                });
                document.ClearUndo();
            });
        add("Edit-whole", bits, Baseline::MemcpyFresh, 2 * bytes,
            [](CDyeworksDoc& document, std::uint32_t turn) {
                fill(document, turn);
                document.ClearUndo();
            });
        addHundredStrokes(bits);
    }
}

} // namespace dyeworks

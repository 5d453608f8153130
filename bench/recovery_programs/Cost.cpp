// What it costs an edit that unsaved work is kept: strokes of a pen on a large image, each step of them
// painted in a window of 1600x1000 at zoom 1, with the keeper and without it in turns, at ten strokes a
// second of a clock that is handed to it. Prints the figures.

#include "bench/BareHost.h"
#include "bench/BufferWindow.h"
#include "core/PaletteSet.h"
#include "paint/CDyeworksDoc.h"
#include "platform/fake/FakePlatform.h"
#include "platform/posix/PosixStateFolder.h"
#include "recovery/RecoveryKeeper.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <malloc.h>
#include <memory>
#include <optional>
#include <random>
#include <string>
#include <thread>
#include <vector>

namespace dyeworks {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr std::int32_t kSide = 4096;
constexpr int kStrokes = 1000;
constexpr int kRuns = 9;   // Of each.
constexpr int kLines = 40; // Of a stroke.
constexpr int kStrokesToALook = 5;

std::size_t heldBytes() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

double seconds(Clock::duration duration) {
    return std::chrono::duration<double>(duration).count();
}

class Host : public BareHost {
public:
    void imageChanged(const CDyeworksDoc& image, const std::optional<Rect>& texels) override {
        if (keeper != nullptr)
            keeper->imageChanged(image, texels);
    }
    PaletteSet* paletteSet() override { return &palettes; }

    PaletteSet palettes;
    RecoveryKeeper* keeper = nullptr;
};

/// The clock that the keeper is given runs faster than the disk, on which no stroke is to wait here.
class QuietFolder : public PosixStateFolder {
public:
    using PosixStateFolder::PosixStateFolder;

    std::optional<FileError> write(const std::string& name, FilePieces pieces) override {
        writes_ = true;
        auto error = PosixStateFolder::write(name, pieces);
        writes_ = false;
        return error;
    }
    void waitUntilQuiet() const {
        do {
            std::this_thread::sleep_for(milliseconds(2));
        } while (writes_);
    }

private:
    std::atomic<bool> writes_ = false;
};

struct Cost {
    double median = 0;     ///< Of the strokes, in seconds.
    double edits = 0;      ///< All strokes.
    double looks = 0;      ///< All looks of the keeper.
    double slowest = 0;    ///< Look.
    std::size_t bytes = 0; ///< That the keeper holds in the end.
};

/// The pen goes from texel to texel, and each step is shown.
void draw(CDyeworksDoc& image, CDyeworksView& view, BufferWindow& window, std::minstd_rand& random) {
    ImageEdit* const edit = image.BeginEdit(&view);
    if (edit == nullptr)
        std::abort();
    const auto any = [&random](std::int32_t below) {
        return static_cast<std::int32_t>(random() % static_cast<unsigned>(below));
    };
    std::int32_t x = any(700);
    std::int32_t y = any(700);
    for (int i = 0; i < kLines; ++i) {
        const std::int32_t nextX = x + any(6);
        const std::int32_t nextY = y + any(6);
        edit->canvas().DrawLine(x, y, nextX, nextY, 5);
        image.ShowEdit();
        window.repaintNow();
        x = nextX;
        y = nextY;
    }
    image.CommitEdit();
    window.repaintNow();
}

Cost run(FakePlatform& fake, bool keeps) {
    Host host;
    CDyeworksDoc image(host);
    if (!image.canvas().Create(kSide, kSide, 1, 8) || !host.palettes.newPalette(256, ColourType::Rgba, 1))
        std::abort();
    image.Attach();
    BufferWindow window({1600, 1000});
    CDyeworksView view(image, window);
    window.show(view);
    view.InitialUpdate();
    QuietFolder folder(fake.files.hostFolder() + "/runs");
    std::optional<RecoveryKeeper> keeper;
    if (keeps) {
        keeper.emplace(folder, RecoveryKeeper::Open{[&] { return std::vector<CDocument*>{&image}; },
                                                    [] { return nullptr; }});
        host.keeper = &*keeper;
    }
    std::minstd_rand random(1);
    draw(image, view, window, random);
    Cost cost;
    std::vector<double> strokes;
    strokes.reserve(kStrokes);
    Clock::time_point now{};
    const std::size_t before = heldBytes();
    for (int stroke = 1; stroke <= kStrokes; ++stroke) {
        const auto start = Clock::now();
        draw(image, view, window, random);
        strokes.push_back(seconds(Clock::now() - start));
        cost.edits += strokes.back();
        now += milliseconds(100);
        if (stroke % kStrokesToALook != 0)
            continue;
        for (bool more = keeps; more;) {
            const auto look = Clock::now();
            more = keeper->look(now);
            const double took = seconds(Clock::now() - look);
            cost.looks += took;
            cost.slowest = std::max(cost.slowest, took);
        }
        folder.waitUntilQuiet();
    }
    std::ranges::nth_element(strokes, strokes.begin() + kStrokes / 2);
    cost.median = strokes[kStrokes / 2];
    cost.bytes = heldBytes() - before;
    if (keeper)
        keeper->discard();
    return cost;
}

void measure() {
    FakePlatform fake;
    Cost with;
    Cost without;
    for (int i = 0; i < kRuns; ++i) {
        for (const bool keeps : {false, true}) {
            const Cost cost = run(fake, keeps);
            Cost& best = keeps ? with : without;
            // What else the machine does only ever adds.
            best.median = i == 0 ? cost.median : std::min(best.median, cost.median);
            best.edits = i == 0 ? cost.edits : std::min(best.edits, cost.edits);
            best.looks = i == 0 ? cost.looks : std::min(best.looks, cost.looks);
            best.slowest = i == 0 ? cost.slowest : std::min(best.slowest, cost.slowest);
            best.bytes = cost.bytes;
        }
    }
    std::printf(
        "%d strokes, fastest of %d runs each: median without %.1f us, with %.1f us (ratio %.3f); all without "
        "%.1f ms, with %.1f ms (ratio %.3f)\n"
        "looks %.1f ms within the %d s of the strokes, the slowest %.2f ms; %.1f MB more held for an image "
        "of %.1f MB\n",
        kStrokes, kRuns, 1e6 * without.median, 1e6 * with.median, with.median / without.median,
        1e3 * without.edits, 1e3 * with.edits, with.edits / without.edits, 1e3 * with.looks, kStrokes / 10,
        1e3 * with.slowest, (static_cast<double>(with.bytes) - static_cast<double>(without.bytes)) / 1e6,
        static_cast<double>(kSide) * kSide / 1e6);
}

} // namespace
} // namespace dyeworks

int main() {
    dyeworks::measure();
    return 0;
}

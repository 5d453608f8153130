#include "paint/TextureCanvas.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <gd.h>
#include <leptonica/allheaders.h>
#include <limits>
#include <memory>
#include <random>
#include <vector>

// The canvas beside two libraries that draw on indexed pictures: the same work, in turn, the fastest of
// several rounds each. Prints a table of times and ratios.

namespace dyeworks {
namespace {

constexpr std::int32_t kSide = 4096;
constexpr int kRounds = 15;

using Work = std::function<void()>;

/// The time of the fastest round of each, in milliseconds. What is prepared does not count.
struct Pair {
    double ours = std::numeric_limits<double>::max();
    double theirs = std::numeric_limits<double>::max();
};

double timed(const Work& prepare, const Work& work) {
    prepare();
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

void compare(const char* what, double limit, const Work& prepareOurs, const Work& ours,
             const Work& prepareTheirs, const Work& theirs) {
    Pair best;
    for (int round = 0; round < kRounds; ++round) {
        best.ours = std::min(best.ours, timed(prepareOurs, ours));
        best.theirs = std::min(best.theirs, timed(prepareTheirs, theirs));
    }
    std::printf("%-28s %9.3f %9.3f %7.2f   (limit %.1f)\n", what, best.ours, best.theirs,
                best.ours / best.theirs, limit);
}

const Work kNothing = [] {};

struct Line {
    int x1, y1, x2, y2;
};

std::vector<Line> longLines() {
    std::mt19937 random(1);
    std::vector<Line> lines;
    const auto side = [&] { return static_cast<int>(random() % kSide); };
    while (lines.size() < 1000) {
        const Line line{side(), side(), side(), side()};
        if (std::max(std::abs(line.x2 - line.x1), std::abs(line.y2 - line.y1)) >= kSide / 2)
            lines.push_back(line);
    }
    return lines;
}

void compareLines(std::uint16_t bits) {
    const std::vector<Line> lines = longLines();
    TextureCanvas canvas;
    canvas.Create(kSide, kSide, 1, bits);
    const std::unique_ptr<gdImage, void (*)(gdImagePtr)> image(gdImageCreate(kSide, kSide), gdImageDestroy);
    for (int i = 0; i < 16; ++i)
        gdImageColorAllocate(image.get(), i, i, i);
    compare(
        bits == 8 ? "1000 lines, 8 bits / GD" : "1000 lines, 4 bits / GD", 0.8, kNothing,
        [&] {
            for (const Line& line : lines)
                canvas.DrawLine(line.x1, line.y1, line.x2, line.y2, 5);
        },
        kNothing,
        [&] {
            for (const Line& line : lines)
                gdImageLine(image.get(), line.x1, line.y1, line.x2, line.y2, 5);
        });
}

using LeptonicaPicture = std::unique_ptr<Pix, void (*)(Pix*)>;

LeptonicaPicture leptonicaPicture(int depth) {
    return {pixCreate(kSide, kSide, depth), [](Pix* pix) { pixDestroy(&pix); }};
}

void compareVerticalFlip() {
    TextureCanvas canvas;
    canvas.Create(kSide, kSide, 1, 8);
    const LeptonicaPicture picture = leptonicaPicture(8);
    compare(
        "vertical flip / Leptonica", 1.0, kNothing,
        [&] { canvas.Flip(0, 0, kSide - 1, kSide - 1, TextureCanvas::kFlipVertical); }, kNothing,
        [&] { pixFlipTB(picture.get(), picture.get()); });
}

/// Every second texel of every second row stands in the way.
void compareLatticeFill(std::uint16_t bits) {
    TextureCanvas canvas;
    canvas.Create(kSide, kSide, 1, bits);
    const LeptonicaPicture picture = leptonicaPicture(1);
    const LeptonicaPicture seed = leptonicaPicture(1);
    const auto lattice = [](const auto& set) {
        for (int y = 1; y < kSide; y += 2) {
            for (int x = 1; x < kSide; x += 2)
                set(x, y);
        }
    };
    compare(
        bits == 8 ? "lattice fill, 8 bits / 1 bit" : "lattice fill, 4 bits / 1 bit", 4.0,
        [&] {
            canvas.FillBox(0, 0, kSide - 1, kSide - 1, 0);
            lattice([&](int x, int y) { canvas.SetPixel(x, y, 1); });
        },
        [&] { canvas.FloodFill(0, 0, 2); },
        [&] {
            pixClearAll(seed.get());
            pixSetPixel(seed.get(), 0, 0, 1);
            pixSetAll(picture.get());
            lattice([&](int x, int y) { pixSetPixel(picture.get(), x, y, 0); });
        },
        [&] { pixSeedfillBinary(seed.get(), seed.get(), picture.get(), 4); });
}

} // namespace
} // namespace dyeworks

int main() {
    std::printf("%-28s %9s %9s %7s\n", "4096 x 4096", "ours/ms", "peer/ms", "ratio");
    dyeworks::compareLines(8);
    dyeworks::compareLines(4);
    dyeworks::compareVerticalFlip();
    dyeworks::compareLatticeFill(8);
    dyeworks::compareLatticeFill(4);
}

#pragma once

#include "paint/TextureCanvas.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <string>
#include <vector>

namespace dyeworks {

/// A canvas that is not exactly a TextureCanvas, so that each primitive takes its way over single pixels.
class SlowCanvas : public TextureCanvas {};

class Random {
public:
    explicit Random(unsigned seed)
        : engine_(seed) {}
    std::int32_t between(std::int32_t low, std::int32_t high) {
        return std::uniform_int_distribution<std::int32_t>(low, high)(engine_);
    }
    bool once(std::int32_t in) { return between(1, in) == 1; }
    std::uint32_t bits() { return static_cast<std::uint32_t>(engine_()); }

private:
    std::mt19937 engine_;
};

/// A canvas whose pixels are the hexadecimal digits of the rows; "." is 0.
inline std::unique_ptr<TextureCanvas> canvasOf(const std::vector<std::string>& rows,
                                               std::uint16_t bitsPerPixel = 4) {
    auto canvas = std::make_unique<TextureCanvas>();
    EXPECT_TRUE(canvas->Create(static_cast<std::int32_t>(rows.front().size()),
                               static_cast<std::int32_t>(rows.size()), 1, bitsPerPixel));
    for (std::int32_t y = 0; y < canvas->height(); ++y) {
        for (std::int32_t x = 0; x < canvas->width(); ++x) {
            const char digit = rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
            if (digit != '.')
                canvas->SetPixel(x, y,
                                 static_cast<std::uint32_t>(std::stoul(std::string(1, digit), nullptr, 16)));
        }
    }
    canvas->ResetChangedRect();
    return canvas;
}

inline std::vector<std::string> rowsOf(const TextureCanvas& canvas) {
    std::vector<std::string> rows;
    for (std::int32_t y = 0; y < canvas.height(); ++y) {
        std::string& row = rows.emplace_back();
        for (std::int32_t x = 0; x < canvas.width(); ++x)
            row += ".123456789abcdef"[canvas.GetPixel(x, y) & 15U];
    }
    return rows;
}

/// The changed rectangle, or its reset state.
inline Rect changedRect(const TextureCanvas& canvas) {
    return canvas.changedRect().value_or(Rect{0, 0, -1, -1});
}

} // namespace dyeworks

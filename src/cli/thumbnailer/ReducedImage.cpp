#include "cli/thumbnailer/ReducedImage.h"

#include "cli/CliTexts.h"
#include "cli/thumbnailer/LinearLight.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

namespace dyeworks {

namespace {

/// A row or column of texels, and how much of a pixel lies over it.
struct Tap {
    std::int32_t at;
    float weight;
};
using Taps = std::vector<Tap>;

/// Of each of `pixels` that stand for `texels`, in their order. What lies below one pixel weighs 1 in all.
std::vector<Taps> tapsOf(std::int32_t texels, std::int32_t pixels) {
    constexpr std::int32_t kMostTaps = 16;
    std::vector<Taps> taps(static_cast<std::size_t>(pixels));
    const double step = static_cast<double>(texels) / pixels;
    for (std::int32_t pixel = 0; pixel < pixels; ++pixel) {
        Taps& mine = taps[static_cast<std::size_t>(pixel)];
        const double from = pixel * step;
        if (step > kMostTaps) {
            for (std::int32_t i = 0; i < kMostTaps; ++i)
                mine.push_back({static_cast<std::int32_t>(from + (i + 0.5) * step / kMostTaps),
                                1.0F / static_cast<float>(kMostTaps)});
            continue;
        }
        const double to = std::min<double>(from + step, texels);
        for (auto at = static_cast<std::int32_t>(from); at < to; ++at) {
            const double covered = std::min<double>(at + 1, to) - std::max<double>(at, from);
            mine.push_back({at, static_cast<float>(covered / step)});
        }
    }
    return taps;
}

/// Reduces rows of texels to rows of pixels, on demand and in their order.
class RowReducer {
public:
    RowReducer(TexelRows& rows, const TexelColours& colours, std::int32_t width)
        : rows_(rows)
        , columns_(tapsOf(rows.width(), width))
        , values_(static_cast<std::size_t>(rows.width()))
        , line_(static_cast<std::size_t>(width)) {
        for (std::size_t i = 0; i < colours.size(); ++i)
            lights_[i] = lightOf(colours[i]);
    }

    /// The row, counted from the bottom; no lower one than before. Null when it cannot be read.
    const std::vector<LinearLight>* row(std::int32_t wanted) {
        if (read_ > wanted)
            return &line_;
        if ((read_ < wanted && !rows_.skip(wanted - read_)) || !rows_.next(values_))
            return nullptr;
        read_ = wanted + 1;
        for (std::size_t x = 0; x < line_.size(); ++x) {
            LinearLight sum;
            for (const Tap& tap : columns_[x])
                sum.add(lights_[values_[static_cast<std::size_t>(tap.at)]], tap.weight);
            line_[x] = sum;
        }
        return &line_;
    }

private:
    TexelRows& rows_;
    std::vector<Taps> columns_;
    std::array<LinearLight, 256> lights_;
    std::vector<std::uint8_t> values_;
    std::vector<LinearLight> line_;
    std::int32_t read_ = 0;
};

bool reduceInto(Picture& picture, TexelRows& rows, const TexelColours& colours) {
    RowReducer reducer(rows, colours, picture.width);
    const std::vector<Taps> taps = tapsOf(rows.height(), picture.height);
    auto target = picture.pixels.end();
    for (const Taps& below : taps) {
        std::vector<LinearLight> sums(static_cast<std::size_t>(picture.width));
        for (const Tap& tap : below) {
            const std::vector<LinearLight>* const line = reducer.row(tap.at);
            if (line == nullptr)
                return false;
            for (std::size_t x = 0; x < sums.size(); ++x)
                sums[x].add((*line)[x], tap.weight);
        }
        target -= picture.width;
        std::ranges::transform(sums, target, [](const LinearLight& light) { return colourOf(light); });
    }
    return true;
}

bool enlargeInto(Picture& picture, TexelRows& rows, const TexelColours& colours) {
    const std::int32_t zoom = picture.width / rows.width();
    std::vector<std::uint8_t> values(static_cast<std::size_t>(rows.width()));
    auto target = picture.pixels.end();
    for (std::int32_t y = 0; y < rows.height(); ++y) {
        if (!rows.next(values))
            return false;
        for (std::int32_t copy = 0; copy < zoom; ++copy) {
            target -= picture.width;
            auto pixel = target;
            for (const std::uint8_t value : values)
                pixel = std::fill_n(pixel, zoom, colours[value]);
        }
    }
    return true;
}

} // namespace

Size fitted(Size image, Size room) noexcept {
    if (image.width <= room.width && image.height <= room.height) {
        const std::int32_t zoom = std::min(room.width / image.width, room.height / image.height);
        return {image.width * zoom, image.height * zoom};
    }
    const double scale = std::min(static_cast<double>(room.width) / image.width,
                                  static_cast<double>(room.height) / image.height);
    const auto side = [scale](std::int32_t texels) {
        return std::max(static_cast<std::int32_t>(std::lround(texels * scale)), 1);
    };
    return {side(image.width), side(image.height)};
}

Result<Picture, std::string> reduced(TexelRows rows, const TexelColours& colours, Size room) {
    const Size size = fitted({rows.width(), rows.height()}, room);
    Picture picture;
    picture.width = size.width;
    picture.height = size.height;
    picture.pixels.resize(static_cast<std::size_t>(std::int64_t{size.width} * size.height));
    const bool isReduced = size.width < rows.width() || size.height < rows.height();
    if (!(isReduced ? reduceInto(picture, rows, colours) : enlargeInto(picture, rows, colours)))
        return say(CliText::FileCutOff);
    return picture;
}

} // namespace dyeworks

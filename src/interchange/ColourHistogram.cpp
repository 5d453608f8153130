#include "interchange/ColourHistogram.h"

#include "interchange/EntryColour.h"
#include "interchange/WorkProgress.h"

#include <array>
#include <cstddef>

namespace dyeworks {

namespace {

struct Bin {
    std::array<double, 3> light{}; ///< The sum.
    std::int64_t count = 0;
};

class Bins {
public:
    Bins(ColourType type, std::int32_t alphaThreshold)
        : type_(type)
        , alphaThreshold_(alphaThreshold)
        , bins_(65536) {}

    void add(Colour colour, std::int64_t count) noexcept {
        if (isTransparent(type_, colour, alphaThreshold_)) {
            transparent_ = transparent_ || count > 0;
            return;
        }
        if (type_ == ColourType::Rgba)
            colour.alpha = 255;
        const Light light = lightOf(type_, colour);
        Bin& bin = bins_[entryOf(type_, colour)];
        const auto factor = static_cast<double>(count);
        bin.light[0] += factor * light.x;
        bin.light[1] += factor * light.y;
        bin.light[2] += factor * light.z;
        bin.count += count;
    }

    [[nodiscard]] ColourHistogram histogram() const {
        ColourHistogram histogram{{}, transparent_};
        for (std::size_t i = 0; i < bins_.size(); ++i) {
            const Bin& bin = bins_[i];
            if (bin.count == 0)
                continue;
            const auto mean = [&bin](std::size_t channel) {
                return static_cast<float>(bin.light[channel] / static_cast<double>(bin.count));
            };
            histogram.cells.push_back({static_cast<std::uint16_t>(i), static_cast<float>(bin.count),
                                       pointOf(type_, {mean(0), mean(1), mean(2)})});
        }
        return histogram;
    }

private:
    ColourType type_;
    std::int32_t alphaThreshold_;
    std::vector<Bin> bins_;
    bool transparent_ = false;
};

} // namespace

ColourHistogram histogramOf(const Picture& picture, ColourType type, std::int32_t alphaThreshold,
                            WorkProgress& progress) {
    Bins bins(type, alphaThreshold);
    std::array<std::int64_t, 256> uses{};
    const auto width = static_cast<std::size_t>(picture.width);
    for (std::int32_t y = 0; y < picture.height && progress.reach(y, picture.height); ++y) {
        const std::size_t row = static_cast<std::size_t>(y) * width;
        if (picture.isIndexed()) {
            for (std::size_t x = 0; x < width; ++x)
                ++uses[picture.indices[row + x]];
        } else {
            for (std::size_t x = 0; x < width; ++x)
                bins.add(picture.pixels[row + x], 1);
        }
    }
    for (std::size_t i = 0; i < picture.colours.size(); ++i)
        if (uses[i] > 0)
            bins.add(picture.colours[i], uses[i]);
    return bins.histogram();
}

} // namespace dyeworks

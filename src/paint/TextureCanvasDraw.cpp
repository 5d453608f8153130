#include "paint/PixelAccess.h"
#include "paint/TextureCanvas.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace dyeworks {

namespace {

constexpr std::uint32_t kOpaque = 0xFF000000U;

/// How one direction of the source spreads over one of the destination: destination pixel i shows source
/// pixel trunc(i * source / destination).
class Scaling {
public:
    Scaling(std::int64_t source, std::int64_t destination)
        : source_(static_cast<std::uint64_t>(source))
        , destination_(static_cast<std::uint64_t>(destination)) {}

    [[nodiscard]] std::int64_t sourceOf(std::int64_t i) const {
        return static_cast<std::int64_t>(static_cast<std::uint64_t>(i) * source_ / destination_);
    }

    /// The destination pixels that show the source pixels of `range`.
    [[nodiscard]] Range showing(Range range) const {
        const Range existing = overlap(range, {0, static_cast<std::int64_t>(source_) - 1});
        if (existing.empty())
            return {};
        return {firstShowing(existing.first), firstShowing(existing.last + 1) - 1};
    }

    /// Walks on from destination pixel i without dividing.
    class Steps {
    public:
        Steps(const Scaling& scaling, std::int64_t i)
            : destination_(scaling.destination_)
            , whole_(static_cast<std::int64_t>(scaling.source_ / scaling.destination_))
            , part_(scaling.source_ % scaling.destination_)
            , at_(scaling.sourceOf(i))
            , rest_(static_cast<std::uint64_t>(i) * scaling.source_ % scaling.destination_) {}

        [[nodiscard]] std::int64_t source() const { return at_; }
        void next() {
            at_ += whole_;
            rest_ += part_;
            if (rest_ >= destination_) {
                rest_ -= destination_;
                ++at_;
            }
        }

    private:
        std::uint64_t destination_;
        std::int64_t whole_;
        std::uint64_t part_;
        std::int64_t at_;
        std::uint64_t rest_;
    };

    /// Destination pixels to each source pixel, or 0 when that is not a whole number.
    [[nodiscard]] std::int64_t wholeFactor() const {
        return destination_ % source_ == 0 ? static_cast<std::int64_t>(destination_ / source_) : 0;
    }

private:
    /// The smallest i with sourceOf(i) >= source.
    [[nodiscard]] std::int64_t firstShowing(std::int64_t source) const {
        const std::uint64_t product = static_cast<std::uint64_t>(source) * destination_;
        return static_cast<std::int64_t>(product / source_ + (product % source_ != 0 ? 1 : 0));
    }

    std::uint64_t source_;
    std::uint64_t destination_;
};

/// The colours of pixel values, per depth.
template <int Bits>
class Colours {
public:
    explicit Colours(std::span<const std::uint8_t> table) {
        colours_.fill(kOpaque);
        for (std::size_t i = 0; i < std::min(colours_.size(), table.size() / 4); ++i) {
            const std::uint8_t* quad = table.data() + 4 * i;
            colours_[i] = kOpaque | std::uint32_t{quad[2]} << 16U | std::uint32_t{quad[1]} << 8U | quad[0];
        }
    }
    [[nodiscard]] std::uint32_t operator()(std::uint32_t value) const { return colours_[value]; }

private:
    std::array<std::uint32_t, std::size_t{1} << Bits> colours_;
};

struct DeepColours {
    explicit DeepColours(std::span<const std::uint8_t>) {}
    [[nodiscard]] std::uint32_t operator()(std::uint32_t value) const { return kOpaque | value; }
};

template <>
class Colours<24> : public DeepColours {
    using DeepColours::DeepColours;
};
template <>
class Colours<32> : public DeepColours {
    using DeepColours::DeepColours;
};

/// Five bits each of red, green and blue below an unused one.
template <>
class Colours<16> {
public:
    explicit Colours(std::span<const std::uint8_t>) {}
    [[nodiscard]] std::uint32_t operator()(std::uint32_t value) const {
        return kOpaque | widened(value >> 10U) << 16U | widened(value >> 5U) << 8U | widened(value);
    }

private:
    static std::uint32_t widened(std::uint32_t channel) {
        return (channel & 31U) << 3U | (channel >> 2U & 7U);
    }
};

/// Draws rows of one depth.
template <int Bits>
class RowPainter {
public:
    using Access = PixelAccess<Bits>;

    RowPainter(std::span<const std::uint8_t> table, const Scaling& scaling, std::int64_t sourceX)
        : colour_(table)
        , scaling_(scaling)
        , sourceX_(sourceX) {
        for (std::size_t byte = 0; byte < pairs_.size(); ++byte)
            pairs_[byte] = {colour_(static_cast<std::uint32_t>(byte / 16)),
                            colour_(static_cast<std::uint32_t>(byte % 16))};
    }

    /// Writes destination pixels `is` to `out`.
    void paint(const std::uint8_t* row, Range is, std::uint32_t* out) const {
        const std::int64_t factor = scaling_.wholeFactor();
        if (factor == 1)
            paintPlain(row, sourceX_ + is.first, out, is.count());
        else if (factor > 1)
            paintZoomed(row, is, out, factor);
        else
            paintStretched(row, is, out);
    }

private:
    using Pair = std::array<std::uint32_t, 2>;

    void paintPlain(const std::uint8_t* row, std::int64_t x, std::uint32_t* out, std::int64_t count) const {
        std::int64_t i = 0;
        if constexpr (Bits == 4) {
            if (count > 0 && x % 2 != 0)
                out[i++] = colour_(row[x / 2] & 15U);
            // Both pixels of a byte at once, and two bytes for each write.
            const std::uint8_t* byte = row + (x + i) / 2;
            for (; i + 4 <= count; i += 4, byte += 2) {
                const std::array<Pair, 2> four{pairs_[byte[0]], pairs_[byte[1]]};
                std::memcpy(out + i, four.data(), sizeof four);
            }
        }
        for (; i < count; ++i)
            out[i] = colour_(Access::get(row, x + i));
    }

    void paintZoomed(const std::uint8_t* row, Range is, std::uint32_t* out, std::int64_t factor) const {
        std::int64_t x = sourceX_ + is.first / factor;
        std::int64_t left = is.count();
        // The first pixel and the last may be cut.
        if (const std::int64_t cut = is.first % factor; cut != 0) {
            const std::int64_t width = std::min(factor - cut, left);
            out = std::fill_n(out, width, colour_(Access::get(row, x++)));
            left -= width;
        }
        const std::int64_t whole = left / factor;
        switch (factor) {
        case 2:
            out = repeatPixels<2>(row, x, whole, out);
            break;
        case 3:
            out = repeatPixels<3>(row, x, whole, out);
            break;
        case 4:
            out = repeatPixels<4>(row, x, whole, out);
            break;
        default:
            for (std::int64_t i = 0; i < whole; ++i)
                out = std::fill_n(out, factor, colour_(Access::get(row, x + i)));
        }
        if (left % factor != 0)
            std::fill_n(out, left % factor, colour_(Access::get(row, x + whole)));
    }

    /// Small factors, known in advance, need no loop for each pixel.
    template <int Factor>
    std::uint32_t* repeatPixels(const std::uint8_t* row, std::int64_t x, std::int64_t count,
                                std::uint32_t* out) const {
        for (std::int64_t i = 0; i < count; ++i, out += Factor) {
            const std::uint32_t colour = colour_(Access::get(row, x + i));
            for (int k = 0; k < Factor; ++k)
                out[k] = colour;
        }
        return out;
    }

    void paintStretched(const std::uint8_t* row, Range is, std::uint32_t* out) const {
        Scaling::Steps steps(scaling_, is.first);
        for (std::int64_t i = is.first; i <= is.last; ++i, steps.next())
            *out++ = colour_(Access::get(row, sourceX_ + steps.source()));
    }

    Colours<Bits> colour_;
    /// The colours of both pixels in a byte, for pixels of 4 bits.
    std::array<Pair, Bits == 4 ? 256 : 0> pairs_;
    Scaling scaling_;
    std::int64_t sourceX_;
};

} // namespace

std::int32_t TextureCanvas::Draw(Surface& surface, const Rect& destination, const Rect& source) const {
    return DrawInColours(surface, destination, source, colourTable());
}

std::int32_t TextureCanvas::DrawInColours(Surface& surface, const Rect& destination, const Rect& source,
                                          std::span<const std::uint8_t> colours) const {
    const std::int64_t width = std::int64_t{destination.right} - destination.left;
    const std::int64_t height = std::int64_t{destination.bottom} - destination.top;
    const std::int64_t sourceWidth = std::int64_t{source.right} - source.left;
    const std::int64_t sourceHeight = std::int64_t{source.bottom} - source.top;
    if (width <= 0 || height <= 0 || sourceWidth <= 0 || sourceHeight <= 0)
        return 0;

    // Destination pixels, counted from its corner, that the canvas has a source for and the surface a place.
    const Scaling across(sourceWidth, width);
    const Scaling down(sourceHeight, height);
    const Range onSurfaceX{std::int64_t{surface.originX} - destination.left,
                           std::int64_t{surface.originX} - destination.left + surface.width - 1};
    const Range onSurfaceY{std::int64_t{surface.originY} - destination.top,
                           std::int64_t{surface.originY} - destination.top + surface.height - 1};
    const Range is = overlap(onSurfaceX, across.showing(shifted(columns(), source.left)));
    const Range js = overlap(onSurfaceY, down.showing(shifted(rows(), source.top)));
    // Values of depths that are not known have no colours.
    if (is.empty() || js.empty() || depthMask() == 0)
        return 0;

    visitDepth<PixelAccess>(bitsPerPixel_, [&]<int Bits>(PixelAccess<Bits>) {
        if constexpr (Bits != 0) {
            const RowPainter<Bits> painter(colours, across, source.left);
            const std::int64_t firstX = is.first - onSurfaceX.first;
            const std::uint32_t* painted = nullptr;
            std::int64_t paintedY = 0;
            Scaling::Steps steps(down, js.first);
            for (std::int64_t j = js.first; j <= js.last; ++j, steps.next()) {
                std::uint32_t* out = surface.pixels + (j - onSurfaceY.first) * surface.stride + firstX;
                const std::int64_t y = source.top + steps.source();
                if (painted != nullptr && paintedY == y)
                    std::memcpy(out, painted, static_cast<std::size_t>(is.count()) * sizeof *out);
                else
                    painter.paint(row(y), is, out);
                painted = out;
                paintedY = y;
            }
        }
    });
    return static_cast<std::int32_t>(js.count());
}

} // namespace dyeworks

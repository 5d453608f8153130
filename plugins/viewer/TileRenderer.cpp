#include "viewer/TileRenderer.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

namespace dyeworks::plugins {

namespace {

using Shades = std::array<QRgb, 256>;

/// The colours as they look on an opaque ground.
Shades shadesOver(const ViewerPicture::Colours& colours, QRgb ground) {
    const auto mixed = [](int above, int below, int alpha) {
        return (above * alpha + below * (255 - alpha) + 127) / 255;
    };
    Shades shades;
    std::ranges::transform(colours, shades.begin(), [&](const auto& rgba) {
        return qRgb(mixed(rgba[0], qRed(ground), rgba[3]), mixed(rgba[1], qGreen(ground), rgba[3]),
                    mixed(rgba[2], qBlue(ground), rgba[3]));
    });
    return shades;
}

Shades opaqueShades(const ViewerPicture::Colours& colours) {
    Shades shades;
    std::ranges::transform(colours, shades.begin(),
                           [](const auto& rgba) { return qRgb(rgba[0], rgba[1], rgba[2]); });
    return shades;
}

/// Counts pixels in equal steps: which step of an endless row of them is at hand, and where in it.
class Steps {
public:
    Steps(int pixel, int size)
        : size_(size)
        , step_(pixel / size)
        , within_(pixel % size) {}
    [[nodiscard]] int step() const { return step_; }
    /// Pixels left in this step.
    [[nodiscard]] int left() const { return size_ - within_; }
    /// At most to the end of the step.
    void advance(int pixels) {
        within_ += pixels;
        if (within_ == size_) {
            within_ = 0;
            ++step_;
        }
    }

private:
    int size_;
    int step_;
    int within_;
};

} // namespace

void renderTiles(QImage& target, QPoint origin, const ViewerPicture& picture, int zoom,
                 const std::optional<Checkerboard>& board) {
    const int side = board ? board->side : zoom;
    const Shades even = board ? shadesOver(picture.colours(), board->light) : opaqueShades(picture.colours());
    const Shades odd = board ? shadesOver(picture.colours(), board->dark) : even;

    std::vector<std::uint8_t> values(static_cast<std::size_t>(picture.width()));
    const auto rowBytes = static_cast<std::size_t>(target.width()) * sizeof(QRgb);
    const QRgb* above = nullptr;
    int aboveTexel = -1;
    int aboveSquare = -1;
    for (int y = 0; y < target.height(); ++y) {
        auto* const pixels = reinterpret_cast<QRgb*>(target.scanLine(y));
        const int texelRow = (origin.y() + y) / zoom % picture.height();
        const int squareRow = (origin.y() + y) / side % 2;
        if (texelRow == aboveTexel && squareRow == aboveSquare) {
            std::memcpy(pixels, above, rowBytes);
            continue;
        }
        if (texelRow != aboveTexel)
            picture.readRow(0, texelRow, values);
        above = pixels;
        aboveTexel = texelRow;
        aboveSquare = squareRow;

        Steps squares(origin.x(), side);
        Steps texels(origin.x(), zoom);
        int column = texels.step() % picture.width();
        for (int x = 0; x < target.width();) {
            const Shades& shades = (squares.step() + squareRow) % 2 == 0 ? even : odd;
            const int squareEnd = std::min(target.width(), x + squares.left());
            squares.advance(squareEnd - x);
            while (x < squareEnd) {
                const int count = std::min(squareEnd - x, texels.left());
                std::fill_n(pixels + x, count, shades[values[static_cast<std::size_t>(column)]]);
                x += count;
                const int before = texels.step();
                texels.advance(count);
                if (texels.step() != before && ++column == picture.width())
                    column = 0;
            }
        }
    }
}

} // namespace dyeworks::plugins

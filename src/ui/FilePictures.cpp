#include "ui/FilePictures.h"

#include "core/TlfFormat.h"
#include "core/TmfFormat.h"
#include "framework/PathText.h"
#include "interchange/EntryColour.h"
#include "paint/IndexThumbnail.h"
#include "paint/TextureCanvas.h"
#include "platform/LooseThread.h"
#include "platform/Platform.h"
#include "platform/TextCase.h"
#include "platform/posix/HostFile.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <new>
#include <optional>
#include <utility>

namespace dyeworks {

namespace {

using namespace std::chrono_literals;

constexpr auto kLook = 40ms;
constexpr auto kPatience = 10s;
/// Larger ones would cost more memory and time than a small picture is worth.
constexpr std::uint64_t kLargestFile = std::uint64_t{32} << 20U;
constexpr std::uint32_t kSolid = 0xff000000;

std::uint32_t shownColour(const TlutData& palette, std::int64_t index) {
    const Colour colour = colourOf(palette, index);
    return kSolid | std::uint32_t{colour.red} << 16U | std::uint32_t{colour.green} << 8U | colour.blue;
}

std::optional<TlutData> readPalette(const std::string& path) {
    const auto file = openHostFile(platform().files().hostPath(path));
    if (!file)
        return std::nullopt;
    std::vector<std::byte> bytes(kLargestTlfSize);
    bytes.resize(file.value()->read(bytes));
    Result<TlutData, TlfError> table = parseTlf(bytes);
    return table ? std::optional(std::move(table).value()) : std::nullopt;
}

IndexThumbnail::Colours coloursOf(const std::optional<TlutData>& palette, std::int32_t bits) {
    IndexThumbnail::Colours colours{};
    const std::uint32_t last = bits == 4 ? 15 : 255;
    for (std::uint32_t i = 0; i <= last; ++i) {
        const std::uint32_t grey = i * 255 / last;
        colours[i] = palette ? shownColour(*palette, i) : kSolid | grey * 0x010101U;
    }
    return colours;
}

QImage pictureOfImage(const std::string& path, const std::string& palettePath, QSize room) {
    const auto file = openHostFile(platform().files().hostPath(path));
    if (!file || file.value()->size() > kLargestFile)
        return {};
    const Result<TmfImage, TmfError> image = parseTmf(*file.value());
    if (!image)
        return {};
    TextureCanvas canvas;
    const TmfImage& texels = image.value();
    if (!canvas.Create(texels.width, texels.height, 1, static_cast<std::uint16_t>(texels.bits)))
        return {};
    canvas.FromImage(texels);
    IndexThumbnail small;
    small.take(canvas, {room.width(), room.height()});
    if (small.isEmpty())
        return {};
    QImage picture(small.size().width, small.size().height, QImage::Format_RGB32);
    small.colour(coloursOf(palettePath.empty() ? std::nullopt : readPalette(palettePath), texels.bits),
                 small.whole(), reinterpret_cast<std::uint32_t*>(picture.bits()),
                 picture.bytesPerLine() / qsizetype{sizeof(std::uint32_t)});
    return picture;
}

/// The entries as squares, as many in a row as rows.
QImage pictureOfPalette(const std::string& path, QSize room) {
    const std::optional<TlutData> palette = readPalette(path);
    if (!palette || palette->count <= 0)
        return {};
    const int columns = static_cast<int>(std::lround(std::sqrt(palette->count)));
    const int side = std::max(1, std::min(room.width(), room.height()) / columns);
    QImage picture(columns * side, columns * side, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        auto* const row = reinterpret_cast<std::uint32_t*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x)
            row[x] = shownColour(*palette, y / side * columns + x / side);
    }
    return picture;
}

} // namespace

/// Outlives whoever asked for it: a thread that hangs in the file system cannot be ended.
struct FilePictures::Work {
    QImage picture;
    std::atomic<bool> done = false;

    void make(const std::string& file, const std::string& palette, QSize room) noexcept {
        try {
            picture = equalIgnoringCase(extensionOf(file), ".tlf") ? pictureOfPalette(file, room)
                                                                   : pictureOfImage(file, palette, room);
        } catch (const std::bad_alloc&) {
            picture = {};
        }
        done = true;
    }
};

FilePictures::FilePictures(QObject* parent)
    : QObject(parent) {
    timer_.setInterval(kLook);
    connect(&timer_, &QTimer::timeout, this, [this] { look(); });
}

FilePictures::~FilePictures() = default;

void FilePictures::ask(const std::string& path, const std::string& palettePath, QSize room,
                       std::function<void(const QImage&)> done) {
    const auto work = std::make_shared<Work>();
    if (!runLoosely([work, room, path, palettePath] { work->make(path, palettePath, room); }))
        return; // There are too many threads; it goes without a picture.
    asked_.push_back({work, std::move(done), std::chrono::steady_clock::now() + kPatience});
    timer_.start();
}

void FilePictures::look() {
    const auto now = std::chrono::steady_clock::now();
    for (auto each = asked_.begin(); each != asked_.end();) {
        const bool done = each->work->done;
        if (done && !each->work->picture.isNull())
            each->done(each->work->picture);
        each = done || now > each->giveUp ? asked_.erase(each) : std::next(each);
    }
    if (asked_.empty())
        timer_.stop();
}

} // namespace dyeworks

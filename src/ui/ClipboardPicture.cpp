#include "ui/ClipboardPicture.h"

#include "paint/TextureCanvas.h"
#include "platform/Platform.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

namespace dyeworks {

namespace {

/// The bitmap that is offered, if its pixels are numbers of colours.
std::optional<PngPicture> indexedBitmap() {
    const std::unique_ptr<TextureCanvas> canvas = TextureCanvas::PasteFromClipboard();
    if (canvas == nullptr || canvas->holdsColours() || !isPictureSize(canvas->width(), canvas->height()))
        return std::nullopt;
    PngPicture png;
    Picture& picture = png.picture;
    picture.width = canvas->width();
    picture.height = canvas->height();
    const auto table = std::as_const(*canvas).colourTable();
    for (auto colour = table.begin(); colour != table.end(); colour += 4)
        picture.colours.push_back({colour[2], colour[1], colour[0], 255});
    if (picture.colours.empty())
        return std::nullopt;
    picture.indices.reserve(static_cast<std::size_t>(picture.width) *
                            static_cast<std::size_t>(picture.height));
    for (std::int32_t y = 0; y < picture.height; ++y) {
        for (std::int32_t x = 0; x < picture.width; ++x)
            picture.indices.push_back(static_cast<std::uint8_t>(canvas->GetPixel(x, y)));
    }
    // A bitmap may hold numbers beyond its table.
    const std::size_t used = std::size_t{*std::ranges::max_element(picture.indices)} + 1;
    picture.colours.resize(std::max(picture.colours.size(), used));
    return png;
}

} // namespace

Result<PngPicture, InterchangeError> clipboardPicture(const Progress& progress) {
    const Clipboard& clipboard = platform().clipboard();
    Result<PngPicture, InterchangeError> read =
        InterchangeError{InterchangeError::Kind::UnknownFormat, {}, 0, 0};
    if (const auto bytes = clipboard.png())
        read = readPng(*bytes, progress);
    const bool stopped = !read && read.error().kind == InterchangeError::Kind::Cancelled;
    if (stopped || (read && read.value().chunk))
        return read;
    if (!read || !read.value().picture.isIndexed()) {
        if (std::optional<PngPicture> bitmap = indexedBitmap())
            read = std::move(*bitmap);
    }
    if (!read) {
        if (std::optional<Picture> picture = clipboard.picture()) {
            PngPicture png;
            png.picture = std::move(*picture);
            read = std::move(png);
        }
    }
    return read;
}

} // namespace dyeworks

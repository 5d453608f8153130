#include "interchange/PictureFile.h"

#include "platform/Platform.h"

#include <utility>

namespace dyeworks {

namespace {

InterchangeError errorOf(const PictureError& error) {
    using Kind = InterchangeError::Kind;
    switch (error.kind) {
    case PictureError::Kind::UnknownFormat:
        return {Kind::UnknownFormat, {}, 0, 0};
    case PictureError::Kind::EndsTooEarly:
        return {Kind::EndsTooEarly, {}, 0, 0};
    case PictureError::Kind::Damaged:
        break;
    case PictureError::Kind::TooLarge:
        return {Kind::TooLarge, {}, error.width, error.height};
    case PictureError::Kind::NoMemory:
        return {Kind::NoMemory, {}, 0, 0};
    }
    return {Kind::Damaged, error.detail, 0, 0};
}

} // namespace

Result<PngPicture, InterchangeError> readPictureFile(std::span<const std::byte> file,
                                                     const Progress& progress) {
    if (isPng(file))
        return readPng(file, progress);
    Result<Picture, PictureError> read = platform().pictureReader().read(file);
    if (!read)
        return errorOf(read.error());
    PngPicture picture;
    picture.picture = std::move(read).value();
    return picture;
}

} // namespace dyeworks

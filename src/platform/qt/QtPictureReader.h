#pragma once

#include "platform/PictureReader.h"

#include <optional>

class QImage;

namespace dyeworks {

/// The pictures that Qt reads, by itself and through its plug-ins.
class QtPictureReader final : public PictureReader {
public:
    [[nodiscard]] Result<Picture, PictureError> read(std::span<const std::byte> file) const override;
};

/// The image as a picture: with indices when it has a table of colours, else with direct colours. Nothing
/// when there is no memory; the image must have an allowed size.
[[nodiscard]] std::optional<Picture> pictureOf(const QImage& image);

} // namespace dyeworks

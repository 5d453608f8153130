#pragma once

#include "platform/PictureReader.h"

namespace dyeworks {

/// Reads uncompressed BMP files.
/// Pixels of 32 bits are opaque: nobody has said what their fourth byte holds. That of a colour in a table is
/// alpha as images keep it, in bit 3, unless it is 0 everywhere, as most programs write it.
class BitmapReader final : public PictureReader {
public:
    [[nodiscard]] Result<Picture, PictureError> read(std::span<const std::byte> file) const override;
};

} // namespace dyeworks

#pragma once

#include "platform/Picture.h"
#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace dyeworks {

/// Why the bytes of a file gave no picture.
struct PictureError {
    enum class Kind {
        UnknownFormat, ///< They are of no format that the desktop can read.
        EndsTooEarly,
        Damaged,
        TooLarge, ///< `width` by `height` pixels.
        NoMemory
    };
    Kind kind = Kind::UnknownFormat;
    std::string detail; ///< Of a damaged file: where or why, in English, or empty.
    std::int64_t width = 0;
    std::int64_t height = 0;
};

/// Reads the picture files of every format that the desktop knows.
class PictureReader {
public:
    virtual ~PictureReader() = default;

    /// The first picture in the file, whose format its bytes tell, turned the way it is to be seen. A format
    /// with a table of up to 256 colours gives indices and colours in the order of the file. May be called on
    /// any thread.
    [[nodiscard]] virtual Result<Picture, PictureError> read(std::span<const std::byte> file) const = 0;
};

} // namespace dyeworks

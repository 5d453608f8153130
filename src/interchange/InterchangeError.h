#pragma once

#include "platform/Text.h"

#include <cstdint>
#include <string>

namespace dyeworks {

/// Why something did not come from, or go to, another program.
struct InterchangeError {
    enum class Kind {
        UnknownFormat, ///< The bytes are of no format that could be meant.
        EndsTooEarly,
        Damaged,  ///< `detail` says where or why, in English (a library's words), or is empty.
        TooLarge, ///< `first` by `second` pixels.
        NoMemory,
        NoColours,          ///< The file holds none.
        TooManyColours,     ///< More than `first`.
        BadLine,            ///< Line `first` (from 1) is none of the format; `detail` is its beginning.
        IndexWithoutColour, ///< A pixel has number `first` of `second` colours.
        IndexTooHigh,       ///< The pixels use numbers up to `first`, the image has them up to `second`.
        NoTexels,           ///< There is no image of 4 or 8 bits.
        Cancelled           ///< Whoever watched the progress stopped it. Not told to the user.
    };
    Kind kind = Kind::Damaged;
    std::string detail;
    std::int64_t first = 0;
    std::int64_t second = 0;
};

/// A sentence for the user, in the language of `texts`. It does not name the file.
[[nodiscard]] std::string describe(const InterchangeError& error, const Texts& texts);

} // namespace dyeworks

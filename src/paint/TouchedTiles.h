#pragma once

#include "paint/Rect.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace dyeworks {

/// Which parts of an image an edit has written to, in squares of 64 texels. Of a stroke this is far less than
/// the rectangle around it.
class TouchedTiles {
public:
    /// For an image of this size, none of which is touched.
    explicit TouchedTiles(Size image);

    /// The rectangle (inclusive) lies in the image.
    void add(const Rect& texels);
    void clear();

    /// Calls `visit(part)` with rectangles (inclusive) that do not overlap and together hold everything of
    /// `within` that was touched.
    template <typename Visit>
    void forEach(const Rect& within, Visit visit) const {
        for (std::int32_t row = within.top / kSide; row <= within.bottom / kSide; ++row) {
            for (std::int32_t first = within.left / kSide; first <= within.right / kSide; ++first) {
                if (!isTouched(first, row))
                    continue;
                std::int32_t last = first;
                while (last < within.right / kSide && isTouched(last + 1, row))
                    ++last;
                visit(intersection(
                    within, {first * kSide, row * kSide, last * kSide + kSide - 1, row * kSide + kSide - 1}));
                first = last;
            }
        }
    }

private:
    static constexpr std::int32_t kSide = 64;

    [[nodiscard]] std::size_t indexOf(std::int32_t column, std::int32_t row) const {
        return static_cast<std::size_t>(row) * columns_ + static_cast<std::size_t>(column);
    }
    [[nodiscard]] bool isTouched(std::int32_t column, std::int32_t row) const {
        return touched_[indexOf(column, row)];
    }

    std::size_t columns_;
    std::vector<bool> touched_; ///< By rows.
};

} // namespace dyeworks

#pragma once

#include "palette/CurrentPalette.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace dyeworks {

/// The tips of the palette bar, at most 127 characters long. Without a palette each is a notice that none is
/// open.
class PaletteTips {
public:
    /// `palette` must outlive it.
    explicit PaletteTips(const CurrentPalette& palette)
        : palette_(palette) {}

    /// Of a control, whose own tip is `own`.
    [[nodiscard]] std::string of(std::string_view own) const;
    [[nodiscard]] std::string ofCell(std::int32_t cell) const { return of(std::to_string(cell)); }

private:
    const CurrentPalette& palette_;
};

} // namespace dyeworks

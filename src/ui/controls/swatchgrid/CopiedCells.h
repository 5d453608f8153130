#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace dyeworks {

/// Cell values (0xAABBGGRR): a rectangle, row by row, or a run, which is one row. It travels over the
/// desktop's clipboard, so that it can be pasted in any grid of any running program of ours; other programs
/// get the colours as text.
struct CopiedCells {
    int columns = 0;
    bool isRun = false; ///< Where a row of the grid ends, it goes on in the next.
    std::vector<std::uint32_t> values;

    /// Replaces what is on the clipboard.
    void putOnClipboard() const;
    /// Nothing when the clipboard holds no cells.
    static std::optional<CopiedCells> fromClipboard();
    static bool areOnClipboard();
};

} // namespace dyeworks

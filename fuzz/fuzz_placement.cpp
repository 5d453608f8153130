#include "Require.h"
#include "framework/WindowPlacement.h"

#include <cstdint>
#include <string>

using namespace dyeworks;

/// Where a window stood, as the settings say.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto placement = parseWindowPlacement(std::string(reinterpret_cast<const char*>(data), size));
    if (!placement)
        return 0;
    require(parseWindowPlacement(formatWindowPlacement(*placement)) == placement,
            "a placement is kept as it was");
    if (placement->hasRectangle()) {
        // Windows are made of it with plain arithmetic.
        const std::int64_t width = std::int64_t{placement->right} - placement->left;
        const std::int64_t height = std::int64_t{placement->bottom} - placement->top;
        require(width > 0 && height > 0 && width < 1 << 24 && height < 1 << 24, "a rectangle can be shown");
    }
    return 0;
}

#pragma once

#include "palette/EntryOrder.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace dyeworks {

/// An image that shows a palette, as far as it matters where the entries lie.
struct AttachedImage {
    std::string name;
    std::int32_t values = 256;   ///< That a texel can have: 2, 16 or 256.
    std::int32_t firstEntry = 0; ///< That value 0 shows.
    /// How many texels have each value.
    std::array<std::int64_t, 256> texels{};
};

/// What each value of a texel becomes.
using ValueMap = std::array<std::uint8_t, 256>;

/// How an image follows a map of the entries.
struct FollowPlan {
    ValueMap values{};
    bool affected = false;    ///< Entries that the image can show do not stay.
    std::int64_t beyond = 0;  ///< Texels with an index beyond the palette, which stay as they are.
    std::int64_t leaving = 0; ///< Texels whose entry would lie outside of what the image can show: the map
                              ///< cannot be followed then.
};

[[nodiscard]] FollowPlan planFollowing(const AttachedImage& image, const EntryMap& map);

/// The use of the entries of a palette of `count` by all of the images.
[[nodiscard]] EntryCounts useOfEntries(const std::vector<AttachedImage>& images, std::int32_t count);

/// Where the operations on entries find the images of a palette.
class AttachedImages {
public:
    virtual ~AttachedImages() = default;

    /// Those that are open.
    [[nodiscard]] virtual std::vector<AttachedImage> openImages() const = 0;
    /// Pictures of the open project that use the palette and whose image is not open, or not attached to it.
    [[nodiscard]] virtual std::vector<std::string> closedPictures() const = 0;
};

} // namespace dyeworks

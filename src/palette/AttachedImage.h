#pragma once

#include "palette/EntryOrder.h"
#include "platform/ByteLookUp.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace dyeworks {

/// An image that shows a palette, as far as it matters where the entries lie.
struct AttachedImage {
    std::string name;
    std::int32_t values = 256;               ///< That a texel can have: 2, 16 or 256.
    std::int32_t firstEntry = 0;             ///< That value 0 shows.
    std::array<std::uint64_t, 256> texels{}; ///< How many have each value.
};

/// How an image follows a map of the entries.
struct FollowPlan {
    ByteTable values{};        ///< What each value of a texel becomes.
    bool affected = false;     ///< Entries that the image can show do not stay.
    std::uint64_t beyond = 0;  ///< Texels with an index beyond the palette, which stay as they are.
    std::uint64_t leaving = 0; ///< Texels whose entry would lie outside of what the image can show: the map
                               ///< cannot be followed then.
};

[[nodiscard]] FollowPlan planFollowing(const AttachedImage& image, const EntryMap& map);

/// How many texels of all the images show each of the `count` entries of a palette. Those of values beyond it
/// show none.
[[nodiscard]] EntryCounts useOfEntries(const std::vector<AttachedImage>& images, std::int32_t count);

/// The images of a palette.
class AttachedImages {
public:
    virtual ~AttachedImages() = default;

    /// Those that are open.
    [[nodiscard]] virtual std::vector<AttachedImage> openImages() const = 0;
    /// Pictures of the open project that use the palette and whose image is not open, or not attached to it.
    [[nodiscard]] virtual std::vector<std::string> closedPictures() const = 0;
};

} // namespace dyeworks

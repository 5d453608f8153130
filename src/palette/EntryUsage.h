#pragma once

#include "core/TlutData.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace dyeworks {

/// The images that are attached to palettes, as far as they use their entries.
class CountedImages {
public:
    /// How an image uses its palette.
    struct Image {
        std::int32_t firstEntry = 0; ///< That its value 0 shows: not 0 in a bank.
        /// How many texels have each value. Valid until the image changes.
        std::span<const std::uint64_t> texels;
    };

    virtual ~CountedImages() = default;

    /// The open images that are attached to the palette of this key.
    [[nodiscard]] virtual std::vector<Image> attachedTo(const std::string& key) = 0;
};

/// How many texels of all attached images show each of the `entries` entries of a palette. Texels of values
/// beyond the palette show none.
[[nodiscard]] std::vector<std::uint64_t> entryUsage(CountedImages& images, const std::string& key,
                                                    std::int32_t entries);

/// What is worth knowing of an entry beside its colour.
struct EntryRemark {
    std::uint64_t texels = 0;         ///< That show it.
    std::optional<std::int32_t> twin; ///< The first other entry of the same value.
    bool isClear = false;             ///< Texels show it, though it is fully transparent.

    [[nodiscard]] bool isUnused() const noexcept { return texels == 0; }
    bool operator==(const EntryRemark&) const = default;
};

/// The remarks on all entries of a table, whose `usage` is. Twins are looked for among `group` neighbours,
/// such as those of a bank: entries that no image can show together are none.
[[nodiscard]] std::vector<EntryRemark>
entryRemarks(const TlutData& table, const std::vector<std::uint64_t>& usage, std::int32_t group);

/// For people: "12 texels, same as entry 3".
[[nodiscard]] std::string describe(const EntryRemark& remark);

} // namespace dyeworks

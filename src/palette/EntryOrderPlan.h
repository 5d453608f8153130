#pragma once

#include "palette/AttachedImage.h"

#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

struct TlutData;

/// What an operation on the entries would do, told beforehand.
struct EntryOrderPlan {
    struct Image {
        std::string name;
        FollowPlan follows;
        std::int32_t bank = 0; ///< Of an image of 4 bits.
    };

    std::optional<EntryMap> map; ///< Nothing when the entries cannot go there.
    std::vector<Image> images;

    /// Every image can follow, and something changes.
    [[nodiscard]] bool canBeDone() const;
    /// Texels of an image would leave its bank.
    [[nodiscard]] bool leavesBank() const;
};

[[nodiscard]] EntryOrderPlan planOf(const EntryOrder& order, const TlutData& table,
                                    const std::vector<AttachedImage>& images);

/// Whether one of the images shows a bank of the palette alone, so that sorting has to stay inside banks.
[[nodiscard]] bool showBanks(const std::vector<AttachedImage>& images, const TlutData& table);

} // namespace dyeworks

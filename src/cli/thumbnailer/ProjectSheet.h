#pragma once

#include "platform/Picture.h"

#include <cstdint>
#include <optional>

namespace dyeworks {

class CTPFFile;

/// The first pictures of a project, as many as can be told from each other, in its order and beside each
/// other on nothing, each through its palette and bank; at most `side` pixels wide and high. Of a picture
/// whose image cannot be read there is nothing, of one whose palette cannot be read there are greys. Nothing
/// at all when no image can be read.
[[nodiscard]] std::optional<Picture> projectSheet(const CTPFFile& project, std::int32_t side);

} // namespace dyeworks

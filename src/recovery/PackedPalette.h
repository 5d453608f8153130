#pragma once

#include "core/TlutData.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace dyeworks {

/// A table of any number of entries as bytes: colour type (32 bits), then the entries, all big-endian.
[[nodiscard]] std::vector<std::byte> packPalette(const TlutData& table);
/// Nothing when the bytes are no table, or there is no memory for it.
[[nodiscard]] std::optional<TlutData> unpackPalette(std::span<const std::byte> bytes);

} // namespace dyeworks

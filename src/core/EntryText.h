#pragma once

#include <cstdint>
#include <string>

namespace dyeworks {

struct TlutData;

/// The channels of an entry in the user's language, as they stand in the table: "red 31, green 0, blue 12,
/// alpha 1"; of no entry of the table, that it has none.
[[nodiscard]] std::string toldColour(const TlutData& table, std::int32_t entry);
/// The same with the entry's number before it.
[[nodiscard]] std::string toldEntry(const TlutData& table, std::int32_t entry);

} // namespace dyeworks

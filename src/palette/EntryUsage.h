#pragma once

#include "palette/EntryOrder.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace dyeworks {

struct TlutData;

/// What is worth knowing of an entry beside its colour.
struct EntryRemark {
    std::uint64_t texels = 0;         ///< That show it.
    std::optional<std::int32_t> twin; ///< The first other entry of the same value.
    bool isClear = false;             ///< Texels show it, though it is fully transparent.

    [[nodiscard]] bool isUnused() const noexcept { return texels == 0; }
    bool operator==(const EntryRemark&) const = default;
};

/// The remarks on all entries of a table, of 256 at most, whose `usage` is. Twins are looked for among
/// `group` neighbours, such as those of a bank: entries that no image can show together are none.
[[nodiscard]] std::vector<EntryRemark> entryRemarks(const TlutData& table, const EntryCounts& usage,
                                                    std::int32_t group);

/// For people: "12 texels, same as entry 3".
[[nodiscard]] std::string describe(const EntryRemark& remark);

} // namespace dyeworks

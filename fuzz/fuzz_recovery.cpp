#include "Require.h"
#include "recovery/PackedPalette.h"
#include "recovery/RecoveryItem.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

using namespace dyeworks;

namespace {

/// What a palette that is kept holds. Its kind of colours may be one that nobody knows.
void unpack(std::span<const std::byte> contents) {
    const auto table = unpackPalette(contents);
    if (!table)
        return;
    const std::vector<std::byte> packed = packPalette(*table);
    require(std::ranges::equal(packed, contents), "a palette is kept as it was");
}

} // namespace

/// A file that an earlier run of the program has left behind.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto input = std::as_bytes(std::span(data, size));
    const auto read = parseRecoveryItem(input);
    if (!read)
        return 0;
    unpack(read->contents);

    std::string kept = recoveryHeader(read->item);
    kept.append(reinterpret_cast<const char*>(read->contents.data()), read->contents.size());
    const auto again = parseRecoveryItem(std::as_bytes(std::span(kept)));
    require(again && again->item == read->item, "an item is kept as it was");
    require(std::ranges::equal(again->contents, read->contents), "contents are kept as they were");
    return 0;
}

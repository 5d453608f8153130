#include "Require.h"
#include "core/TlfFormat.h"

#include <algorithm>
#include <cstdint>
#include <span>

using namespace dyeworks;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto input = std::as_bytes(std::span(data, size));
    const auto table = parseTlf(input);
    if (!table)
        return 0;

    const auto file = serialiseTlf(table.value());
    require(file.has_value(), "a palette that was read can be written");
    const auto written = file->bytes();
    require(written.size() <= input.size(), "the file is no longer than what was read");
    const auto same = [&](std::size_t from, std::size_t to) {
        return std::equal(written.begin() + static_cast<std::ptrdiff_t>(from),
                          written.begin() + static_cast<std::ptrdiff_t>(to),
                          input.begin() + static_cast<std::ptrdiff_t>(from));
    };
    require(same(0, 12), "tag, count and colour type come back");
    require(same(64, written.size()), "the entries come back");
    return 0;
}

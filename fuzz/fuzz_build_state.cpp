#include "Require.h"
#include "cli/BuildState.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <string>

using namespace dyeworks;

/// What the last build left in its folder.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto input = std::as_bytes(std::span(data, size));
    const auto state = parseBuildState(input);
    if (!state)
        return 0;
    const std::string bytes = serialise(*state);
    require(std::ranges::equal(std::as_bytes(std::span(bytes)), input), "a state is kept as it was");
    return 0;
}

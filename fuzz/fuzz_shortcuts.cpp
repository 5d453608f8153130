#include "Require.h"
#include "framework/ShortcutFile.h"

#include <cstdint>
#include <span>

using namespace dyeworks;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto read = parseShortcutFile(std::as_bytes(std::span(data, size)));
    if (!read)
        return 0;
    const std::string file = shortcutFile(read.value().shortcuts);
    const auto again = parseShortcutFile(std::as_bytes(std::span(file)));
    require(again.ok(), "what was written can be read");
    require(again.value().shortcuts == read.value().shortcuts, "the keys come back");
    require(again.value().unknown == 0, "only known commands are written");
    return 0;
}

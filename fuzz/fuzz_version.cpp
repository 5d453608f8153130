#include "Require.h"
#include "dyeworks/version_info.h"
#include "platform/posix/PosixVersionInfo.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <vector>

using namespace dyeworks;

/// What a library says of itself: four numbers, then rows of three texts with a zero behind each. A text that
/// is
/// "-" is missing, and the row that has no block need not be the last.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    DW_VersionInfo info{};
    const std::size_t header = std::min(size, sizeof info.fileVersion);
    std::memcpy(info.fileVersion, data, header);
    std::vector<std::string> texts(1);
    for (const std::uint8_t byte : std::span(data, size).subspan(header)) {
        if (byte == 0)
            texts.emplace_back();
        else
            texts.back() += static_cast<char>(byte);
    }
    const auto textAt = [&](std::size_t at) {
        return at >= texts.size() || texts[at] == "-" ? nullptr : texts[at].c_str();
    };
    std::vector<DW_VersionString> rows;
    for (std::size_t at = 0; at < texts.size(); at += 3)
        rows.push_back({textAt(at), textAt(at + 1), textAt(at + 2)});
    rows.push_back({nullptr, nullptr, nullptr});
    info.strings = rows.data();

    const VersionRecord record = versionRecord(info);
    for (const auto& [block, strings] : record.strings) {
        require(!strings.empty(), "a block has strings");
        for (const auto& [name, value] : strings)
            require(name.size() <= 4096 && value.size() <= 4096 && block.size() <= 4096, "texts have an end");
    }
    return 0;
}

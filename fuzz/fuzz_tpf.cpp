#include "MemoryPlatform.h"
#include "Require.h"
#include "platform/CodePage932.h"
#include "project/CTPFFile.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

using namespace dyeworks;

namespace {

constexpr const char* kPath = "\\p\\fuzz.tpf";

bool same(const PictureEntry& a, const PictureEntry& b) {
    return a.tmfFile == b.tmfFile && a.tlfFile == b.tlfFile && a.paletteNo == b.paletteNo;
}

/// Whether all of the project means the same wherever it stands in a file.
bool isPlain(const CTPFFile& project) {
    const auto isReference = [](const std::string& text) { return text.find("$(") != text.npos; };
    return !isReference(project.tmfDir) && !isReference(project.tlfDir) &&
           std::ranges::all_of(project.pictures, [](const auto& picture) {
               return CTPFFile::holdsPicture(picture.first, picture.second);
           });
}

/// Whether the text has an encoding. Others may get one by the comments that saving drops.
bool isEncoded(std::string_view text) {
    return isUtf8(text) || fromCodePage932(text).has_value();
}

void read(CTPFFile& project) {
    require(project.Read(kPath), "any file can be read");
    require(project.order.size() == project.pictures.size(), "each picture is listed once");
    for (const std::string& name : project.order)
        require(project.pictures.contains(name), "what is listed is a picture");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static MemoryPlatform platform;
    const auto input = std::as_bytes(std::span(data, size));
    platform.files().bytes.assign(input.begin(), input.end());

    CTPFFile first;
    read(first);
    const bool plain =
        isPlain(first) && isEncoded(std::string_view(reinterpret_cast<const char*>(data), size));
    if (!first.Write(kPath))
        return 0;
    CTPFFile second;
    read(second);
    if (!plain)
        return 0;
    require(second.order == first.order, "the pictures come back in their order");
    for (const auto& [name, entry] : first.pictures)
        require(same(entry, second.pictures[name]), "a picture comes back");
    for (const auto& [name, value] : second.store->values()) {
        std::string before;
        require(first.store->GetValue(name, before) && value == before, "a value comes back");
    }

    const std::vector<StoreLine> lines = second.store->lines();
    require(second.Write(kPath), "what was read can be written");
    CTPFFile third;
    read(third);
    require(third.store->lines() == lines, "the lines come back in their order");
    return 0;
}

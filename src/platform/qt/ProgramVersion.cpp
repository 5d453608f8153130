#include "platform/qt/ProgramVersion.h"

#include "platform/Version.h"

namespace dyeworks {

namespace {

constexpr const char* kEnglishBlock = "040904E4";
constexpr const char* kJapaneseBlock = "041104B0";

std::map<std::string, std::string> strings(const std::string& version, const char* description) {
    return {
        {"CompanyName", "Quillon"},   {"FileDescription", description}, {"FileVersion", version},
        {"InternalName", "Dyeworks"}, {"OriginalFilename", "Dyeworks"}, {"ProductName", "Orrery Dyeworks"},
        {"ProductVersion", version},
    };
}

} // namespace

VersionRecord programVersion() {
    const std::string version = std::string(kVersionText) + ".0";
    VersionRecord record;
    record.fileVersion = {kVersionMajor, kVersionMinor, kVersionPatch, 0};
    record.strings[kEnglishBlock] = strings(version, "Editor for colour-indexed console textures");
    record.strings[kJapaneseBlock] = strings(version, "ゲーム機用パレットテクスチャの編集ソフト");
    return record;
}

} // namespace dyeworks

#include "plugin/PlugInCatalogue.h"

#include "platform/Platform.h"
#include "platform/TextCase.h"
#include "plugin/PlugInCall.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <optional>

namespace dyeworks {

namespace {

constexpr const char* kEnglishBlock = "040904E4";
constexpr const char* kJapaneseBlock = "041104B0";

std::string stringOf(const VersionRecord& record, const std::string& name, int locale) {
    const auto find = [&](const char* block) -> std::optional<std::string> {
        const auto strings = record.strings.find(block);
        if (strings == record.strings.end())
            return std::nullopt;
        const auto text = strings->second.find(name);
        return text == strings->second.end() ? std::nullopt : std::optional(text->second);
    };
    std::optional<std::string> text;
    if (locale == kLocaleJapanese)
        text = find(kJapaneseBlock);
    if (!text)
        text = find(kEnglishBlock);
    return text.value_or("");
}

void describe(PlugInInfo& info, const std::string& path, int locale) {
    const std::optional<VersionRecord> record = platform().versionInfo().read(path);
    if (!record)
        return;
    info.internalName = stringOf(*record, "InternalName", locale);
    info.productName = stringOf(*record, "ProductName", locale);
    info.comments = stringOf(*record, "Comments", locale);
    std::ranges::reverse_copy(record->fileVersion, info.version.begin());
    info.companyName = stringOf(*record, "CompanyName", locale);
}

} // namespace

std::uint32_t hostVersionWord() {
    std::uint32_t word = 0;
    for (const std::uint16_t part : platform().versionInfo().program().fileVersion)
        word = word << 8U | (part & 0xFFU);
    return word;
}

bool PlugInCatalogue::LoadPlugIns(const std::string& programFolder, int locale) {
    folder_ = programFolder + "PlugIns\\";
    failed_.clear();
    std::vector<FileEntry> entries =
        platform().files().enumerate(folder_ + "*" + platform().library().extension());
    std::ranges::stable_sort(entries, {}, [](const FileEntry& entry) { return foldedCase(entry.name); });
    for (const FileEntry& entry : entries) {
        if (!entry.directory)
            add(entry.name, locale);
    }
    return true;
}

void PlugInCatalogue::add(const std::string& fileName, int locale) {
    PlugInInfo info;
    info.fileName = fileName;
    info.module = platform().library().load(folder_ + fileName);
    if (info.module == nullptr || !isAccepted(info, locale))
        return;
    describe(info, folder_ + fileName, locale);

    const struct {
        std::uint32_t bit;
        std::vector<PlugInInfo>& list;
    } roles[] = {{DWPI_TMF_PREVIEW, previews_},
                 {DWPI_TMF_IMPORT, importers_},
                 {DWPI_TMF_EXPORT, exporters_},
                 {DWPI_TPF_EXPORT, projectExporters_},
                 {DWPI_TPF_NODE, nodeHandlers_}};
    for (const auto& role : roles) {
        if ((info.type & role.bit) != 0)
            role.list.push_back(info);
    }
    all_.push_back(std::move(info));
}

bool PlugInCatalogue::isAccepted(PlugInInfo& info, int locale) {
    PlugInCall call(*this, info);
    const auto isAvail = call.find<decltype(DWPI_isAvail)>("_DWPI_isAvail@4");
    if (isAvail == nullptr || call.answer(isAvail, hostVersionWord()) == 0)
        return false;
    if (const auto onLanguage = call.find<decltype(DWPI_onLanguage)>("_DWPI_onLanguage@4"))
        call.answer(onLanguage, static_cast<std::uint32_t>(locale));
    if (const auto getType = call.find<decltype(DWPI_getType)>("_DWPI_getType@0"))
        info.type = call.answer(getType);
    return true;
}

void PlugInCatalogue::tellPlugInFailed(const std::string& fileName) {
    failed_.push_back(fileName);
}

void PlugInCatalogue::FreePlugIns() {
    for (auto* list : {&importers_, &exporters_, &previews_, &projectExporters_, &nodeHandlers_, &all_})
        list->clear();
}

std::vector<std::string> menuNames(const std::vector<PlugInInfo>& plugIns) {
    std::vector<std::string> names;
    std::ranges::transform(plugIns, std::back_inserter(names), &PlugInInfo::internalName);
    return names;
}

} // namespace dyeworks

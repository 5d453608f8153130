#include "cli/JsonReports.h"

#include <array>
#include <nlohmann/json.hpp>

namespace dyeworks {

namespace {

using Json = nlohmann::ordered_json;

std::string jsonText(const Json& json) {
    constexpr int kIndent = 2;
    return json.dump(kIndent, ' ', false, Json::error_handler_t::replace) + "\n";
}

Json jsonOf(const FileInfo& info) {
    Json json{{"format", info.format}, {"bytes", info.bytes}};
    if (info.texels) {
        json["width"] = info.texels->width;
        json["height"] = info.texels->height;
        if (info.texels->bits > 0)
            json["bits"] = info.texels->bits;
        json["coloursUsed"] = info.texels->used;
    }
    if (info.entries) {
        json["entries"] = info.entries->count;
        json["differentEntries"] = info.entries->different;
        if (info.entries->type)
            json["colourType"] = info.entries->type == ColourType::Ia ? "ia" : "rgba";
        if (info.entries->bank)
            json["bank"] = *info.entries->bank;
    }
    if (info.pictures)
        json["pictures"] = *info.pictures;
    return json;
}

} // namespace

std::string jsonOf(const std::vector<NamedInfo>& files) {
    Json list = Json::array();
    for (const NamedInfo& file : files) {
        Json json{{"file", file.file}};
        json.update(jsonOf(file.info));
        list.push_back(std::move(json));
    }
    return jsonText(list);
}

std::string jsonOf(const std::vector<Finding>& findings) {
    constexpr std::array kSeverities{"error", "warning", "note"};
    Json list = Json::array();
    for (const Finding& finding : findings)
        list.push_back({{"file", finding.file},
                        {"severity", kSeverities.at(static_cast<std::size_t>(finding.severity))},
                        {"place", finding.place},
                        {"check", finding.check},
                        {"reason", finding.reason}});
    return jsonText(list);
}

std::string jsonOf(const BuildState& state) {
    Json pictures = Json::array();
    for (const BuiltPicture& picture : state.pictures) {
        Json files = Json::array();
        for (const BuiltPicture::Output& output : picture.outputs)
            files.push_back(output.name);
        pictures.push_back({{"name", picture.name},
                            {"files", std::move(files)},
                            {"width", picture.width},
                            {"height", picture.height},
                            {"bits", picture.bits},
                            {"bank", picture.bank}});
    }
    return jsonText({{"pictures", std::move(pictures)}});
}

} // namespace dyeworks

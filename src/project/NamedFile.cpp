#include "project/NamedFile.h"

#include "framework/PathText.h"
#include "platform/Platform.h"
#include "platform/ProgramPath.h"
#include "platform/TextCase.h"
#include "project/CKeyValueStore.h"
#include "project/PathHelpers.h"

#include <algorithm>
#include <string_view>

namespace dyeworks {

namespace {

/// The part of a path that ends at `end`, which then moves in front of it. Empty at the root.
std::string_view lastPart(std::string_view path, std::size_t& end) {
    while (end > 0 && isSeparator(path[end - 1]))
        --end;
    const std::string_view rest = path.substr(0, end);
    end = rest.size() - fileNameOf(rest).size();
    return rest.substr(end);
}

} // namespace

std::vector<std::string> placesOf(const std::string& directories, const std::string& name) {
    const Files& files = platform().files();
    if (isRooted(name))
        return {files.fullPath(name)};
    std::vector<std::string> places;
    SplitFields(directories, ";", places);
    for (std::string& place : places)
        place = files.fullPath(place.append("\\").append(name));
    return places;
}

std::string placeOf(const std::string& directories, const std::string& name) {
    const std::vector<std::string> places = placesOf(directories, name);
    const auto hasFolder = [](const std::string& place) {
        const std::size_t folder = place.size() - fileNameOf(place).size();
        return platform().files().isDirectory(place.substr(0, folder) + ".");
    };
    const auto found = std::ranges::find_if(places, hasFolder);
    return found != places.end() ? *found : places.empty() ? std::string() : places.front();
}

std::optional<std::string> otherSpelling(const std::string& name, const std::string& path) {
    const std::string onDisk = platform().files().hostPath(path);
    std::string spelling = name;
    std::size_t end = name.size();
    std::size_t endOnDisk = onDisk.size();
    while (end > 0 && endOnDisk > 0) {
        const std::string_view part = lastPart(name, end);
        const std::string_view real = lastPart(onDisk, endOnDisk);
        // In front of "..", a drive or the root there is nothing that could be compared.
        if (part.empty() || part == "." || part == ".." || !equalIgnoringCase(part, real))
            break;
        spelling.replace(end, part.size(), real);
    }
    return spelling == name ? std::nullopt : std::optional(spelling);
}

bool isInside(const std::string& folder, const std::string& path) {
    if (folder.empty() || isSeparator(folder.back()))
        return beginsIgnoringCase(path, folder);
    return equalIgnoringCase(path, folder) || beginsIgnoringCase(path, folder + "\\");
}

bool isInsideAny(const std::vector<std::string>& folders, const std::string& path) {
    return std::ranges::any_of(folders, [&](const std::string& folder) { return isInside(folder, path); });
}

} // namespace dyeworks

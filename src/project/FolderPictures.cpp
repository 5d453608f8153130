#include "project/FolderPictures.h"

#include "framework/PathText.h"
#include "platform/Platform.h"
#include "platform/TextCase.h"
#include "project/CTPFFile.h"
#include "project/NamedFile.h"
#include "project/PathHelpers.h"
#include "project/PictureName.h"

#include <unordered_set>
#include <utility>

namespace dyeworks {

namespace {

constexpr const char* kImage = ".tmf";
constexpr const char* kPalette = ".tlf";

/// The file of the same name and another extension: beside it, or in the folders of the list.
std::optional<std::string> partnerOf(const std::string& file, const char* extension,
                                     const std::string& directories) {
    const std::size_t stem = file.size() - extensionOf(file).size();
    const std::string beside = file.substr(0, stem) + extension;
    std::string found = beside;
    if (!PathIsFile(beside) && !PathSearch(found, directories, std::string(fileNameOf(beside)), true))
        return std::nullopt;
    return otherSpelling(found, found).value_or(found);
}

PictureEntry entryOf(const CTPFFile& project, const TexturePair& pair) {
    return {fileNameIn(project.tmfDir, pair.image), fileNameIn(project.tlfDir, pair.palette), 0};
}

/// Gives the pair a name that differs from others not in case alone. False when the project cannot hold it.
bool nameIt(const CTPFFile& project, TexturePair& pair, std::unordered_set<std::u32string>& taken) {
    std::string stem(fileNameOf(pair.image));
    stem.resize(stem.size() - extensionOf(stem).size());
    pair.picture =
        freePictureName(stem, [&](const std::string& name) { return taken.contains(foldedCase(name)); });
    if (!isPictureName(pair.picture) || !CTPFFile::holdsPicture(pair.picture, entryOf(project, pair)))
        return false;
    taken.insert(foldedCase(pair.picture));
    return true;
}

std::unordered_set<std::u32string> namesOf(const CTPFFile& project) {
    std::unordered_set<std::u32string> names;
    for (const std::string& name : project.order)
        names.insert(foldedCase(name));
    return names;
}

} // namespace

FolderPictures picturesOfFolder(const CTPFFile& project, const std::string& folder) {
    const Files& files = platform().files();
    std::unordered_set<std::string> known;
    for (const auto& [name, entry] : project.pictures) {
        if (std::string path; PathSearch(path, project.tmfDir, entry.tmfFile, true))
            known.insert(files.hostPath(path));
    }
    std::unordered_set<std::u32string> taken = namesOf(project);
    FolderPictures result;
    for (const FileEntry& entry : files.enumerate(folder + "\\*" + kImage)) {
        if (entry.directory)
            continue;
        TexturePair pair{{}, files.fullPath(folder + "\\" + entry.name), {}};
        if (known.contains(files.hostPath(pair.image))) {
            ++result.known;
            continue;
        }
        const auto palette = partnerOf(pair.image, kPalette, project.tlfDir);
        pair.palette = palette.value_or(std::string());
        if (!palette)
            ++result.withoutPalette;
        else if (!nameIt(project, pair, taken))
            ++result.notHeld;
        else
            result.pairs.push_back(std::move(pair));
    }
    return result;
}

std::optional<TexturePair> pairOf(const CTPFFile& project, const std::string& file) {
    const bool isPalette = endsIgnoringCase(file, kPalette);
    const auto partner =
        partnerOf(file, isPalette ? kImage : kPalette, isPalette ? project.tmfDir : project.tlfDir);
    if (!partner)
        return std::nullopt;
    TexturePair pair{{}, isPalette ? *partner : file, isPalette ? file : *partner};
    std::unordered_set<std::u32string> taken = namesOf(project);
    return nameIt(project, pair, taken) ? std::optional(pair) : std::nullopt;
}

ProjectRepair additionOf(const CTPFFile& project, const std::vector<TexturePair>& pairs) {
    ProjectRepair repair;
    for (const TexturePair& pair : pairs) {
        if (pair.accepted)
            repair.pictures.push_back({pair.picture, entryOf(project, pair)});
    }
    return repair;
}

} // namespace dyeworks

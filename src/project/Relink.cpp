#include "project/Relink.h"

#include "framework/PathText.h"
#include "platform/Platform.h"
#include "platform/ProgramPath.h"
#include "platform/TextCase.h"
#include "project/CKeyValueStore.h"
#include "project/CTPFFile.h"
#include "project/NamedFile.h"
#include "project/PathHelpers.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace dyeworks {

namespace {

/// The beginnings of two paths, without a separator at their ends.
struct Move {
    std::string from;
    std::string to;
};

const std::string& directoriesOf(const CTPFFile& project, bool palette) {
    return palette ? project.tlfDir : project.tmfDir;
}

const std::string& nameIn(const PictureEntry& entry, bool palette) {
    return palette ? entry.tlfFile : entry.tmfFile;
}

void cutLastPart(std::string& path) {
    path.resize(path.size() - fileNameOf(path).size());
    if (!path.empty())
        path.pop_back();
}

Move moveOf(const std::string& from, const std::string& to) {
    Move move{from, to};
    // The file itself may have been renamed.
    do {
        cutLastPart(move.from);
        cutLastPart(move.to);
    } while (!fileNameOf(move.from).empty() && equalIgnoringCase(fileNameOf(move.from), fileNameOf(move.to)));
    return move;
}

/// Where the move leads to, if it concerns the path.
std::optional<std::string> moved(const std::string& path, const Move& move) {
    const std::size_t length = move.from.size();
    if (path.size() <= length || !isSeparator(path[length]) ||
        !equalIgnoringCase(path.substr(0, length), move.from))
        return std::nullopt;
    return move.to + path.substr(length);
}

/// Where the file is looked for; nothing when it is found, or has no name.
std::vector<std::string> missingPlaces(const CTPFFile& project, const PictureEntry& entry, bool palette) {
    const std::string& directories = directoriesOf(project, palette);
    const std::string& name = nameIn(entry, palette);
    std::string path;
    if (name.empty() || PathSearch(path, directories, name, true))
        return {};
    return placesOf(directories, name);
}

/// The folder list with those folders moved that are gone and whose files were all found by one move.
std::string movedFolders(const CTPFFile& project, bool palette, const std::vector<RelinkedFile>& files) {
    std::vector<std::string> folders;
    SplitFields(directoriesOf(project, palette), ";", folders);
    std::string list;
    for (std::string& folder : folders) {
        const std::string full = platform().files().fullPath(folder);
        std::optional<std::string> target;
        bool whole = !platform().files().isDirectory(full);
        for (const RelinkedFile& file : files) {
            if (!whole || file.palette != palette || !isInside(full, file.from))
                continue;
            const std::string rest = file.from.substr(full.size());
            whole = file.accepted && endsIgnoringCase(file.to, rest) && file.to.size() > rest.size();
            const std::string to = whole ? file.to.substr(0, file.to.size() - rest.size()) : std::string();
            whole = whole && (!target || equalIgnoringCase(*target, to));
            target = to;
        }
        if (whole && target && platform().files().isDirectory(*target))
            folder = *target;
        list += (list.empty() ? "" : ";") + folder;
    }
    return CTPFFile::holdsFolders(project.tpfDir, list) ? list : directoriesOf(project, palette);
}

/// The file's name as it leads there; with its folders where those of the project do not exist.
std::string nameFor(const std::string& directories, const std::string& path) {
    std::string name = fileNameIn(directories, path);
    std::string found;
    return PathSearch(found, directories, name, true) ? name : path;
}

void addMovedFiles(const CTPFFile& project, const std::vector<Move>& moves,
                   std::vector<RelinkedFile>& files) {
    const std::optional<RelinkedFile> known = files.empty() ? std::nullopt : std::optional(files.front());
    PictureEntry entry;
    const auto look = [&](const std::string& name, bool ofPalette) {
        if (known && known->picture == name && known->palette == ofPalette)
            return;
        for (const std::string& place : missingPlaces(project, entry, ofPalette)) {
            for (const Move& move : moves) {
                const auto to = moved(place, move);
                if (!to || !PathIsFile(*to))
                    continue;
                files.push_back({name, ofPalette, place, otherSpelling(*to, *to).value_or(*to)});
                return;
            }
        }
    };
    for (const std::string& name : project.order) {
        if (!project.GetPicture(name, entry))
            continue;
        look(name, false);
        look(name, true);
    }
}

/// The folder list with the one in the place of the other.
std::string withFolder(const CTPFFile& project, bool palette, const std::string& folder,
                       const std::string& chosen) {
    std::vector<std::string> folders;
    SplitFields(directoriesOf(project, palette), ";", folders);
    std::string list;
    for (const std::string& each : folders) {
        const bool isIt = equalIgnoringCase(platform().files().fullPath(each), folder);
        list += (list.empty() ? "" : ";") + (isIt ? chosen : each);
    }
    return CTPFFile::holdsFolders(project.tpfDir, list) ? list : directoriesOf(project, palette);
}

} // namespace

std::vector<RelinkedFile> filesOfMove(const CTPFFile& project, const std::string& picture, bool palette,
                                      const std::string& chosen) {
    PictureEntry entry;
    if (!project.GetPicture(picture, entry))
        return {};
    std::vector<Move> moves;
    std::vector<RelinkedFile> files;
    for (const std::string& place : missingPlaces(project, entry, palette)) {
        moves.push_back(moveOf(place, chosen));
        if (files.empty())
            files.push_back({picture, palette, place, chosen});
    }
    addMovedFiles(project, moves, files);
    return files;
}

std::vector<RelinkedFile> filesOfFolder(const CTPFFile& project, const std::string& folder,
                                        const std::string& chosen) {
    std::vector<RelinkedFile> files;
    addMovedFiles(project, {{folder, chosen}}, files);
    return files;
}

RelinkRepair relink(const CTPFFile& project, const std::vector<RelinkedFile>& files) {
    RelinkRepair result;
    const std::string images = movedFolders(project, false, files);
    const std::string palettes = movedFolders(project, true, files);
    if (images != project.tmfDir)
        result.repair.imageDirectories = images;
    if (palettes != project.tlfDir)
        result.repair.paletteDirectories = palettes;
    std::unordered_map<std::string, std::size_t> changed;
    for (const RelinkedFile& file : files) {
        PictureEntry entry;
        std::string found;
        const std::string& directories = file.palette ? palettes : images;
        if (!file.accepted || !project.GetPicture(file.picture, entry))
            continue;
        // Its folder has come along.
        if (PathSearch(found, directories, nameIn(entry, file.palette), true))
            continue;
        const auto known = changed.find(file.picture);
        PictureEntry next = known == changed.end() ? entry : *result.repair.pictures[known->second].entry;
        (file.palette ? next.tlfFile : next.tmfFile) = nameFor(directories, file.to);
        if (!CTPFFile::holdsPicture(file.picture, next)) {
            result.refused.push_back(file.to);
        } else if (known == changed.end()) {
            changed.emplace(file.picture, result.repair.pictures.size());
            result.repair.pictures.push_back({file.picture, next});
        } else {
            result.repair.pictures[known->second].entry = next;
        }
    }
    return result;
}

ProjectRepair relinkFolder(const CTPFFile& project, const std::string& folder, const std::string& chosen) {
    ProjectRepair repair;
    if (const std::string images = withFolder(project, false, folder, chosen); images != project.tmfDir)
        repair.imageDirectories = images;
    if (const std::string palettes = withFolder(project, true, folder, chosen); palettes != project.tlfDir)
        repair.paletteDirectories = palettes;
    return repair;
}

} // namespace dyeworks

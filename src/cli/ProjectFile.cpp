#include "cli/ProjectFile.h"

#include "cli/NamedFile.h"
#include "platform/Platform.h"
#include "project/PathHelpers.h"

#include <algorithm>
#include <utility>

namespace dyeworks {

namespace {

/// Whether the name says a place below a folder and nothing else.
bool isPlain(const std::string& name) {
    return !name.empty() && name.front() != '\\' && name.front() != '/' &&
           name.find(':') == std::string::npos && name.find("..") == std::string::npos;
}

} // namespace

Result<std::unique_ptr<CTPFFile>, FileError> readProject(const std::string& name) {
    const Result<ByteBuffer, FileError> file = readNamed(name);
    if (!file)
        return file.error();
    auto project = std::make_unique<CTPFFile>();
    project->Restore(platform().files().fromHostPath(name == kStandardStream ? "stdin.tpf" : name),
                     file.value().bytes());
    return project;
}

PictureFiles::PictureFiles(const CTPFFile& project)
    : images_(folderOf(project.tmfDir))
    , palettes_(folderOf(project.tlfDir)) {}

PictureFiles::Folder PictureFiles::folderOf(const std::string& directories) {
    Folder folder{directories, {}};
    if (directories.find(';') == std::string::npos)
        folder.host = platform().files().hostPath(directories);
    return folder;
}

const FoundFile& PictureFiles::palette(const std::string& name) {
    const auto [known, isNew] = found_.try_emplace(name);
    if (isNew)
        known->second = find(palettes_, name);
    return known->second;
}

FoundFile PictureFiles::find(const Folder& folder, const std::string& name) {
    FoundFile file;
    if (!folder.host.empty() && isPlain(name)) {
        file.path = inFolder(folder.host, name);
        std::ranges::replace(file.path, '\\', '/');
        file.stamp = stampOf(file.path);
        if (file.stamp)
            return file;
    }
    if (std::string found; PathSearch(found, folder.directories, name, true)) {
        file.path = platform().files().hostPath(found);
        file.stamp = stampOf(file.path);
    }
    if (file.path.empty())
        file.path = displayPath(name);
    return file;
}

} // namespace dyeworks

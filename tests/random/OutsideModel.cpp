#include "DeskModel.h"

namespace dyeworks {

/// What is the same as what the user has decided about is no news.
void FileModel::look(const std::optional<std::string>& now) {
    if (answered && now && now == seen && now != known)
        return;
    isBack = now == known && !seen && !answered;
    answered = false;
    seen = now;
}

void DeskModel::knows(const std::string& path) {
    outside[path] = {files.at(path), files.at(path)};
}

bool DeskModel::asksToReplace(const std::string& path) const {
    const FileModel& file = outside.at(path);
    const auto now = files.find(path);
    return now != files.end() && now->second != file.known && (!file.answered || now->second != file.seen);
}

bool DeskModel::mayReplace(const std::string& path) {
    if (!asksToReplace(path))
        return true;
    ++messages;
    return savesOver;
}

std::vector<std::string> DeskModel::openFiles() const {
    std::vector<std::string> paths;
    for (const auto& [key, palette] : palettes) {
        if (!palette.unnamed())
            paths.push_back(key);
    }
    for (const auto& image : images) {
        if (!image->document.path.empty() && image->isFirst())
            paths.push_back(image->document.path);
    }
    if (project)
        paths.push_back(project->path);
    return paths;
}

bool DeskModel::isUnsaved(const std::string& path) {
    if (const ViewModel* const image = imageOf(path))
        return image->hasUnsavedChanges();
    return palettes.contains(path) ? palettes[path].hasUnsavedChanges() : project->modified;
}

/// In an image and in a palette it is a step.
void DeskModel::reload(const std::string& path, int answer) {
    if (ViewModel* const image = imageOf(path)) {
        const PlainImage now = readImageFile(files.at(path));
        image->settle();
        const PlainImage& old = image->document.image();
        if (now.width == old.width && now.height == old.height && now.bits == old.bits)
            image->document.edit([&](PlainImage& all) { all = now; });
        else
            image->replaceImage([&](const PlainImage&) { return now; });
        image->document.isInFile();
        refreshReplaced();
    } else if (const auto palette = palettes.find(path); palette != palettes.end()) {
        palette->second.reload(readPaletteFile(files.at(path)));
        refreshImages();
    } else {
        if (project->modified && (++messages, answer != 0))
            return;
        project->read(path, files.at(path));
    }
    knows(path);
}

/// It is in no file then, unless the file is what it was.
void DeskModel::keep(const std::string& path) {
    FileModel& file = outside.at(path);
    file.answered = true;
    if (file.isBack)
        return;
    if (ViewModel* const image = imageOf(path)) {
        image->document.modified = image->document.inNoFile = true;
        image->document.states.saved = -1;
    } else if (const auto palette = palettes.find(path); palette != palettes.end()) {
        palette->second.modified = true;
        palette->second.states.saved = -1;
    } else {
        project->modified = true;
    }
}

void DeskModel::openProject(const std::string& path) {
    project.emplace().read(path, files.at(path));
    knows(path);
}

bool DeskModel::saveProject() {
    if (!mayReplace(project->path))
        return false;
    files[project->path] = project->write();
    knows(project->path);
    return true;
}

} // namespace dyeworks

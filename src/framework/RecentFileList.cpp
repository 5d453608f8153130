#include "framework/RecentFileList.h"

#include "framework/PathText.h"
#include "platform/Platform.h"
#include "platform/TextCase.h"

#include <algorithm>

namespace dyeworks {

namespace {

std::string entryName(std::size_t index) {
    return "File" + std::to_string(index + 1);
}

/// The path with its drive replaced by the folder that it stands for, which is what people get to see.
std::string withoutDrive(const std::string& path) {
    const Files& files = platform().files();
    return files.fromHostPath(files.displayPath(path));
}

} // namespace

void RecentFileList::add(const std::string& path) {
    const std::string fullPath = platform().files().fullPath(path);
    if (fullPath.empty())
        return;
    std::erase_if(paths_, [&](const std::string& known) { return equalIgnoringCase(known, fullPath); });
    paths_.insert(paths_.begin(), fullPath);
    if (paths_.size() > kCapacity)
        paths_.resize(kCapacity);
}

bool RecentFileList::remove(const std::string& path) {
    const auto found = std::ranges::find(paths_, path);
    if (found == paths_.end())
        return false;
    paths_.erase(found);
    return true;
}

void RecentFileList::load() {
    paths_.clear();
    for (std::size_t i = 0; i < kCapacity; ++i) {
        std::string path = platform().profile().textOr(section_, entryName(i), {});
        if (!path.empty())
            paths_.push_back(std::move(path));
    }
}

void RecentFileList::save() const {
    Profile& profile = platform().profile();
    for (std::size_t i = 0; i < kCapacity; ++i) {
        if (i < paths_.size())
            profile.setText(section_, entryName(i), paths_[i]);
        else
            profile.remove(section_, entryName(i));
    }
}

std::string RecentFileList::displayName(std::size_t index) const {
    std::string path = withoutDrive(paths_.at(index));
    std::string folder = withoutDrive(platform().files().currentDirectory());
    if (!folder.ends_with('\\'))
        folder += '\\';
    if (beginsIgnoringCase(path, folder))
        path.erase(0, folder.size());
    return displayPath(abbreviatedPath(path, kDisplayLength));
}

std::string RecentFileList::menuLabel(std::size_t index) const {
    std::string label = "&" + std::to_string((index + 1) % 10) + " ";
    for (const char c : displayName(index)) {
        label += c;
        if (c == '&')
            label += c;
    }
    return label;
}

} // namespace dyeworks

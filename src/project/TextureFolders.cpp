#include "project/TextureFolders.h"

#include "platform/Platform.h"
#include "platform/TextCase.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace dyeworks {

namespace {

std::string joined(const std::string& folder, const std::string& name) {
    return folder + (folder.ends_with('\\') ? "" : "\\") + name;
}

std::size_t hashOf(const std::vector<FileEntry>& entries) {
    std::string names;
    for (const FileEntry& entry : entries)
        names += entry.name + (entry.directory ? "\\" : "/");
    return std::hash<std::string>{}(names);
}

} // namespace

void TextureFolders::add(const std::string& folder, int depth) {
    waiting_.push_back({folder, depth, {}});
}

bool TextureFolders::step() {
    if (waiting_.empty())
        return false;
    const Folder folder = std::move(waiting_.front());
    waiting_.pop_front();
    const Files& files = platform().files();
    const std::string host = files.hostPath(folder.path);
    if (host.empty() || !seen_.insert(host).second)
        return true;
    const std::vector<FileEntry> entries = files.enumerate(joined(folder.path, "*"));
    entries_ += entries.size();
    const std::size_t hash = hashOf(entries);
    // A link to a folder above holds exactly what that does. Followed, it would have no end.
    if (std::ranges::find(folder.above, hash) != folder.above.end())
        return true;
    std::vector<std::size_t> above = folder.above;
    above.push_back(hash);
    std::vector<Folder> below;
    for (const FileEntry& entry : entries) {
        const bool palette = endsIgnoringCase(entry.name, ".tlf");
        const std::string path = joined(folder.path, entry.name);
        if (entry.directory && folder.depth > 0 && !entry.name.starts_with('.') && entries_ <= mostEntries_)
            below.push_back({path, folder.depth - 1, above});
        else if (!entry.directory && (palette || endsIgnoringCase(entry.name, ".tmf")))
            files_.push_back({path, files.hostPath(path), palette});
    }
    waiting_.insert(waiting_.begin(), below.begin(), below.end());
    return true;
}

} // namespace dyeworks

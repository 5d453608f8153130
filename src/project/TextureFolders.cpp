#include "project/TextureFolders.h"

#include "platform/Platform.h"
#include "platform/TextCase.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace dyeworks {

namespace {

/// Entries that are looked at in a step.
constexpr std::size_t kEntries = 256;

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
    if (next_ < inFolder_.size()) {
        const std::size_t end = std::min(next_ + kEntries, inFolder_.size());
        while (next_ < end)
            look(inFolder_[next_++]);
        return true;
    }
    waiting_.insert(waiting_.begin(), below_.begin(), below_.end());
    below_.clear();
    if (waiting_.empty())
        return false;
    Folder folder = std::move(waiting_.front());
    waiting_.pop_front();
    open(std::move(folder));
    return true;
}

void TextureFolders::open(Folder folder) {
    const Files& files = platform().files();
    const std::string host = files.hostPath(folder.path);
    inFolder_.clear();
    next_ = 0;
    if (host.empty() || !seen_.insert(host).second)
        return;
    std::vector<FileEntry> entries = files.enumerate(joined(folder.path, "*"));
    entries_ += entries.size();
    const std::size_t hash = hashOf(entries);
    // A link to a folder above holds exactly what that does. Followed, it would have no end.
    if (std::ranges::find(folder.above, hash) != folder.above.end())
        return;
    folder.above.push_back(hash);
    folder_ = std::move(folder);
    inFolder_ = std::move(entries);
}

void TextureFolders::look(const FileEntry& entry) {
    const bool palette = endsIgnoringCase(entry.name, ".tlf");
    const std::string path = joined(folder_.path, entry.name);
    if (entry.directory && folder_.depth > 0 && !entry.name.starts_with('.') && entries_ <= mostEntries_)
        below_.push_back({path, folder_.depth - 1, folder_.above});
    else if (!entry.directory && (palette || endsIgnoringCase(entry.name, ".tmf")))
        files_.push_back({path, platform().files().hostPath(path), palette});
}

} // namespace dyeworks

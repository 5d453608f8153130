#include "project/PathHelpers.h"

#include "platform/Platform.h"
#include "platform/ProgramPath.h"
#include "platform/TextCase.h"
#include "project/CKeyValueStore.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace dyeworks {

namespace {

constexpr char kSeparator = '\\';
constexpr std::string_view kSeparators = "\\/";
constexpr std::string_view kServer = "\\\\";
constexpr const char* kListSeparator = ";";

bool endsWithSeparator(std::string_view path) {
    return !path.empty() && isSeparator(path.back());
}

bool isDirectory(const std::string& normalForm) {
    return platform().files().isDirectory(normalForm + "\\.");
}

/// The character at the front of a text that is not empty, as it compares: the separators are one.
struct Front {
    std::u32string folded;
    std::size_t length = 0;
    bool separates = false;

    bool operator==(const Front&) const = default;
};

Front frontOf(std::string_view text) {
    if (isSeparator(text.front()))
        return {U"\\", 1, true};
    const std::size_t length = characterLength(text);
    return {foldedCase(text.substr(0, length)), length, false};
}

std::string joined(std::string folder, const std::string& name) {
    if (endsWithSeparator(folder))
        folder.pop_back();
    return folder + kSeparator + name;
}

/// Of a path, where it leads to in one step up for each separator of the base from `common` on.
std::string upwards(const std::string& base, std::size_t common) {
    std::string steps;
    for (std::size_t at = base.find(kSeparator, common); at != base.npos; at = base.find(kSeparator, at + 1))
        steps += "..\\";
    return steps;
}

/// Whether both lead to the same place. The host may have two whose names differ in their case only.
bool isSamePlace(const std::string& a, const std::string& b) {
    const Files& files = platform().files();
    const std::string fullA = files.fullPath(a);
    const std::string fullB = files.fullPath(b);
    return fullA == fullB ||
           (equalIgnoringCase(fullA, fullB) && files.hostPath(fullA) == files.hostPath(fullB));
}

} // namespace

bool PathIsFile(const std::string& path) {
    const Files& files = platform().files();
    return files.exists(path) && !files.isDirectory(path);
}

std::string firstFolder(const std::string& directories) {
    std::vector<std::string> folders;
    return SplitFields(directories, kListSeparator, folders) == 0 ? std::string() : folders.front();
}

void PathSwapSeparators(std::string& path) {
    std::ranges::replace(path, '/', kSeparator);
}

bool PathNormalizeDir(std::string& path) {
    std::string normal = path;
    PathSwapSeparators(normal);
    if (normal.size() > 1 && normal.ends_with("\\."))
        normal.pop_back();
    if (normal.size() > 1 && normal.back() == kSeparator) {
        const char before = normal[normal.size() - 2];
        if (before != ':' && before != kSeparator)
            normal.pop_back();
    }
    const bool empty = normal.empty();
    if (empty)
        normal.assign(1, '.');
    if (empty ? platform().files().isDirectory(normal) : isDirectory(normal)) {
        path = normal;
        return true;
    }
    // A root may be asked for without the separator that it ends with: two at the front name a server.
    if (normal.back() != kSeparator)
        return false;
    normal.pop_back();
    if (endsWithSeparator(normal) || !isDirectory(normal))
        return false;
    path = normal.empty() ? std::string(1, kSeparator) : normal;
    return true;
}

bool PathTitle(std::string& title, const std::string& path) {
    title = path;
    if (const std::size_t slash = title.rfind(kSeparator); slash != title.npos && slash > 0)
        title.erase(0, slash + 1);
    if (const std::size_t stop = title.rfind('.'); stop != title.npos && stop > 0)
        title.erase(stop);
    if (title.empty())
        return false;
    if (title.front() == '*')
        title.erase(0, 1);
    return true;
}

bool PathSplitFolder(const std::string& path, std::string& folder, std::string& name) {
    std::string full = path;
    PathAbsolute(full);
    std::size_t slash = full.rfind(kSeparator);
    if (slash == full.npos)
        slash = full.rfind('/');
    if (slash == full.npos) {
        folder = full;
        name.clear();
        return PathNormalizeDir(folder);
    }
    name = full.substr(slash + 1);
    folder = full.substr(0, std::max<std::size_t>(slash, 1));
    return true;
}

void PathSplitRoot(const std::string& path, std::string& server, std::string& drive, std::string& rest) {
    server.clear();
    drive.clear();
    rest = path;
    if (path.size() <= 1)
        return;
    if (path[1] == ':') {
        drive = path.substr(0, 2);
        rest = path.substr(2);
    } else if (path.starts_with(kServer)) {
        const std::size_t end = std::min(path.find(kSeparator, 2), path.size());
        server = path.substr(0, end);
        rest = path.substr(end);
    }
}

bool PathAbsolute(std::string& path, const std::string& base) {
    std::string server;
    std::string drive;
    std::string rest;
    PathSplitRoot(path, server, drive, rest);
    if (!base.empty() && !rest.empty() && !isSeparator(rest.front())) {
        path = joined(base, path);
        return true;
    }
    std::string full = platform().files().fullPath(path);
    if (full.empty())
        return false;
    path = std::move(full);
    return true;
}

bool PathSearch(std::string& fullPath, const std::string& directories, const std::string& name,
                bool mustExist) {
    const Files& files = platform().files();
    if (isRooted(name)) {
        if (!PathIsFile(name) && (mustExist || files.exists(name)))
            return false;
        fullPath = files.fullPath(name);
        return true;
    }
    std::vector<std::string> folders;
    SplitFields(directories, kListSeparator, folders);
    for (std::string& folder : folders) {
        if (!PathNormalizeDir(folder))
            continue;
        const std::string candidate = files.fullPath(joined(folder, name));
        const bool exists = files.exists(candidate);
        if (exists ? files.isDirectory(candidate) : mustExist)
            continue;
        fullPath = candidate;
        return true;
    }
    return false;
}

bool PathRelativeTo(std::string& relative, const std::string& base, const std::string& path) {
    if (path.find_first_of(kSeparators) == path.npos) {
        relative = path;
        return true;
    }
    std::string full = path;
    std::string folder = base;
    PathAbsolute(full);
    PathAbsolute(folder);
    if (folder.size() > 1 && folder.back() != kSeparator)
        folder += kSeparator;
    const std::int32_t common = PathCommonLength(full, folder, static_cast<std::int32_t>(folder.size()));
    // The separator that both begin with is no folder in common when it is half of a server's two.
    if (common < 0 || full.starts_with(kServer) != folder.starts_with(kServer)) {
        relative = full;
        return true;
    }
    auto at = static_cast<std::size_t>(common);
    if (at == 0) {
        relative = full.substr(std::min(folder.size(), full.size()));
        return true;
    }
    const std::string rest = full.substr(at);
    // The path is the base or a folder around it: the separator behind it leads nowhere.
    if (rest.empty() && folder[at] == kSeparator)
        ++at;
    relative = upwards(folder, at) + rest;
    return true;
}

std::int32_t PathCommonLength(const std::string& a, const std::string& b, std::int32_t limit) {
    const auto end = static_cast<std::size_t>(std::max(limit, 0));
    std::size_t at = 0;
    std::int32_t behindSeparator = -1;
    const auto result = [](std::size_t position) { return static_cast<std::int32_t>(position); };
    while (at < a.size() && at < b.size()) {
        if (at >= end)
            return 0;
        const Front front = frontOf(std::string_view(a).substr(at));
        if (front != frontOf(std::string_view(b).substr(at)))
            break;
        at += front.length;
        if (front.separates)
            behindSeparator = result(at);
    }
    if (at >= end || (at == a.size() && at == b.size()))
        return 0;
    if (at < a.size())
        return at == b.size() && isSeparator(a[at]) ? result(at) : behindSeparator;
    return isSeparator(b[at]) ? result(at) : behindSeparator;
}

std::string pathFrom(const std::string& base, const std::string& path) {
    std::string relative;
    PathRelativeTo(relative, base, path);
    // As the name of a file is read, and as that of a folder: they differ on what looks like a drive.
    const std::string file = isRooted(relative) ? relative : joined(base, relative);
    std::string folder = relative;
    const bool leadsBack = isSamePlace(file, path) &&
                           (relative.empty() || (PathAbsolute(folder, base) && isSamePlace(folder, path)));
    return leadsBack ? relative : platform().files().fullPath(path);
}

std::string fileNameIn(const std::string& directories, const std::string& name) {
    // A mere name is one in the folders already.
    if (name.find_first_of(kSeparators) == name.npos)
        return name;
    std::vector<std::string> folders;
    SplitFields(directories, kListSeparator, folders);
    std::string path = name;
    if (folders.size() <= 1) {
        PathAbsolute(path, directories);
        return pathFrom(directories, path);
    }
    if (!isRooted(name))
        return name;
    PathAbsolute(path);
    for (const std::string& folder : folders) {
        std::string relative = pathFrom(folder, path);
        if (isRooted(relative) || relative.starts_with(".."))
            continue;
        // Another file of this name may be in a folder before this one.
        std::string found;
        if (!PathSearch(found, directories, relative, true) || isSamePlace(found, path))
            return relative;
    }
    return path;
}

} // namespace dyeworks

#include "platform/fake/ScratchFolder.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <stdlib.h>
#include <system_error>

namespace dyeworks {

namespace fs = std::filesystem;

namespace {

/// Folders that a test took its rights from would keep what is in them.
void openUp(const fs::path& folder) {
    std::error_code error;
    fs::permissions(folder, fs::perms::owner_all, fs::perm_options::add, error);
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error)) {
        if (entry->is_directory(error) && !entry->is_symlink(error))
            openUp(entry->path());
    }
}

} // namespace

ScratchFolder::ScratchFolder() {
    std::error_code error;
    directoryBefore_ = fs::current_path(error).string();
    // Without links on the way, so that a host path compares equal to one that the host gives back.
    const fs::path temporary = fs::canonical(fs::temp_directory_path(error), error);
    path_ = (temporary / "dyeworks-XXXXXX").string();
    if (error || ::mkdtemp(path_.data()) == nullptr) {
        std::perror("scratch folder");
        std::abort();
    }
}

ScratchFolder::~ScratchFolder() {
    std::error_code error;
    fs::current_path(directoryBefore_, error);
    openUp(path_);
    fs::remove_all(path_, error);
}

std::string ScratchFolder::subfolder(const std::string& name) const {
    std::string folder = path_ + "/" + name;
    std::error_code error;
    fs::create_directories(folder, error);
    return folder;
}

} // namespace dyeworks

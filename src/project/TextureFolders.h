#pragma once

#include "platform/Files.h"

#include <cstddef>
#include <deque>
#include <string>
#include <unordered_set>
#include <vector>

namespace dyeworks {

/// Finds the files of images and palettes below some folders, one folder after the other. Folders whose names
/// begin with a full stop are left out, and so is what leads back to a folder above.
class TextureFolders {
public:
    static constexpr int kDeepest = 64;

    struct File {
        std::string path; ///< Below the folder that was added, as that was written.
        std::string host; ///< The same in the host's form, which is one for each file.
        bool palette = false;
    };

    /// Adds a folder and those below it down to `depth`; 0 is the folder alone. What was looked through
    /// already is not looked through again.
    void add(const std::string& folder, int depth = kDeepest);
    /// Of all folders together. What lies beyond is not found.
    void setMostEntries(std::size_t entries) noexcept { mostEntries_ = entries; }

    /// Looks into the next folder, or at some more of its entries. False when there was none.
    bool step();
    /// Folder by folder, in the order of their names.
    [[nodiscard]] const std::vector<File>& files() const noexcept { return files_; }

private:
    struct Folder {
        std::string path;
        int depth = 0;
        std::vector<std::size_t> above; ///< What the folders above it hold, as hashes.
    };

    void open(Folder folder);
    void look(const FileEntry& entry);

    std::deque<Folder> waiting_;
    Folder folder_; ///< Whose entries are looked at.
    std::vector<FileEntry> inFolder_;
    std::size_t next_ = 0;                 ///< Of them.
    std::vector<Folder> below_;            ///< Those that were among them.
    std::unordered_set<std::string> seen_; ///< Folders, in the host's form.
    std::vector<File> files_;
    std::size_t entries_ = 0;
    std::size_t mostEntries_ = 1'000'000;
};

} // namespace dyeworks

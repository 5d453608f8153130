#pragma once

#include "cli/BuildStamp.h"
#include "platform/Files.h"
#include "platform/Result.h"
#include "project/CTPFFile.h"

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>

namespace dyeworks {

/// A project by a name on the command line.
[[nodiscard]] Result<std::unique_ptr<CTPFFile>, FileError> readProject(const std::string& name);

/// A file that a project names.
struct FoundFile {
    std::string path;                ///< Of the host; where it would be when there is none.
    std::optional<BuildStamp> stamp; ///< Nothing when there is none.
};

/// Finds the files of a project's pictures, as opening them does. Most stand where they are said to; only for
/// others is the whole way gone.
class PictureFiles {
public:
    /// The project must outlive this.
    explicit PictureFiles(const CTPFFile& project);

    [[nodiscard]] FoundFile image(const std::string& name) const { return find(images_, name); }
    /// Many pictures share one, so that each is looked for once.
    [[nodiscard]] const FoundFile& palette(const std::string& name);

private:
    struct Folder {
        std::string directories;
        std::string host; ///< Of a single one; else empty.
    };
    [[nodiscard]] static Folder folderOf(const std::string& directories);
    [[nodiscard]] static FoundFile find(const Folder& folder, const std::string& name);

    Folder images_;
    Folder palettes_;
    std::unordered_map<std::string, FoundFile> found_; ///< Palettes.
};

} // namespace dyeworks

#pragma once

#include "platform/Files.h"
#include "project/RuleCheck.h"

#include <cstdint>
#include <optional>
#include <string>

namespace dyeworks {

/// What a project can have wrong. Behind each: what else the finding tells.
enum class ProjectProblem {
    FolderMissing,  ///< No such folder of images or palettes.
    FolderOutside,  ///< Neither the project's own folder nor below it.
    NoFile,         ///< The picture names none.
    MissingFile,    ///< Nowhere to be found.
    MovedFile,      ///< `other`: a file of that name which no picture names.
    UnreadableFile, ///< `error`; none where the file can be read and holds something else.
    FileOutside,    ///< Outside the project and its folders.
    CaseOfName,     ///< `other`: the name as it stands on the disk.
    PaletteNumber,  ///< `first`: the number; `second`: how many banks there are.
    TooFewEntries,  ///< Of an 8-bit image. `first`: its highest index; `second`: the palette's entries.
    BrokenRule,     ///< `rule`: the first place of it; `first`: in how many places.
    SamePicture,    ///< `other`: an earlier picture of the same files and palette number.
    PictureTwins,   ///< `other`: an earlier picture whose name differs only in case.
    EqualFile,      ///< `other`: a file of the same bytes.
    FileTwins,      ///< `other`: a file in the same folder whose name differs only in case.
    UnusedFile,     ///< In a folder of images or palettes, and no picture names it.
};

enum class Severity {
    Error,   ///< Something cannot be shown.
    Warning, ///< Something is shown, but not as it may be meant, or not everywhere.
    Note,
};

[[nodiscard]] constexpr Severity severityOf(ProjectProblem problem) {
    switch (problem) {
    case ProjectProblem::FolderMissing:
    case ProjectProblem::NoFile:
    case ProjectProblem::MissingFile:
    case ProjectProblem::MovedFile:
    case ProjectProblem::UnreadableFile:
        return Severity::Error;
    case ProjectProblem::SamePicture:
    case ProjectProblem::EqualFile:
    case ProjectProblem::UnusedFile:
        return Severity::Note;
    default:
        return Severity::Warning;
    }
}

/// Something that a check of a project has found.
struct ProjectFinding {
    ProjectProblem problem = ProjectProblem::MissingFile;
    std::string picture{}; ///< Its name; empty for a folder, and for a file that no picture names.
    /// Full path of the file or folder that it is about. A missing file's is where it is looked for first.
    std::string file{};
    bool ofPalette = false; ///< The file is a palette, not an image.
    std::string other{};
    std::int64_t first = 0;
    std::int64_t second = 0;
    std::optional<FileError> error{};
    std::optional<RuleFinding> rule{};

    bool operator==(const ProjectFinding&) const = default;
};

} // namespace dyeworks

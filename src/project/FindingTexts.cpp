#include "project/FindingTexts.h"

#include "framework/PathText.h"
#include "platform/Files.h"
#include "platform/StringId.h"
#include "platform/Text.h"
#include "project/CTPFFile.h"

namespace dyeworks {

namespace {

std::string nameOf(const std::string& path) {
    return std::string(fileNameOf(path));
}

/// Where the file or folder lies.
std::string folderText(const ProjectFinding& finding) {
    const std::size_t end = finding.file.size() - fileNameOf(finding.file).size();
    return displayPath(finding.file.substr(0, end > 1 ? end - 1 : end));
}

bool isOfFolder(const ProjectFinding& finding) {
    return finding.picture.empty() && (finding.problem == ProjectProblem::FolderMissing ||
                                       finding.problem == ProjectProblem::FolderOutside ||
                                       finding.problem == ProjectProblem::CaseOfName);
}

StringId checkOf(ProjectProblem problem) {
    switch (problem) {
    case ProjectProblem::FolderMissing:
        return StringId::ProjectFolderMissing;
    case ProjectProblem::FolderOutside:
    case ProjectProblem::FileOutside:
        return StringId::ProjectFolderOutside;
    case ProjectProblem::NoFile:
    case ProjectProblem::MissingFile:
        return StringId::ProjectFileMissing;
    case ProjectProblem::MovedFile:
        return StringId::ProjectFileMoved;
    case ProjectProblem::UnreadableFile:
        return StringId::ProjectFileUnreadable;
    case ProjectProblem::CaseOfName:
    case ProjectProblem::PictureTwins:
    case ProjectProblem::FileTwins:
        return StringId::ProjectCase;
    case ProjectProblem::PaletteNumber:
        return StringId::ProjectPaletteNumber;
    case ProjectProblem::TooFewEntries:
        return StringId::ProjectDepth;
    case ProjectProblem::SamePicture:
        return StringId::ProjectSamePicture;
    case ProjectProblem::EqualFile:
        return StringId::ProjectEqualFile;
    case ProjectProblem::UnusedFile:
    case ProjectProblem::BrokenRule:
        break;
    }
    return StringId::ProjectUnused;
}

std::string reasonOf(const ProjectFinding& finding, const Numeral& numeral) {
    const std::string file = displayPath(finding.file);
    switch (finding.problem) {
    case ProjectProblem::FolderMissing:
        return text(StringId::ProjectNoFolder);
    case ProjectProblem::FolderOutside:
        return text(StringId::ProjectLiesOutside);
    case ProjectProblem::NoFile:
        return text(finding.ofPalette ? StringId::ProjectNoPalette : StringId::ProjectNoImage);
    case ProjectProblem::MissingFile:
        return text(StringId::ProjectNotThere, {file});
    case ProjectProblem::MovedFile:
        return text(StringId::ProjectFoundAt, {file, displayPath(finding.other)});
    case ProjectProblem::UnreadableFile:
        if (finding.error)
            return text(StringId::ProjectUnreadableBecause, {file, describe(*finding.error)});
        return text(finding.ofPalette ? StringId::ProjectHoldsNoPalette : StringId::ProjectHoldsNoImage,
                    {file});
    case ProjectProblem::FileOutside:
        return text(StringId::ProjectFileLiesOutside, {file});
    case ProjectProblem::CaseOfName:
        return text(StringId::ProjectSpelledOtherwise, {displayPath(finding.other)});
    case ProjectProblem::PaletteNumber:
        return text(StringId::ProjectNumberBeyond, {numeral(finding.first), numeral(finding.second - 1)});
    case ProjectProblem::TooFewEntries:
        return text(StringId::ProjectTooFewEntries, {numeral(finding.first), numeral(finding.second)});
    case ProjectProblem::SamePicture:
        return text(StringId::ProjectSameAs, {finding.other});
    case ProjectProblem::PictureTwins:
        return text(StringId::ProjectTwinOf, {finding.picture, finding.other});
    case ProjectProblem::EqualFile:
        return text(StringId::ProjectEqualTo, {nameOf(finding.file), displayPath(finding.other)});
    case ProjectProblem::FileTwins:
        return text(StringId::ProjectTwinOf, {nameOf(finding.file), nameOf(finding.other)});
    case ProjectProblem::UnusedFile:
    case ProjectProblem::BrokenRule:
        break;
    }
    return text(StringId::ProjectNotNamed);
}

} // namespace

FindingWords wordsOf(const ProjectFinding& finding, const CTPFFile& project, const Numeral& numeral) {
    FindingWords words{nameOf(finding.file), {}, text(StringId::ProjectAtPicture, {finding.picture}), {}};
    PictureEntry entry;
    if (isOfFolder(finding)) {
        words.source = project.projectName;
        words.place = displayPath(finding.file);
    } else if (finding.picture.empty()) {
        words.place = folderText(finding);
    } else if (project.GetPicture(finding.picture, entry) && !entry.tmfFile.empty()) {
        words.source = nameOf(entry.tmfFile);
    } else if (words.source.empty()) {
        words.source = finding.picture;
    }
    if (!finding.rule) {
        words.check = text(checkOf(finding.problem));
        words.reason = reasonOf(finding, numeral);
        return words;
    }
    words.check = ruleName(finding.rule->rule);
    words.place += ", " + placeText(*finding.rule, numeral);
    words.reason = reasonText(*finding.rule, numeral);
    if (finding.first > 1)
        words.reason = text(StringId::ProjectRuleAndMore, {words.reason, numeral(finding.first - 1)});
    return words;
}

} // namespace dyeworks

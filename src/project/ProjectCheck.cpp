#include "project/ProjectCheck.h"

#include "framework/PathText.h"
#include "platform/Platform.h"
#include "platform/TextCase.h"
#include "project/CKeyValueStore.h"
#include "project/CTPFFile.h"
#include "project/NamedFile.h"

#include <algorithm>
#include <utility>

namespace dyeworks {

namespace {

// Where findings stand that belong to no picture: before and behind those of the pictures.
constexpr std::size_t kOfFolder = 0;
constexpr std::size_t kOfFile = static_cast<std::size_t>(-1);

// What is looked through beside the project for files that have gone: a few folders and not a whole disk.
constexpr int kDepthBeside = 3;
constexpr std::size_t kEntriesBeside = 20'000;

std::vector<std::string> foldersOf(const std::string& directories) {
    std::vector<std::string> folders;
    SplitFields(directories, ";", folders);
    for (std::string& folder : folders)
        folder = platform().files().fullPath(folder);
    return folders;
}

std::string folderAbove(const std::string& path) {
    const std::string above = platform().files().fullPath(path + "\\..");
    return above == path ? std::string() : above;
}

/// How many characters the two have in common at their ends, case disregarded.
std::size_t commonEnd(std::string_view a, std::string_view b) {
    const std::u32string foldedA = foldedCase(a);
    const std::u32string foldedB = foldedCase(b);
    const auto differ = std::mismatch(foldedA.rbegin(), foldedA.rend(), foldedB.rbegin(), foldedB.rend());
    return static_cast<std::size_t>(differ.first - foldedA.rbegin());
}

} // namespace

ProjectCheck::ProjectCheck(const CTPFFile& project, const TextureRules& rules)
    : tpfDir_(platform().files().fullPath(project.tpfDir))
    , imageFolders_(foldersOf(project.tmfDir))
    , paletteFolders_(foldersOf(project.tlfDir))
    , imageDirectories_(project.tmfDir)
    , paletteDirectories_(project.tlfDir)
    , rules_(rules) {
    for (const std::string& name : project.order) {
        PictureEntry entry;
        if (project.GetPicture(name, entry))
            pictures_.push_back({name, entry});
    }
    for (const auto* folders : {&imageFolders_, &paletteFolders_}) {
        for (const std::string& folder : *folders)
            inside_.add(folder);
    }
    inside_.add(tpfDir_);
    beside_.setMostEntries(kEntriesBeside);
}

bool ProjectCheck::step() {
    switch (phase_) {
    case Phase::Folders:
        checkFolders();
        phase_ = Phase::Search;
        break;
    case Phase::Search:
        if (!inside_.step())
            phase_ = Phase::Pictures;
        break;
    case Phase::Pictures:
        if (open_.check != nullptr) {
            if (!open_.check->step()) {
                report(next_ - 1, open_.path, open_.check->report());
                open_ = {};
            }
        } else if (next_ < pictures_.size()) {
            checkPicture(next_++);
        } else {
            searchBeside();
            phase_ = Phase::SearchBeside;
        }
        break;
    case Phase::SearchBeside:
        if (!beside_.step())
            phase_ = Phase::Missing;
        break;
    case Phase::Missing:
        settleMissing();
        startEqualFiles();
        phase_ = Phase::EqualFiles;
        break;
    case Phase::EqualFiles:
        if (!equal_->step()) {
            addEqualFiles();
            phase_ = Phase::Rest;
        }
        break;
    case Phase::Rest:
        checkRest();
        finish();
        phase_ = Phase::Done;
        break;
    case Phase::Done:
        return false;
    }
    return true;
}

int ProjectCheck::thousandths() const {
    // Nobody knows how many folders there are.
    constexpr int kPictures = 100;
    constexpr int kEqualFiles = 600;
    if (phase_ < Phase::Pictures)
        return 0;
    if (phase_ == Phase::Pictures)
        return kPictures + static_cast<int>((kEqualFiles - kPictures) * next_ / (pictures_.size() + 1));
    if (phase_ < Phase::EqualFiles)
        return kEqualFiles;
    return phase_ > Phase::EqualFiles ? 1000
                                      : kEqualFiles + (1000 - kEqualFiles) * equal_->thousandths() / 1000;
}

void ProjectCheck::add(std::size_t place, ProjectFinding finding) {
    found_.push_back({place, std::move(finding)});
}

void ProjectCheck::addToPicture(std::size_t index, ProjectFinding finding) {
    finding.picture = nameOf(index);
    add(index + 1, std::move(finding));
}

const std::string& ProjectCheck::nameOf(std::size_t picture) const {
    return pictures_[picture].name;
}

void ProjectCheck::checkFolders() {
    for (const std::string& folder : imageFolders_)
        checkFolder(folder, false);
    for (const std::string& folder : paletteFolders_) {
        if (std::ranges::find(imageFolders_, folder) == imageFolders_.end())
            checkFolder(folder, true);
    }
}

void ProjectCheck::checkFolder(const std::string& folder, bool ofPalettes) {
    const bool exists = platform().files().isDirectory(folder);
    const auto addOne = [&](ProjectProblem problem, const std::string& other) {
        add(kOfFolder, {.problem = problem, .file = folder, .ofPalette = ofPalettes, .other = other});
    };
    if (!exists)
        addOne(ProjectProblem::FolderMissing, {});
    else if (const auto spelling = otherSpelling(folder, folder))
        addOne(ProjectProblem::CaseOfName, *spelling);
    if (!isInside(tpfDir_, folder))
        addOne(ProjectProblem::FolderOutside, {});
}

/// Where a folder may have gone to: beside where it was, or beside the project.
void ProjectCheck::searchBeside() {
    if (missing_.empty())
        return;
    beside_.add(folderAbove(tpfDir_), kDepthBeside);
    for (const auto* folders : {&imageFolders_, &paletteFolders_}) {
        for (const std::string& folder : *folders) {
            if (!platform().files().isDirectory(folder))
                beside_.add(folderAbove(folder), kDepthBeside);
        }
    }
}

void ProjectCheck::settleMissing() {
    std::unordered_map<std::u32string, std::vector<const std::string*>> byName;
    for (const Missing& each : missing_)
        byName.try_emplace(foldedCase(fileNameOf(each.file)));
    std::unordered_set<std::string> seen;
    for (const TextureFolders* found : {&inside_, &beside_}) {
        for (const TextureFolders::File& file : found->files()) {
            const auto wanted = byName.find(foldedCase(fileNameOf(file.path)));
            if (wanted == byName.end())
                continue;
            if (!namedBy_.contains(file.host) && seen.insert(file.host).second)
                wanted->second.push_back(&file.path);
        }
    }
    for (const Missing& each : missing_) {
        const std::string* best = nullptr;
        for (const std::string* candidate : byName.at(foldedCase(fileNameOf(each.file)))) {
            if (best == nullptr || commonEnd(*candidate, each.file) > commonEnd(*best, each.file))
                best = candidate;
        }
        if (best != nullptr)
            moved_.insert(platform().files().hostPath(*best));
        addToPicture(each.picture,
                     {.problem = best == nullptr ? ProjectProblem::MissingFile : ProjectProblem::MovedFile,
                      .file = each.file,
                      .ofPalette = each.palette,
                      .other = best == nullptr ? std::string() : *best});
    }
}

bool ProjectCheck::isInFolders(const TextureFolders::File& file) const {
    return isInsideAny(file.palette ? paletteFolders_ : imageFolders_, file.path);
}

/// Files that pictures name come first, so that a copy is told to be one of them.
void ProjectCheck::startEqualFiles() {
    std::vector<std::string> paths = named_;
    for (const TextureFolders::File& file : inside_.files()) {
        if (isInFolders(file) && !namedBy_.contains(file.host))
            paths.push_back(file.path);
    }
    equal_.emplace(std::move(paths));
}

void ProjectCheck::addEqualFiles() {
    for (const EqualFiles::Pair& pair : equal_->pairs()) {
        const std::string& path = equal_->paths()[pair.file];
        const auto named = namedBy_.find(platform().files().hostPath(path));
        ProjectFinding finding{.problem = ProjectProblem::EqualFile,
                               .file = path,
                               .ofPalette = endsIgnoringCase(path, ".tlf"),
                               .other = equal_->paths()[pair.first]};
        if (named != namedBy_.end())
            addToPicture(named->second, std::move(finding));
        else
            add(kOfFile, std::move(finding));
    }
}

void ProjectCheck::checkRest() {
    std::unordered_map<std::u32string, const std::string*> folded;
    for (const TextureFolders::File& file : inside_.files()) {
        if (!isInFolders(file))
            continue;
        if (!namedBy_.contains(file.host) && !moved_.contains(file.host))
            add(kOfFile,
                {.problem = ProjectProblem::UnusedFile, .file = file.path, .ofPalette = file.palette});
        const auto [twin, isNew] = folded.try_emplace(foldedCase(file.path), &file.path);
        if (!isNew)
            add(kOfFile, {.problem = ProjectProblem::FileTwins,
                          .file = file.path,
                          .ofPalette = file.palette,
                          .other = *twin->second});
    }
}

void ProjectCheck::finish() {
    std::ranges::stable_sort(found_, {}, &Found::place);
    for (Found& found : found_)
        findings_.push_back(std::move(found.finding));
    found_.clear();
}

std::optional<std::vector<ProjectFinding>> checkProject(const CTPFFile& project, const TextureRules& rules,
                                                        const std::function<bool(int thousandths)>& goesOn) {
    ProjectCheck check(project, rules);
    while (check.step()) {
        if (goesOn && !goesOn(check.thousandths()))
            return std::nullopt;
    }
    return check.findings();
}

} // namespace dyeworks

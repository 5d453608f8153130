#include "project/CTPFDocument.h"

#include "framework/DocumentTemplate.h"
#include "framework/PathText.h"
#include "platform/AskForFile.h"
#include "platform/FileMessages.h"
#include "platform/Platform.h"
#include "platform/ProgramPath.h"
#include "platform/StringId.h"
#include "platform/TextCase.h"
#include "project/PathHelpers.h"

#include <algorithm>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

namespace dyeworks {

namespace {

constexpr const char* kExtension = ".tpf";
constexpr const char* kFilter = "Project Files (*.tpf)|*.tpf||";
constexpr const char* kModifiedMark = " *";

/// Whether the file can hold the folders of a project in this folder; if not, the user is told.
bool foldersAreHeld(const ProjectSettings& settings) {
    for (const std::string* folders : {&settings.imageDirectories, &settings.paletteDirectories}) {
        if (!CTPFFile::holdsFolders(settings.projectDirectory, *folders)) {
            applicationMessage(text(StringId::ProjectCannotHoldFolder, {displayPath(*folders)}),
                               MessageIcon::Stop);
            return false;
        }
    }
    return true;
}

/// Folders without a root are inside the project's own.
ProjectSettings absolute(ProjectSettings settings) {
    if (settings.projectDirectory.empty())
        settings.projectDirectory = platform().files().currentDirectory();
    PathAbsolute(settings.projectDirectory);
    for (std::string* folder : {&settings.imageDirectories, &settings.paletteDirectories}) {
        if (!folder->empty())
            PathAbsolute(*folder, settings.projectDirectory);
    }
    return settings;
}

/// What a file of a picture is called without its folder: "d:x.tmf" is "x.tmf" on a drive. Asks no disk.
std::string nameWithoutFolder(const std::string& file) {
    return std::string(fileNameOf(isRooted(file) ? platform().files().fullPath(file) : file));
}

} // namespace

CTPFDocument::CTPFDocument(ProjectHost& host, DocumentTemplate* documentTemplate)
    : CDocument(documentTemplate)
    , host_(host) {
    onRange(ID_EXPORT_FIRST, ID_EXPORT_LAST, &CTPFDocument::OnExport, &CTPFDocument::OnUpdateExport);
}

/// Only one project is open at a time.
bool CTPFDocument::closeOther() {
    if (host_.projectDocument() == nullptr)
        return true;
    return applicationMessage(text(StringId::ProjectAlreadyOpened), MessageIcon::Warning,
                              MessageButtons::OkCancel) == MessageAnswer::Ok &&
           host_.CloseProject();
}

bool CTPFDocument::onNewDocument() {
    if (!closeOther() || !CDocument::onNewDocument())
        return false;
    ProjectSettings settings{title(), platform().files().currentDirectory(), {}, {}};
    do {
        if (!host_.askNewProject(settings))
            return false;
    } while (!create(settings));
    becomeOpen();
    return true;
}

/// False when the user is to be asked again.
bool CTPFDocument::create(const ProjectSettings& entered) {
    const ProjectSettings settings = absolute(entered);
    if (!settings.name.empty()) {
        std::string path = settings.name;
        if (!endsIgnoringCase(path, kExtension))
            path += kExtension;
        PathAbsolute(path, settings.projectDirectory);
        path = platform().files().fullPath(path);
        if (platform().files().exists(path) &&
            applicationMessage(text(StringId::ProjectFileExists, {displayPath(path)}), MessageIcon::Warning,
                               MessageButtons::YesNo) != MessageAnswer::Yes)
            return false;
        if (!foldersAreHeld(settings))
            return false;
        if (projectFile_.Create(path, settings.projectDirectory, settings.imageDirectories,
                                settings.paletteDirectories)) {
            if (write(path)) {
                setPathName(path);
                return true;
            }
            projectFile_.Clear();
        }
    }
    applicationMessage(text(StringId::IncorrectParameter), MessageIcon::Stop);
    return false;
}

void CTPFDocument::becomeOpen() {
    host_.setProjectDocument(this);
    host_.projectPlugIns().TPF_OnNew(plugInHandles_);
}

bool CTPFDocument::onOpenDocument(const std::string& path) {
    if (!closeOther())
        return false;
    std::optional<FileError> why;
    if (!CDocument::onOpenDocument(path) || !projectFile_.Read(path, &why)) {
        if (why)
            tellNotOpened(path, *why);
        else
            applicationMessage(text(StringId::CannotReadFile, {displayPath(path)}));
        return false;
    }
    setPathName(path);
    becomeOpen();
    host_.projectPlugIns().TPF_OnUpdate(plugInHandles_);
    return true;
}

bool CTPFDocument::Recover(const std::string& path, std::span<const std::byte> contents) {
    if (!closeOther())
        return false;
    projectFile_.Restore(path, contents);
    setPathName(path);
    becomeOpen();
    setModified(true);
    host_.projectPlugIns().TPF_OnUpdate(plugInHandles_);
    return true;
}

bool CTPFDocument::reloadFile() {
    if (isModified() && applicationMessage(text(StringId::RevertQuestion, {displayName()}),
                                           MessageButtons::YesNo) != MessageAnswer::Yes)
        return false;
    KnownFile now(pathName());
    CTPFFile read;
    std::optional<FileError> why;
    if (!read.Read(pathName(), &why)) {
        applicationMessage(why ? text(StringId::CannotOpenFile, {displayPath(pathName()), describe(*why)})
                               : text(StringId::CannotReadFile, {displayPath(pathName())}));
        return false;
    }
    EndPlugIns();
    projectFile_ = std::move(read);
    beforeCheck_.reset();
    isReverted_ = false;
    setFile(std::move(now));
    setModified(false);
    RestartPlugIns();
    host_.ProjectChanged();
    return true;
}

bool CTPFDocument::onSaveDocument(const std::string& path) {
    std::string target = path;
    if (target.empty()) {
        const auto chosen =
            askForFileToSave({.filter = kFilter, .defaultExtension = kExtension, .initialName = pathName()});
        if (!chosen)
            return false;
        target = *chosen;
    }
    if (!file().mayBeReplaced(target))
        return false;
    std::optional<FileError> why;
    if (!write(target, &why)) {
        applicationWarning(text(StringId::CannotSaveProject, {displayPath(target)}),
                           why ? describe(*why) + ' ' + adviceOnSaving(*why) : text(StringId::WorkStaysOpen));
        return false;
    }
    if (path.empty())
        setPathName(target);
    return true;
}

bool CTPFDocument::write(const std::string& path, std::optional<FileError>* why) {
    if (!projectFile_.Write(path, why))
        return false;
    setFile(KnownFile(path));
    setModified(false);
    updateAllViews(nullptr, kHintSelection);
    return true;
}

bool CTPFDocument::mayClose() {
    // Questions and plug-ins let events through, another wish to close among them.
    if (asksToClose_)
        return false;
    asksToClose_ = true;
    bool agreed = saveModified();
    if (agreed) {
        std::uint64_t answered = changes();
        // Plug-ins may change the project when they hear of its end, or of its pictures'.
        const auto isAnswered = [&] {
            EndPlugIns();
            const bool settled = changes() == answered || saveModified();
            answered = changes();
            return settled;
        };
        agreed = host_.ClosePictureDocuments(openPictureFiles(), isAnswered) && isAnswered();
        if (!agreed && plugInHandles_.empty())
            RestartPlugIns();
    }
    asksToClose_ = false;
    return agreed;
}

void CTPFDocument::onCloseDocument() {
    EndPlugIns();
    if (host_.projectDocument() == this)
        host_.setProjectDocument(nullptr);
    CDocument::onCloseDocument();
}

void CTPFDocument::EndPlugIns() {
    const PlugInHandles ended = std::exchange(plugInHandles_, {});
    if (!ended.empty())
        host_.projectPlugIns().TPF_OnDelete(ended);
}

void CTPFDocument::RestartPlugIns() {
    host_.projectPlugIns().TPF_OnNew(plugInHandles_);
    host_.projectPlugIns().TPF_OnUpdate(plugInHandles_);
    updateAllViews(nullptr, kHintPlugIns);
}

/// Those that may be open, in the order of the pictures. To look for the files of thousands of pictures would
/// take a while; few are called like one that is open.
std::vector<std::string> CTPFDocument::openPictureFiles() const {
    std::unordered_set<std::u32string> openNames;
    for (const std::string& path : host_.openFiles())
        openNames.insert(foldedCase(fileNameOf(path)));
    std::vector<std::string> paths;
    const auto add = [&](const std::string& directories, const std::string& name) {
        if (!openNames.contains(foldedCase(nameWithoutFolder(name))))
            return;
        if (std::string path = findFile(directories, name); !path.empty())
            paths.push_back(std::move(path));
    };
    for (const std::string& name : projectFile_.order) {
        PictureEntry entry;
        if (openNames.empty() || !projectFile_.GetPicture(name, entry))
            continue;
        add(projectFile_.tmfDir, entry.tmfFile);
        add(projectFile_.tlfDir, entry.tlfFile);
    }
    return paths;
}

CTPFDocument::PictureFiles CTPFDocument::FilesOf(const std::string& name) const {
    PictureEntry entry;
    if (!projectFile_.GetPicture(name, entry))
        return {};
    return {findFile(projectFile_.tmfDir, entry.tmfFile), findFile(projectFile_.tlfDir, entry.tlfFile)};
}

/// Empty when there is no such file.
std::string CTPFDocument::findFile(const std::string& directories, const std::string& name) const {
    std::string path;
    static_cast<void>(PathSearch(path, directories, name, true));
    return path;
}

bool CTPFDocument::holdsImage(const std::string& path) const {
    const std::string_view name = fileNameOf(path);
    return std::ranges::any_of(projectFile_.pictures, [&](const auto& picture) {
        // Only what may be it is looked for on the disk.
        return equalIgnoringCase(nameWithoutFolder(picture.second.tmfFile), name) &&
               equalIgnoringCase(findFile(projectFile_.tmfDir, picture.second.tmfFile), path);
    });
}

void CTPFDocument::setPathName(const std::string& path) {
    CDocument::setPathName(path);
    updateTitle();
}

void CTPFDocument::setModified(bool modified) {
    CDocument::setModified(modified);
    projectFile_.SetModified(modified);
    updateTitle();
}

std::string CTPFDocument::displayName() const {
    return pathName().empty() ? title() : CDocument::displayName();
}

/// A project that has no file yet keeps the title that it was given.
void CTPFDocument::updateTitle() {
    if (!pathName().empty()) {
        std::string name;
        PathTitle(name, pathName());
        setTitle(isModified() ? name + kModifiedMark : name);
    }
    if (host_.projectDocument() == this)
        host_.ProjectRenamed();
}

bool CTPFDocument::EditProperties() {
    ProjectSettings settings{title(), projectFile_.tpfDir, projectFile_.tmfDir, projectFile_.tlfDir};
    do {
        if (!host_.askProjectProperties(settings))
            return false;
    } while (!foldersAreHeld(absolute(settings)));
    settings = absolute(settings);
    projectFile_.SetDirectories(settings.projectDirectory, settings.imageDirectories,
                                settings.paletteDirectories);
    setModified(true);
    return true;
}

TextureRules CTPFDocument::rules() const {
    return projectFile_.store == nullptr ? TextureRules{} : readRules(*projectFile_.store);
}

void CTPFDocument::SetRules(const TextureRules& rules) {
    if (projectFile_.store != nullptr && writeRules(*projectFile_.store, rules))
        setModified(true);
}

bool CTPFDocument::GetValue(const std::string& key, std::string& value) const {
    return projectFile_.store != nullptr && projectFile_.store->GetValue(key, value);
}

bool CTPFDocument::SetValue(const std::string& key, const std::string& value) {
    if (projectFile_.store == nullptr || !CKeyValueStore::takes(key, value))
        return false;
    projectFile_.store->SetValue(key, value);
    setModified(true);
    return true;
}

bool CTPFDocument::RemoveKey(const std::string& key) {
    std::string value;
    if (!GetValue(key, value))
        return false;
    projectFile_.store->RemoveKey(key);
    setModified(true);
    return true;
}

/// `withoutTree`: the result while the project has no tree.
template <typename Change>
bool CTPFDocument::changeNodes(bool withoutTree, Change change) {
    bool result = withoutTree;
    for (DocumentView* view : std::vector(views())) {
        auto* const nodes = dynamic_cast<ProjectNodes*>(view);
        if (nodes == nullptr)
            continue;
        result = change(*nodes);
        if (!result)
            break;
    }
    return result;
}

bool CTPFDocument::AddNode(const std::string& text, std::int32_t image,
                           const std::optional<std::string>& parent, const NodePlace& place) {
    return changeNodes(true, [&](ProjectNodes& nodes) { return nodes.AddNode(text, image, parent, place); });
}

bool CTPFDocument::RenameNode(const std::string& text, const NodePlace& node,
                              const std::optional<std::string>& parent) {
    return changeNodes(false, [&](ProjectNodes& nodes) { return nodes.RenameNode(text, node, parent); });
}

bool CTPFDocument::RemoveNode(const NodePlace& node, const std::optional<std::string>& parent) {
    return changeNodes(false, [&](ProjectNodes& nodes) { return nodes.RemoveNode(node, parent); });
}

void CTPFDocument::OnExport(CommandId id) {
    if (saveModified())
        host_.projectPlugIns().TPF_Export(plugInHandles_, static_cast<std::int32_t>(id - ID_EXPORT_FIRST),
                                          pathName());
}

void CTPFDocument::OnUpdateExport(CommandUi& ui) {
    showListEntry(ui, ID_EXPORT_FIRST, host_.projectPlugIns().projectExportNames());
}

} // namespace dyeworks

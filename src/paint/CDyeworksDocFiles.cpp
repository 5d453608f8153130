#include "framework/DocumentTemplate.h"
#include "framework/PathText.h"
#include "paint/CDyeworksDoc.h"
#include "paint/CanvasFile.h"
#include "paint/OpenProject.h"
#include "platform/AskForFile.h"
#include "platform/Platform.h"
#include "platform/StringId.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace dyeworks {

namespace {

constexpr const char* kFilter = "Image Files (*.tmf)|*.tmf||";
constexpr const char* kTmfExtension = ".tmf";

/// Asks for what is to be added to a project to be saved; the dialog starts in the project's folder for it.
template <typename Save>
bool saveForProject(const std::string& folder, StringId request, Save save) {
    Files& files = platform().files();
    const std::string directory = files.currentDirectory();
    files.setCurrentDirectory(folder);
    applicationMessage(text(request));
    const bool saved = save();
    files.setCurrentDirectory(directory);
    if (!saved)
        applicationMessage(text(StringId::NotAddedToProject), MessageIcon::Information);
    return saved;
}

} // namespace

bool CDyeworksDoc::onNewDocument() {
    const std::optional<NewImage> wanted = host_.askNewImage();
    if (!wanted || !CDocument::onNewDocument())
        return false;
    if (!canvas_.Create(wanted->width, wanted->height, 1, wanted->bitsPerPixel)) {
        applicationWarning(text(StringId::NotEnoughMemory), text(StringId::MemoryAdvice));
        return false;
    }
    snapshot_.forget();
    contentsAreSaved(HistoryStart::New);
    RefreshPalette();
    host_.AskUseProject();
    return true;
}

bool CDyeworksDoc::CreateFrom(const TmfImage& image) {
    if (!image.holdsTexels() || !CDocument::onNewDocument() ||
        !canvas_.Create(image.width, image.height, 1, static_cast<std::uint16_t>(image.bits)))
        return false;
    canvas_.FromImage(image);
    contentsAreUnsaved();
    return true;
}

bool CDyeworksDoc::CreateFrom(const BmpImage& bitmap) {
    if (!CDocument::onNewDocument() || !canvas_.CreateFrom(bitmap))
        return false;
    contentsAreUnsaved();
    return true;
}

void CDyeworksDoc::contentsAreUnsaved() {
    snapshot_.forget();
    contentsAreSaved(HistoryStart::New);
    // No step, and none that is undone, leads to what a file holds.
    edits_.loseSavedPosition();
    unrecorded_ = true;
    setModified(true);
}

bool CDyeworksDoc::onOpenDocument(const std::string& path) {
    if (!CDocument::onOpenDocument(path) || !loadCanvas(canvas_, path))
        return false;
    snapshot_.forget();
    contentsAreSaved(HistoryStart::Opened);
    if (isBmpName(path))
        makePaletteOfColours();
    else
        RefreshPalette();
    return true;
}

bool CDyeworksDoc::onSaveDocument(const std::string& path) {
    if (!settlePieces())
        return false;
    std::string target = path;
    if (target.empty()) {
        const auto chosen = askForFileToSave(
            {.filter = kFilter, .defaultExtension = kTmfExtension, .initialName = nameToSaveUnder()});
        if (!chosen)
            return false;
        target = *chosen;
    }
    if (!file().mayBeReplaced(target) || !writeCanvas(target))
        return false;
    setFile(KnownFile(target));
    contentsAreInFile();
    if (path.empty())
        setPathName(target);
    return true;
}

/// The history goes on from here.
void CDyeworksDoc::contentsAreInFile() {
    edits_.markSaved();
    unrecorded_ = false;
    historyMoved_ = false;
    setModified(false);
}

bool CDyeworksDoc::settlePieces() {
    takeBackDrags();
    // What floats above the image is a part of what the user sees and saves.
    bool settled = true;
    forEachViewer([&](ImageViewer& viewer) {
        settled = settled && (!viewer.hasFloatingPiece() || viewer.CommitFloatingPiece(true));
    });
    return settled;
}

bool CDyeworksDoc::writeCanvas(const std::string& path) const {
    const CDocument* const open =
        documentTemplate() == nullptr ? nullptr : documentTemplate()->findDocument(path);
    if (open != nullptr && open != this) {
        applicationMessage(text(StringId::FileIsOpenElsewhere, {displayPath(path)}));
        return false;
    }
    std::string advice;
    if (const std::optional<std::string> reason = saveCanvas(canvas_, path, &advice)) {
        applicationWarning(text(StringId::CannotSaveFile, {displayPath(path), *reason}), advice);
        return false;
    }
    return true;
}

/// A file that has gone leaves its name; the dialog then starts in the current directory.
std::string CDyeworksDoc::nameToSaveUnder() const {
    if (pathName().empty())
        return nameWithoutParts();
    return platform().files().exists(pathName()) ? pathName() : std::string(fileNameOf(pathName()));
}

void CDyeworksDoc::onCloseDocument() {
    // While another image is the active one, the panes and the previews show that.
    if (const CDyeworksDoc* const shown = host_.lastActivatedImage(); shown == nullptr || shown == this) {
        host_.setStatusText("", kPositionPane);
        host_.setStatusText("", kSizePane);
        for (std::int32_t which = 0; which < kPreviews; ++which)
            switchPreviewOff(which);
    }
    CDocument::onCloseDocument();
}

void CDyeworksDoc::Revert() {
    takeBackDrags();
    if (hasUnsavedChanges() && applicationMessage(text(StringId::RevertQuestion, {displayName()}),
                                                  MessageButtons::YesNo) != MessageAnswer::Yes)
        return;
    TextureCanvas saved;
    KnownFile now(pathName());
    if (!loadCanvas(saved, pathName()))
        return;
    setFile(std::move(now));
    forEachViewer([](ImageViewer& viewer) { viewer.DropSelection(); });
    takeContents(saved);
    contentsAreSaved(HistoryStart::Opened);
    historyMoved_ = false;
    setModified(false);
    host_.imageChanged(*this, Rect{0, 0, canvas_.width() - 1, canvas_.height() - 1});
    // Of another depth it has lost its colours, also those of a palette that is not the current one.
    RefreshOwnPalette();
}

bool CDyeworksDoc::reloadFile() {
    KnownFile now(pathName());
    auto loaded = std::make_unique<TextureCanvas>();
    if (!loadCanvas(*loaded, pathName()) || !settlePieces())
        return false;
    const bool fits = loaded->width() == canvas_.width() && loaded->height() == canvas_.height() &&
                      loaded->bitsPerPixel() == canvas_.bitsPerPixel();
    // What is selected and where the window stands stay as they are, where they can.
    const bool taken =
        fits ? Edit(
                   nullptr, [&](TextureCanvas& canvas) { static_cast<void>(canvas.CopyFrom(*loaded)); },
                   StringId::StepReload)
             : ReplaceImage([&](const TextureCanvas&) { return std::move(loaded); }, {StringId::StepReload});
    if (!taken)
        return false;
    setFile(std::move(now));
    contentsAreInFile();
    return true;
}

void CDyeworksDoc::markUnsaved() {
    edits_.loseSavedPosition();
    unrecorded_ = true;
    setModified(true);
}

/// The image keeps its colours as far as it has the same number of them.
void CDyeworksDoc::takeContents(TextureCanvas& contents) {
    if (canvas_.CopyFrom(contents))
        return;
    snapshot_.forget();
    if (contents.colourTable().size() == canvas_.colourTable().size())
        std::ranges::copy(canvas_.colourTable(), contents.colourTable().begin());
    // Memory for a second copy might be refused.
    canvas_.SwapWith(contents);
    forEachViewer([](ImageViewer& viewer) { viewer.SizeChanged({}); });
}

void CDyeworksDoc::OnUpdateRevert(CommandUi& ui) {
    ui.require(!pathName().empty(), StringId::WhyNeverSaved);
    ui.require(hasUnsavedChanges(), StringId::WhyUnchanged);
}

void CDyeworksDoc::AddToProject() {
    if (!IsAttached()) {
        if (applicationMessage(text(StringId::AttachForProjectQuestion), MessageIcon::Warning,
                               MessageButtons::YesNo) != MessageAnswer::Yes)
            return;
        Attach();
        if (!IsAttached()) {
            applicationMessage(text(StringId::NoActivePalette));
            return;
        }
    }
    const auto isSaved = [](const std::string& path) {
        return !path.empty() && platform().files().exists(path);
    };
    const auto folder = [this](std::string (OpenProject::*of)() const) {
        const OpenProject* const project = host_.openProject();
        return project == nullptr ? std::string() : (project->*of)();
    };
    if (!isSaved(pathName()) && !saveForProject(folder(&OpenProject::imageDirectory),
                                                StringId::SaveImageForProject, [this] { return saveAs(); }))
        return;
    const auto savePalette = [this] {
        const std::optional<std::string> key = host_.savePaletteAs(attachedName_);
        if (key)
            setAttachedName(*key);
        return key.has_value();
    };
    if (!isSaved(attachedName_) &&
        !saveForProject(folder(&OpenProject::paletteDirectory), StringId::SavePaletteForProject, savePalette))
        return;
    if (OpenProject* const project = host_.openProject())
        project->AddPicture(std::nullopt, pathName(), attachedName_, 0, std::nullopt, false);
}

void CDyeworksDoc::OnUpdateAddToProject(CommandUi& ui) {
    ui.require(host_.openProject() != nullptr, StringId::WhyNoProject);
}

} // namespace dyeworks

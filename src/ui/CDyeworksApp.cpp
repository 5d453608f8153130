#include "ui/CDyeworksApp.h"

#include "framework/PathText.h"
#include "framework/widgets/ChildFrame.h"
#include "paint/widgets/ImageView.h"
#include "platform/LooseThread.h"
#include "platform/Platform.h"
#include "platform/StringId.h"
#include "platform/TextCase.h"
#include "project/CTPFDocument.h"
#include "ui/CMainFrame.h"
#include "ui/ClosingQuestions.h"
#include "ui/FileWait.h"
#include "ui/OpenImages.h"
#include "ui/palettebar/CPaletteBar.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <optional>
#include <set>

namespace dyeworks {

namespace {

constexpr std::chrono::milliseconds kLastPatience{500};

} // namespace

CDyeworksApp::CDyeworksApp(StartUpParts parts)
    : parts_(std::move(parts))
    , router_([this] { return commandChain(); })
    , openRequests_([this](const std::vector<std::string>& paths) { openHandedOver(paths); }) {
    fillCommands();
}

CDyeworksApp::~CDyeworksApp() {
    delete splash_;
    if (palettes_ != nullptr)
        palettes_->setListener(nullptr);
    mainFrame_.reset();
    // What goes on would otherwise look for the file system of a program that has ended meanwhile.
    awaitLooseThreads(kLastPatience);
}

std::vector<CommandTarget*> CDyeworksApp::commandChain() {
    std::vector<CommandTarget*> chain;
    // Nothing is routed while the window is being made or has gone.
    if (mainFrame_ != nullptr) {
        chain = mainFrame_->commandTargets();
        chain.push_back(&mainFrame_->paletteBar().commands());
        chain.push_back(&mainFrame_->paletteBar().rangeCommands());
        chain.push_back(&mainFrame_->printing());
        chain.push_back(&mainFrame_->searching());
    }
    chain.push_back(&projectCommands_);
    chain.push_back(&projectChecking_);
    chain.push_back(&recentFiles_);
    chain.push_back(&pastePictures_);
    chain.push_back(&paletteFiles_);
    chain.push_back(&usage_);
    chain.push_back(&entryOrder_);
    chain.push_back(&newTexture_);
    chain.push_back(&startPlace_);
    chain.push_back(this);
    return chain;
}

void CDyeworksApp::addDocTemplate(std::unique_ptr<DocumentTemplate> kind) {
    kind->setPathListener([this](const std::string& path) { AddToRecentFileList(path); });
    templates_.push_back(std::move(kind));
}

DocumentTemplate* CDyeworksApp::FindDocTemplate(const std::string& name) const {
    const auto found = std::ranges::find_if(
        templates_, [&](const auto& kind) { return kind->names().documentName == name; });
    return found == templates_.end() ? nullptr : found->get();
}

CDocument* CDyeworksApp::FindOpenDocument(const std::string& path) const {
    for (const auto& kind : templates_) {
        if (CDocument* open = kind->findDocument(path))
            return open;
    }
    return nullptr;
}

std::vector<CDyeworksDoc*> CDyeworksApp::imageDocuments() const {
    std::vector<CDyeworksDoc*> images;
    if (const DocumentTemplate* kind = FindDocTemplate("Texture")) {
        for (CDocument* document : kind->documents())
            images.push_back(static_cast<CDyeworksDoc*>(document));
    }
    return images;
}

CDyeworksDoc* CDyeworksApp::activeDocumentOfCurrentPalette() const {
    const CDyeworksView* view = imageHost_.activeView();
    CDyeworksDoc* image = view == nullptr ? nullptr : &view->document();
    const bool shown = palettes_ != nullptr && image != nullptr && image->IsAttached() &&
                       image->attachedName() == palettes_->currentKey;
    return shown ? image : nullptr;
}

void CDyeworksApp::AddToRecentFileList(const std::string& path) {
    recentFiles_.add(path);
}

OpenedFile CDyeworksApp::OpenDocumentFile(const std::string& path) {
    const std::string fullPath = platform().files().fullPath(path);
    if (waitsForFiles_ && !waitForFile(fullPath, mainFrame_.get()))
        return OpenedFile::failed();
    if (equalIgnoringCase(extensionOf(fullPath), ".tlf"))
        return openPalette(fullPath);
    if (templates_.empty())
        return OpenedFile::failed();
    const auto claims = [&](const auto& kind) { return kind->matches(fullPath); };
    const auto kind = std::ranges::find_if(templates_, claims);
    if (kind == templates_.end()) {
        if (const std::optional<OpenedFile> picture = pictures_.openFile(fullPath))
            return *picture;
    }
    // The first kind, images, reads or refuses what no kind claims.
    return OpenedFile::of((kind == templates_.end() ? templates_.front() : *kind)->openDocument(path));
}

OpenedFile CDyeworksApp::openPalette(const std::string& path) {
    if (palettes_ == nullptr)
        return OpenedFile::failed();
    if (!palettes_->openPalette(path)) {
        recentFiles_.remove(path);
        applicationMessage(text(StringId::PaletteOpenFailed, {displayPath(path)}));
        return OpenedFile::failed();
    }
    recentFiles_.add(path);
    RefreshImagePalettes();
    return OpenedFile::palette();
}

bool CDyeworksApp::OpenFiles(const std::vector<std::string>& paths, bool attach) {
    bool allOpened = true;
    std::vector<std::string> waiting; // for a palette
    for (const std::string& path : paths) {
        const OpenedFile opened = OpenDocumentFile(path);
        allOpened = static_cast<bool>(opened) && allOpened;
        auto* image = dynamic_cast<CDyeworksDoc*>(opened.document());
        if (!attach || image == nullptr)
            continue;
        image->Attach();
        if (!image->IsAttached())
            waiting.push_back(path);
    }
    for (const std::string& path : waiting) {
        if (auto* image = dynamic_cast<CDyeworksDoc*>(FindOpenDocument(path)))
            image->Attach();
    }
    return allOpened;
}

void CDyeworksApp::RefreshImagePalettes() {
    for (CDyeworksDoc* image : imageDocuments())
        image->RefreshPalette();
}

void CDyeworksApp::RefreshAllImages() {
    for (CDyeworksDoc* image : imageDocuments())
        image->RefreshOwnPalette();
}

void CDyeworksApp::showMessage(const std::string& text) {
    if (mainFrame_ != nullptr)
        mainFrame_->SetStatusText(text, kMessagePane);
}

void CDyeworksApp::BroadcastPaletteChange(const std::string& key, const TextureLookupTable& palette) {
    for (CDyeworksDoc* image : imageDocuments())
        image->PaletteChanged(key, &palette);
    if (mainFrame_ != nullptr)
        mainFrame_->palettePreviewed(key, palette);
}

void CDyeworksApp::imageChanged(const CDyeworksDoc& image, const std::optional<Rect>& texels) {
    recovery_.imageChanged(image, texels);
    outside_.imageChanged(image, texels);
    usage_.imageChanged(texels.has_value());
    if (mainFrame_ != nullptr)
        mainFrame_->imageChanged(image, texels);
}

void CDyeworksApp::keepAttachments(const std::function<bool()>& save) {
    std::map<CDyeworksDoc*, const TextureLookupTable*> attached;
    for (CDyeworksDoc* image : imageDocuments())
        attached[image] = image->GetAttachedPalette();
    if (!save())
        return;
    for (const auto& [image, palette] : attached) {
        if (palette != nullptr)
            image->setAttachedName(palette->path);
    }
    // Under its old key, too, a saved palette has another title, without the mark, which is part of theirs.
    RefreshImagePalettes();
}

bool CDyeworksApp::SaveAllModified() {
    // From now on what is open becomes less.
    const bool keeps = progress_.isActive();
    progress_.stop();
    const bool agreed = askToSaveAll();
    if (agreed && !openRequests_.anyWaiting())
        return true;
    // Files that were handed over while questions were up are to be opened; the program stays for them.
    if (agreed && projectDocument() != nullptr)
        projectDocument()->RestartPlugIns();
    if (keeps)
        progress_.start();
    return false;
}

bool CDyeworksApp::askToSaveAll() {
    ClosingQuestions questions(*this);
    if (!questions.ask())
        return false;
    CTPFDocument* const project = projectDocument();
    if (project == nullptr)
        return true;
    project->EndPlugIns();
    if (questions.ask())
        return true;
    project->RestartPlugIns();
    return false;
}

void CDyeworksApp::giveUpDrags() {
    for (CDyeworksDoc* const image : openImages(*this))
        image->jointSide().settle();
}

std::vector<CDocument*> CDyeworksApp::documents() const {
    std::vector<CDocument*> all;
    if (projectDocument() != nullptr)
        all.push_back(projectDocument());
    for (const auto& kind : templates_) {
        for (CDocument* document : kind->documents()) {
            if (document != projectDocument())
                all.push_back(document);
        }
    }
    return all;
}

void CDyeworksApp::closeFramesOf(const CDocument& document) {
    for (ChildFrame* frame : mainFrame_->childFrames()) {
        if (frame->document() == &document)
            frame->closeUnasked();
    }
}

bool CDyeworksApp::ClosePictureDocuments(const std::vector<std::string>& paths,
                                         const std::function<bool()>& mayGoOn) {
    // Pictures may share their files.
    std::set<const void*> seen{nullptr, static_cast<const CDocument*>(projectDocument())};
    std::vector<std::string> open;
    for (const std::string& path : paths) {
        // Empty stands for a file that was not found; as a key it would mean the current palette.
        if (path.empty())
            continue;
        const void* file = FindOpenDocument(path);
        if (file == nullptr)
            file = paletteSet()->lookup(path);
        if (seen.insert(file).second)
            open.push_back(path);
    }
    if (open.empty() || applicationMessage(text(StringId::CloseAllPicturesQuestion), MessageButtons::YesNo) !=
                            MessageAnswer::Yes)
        return mayGoOn();
    const bool agreed = std::ranges::all_of(open, [this](const std::string& path) {
        if (CDocument* document = FindOpenDocument(path))
            return document->mayClose();
        return paletteSet()->lookup(path) == nullptr || palettes_->queryClose(path, false);
    });
    if (!agreed || !mayGoOn()) {
        // What was saved before the Cancel has lost its mark.
        palettes_->rekeyAll();
        RefreshImagePalettes();
        return false;
    }
    for (const std::string& path : open) {
        if (const CDocument* document = FindOpenDocument(path))
            closeFramesOf(*document);
        else if (palettes_->removePalette(path, true))
            RefreshImagePalettes();
    }
    return true;
}

void CDyeworksApp::ShowHelp(const std::string& relativePath) {
    if (!platform().shell().openWithDefaultProgram(programFolder_ + relativePath))
        applicationMessage(text(StringId::HelpFailed), MessageIcon::Stop);
}

bool CDyeworksApp::CloseProject() {
    if (projectDocument() != nullptr && !projectDocument()->mayClose())
        return false;
    if (projectDocument() == nullptr)
        return true;
    CTPFDocument& project = *projectDocument();
    // Closing the last of its windows ends the document.
    if (mainFrame_->frameOf(project) != nullptr)
        closeFramesOf(project);
    else
        project.documentTemplate()->dropDocument(project);
    if (projectDocument() != nullptr)
        projectHost_.setProjectDocument(nullptr);
    return true;
}

std::optional<std::string> CDyeworksApp::savePaletteAs(const std::string& key) {
    std::optional<std::string> now;
    keepAttachments([&] {
        const TextureLookupTable* const palette = paletteSet()->lookup(key);
        if (paletteSet()->savePaletteAs(key, true))
            now = palette->path;
        return now.has_value();
    });
    return now;
}

std::optional<PaletteBarHost::Image> CDyeworksApp::activeImage() const {
    const CDyeworksDoc* image = activeDocumentOfCurrentPalette();
    if (image == nullptr)
        return std::nullopt;
    return Image{image->canvas().bitsPerPixel(), image->paletteValue()};
}

void CDyeworksApp::setActivePaletteValue(std::int32_t firstEntry) {
    if (CDyeworksDoc* image = activeDocumentOfCurrentPalette()) {
        image->setPaletteValue(firstEntry);
        image->RefreshPalette();
    }
}

bool CDyeworksApp::openWindow(CDocument& document) {
    if (auto* const project = dynamic_cast<CTPFDocument*>(&document))
        mainFrame_->openProjectWindow(*project);
    else
        mainFrame_->openImageWindow(static_cast<CDyeworksDoc&>(document));
    return true;
}

void CDyeworksApp::activate(CDocument& document) {
    mainFrame_->activateWindowOf(document);
}

} // namespace dyeworks

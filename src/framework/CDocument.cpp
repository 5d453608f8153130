#include "framework/CDocument.h"

#include "framework/DocumentTemplate.h"
#include "framework/PathText.h"
#include "platform/Platform.h"
#include "platform/StringId.h"

#include <algorithm>

namespace dyeworks {

namespace {

std::uint64_t nextNumber() {
    static std::uint64_t number = 0;
    return ++number;
}

} // namespace

CDocument::CDocument(DocumentTemplate* documentTemplate)
    : template_(documentTemplate)
    , number_(nextNumber()) {
    on(ID_FILE_SAVE, &CDocument::OnFileSave);
    on(ID_FILE_SAVE_AS, &CDocument::OnFileSaveAs);
}

CDocument::~CDocument() = default;

void CDocument::setTitle(const std::string& title) {
    if (title == title_)
        return;
    title_ = title;
    tellRenamed();
}

void CDocument::setPathName(const std::string& path) {
    pathName_ = platform().files().fullPath(path);
    title_ = fileNameOf(pathName_);
    if (!file_.isAt(pathName_))
        file_ = KnownFile(pathName_);
    tellRenamed();
    if (template_ != nullptr)
        template_->pathNamed(pathName_);
}

std::string CDocument::displayName() const {
    return pathName_.empty() ? title_ : displayPath(pathName_);
}

void CDocument::setModified(bool modified) {
    if (modified)
        ++changes_;
    if (modified == modified_)
        return;
    modified_ = modified;
    tellRenamed();
}

void CDocument::addView(DocumentView& view) {
    // A view may join by itself before the frame around it lets it join.
    if (std::ranges::find(views_, &view) != views_.end())
        return;
    views_.push_back(&view);
    tellTitleListeners();
}

void CDocument::removeView(DocumentView& view) {
    if (std::erase(views_, &view) > 0)
        tellTitleListeners();
}

void CDocument::updateAllViews(DocumentView* sender, int hint) {
    // A copy, because a view may open or close another one.
    for (DocumentView* view : std::vector(views_)) {
        if (view != sender)
            view->update(sender, hint);
    }
}

void CDocument::addTitleListener(DocumentTitleListener& listener) {
    titleListeners_.push_back(&listener);
}

void CDocument::removeTitleListener(DocumentTitleListener& listener) {
    std::erase(titleListeners_, &listener);
}

bool CDocument::onNewDocument() {
    pathName_.clear();
    file_ = {};
    setModified(false);
    return true;
}

bool CDocument::onOpenDocument(const std::string& path) {
    file_ = KnownFile(path);
    setModified(false);
    return true;
}

bool CDocument::saveModified() {
    if (!hasUnsavedChanges())
        return true;
    switch (applicationMessage(text(StringId::SaveChangesQuestion, {displayName()}),
                               MessageButtons::YesNoCancel)) {
    case MessageAnswer::Yes:
        return save();
    case MessageAnswer::No:
        return true;
    default:
        return false;
    }
}

bool CDocument::save() {
    return saveTo(pathName_);
}

bool CDocument::saveAs() {
    return saveTo({});
}

bool CDocument::saveTo(const std::string& path) {
    if (!onSaveDocument(path))
        return false;
    // Takes marks of unsaved changes out of the title.
    if (!pathName_.empty())
        setPathName(pathName_);
    return true;
}

void CDocument::OnFileSave() {
    save();
}

void CDocument::OnFileSaveAs() {
    saveAs();
}

void CDocument::tellRenamed() {
    for (DocumentView* view : std::vector(views_))
        view->documentRenamed();
    tellTitleListeners();
}

void CDocument::tellTitleListeners() {
    for (DocumentTitleListener* listener : std::vector(titleListeners_))
        listener->documentRenamed();
}

} // namespace dyeworks

#include "framework/DocumentTemplate.h"

#include "framework/PathText.h"
#include "platform/Platform.h"
#include "platform/TextCase.h"

#include <algorithm>
#include <cassert>

namespace dyeworks {

DocumentTemplate::DocumentTemplate(Names names, Factory factory, DocumentWindows& windows)
    : names_(std::move(names))
    , factory_(std::move(factory))
    , windows_(windows) {}

DocumentTemplate::~DocumentTemplate() = default;

std::vector<CDocument*> DocumentTemplate::documents() const {
    std::vector<CDocument*> open;
    open.reserve(documents_.size());
    for (const auto& document : documents_)
        open.push_back(document.get());
    return open;
}

CDocument* DocumentTemplate::findDocument(const std::string& path) const {
    const std::string wanted = platform().files().fullPath(path);
    // Documents without a file have an empty path, which an empty name must not find.
    if (wanted.empty())
        return nullptr;
    const auto found = std::ranges::find_if(documents_, [&](const std::unique_ptr<CDocument>& document) {
        return equalIgnoringCase(document->pathName(), wanted);
    });
    return found == documents_.end() ? nullptr : found->get();
}

bool DocumentTemplate::matches(const std::string& path) const {
    return equalIgnoringCase(extensionOf(path), names_.fileExtension);
}

CDocument* DocumentTemplate::newDocument() {
    return newDocument(names_.documentName + std::to_string(untitledCounter_ + 1),
                       [this](CDocument& document) {
                           const bool filled = document.onNewDocument();
                           untitledCounter_ += filled ? 1 : 0;
                           return filled;
                       });
}

CDocument* DocumentTemplate::newDocument(const std::string& title,
                                         const std::function<bool(CDocument&)>& fill) {
    CDocument* document = adopt();
    if (document == nullptr)
        return nullptr;
    document->setTitle(title);
    if (!fill(*document)) {
        forget(*document);
        return nullptr;
    }
    if (!windows_.openWindow(*document)) {
        dropDocument(*document);
        return nullptr;
    }
    return document;
}

CDocument* DocumentTemplate::openDocument(const std::string& path) {
    if (CDocument* open = findDocument(path)) {
        windows_.activate(*open);
        return open;
    }
    CDocument* document = adopt();
    if (document == nullptr)
        return nullptr;
    const std::string fullPath = platform().files().fullPath(path);
    if (!document->onOpenDocument(fullPath)) {
        forget(*document);
        return nullptr;
    }
    document->setPathName(fullPath);
    if (!windows_.openWindow(*document)) {
        dropDocument(*document);
        return nullptr;
    }
    return document;
}

void DocumentTemplate::dropDocument(CDocument& document) {
    document.onCloseDocument();
    dropClosedDocument(document);
}

void DocumentTemplate::dropClosedDocument(const CDocument& document) {
    assert(document.views().empty());
    forget(document);
}

void DocumentTemplate::pathNamed(const std::string& path) {
    if (pathNamed_ && !path.empty())
        pathNamed_(path);
}

CDocument* DocumentTemplate::adopt() {
    std::unique_ptr<CDocument> document = factory_(*this);
    if (document == nullptr)
        return nullptr;
    return documents_.emplace_back(std::move(document)).get();
}

void DocumentTemplate::forget(const CDocument& document) {
    const auto found = std::ranges::find(documents_, &document, &std::unique_ptr<CDocument>::get);
    assert(found != documents_.end());
    // Out of the list before it is destroyed, so that nobody finds it half gone.
    const std::unique_ptr<CDocument> last = std::move(*found);
    documents_.erase(found);
}

} // namespace dyeworks

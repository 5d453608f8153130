#pragma once

#include "framework/CDocument.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace dyeworks {

/// Makes the window of a document: a frame with a view in it. The frame is not owned here; when its last view
/// closes, the frame asks the template to drop the document.
class DocumentWindows {
public:
    virtual ~DocumentWindows() = default;
    /// False when the window could not be made.
    virtual bool openWindow(CDocument& document) = 0;
    /// Brings a window of the document to the front.
    virtual void activate(CDocument& document) = 0;
};

/// A kind of document: its names, its file extension and how its documents and windows are made. Owns the
/// open documents of its kind.
class DocumentTemplate {
public:
    using Factory = std::function<std::unique_ptr<CDocument>(DocumentTemplate&)>;

    struct Names {
        std::string documentName;  ///< "Texture"; also the stem of new documents' titles, "Texture1".
        std::string fileExtension; ///< ".tmf"
    };

    /// `windows` must outlive the template.
    DocumentTemplate(Names names, Factory factory, DocumentWindows& windows);
    ~DocumentTemplate();
    DocumentTemplate(const DocumentTemplate&) = delete;
    DocumentTemplate& operator=(const DocumentTemplate&) = delete;

    [[nodiscard]] const Names& names() const noexcept { return names_; }
    [[nodiscard]] std::vector<CDocument*> documents() const;
    /// The open document whose path is `path`, both made full paths and compared without regard to case.
    [[nodiscard]] CDocument* findDocument(const std::string& path) const;
    /// Whether this kind claims the file by its extension.
    [[nodiscard]] bool matches(const std::string& path) const;

    /// A new, empty document in a window of its own, titled "Texture1", "Texture2"…; null when it was
    /// abandoned, which uses up no number.
    CDocument* newDocument();
    /// A new document in a window of its own that is titled `title` and gets its contents from `fill`; null
    /// when that answers false.
    CDocument* newDocument(const std::string& title, const std::function<bool(CDocument&)>& fill);
    /// The file's document in a window of its own, the open one brought to the front if there is one; null
    /// when the file could not be read or the window could not be made.
    CDocument* openDocument(const std::string& path);
    /// One more window for an open document of this kind. False when it could not be made.
    bool newWindow(CDocument& document) { return windows_.openWindow(document); }
    /// Ends the document, which must have no view left.
    void dropDocument(CDocument& document);
    /// The same for one that has been told that it closes.
    void dropClosedDocument(const CDocument& document);

    /// Told the full path whenever a document of this kind was opened from a file or saved to one.
    void setPathListener(std::function<void(const std::string&)> listener) {
        pathNamed_ = std::move(listener);
    }
    /// The document tells that it belongs to this file now.
    void pathNamed(const std::string& path);

private:
    CDocument* adopt();
    void forget(const CDocument& document);

    Names names_;
    Factory factory_;
    DocumentWindows& windows_;
    std::vector<std::unique_ptr<CDocument>> documents_;
    std::function<void(const std::string&)> pathNamed_;
    int untitledCounter_ = 0;
};

} // namespace dyeworks

#pragma once

namespace dyeworks {

class CDocument;

/// What a document knows of the views that show it.
class DocumentView {
public:
    virtual ~DocumentView() = default;

    /// The document changed. `sender` is the view that caused it, or null; what `hint` says is between the
    /// document and its views, 0 being a change of the contents.
    virtual void update(DocumentView* sender, int hint) = 0;

    /// The document's title, path or modified flag changed.
    virtual void documentRenamed() {}
};

/// Told what views are told of the document's name, and when it has more or fewer views, without being one of
/// them: a frame that shows the title.
class DocumentTitleListener {
public:
    virtual ~DocumentTitleListener() = default;
    virtual void documentRenamed() = 0;
};

} // namespace dyeworks

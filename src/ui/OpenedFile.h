#pragma once

namespace dyeworks {

class CDocument;

/// What became of a file that was to be opened: true when it is open, or when the user did not want it any
/// more. A palette is open without a document.
class OpenedFile {
public:
    static OpenedFile failed() { return {false, nullptr}; }
    static OpenedFile cancelled() { return {true, nullptr}; }
    static OpenedFile palette() { return {true, nullptr}; }
    /// Null counts as a failure.
    static OpenedFile of(CDocument* document) { return {document != nullptr, document}; }

    explicit operator bool() const noexcept { return open_; }
    [[nodiscard]] CDocument* document() const noexcept { return document_; }

private:
    OpenedFile(bool open, CDocument* document)
        : open_(open)
        , document_(document) {}

    bool open_;
    CDocument* document_;
};

} // namespace dyeworks

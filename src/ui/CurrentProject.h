#pragma once

#include <string>

namespace dyeworks {

class CTPFDocument;

/// The open project, at most one, and which of its pictures is chosen in the project bar.
class CurrentProject {
public:
    /// Null while none is open.
    [[nodiscard]] CTPFDocument* document() const noexcept { return document_; }
    /// Null when it closes, which also leaves no picture chosen.
    void setDocument(CTPFDocument* document) {
        document_ = document;
        if (document == nullptr)
            picture_.clear();
    }

    /// Name of the chosen picture; empty when none is.
    [[nodiscard]] const std::string& picture() const noexcept { return picture_; }
    void setPicture(const std::string& name) { picture_ = name; }

private:
    CTPFDocument* document_ = nullptr;
    std::string picture_;
};

} // namespace dyeworks

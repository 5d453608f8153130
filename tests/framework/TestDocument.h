#pragma once

#include "framework/CDocument.h"
#include "framework/DocumentTemplate.h"
#include "platform/fake/FakePlatform.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace dyeworks {

/// A document whose file operations do as they are told.
class TestDocument : public CDocument {
public:
    using CDocument::CDocument;

    bool openSucceeds = true;
    bool changesWhenRead = false;
    bool newSucceeds = true;
    bool saveSucceeds = true;
    std::string chosenName = "c:\\tex\\chosen.tmf";
    std::vector<std::string> saves;

    bool onNewDocument() override { return CDocument::onNewDocument() && newSucceeds; }
    bool onOpenDocument(const std::string& path) override {
        const bool opened = CDocument::onOpenDocument(path) && openSucceeds;
        setModified(changesWhenRead);
        return opened;
    }
    bool onSaveDocument(const std::string& path) override {
        saves.push_back(path);
        if (!saveSucceeds)
            return false;
        if (path.empty())
            setPathName(chosenName);
        setModified(false);
        return true;
    }
};

/// A view that remembers what it was told.
class TestView : public DocumentView {
public:
    std::vector<int> hints;

    void update(DocumentView* /*sender*/, int hint) override { hints.push_back(hint); }
};

} // namespace dyeworks

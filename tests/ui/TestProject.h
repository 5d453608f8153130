#pragma once

#include "project/ProjectDocument.h"
#include "ui/CDyeworksApp.h"

#include <memory>
#include <string>
#include <vector>

namespace dyeworks {

/// A project without a file and without windows.
class TestProject final : public ProjectDocument {
public:
    std::vector<std::string> pictures;
    std::vector<std::string> opened; ///< What OpenPicture was asked for.
    bool maySave = true;             ///< What the question about changes is answered.
    static inline int questions = 0;

    /// The kind of documents "Project" of this program gets them, and opens one.
    static TestProject& openIn(CDyeworksApp& app) {
        questions = 0;
        static NoWindows windows;
        auto kind = std::make_unique<DocumentTemplate>(
            DocumentTemplate::Names{"Project", ".tpf"},
            [](DocumentTemplate& own) { return std::make_unique<TestProject>(&own); }, windows);
        DocumentTemplate& projects = *kind;
        app.addDocTemplate(std::move(kind));
        auto& project = static_cast<TestProject&>(*projects.newDocument());
        project.setTitle("sea.tpf");
        app.setProjectDocument(&project);
        return project;
    }

    using ProjectDocument::ProjectDocument;

    [[nodiscard]] std::vector<std::string> pictureNames() const override { return pictures; }
    [[nodiscard]] std::string imageDirectory() const override { return {}; }
    bool AddPicture(const std::optional<std::string>&, const std::string&, const std::string&, std::int32_t,
                    const std::optional<std::string>&, bool) override {
        return false;
    }
    bool ChangePicture(const std::string&) override { return false; }
    bool RemovePicture(const std::string&) override { return false; }
    bool EditProperties() override { return false; }
    bool OpenPicture(const std::string& name) override {
        opened.push_back(name);
        return true;
    }
    bool onSaveDocument(const std::string&) override { return true; }
    bool saveModified() override {
        ++questions;
        return maySave;
    }

private:
    class NoWindows final : public DocumentWindows {
        bool openWindow(CDocument&) override { return true; }
        void activate(CDocument&) override {}
    };
};

} // namespace dyeworks

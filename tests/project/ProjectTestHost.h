#pragma once

#include "platform/fake/FakePlatform.h"
#include "project/CTPFDocument.h"

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

namespace dyeworks {

/// An application whose dialogs answer by themselves, and plug-ins that note their calls.
class FakeProjectHost : public ProjectHost, private ProjectPlugIns {
public:
    [[nodiscard]] ProjectPlugIns& projectPlugIns() override { return *this; }
    [[nodiscard]] CTPFDocument* projectDocument() const override { return project; }
    void setProjectDocument(CTPFDocument* document) override { project = document; }
    bool CloseProject() override {
        if (project != nullptr && closes)
            project->onCloseDocument();
        return project == nullptr;
    }
    void ProjectChanged() override { log.emplace_back("changed"); }
    void ProjectRenamed() override {}
    void SelectPicture(const std::string& name) override { log.push_back("select " + name); }
    bool askNewProject(ProjectSettings& settings) override { return answered(newProjects, settings); }
    bool askProjectProperties(ProjectSettings& settings) override { return answered(newProjects, settings); }
    /// The answers are tried one after the other until one passes.
    bool askPicture(PictureSettings& settings,
                    const std::function<PictureField(const PictureSettings&)>& check) override {
        proposed = settings;
        while (!pictures.empty()) {
            settings.name = pictures.front().name;
            settings.imageFile = pictures.front().imageFile;
            settings.paletteFile = pictures.front().paletteFile;
            settings.paletteNumber = pictures.front().paletteNumber;
            pictures.pop_front();
            refused = check(settings);
            if (refused == PictureField::None)
                return true;
        }
        return false;
    }
    bool openPalette(const std::string& path) override {
        log.push_back("palette " + path);
        return true;
    }
    CDyeworksDoc* openImage(const std::string& path) override {
        log.push_back("image " + path);
        return nullptr;
    }
    std::vector<std::string> openFiles() override { return open; }
    bool ClosePictureDocuments(const std::vector<std::string>& paths,
                               const std::function<bool()>& mayGoOn) override {
        std::string line = "ask";
        for (const std::string& path : paths)
            line += " " + path;
        log.push_back(line);
        return closes && mayGoOn();
    }
    void SetPaletteBarNumber(std::int32_t number) override {
        log.push_back("bank " + std::to_string(number));
    }
    void runCommand(std::uint32_t command) override { log.push_back("command " + std::to_string(command)); }

    [[nodiscard]] std::vector<std::string> take() { return std::exchange(log, {}); }

    CTPFDocument* project = nullptr;
    bool closes = true;
    std::vector<std::string> open;           ///< Paths.
    std::deque<ProjectSettings> newProjects; ///< What the sheets answer; cancelled when there is none left.
    std::deque<PictureSettings> pictures;
    PictureSettings proposed; ///< What the picture dialog started with.
    PictureField refused = PictureField::None;
    bool queries = false;         ///< What the plug-ins answer.
    std::function<void()> onCall; ///< What the plug-ins do in commands and drags.
    std::vector<std::string> log;

private:
    void call() const {
        // A copy: it may be set anew meanwhile.
        if (const auto act = onCall)
            act();
    }
    static bool answered(std::deque<ProjectSettings>& answers, ProjectSettings& settings) {
        if (answers.empty())
            return false;
        settings = answers.front();
        answers.pop_front();
        return true;
    }
    std::size_t TPF_OnNew(PlugInHandles& handles) override {
        handles.push_back(nullptr);
        log.emplace_back("new");
        return handles.size();
    }
    void TPF_OnUpdate(const PlugInHandles& /*handles*/) override { log.emplace_back("update"); }
    void TPF_OnUpdateNodes(const PlugInHandles& /*handles*/) override { log.emplace_back("update nodes"); }
    void TPF_OnDelete(const PlugInHandles& /*handles*/) override {
        log.emplace_back("delete");
        call();
    }
    void TPF_OnCommand(const PlugInHandles& /*handles*/, const std::string& node,
                       NodeCommand command) override {
        log.push_back(node + " " + std::to_string(static_cast<int>(command)));
        call();
    }
    bool TPF_QueryCommand(const PlugInHandles& /*handles*/, const std::string& /*node*/,
                          NodeCommand /*command*/) override {
        return queries;
    }
    bool TPF_ToString(const PlugInHandles& /*handles*/, const std::string& node, std::string& text) override {
        text = node + "=note";
        return queries;
    }
    std::uint32_t TPF_IsDroppable(const PlugInHandles& /*handles*/, const std::string& target,
                                  const std::string& dragged, std::uint32_t keyState) override {
        log.push_back(dragged + " over " + target + " " + std::to_string(keyState));
        call();
        return drop_effect::kLink;
    }
    bool TPF_OnDrop(const PlugInHandles& /*handles*/, const std::string& target, const std::string& key,
                    const std::string& value, std::uint32_t effect) override {
        log.push_back(key + "=" + value + " on " + target + " " + std::to_string(effect));
        call();
        return true;
    }
    std::vector<std::string> projectExportNames() const override { return {"A", "B"}; }
    std::uint32_t TPF_Export(const PlugInHandles& /*handles*/, std::int32_t index,
                             const std::string& projectPath) override {
        log.push_back("export " + std::to_string(index) + " " + projectPath);
        return 1;
    }
};

/// A project document on fakes; its folder "c:\p" is there.
class ProjectFixture : public testing::Test {
protected:
    ProjectFixture() { fake_.files.createDirectory("c:\\p\\tex"); }
    ~ProjectFixture() override { host_.project = nullptr; }

    /// Opens "c:\p\sea.tpf" with these lines.
    void open(const std::string& lines) {
        fake_.files.putFile("c:\\p\\sea.tpf", lines);
        ASSERT_TRUE(document_.onOpenDocument("c:\\p\\sea.tpf"));
        host_.log.clear();
    }
    /// The same with pictures of these names, "<name>.tmf", "<name>.tlf", 0.
    void openPictures(const std::vector<std::string>& names) {
        std::string lines = "PICT_NUM = " + std::to_string(names.size()) + "\n";
        for (std::size_t i = 0; i < names.size(); ++i) {
            const std::string& name = names[i];
            lines.append("PICT.").append(std::to_string(i)).append(" = ").append(name);
            lines.append("," + name + ".tmf," + name + ".tlf,0\n");
        }
        open(lines);
    }
    [[nodiscard]] std::vector<std::string> messages() const {
        std::vector<std::string> texts;
        for (const Message& message : fake_.messages.shown)
            texts.push_back(message.text);
        return texts;
    }

    FakePlatform fake_;
    FakeProjectHost host_;
    CTPFDocument document_{host_};
};

} // namespace dyeworks

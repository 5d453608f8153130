#include "bench/Cases.h"
#include "platform/Platform.h"
#include "project/CTPFDocument.h"
#include "project/widgets/ProjectTreeWidget.h"

#include <QApplication>
#include <QScrollBar>
#include <benchmark/benchmark.h>

#include <cstdlib>
#include <functional>
#include <memory>
#include <string>

namespace dyeworks {

namespace {

constexpr const char* kPath = "c:\\bench.tpf";

/// An application without windows, images and plug-ins.
class BareProjectHost : public ProjectHost, private ProjectPlugIns {
public:
    ProjectPlugIns& projectPlugIns() override { return *this; }
    CTPFDocument* projectDocument() const override { return nullptr; }
    void setProjectDocument(CTPFDocument* /*project*/) override {}
    bool CloseProject() override { return true; }
    void ProjectChanged() override {}
    void ProjectRenamed() override {}
    void SelectPicture(const std::string& /*name*/) override {}
    bool askNewProject(ProjectSettings& /*settings*/) override { return false; }
    bool askProjectProperties(ProjectSettings& /*settings*/) override { return false; }
    bool askPicture(PictureSettings& /*settings*/,
                    const std::function<PictureField(const PictureSettings&)>& /*check*/) override {
        return false;
    }
    bool openPalette(const std::string& /*path*/) override { return false; }
    CDyeworksDoc* openImage(const std::string& /*path*/) override { return nullptr; }
    std::vector<std::string> openFiles() override { return {}; }
    bool ClosePictureDocuments(const std::vector<std::string>& /*paths*/,
                               const std::function<bool()>& /*mayGoOn*/) override {
        return true;
    }
    void SetPaletteBarNumber(std::int32_t /*number*/) override {}
    void runCommand(std::uint32_t /*command*/) override {}

private:
    std::size_t TPF_OnNew(PlugInHandles& handles) override { return handles.size(); }
    void TPF_OnUpdate(const PlugInHandles& /*handles*/) override {}
    void TPF_OnUpdateNodes(const PlugInHandles& /*handles*/) override {}
    void TPF_OnDelete(const PlugInHandles& /*handles*/) override {}
    void TPF_OnCommand(const PlugInHandles& /*handles*/, const std::string& /*node*/,
                       NodeCommand /*command*/) override {}
    bool TPF_QueryCommand(const PlugInHandles& /*handles*/, const std::string& /*node*/,
                          NodeCommand /*command*/) override {
        return false;
    }
    bool TPF_ToString(const PlugInHandles& /*handles*/, const std::string& /*node*/,
                      std::string& /*text*/) override {
        return false;
    }
    std::uint32_t TPF_IsDroppable(const PlugInHandles& /*handles*/, const std::string& /*target*/,
                                  const std::string& /*dragged*/, std::uint32_t /*keyState*/) override {
        return 0;
    }
    bool TPF_OnDrop(const PlugInHandles& /*handles*/, const std::string& /*target*/,
                    const std::string& /*key*/, const std::string& /*value*/,
                    std::uint32_t /*effect*/) override {
        return false;
    }
    std::vector<std::string> projectExportNames() const override { return {}; }
    std::uint32_t TPF_Export(const PlugInHandles& /*handles*/, std::int32_t /*index*/,
                             const std::string& /*projectPath*/) override {
        return 0;
    }
};

void writeProject(std::int64_t pictures) {
    std::string lines = "PICT_NUM = " + std::to_string(pictures) + "\n";
    for (std::int64_t i = 0; i < pictures; ++i) {
        const std::string number = std::to_string(i);
        lines.append("PICT.").append(number).append(" = Sky").append(number);
        lines.append(",sky" + number + ".tmf,sky" + number + ".tlf,0\n");
    }
    if (platform().files().write(kPath, std::as_bytes(std::span(lines))))
        std::abort();
}

/// A project with its tree on the screen, all pictures listed, the one in the middle selected.
class OpenProjectWindow {
public:
    OpenProjectWindow() {
        if (!document.onOpenDocument(kPath))
            std::abort();
        tree.resize(300, 800);
        tree.view().InitialUpdate();
        QTreeView& widget = tree;
        const QModelIndex pictures = widget.model()->index(0, 0, widget.model()->index(0, 0));
        widget.expand(pictures);
        widget.show();
        const int count = widget.model()->rowCount(pictures);
        widget.setCurrentIndex(widget.model()->index(count / 2, 0, pictures));
        paint();
    }
    void paint() {
        QApplication::processEvents();
        tree.viewport()->repaint();
    }

    BareProjectHost host;
    CTPFDocument document{host};
    ProjectTreeWidget tree{document};
};

using Step = std::function<void(OpenProjectWindow& window, std::int64_t turn)>;

/// Measures steps, each with the repaint that follows, on projects of 1000 and of 10000 pictures.
void add(const char* name, const Step& step) {
    benchmark::RegisterBenchmark(name,
                                 [step](benchmark::State& state) {
                                     writeProject(state.range(0));
                                     OpenProjectWindow window;
                                     std::int64_t turn = 0;
                                     for (auto _ : state) {
                                         step(window, turn++);
                                         window.paint();
                                     }
                                 })
        ->Arg(1000)
        ->Arg(10000)
        ->Unit(benchmark::kMicrosecond);
}

void addOpen() {
    benchmark::RegisterBenchmark("ProjectOpen",
                                 [](benchmark::State& state) {
                                     writeProject(state.range(0));
                                     for (auto _ : state)
                                         const OpenProjectWindow window;
                                 })
        ->Arg(1000)
        ->Arg(10000)
        ->Unit(benchmark::kMicrosecond);
}

} // namespace

void registerProjectCases() {
    addOpen();
    // One there and away again, so that the project stays as large as it is.
    add("ProjectAddAndRemovePicture", [](OpenProjectWindow& window, std::int64_t /*turn*/) {
        window.document.AddPicture("New", "new.tmf", "new.tlf", 0, "Sky500", true);
        window.paint();
        window.document.RemovePicture("New");
    });
    add("ProjectMovePicture", [](OpenProjectWindow& window, std::int64_t turn) {
        std::string dragged;
        const std::string target = "\\Project\\Picture\\Sky" + std::to_string(turn % 2 == 0 ? 100 : 900);
        if (!window.document.NodeToString("\\Project\\Picture\\Sky500", dragged) ||
            !window.document.DropOnNode(target, dragged, drop_effect::kMove))
            std::abort();
    });
    add("ProjectScroll", [](OpenProjectWindow& window, std::int64_t turn) {
        QScrollBar& bar = *window.tree.verticalScrollBar();
        bar.setValue(static_cast<int>(turn * 7919 % (bar.maximum() + 1)));
    });
}

} // namespace dyeworks

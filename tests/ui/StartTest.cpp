#include "Program.h"
#include "framework/widgets/ChildFrame.h"

#include <QTemporaryDir>

#include <tuple>
#include <utility>

namespace dyeworks {
namespace {

class Start : public Launch {
protected:
    void putPalette(const char* path) {
        fake_.files.putFile(path, paletteFile(16, [](int i) { return static_cast<unsigned>(i) * 99; }));
    }

    /// Looked into, or put in the place of others.
    StartUpParts parts_;
};

TEST_F(Start, GoesThroughItsStepsInOrder) {
    fake_.files.createDirectory("c:\\work");
    fake_.locale.locale = 0;
    fake_.locale.system = kLocaleJapanese;
    fake_.profile.sections["App section"]["Current Directory"] = "c:\\work";
    fake_.profile.sections["Recent TMF List"]["File1"] = "c:\\a.tmf";
    std::vector<std::string> steps;
    parts_.startObjectServices = [&] {
        EXPECT_THAT(fake_.locale.runtimeLanguages, ElementsAre("Japanese"));
        EXPECT_THAT(fake_.locale.environment, ElementsAre("TZ=JST-9"));
        EXPECT_EQ(fake_.locale.timeZoneReads, 1);
        EXPECT_NE(fake_.files.currentDirectory(), "c:\\work");
        steps.emplace_back("services");
        return true;
    };
    parts_.makeMainFrame = [&, make = parts_.makeMainFrame](MainFrameHost& host) {
        EXPECT_EQ(fake_.files.currentDirectory(), "c:\\work");
        EXPECT_THAT(app_->recentFiles().images().paths(), ElementsAre("c:\\a.tmf"));
        EXPECT_THAT(fake_.library.requests(),
                    ElementsAre("SwatchGrid.ocx", "FolderPick.ocx", "RampSlider.ocx"));
        EXPECT_EQ(fake_.library.loadedCount(), 0);
        EXPECT_NE(app_->FindDocTemplate("Texture"), nullptr);
        EXPECT_TRUE(app_->paletteSet()->palettes.empty()) << "an empty set is seen before there is one";
        EXPECT_EQ(applicationPaletteSet(), nullptr);
        EXPECT_THAT(fake_.shell.registered, IsEmpty());
        steps.emplace_back("frame");
        return make(host);
    };
    parts_.makePaletteSet = [&, make = parts_.makePaletteSet] {
        EXPECT_TRUE(fake_.shell.deliverOpenRequest({})) << "open requests are taken";
        EXPECT_THAT(fake_.shell.registered, IsEmpty()) << "nobody waits for it";
        EXPECT_FALSE(frame().isVisible());
        steps.emplace_back("palettes");
        return make();
    };
    ASSERT_TRUE(launch(parts_));
    EXPECT_THAT(steps, ElementsAre("services", "frame", "palettes"));
    EXPECT_EQ(applicationPaletteSet(), app_->paletteSet());
    EXPECT_TRUE(frame().isVisible());
    std::vector<std::string> kinds;
    for (const FileTypeRegistration& type : fake_.shell.registered)
        kinds.push_back(type.typeName + type.extension);
    EXPECT_THAT(kinds, ElementsAre("TMF.Document.tmf", "TPF.Document.tpf", "TLF.Document.tlf"));
    EXPECT_THAT(texts(fake_), IsEmpty());
}

TEST_F(Start, TheUsersLocaleGoesBeforeTheSystems) {
    fake_.locale.locale = kLocaleEnglish;
    fake_.locale.system = kLocaleJapanese;
    ASSERT_TRUE(launch());
    EXPECT_THAT(fake_.locale.runtimeLanguages, IsEmpty());
    EXPECT_THAT(fake_.locale.environment, IsEmpty());
}

TEST_F(Start, EndsWhereSomethingIsMissingAndSaysWhat) {
    const auto makeFrame = std::exchange(parts_.makeMainFrame, [](MainFrameHost&) { return nullptr; });
    parts_.startObjectServices = [] { return false; };
    fake_.profile.sections["Recent TMF List"]["File1"] = "c:\\a.tmf";
    EXPECT_FALSE(launch(parts_));
    EXPECT_THAT(texts(fake_),
                ElementsAre("OLE initialization failed.  Make sure that the OLE libraries are the "
                            "correct version."));
    EXPECT_EQ(app_->ExitInstance(), 1);
    EXPECT_EQ(fake_.profile.sections["Recent TMF List"]["File1"], "c:\\a.tmf") << "never read, never lost";

    parts_.startObjectServices = [] { return true; };
    EXPECT_FALSE(launch(parts_));
    EXPECT_THAT(fake_.shell.registered, IsEmpty());
    parts_.makeMainFrame = makeFrame;
    parts_.makePaletteSet = [] { return nullptr; };
    EXPECT_FALSE(launch(parts_));
    EXPECT_EQ(app_->ExitInstance(), 1);
    EXPECT_EQ(texts(fake_).size(), 1U) << "neither has a message";
}

TEST(StartWithoutControls, TellsWhichOneIsMissingAndNeedsOnlyTheGrid) {
    using Names = std::vector<std::string>;
    const struct {
        Names present, messages, asked;
        bool starts;
    } cases[] = {
        {{"FolderPick.ocx", "RampSlider.ocx"}, {"SwatchGrid.ocx is not found."}, {"SwatchGrid.ocx"}, false},
        {{"SwatchGrid.ocx"},
         {"FolderPick.ocx is not found", "RampSlider.ocx is not found"},
         {"SwatchGrid.ocx", "FolderPick.ocx", "RampSlider.ocx"},
         true},
    };
    static int registrations = 0;
    for (const auto& c : cases) {
        FakePlatform fake;
        for (const std::string& control : c.present)
            fake.library.define(control, {{"DllRegisterServer", FakeLibrary::address(+[]() -> std::int32_t {
                                               ++registrations;
                                               return 0;
                                           })}});
        registrations = 0;
        CommandLine commandLine;
        commandLine.noSplash = true;
        CDyeworksApp app;
        EXPECT_EQ(app.InitInstance(commandLine), c.starts);
        EXPECT_EQ(texts(fake), c.messages);
        EXPECT_EQ(fake.library.requests(), c.asked);
        EXPECT_EQ(registrations, c.starts ? 1 : 0);
    }
}

TEST_F(Start, APaletteOnTheCommandLineOpensNoWindowAndResumesNothing) {
    putPalette("c:\\Dyes.Tlf");
    putImages(fake_, {"c:\\a.tmf"});
    fake_.profile.sections["Settings\\Documents"] = {{"count", "1"}, {"0", "c:\\a.tmf"}};
    ask({"c:\\Dyes.Tlf"});
    ASSERT_TRUE(launch());
    EXPECT_EQ(app_->paletteSet()->palettes.size(), 1U);
    EXPECT_THAT(frame().childFrames(), IsEmpty());
    EXPECT_THAT(texts(fake_), IsEmpty());
}

TEST_F(Start, EndsWithoutAWindowAsAServerAndWhenNoFileOfTheCommandLineOpens) {
    commandLine_.task = CommandLine::Task::Serve;
    EXPECT_FALSE(launch());
    EXPECT_FALSE(frame().isVisible());
    EXPECT_THAT(texts(fake_), IsEmpty());
    ask({"c:\\gone.tlf", "c:\\gone.tmf"});
    EXPECT_FALSE(launch());
    EXPECT_FALSE(frame().isVisible());
    const std::string palette = fromHost("c:\\gone.tlf");
    EXPECT_THAT(texts(fake_), ElementsAre("[" + palette + "] file open failed.\n", palette + " open failed",
                                          "[" + fromHost("c:\\gone.tmf") + "] file open failed.\n"));
    EXPECT_EQ(app_->ExitInstance(), 1);
}

TEST_F(Start, AnImageOfTheCommandLineIsActiveAndHasTheRoomThatItNeeds) {
    putImages(fake_, {"c:\\a.tmf"});
    fake_.files.putFile("c:\\b.tmf", imageFile(pattern(200, 150), 8));
    ask({"c:\\a.tmf", "c:\\gone.tmf", "c:\\b.tmf"});
    ASSERT_TRUE(launch()) << "what did open is there to work with";
    ASSERT_NE(frame().activeImageView(), nullptr);
    EXPECT_EQ(frame().activeImageView()->view().document().pathName(), fromHost("c:\\b.tmf"));
    EXPECT_TRUE(frame().activeChild()->isVisible());
    EXPECT_GE(frame().activeImageView()->viewport()->width(), 200);
    EXPECT_GE(frame().activeImageView()->viewport()->height(), 150);
    EXPECT_EQ(app_->imageHost().lastActivatedImage(), &frame().activeImageView()->view().document());
    EXPECT_TRUE(app_->router().state(ID_ZOOM_IN).enabled);
    EXPECT_EQ(app_->ExitInstance(), 0);
}

TEST_F(Start, LeavingKeepsTheFolderAndTheRecentFiles) {
    ASSERT_TRUE(launch());
    fake_.files.createDirectory("c:\\elsewhere");
    ASSERT_TRUE(fake_.files.setCurrentDirectory("c:\\elsewhere"));
    for (const char* path : {"c:\\p.tpf", "c:\\i.tmf", "c:\\q.tlf", "c:\\b.bmp"})
        app_->AddToRecentFileList(path);
    EXPECT_EQ(app_->ExitInstance(), 0);
    EXPECT_EQ(applicationPaletteSet(), nullptr);
    auto& sections = fake_.profile.sections;
    EXPECT_EQ(sections["App section"]["Current Directory"], "c:\\elsewhere");
    for (const auto& [section, path] : {std::pair{"Recent TPF List", "c:\\p.tpf"},
                                        {"Recent TMF List", "c:\\i.tmf"},
                                        {"Recent TLF List", "c:\\q.tlf"},
                                        {"Recent File List", "c:\\b.bmp"}})
        EXPECT_EQ(sections[section]["File1"], path);
}

TEST_F(Start, ToRenderLeavesNoTrace) {
    putImages(fake_, {"c:\\a.tmf"});
    ask({"c:\\a.tmf"});
    commandLine_.renderTo = "picture.png";
    fake_.profile.sections.clear();
    ASSERT_TRUE(launch());
    EXPECT_EQ(app_->ExitInstance(), 0);
    EXPECT_THAT(fake_.shell.registered, IsEmpty());
    EXPECT_FALSE(fake_.shell.deliverOpenRequest({}));
    EXPECT_THAT(fake_.profile.sections, IsEmpty());
}

TEST_F(Start, ToPrintWritesThePdfOrTellsOfTheFailureAndShowsNoWindow) {
    const QTemporaryDir folder;
    putPalette("c:\\p.tlf");
    putImages(fake_, {"c:\\a.tmf"});
    fake_.profile.sections["Settings\\Documents"] = {{"count", "1"}, {"0", "c:\\gone.tmf"}};
    using Names = std::vector<std::string>;
    const std::string failed = "The document could not be printed.";
    const std::tuple<Names, const char*, Names> cases[] = {
        {{"c:\\p.tlf", "c:\\a.tmf"}, "out.pdf", {}},
        {{"c:\\p.tlf"}, "none.pdf", {failed}},
        {{"c:\\a.tmf"}, "gone/out.pdf", {failed}},
        {{"c:\\gone.tmf"}, "none.pdf", {"[" + fromHost("c:\\gone.tmf") + "] file open failed.\n"}}};
    for (const auto& [paths, target, messages] : cases) {
        SCOPED_TRACE(paths.back());
        fake_.messages.shown.clear();
        ask(paths);
        commandLine_.task = CommandLine::Task::PrintTo;
        commandLine_.printFile = folder.filePath(target);
        EXPECT_FALSE(launch()) << "the printed page is all that was asked for";
        EXPECT_EQ(texts(fake_), messages);
        for (const QWidget* window : QApplication::topLevelWidgets())
            EXPECT_FALSE(window->isVisible()) << window->objectName().toStdString();
        EXPECT_EQ(app_->ExitInstance(), messages.empty() ? 0 : 1);
        EXPECT_FALSE(fake_.profile.sections.contains("Settings")) << "nobody saw where the window stood";
        QFile pdf(commandLine_.printFile);
        EXPECT_EQ(pdf.open(QIODevice::ReadOnly), messages.empty());
        EXPECT_TRUE(!pdf.isOpen() || pdf.readAll().startsWith("%PDF-"));
    }
}

} // namespace
} // namespace dyeworks

#include "Program.h"
#include "framework/widgets/ChildFrame.h"

#include <QDir>
#include <QPainter>
#include <QTemporaryDir>

namespace dyeworks {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The program before its start, with a look into the steps that can be put in the place of others.
class Start : public testing::Test {
protected:
    Start() {
        defineControls(fake_);
        commandLine_.noSplash = true;
    }
    bool start() {
        StartUpParts parts;
        parts.startObjectServices = [this] {
            atServices_();
            return services_;
        };
        parts.makeMainFrame = [this, make = parts.makeMainFrame](CDyeworksApp& app) {
            atFrame_(app);
            return frame_ ? make(app) : nullptr;
        };
        parts.makePaletteSet = [this, make = parts.makePaletteSet] {
            atPalettes_();
            return palettes_ ? make() : nullptr;
        };
        app_ = std::make_unique<CDyeworksApp>(std::move(parts));
        return app_->InitInstance(commandLine_);
    }
    void open(const std::vector<std::string>& paths) {
        commandLine_.task = CommandLine::Task::Open;
        for (const std::string& path : paths)
            commandLine_.files << QString::fromStdString(fake_.files.hostPath(path));
    }
    [[nodiscard]] std::vector<std::string> texts() const {
        std::vector<std::string> result;
        for (const Message& message : fake_.messages.shown)
            result.push_back(message.text);
        return result;
    }
    /// A path as it comes in from the command line, where there are no drives.
    [[nodiscard]] std::string fromHost(const std::string& path) const {
        return fake_.files.fromHostPath(fake_.files.hostPath(path));
    }
    void putImage(const char* path) {
        fake_.files.putFile(path, imageFile(texels(4, 4, [](int, int) { return 1U; }), 4));
    }
    void putPalette(const char* path) {
        fake_.files.putFile(path, paletteFile(16, [](int i) { return static_cast<unsigned>(i) * 99; }));
    }

    FakePlatform fake_;
    CommandLine commandLine_;
    bool services_ = true;
    bool frame_ = true;
    bool palettes_ = true;
    std::function<void()> atServices_ = [] {};
    std::function<void(CDyeworksApp&)> atFrame_ = [](CDyeworksApp&) {};
    std::function<void()> atPalettes_ = [] {};
    std::unique_ptr<CDyeworksApp> app_;
};

TEST_F(Start, GoesThroughItsStepsInOrder) {
    fake_.files.createDirectory("c:\\work");
    fake_.locale.locale = 0;
    fake_.locale.system = kLocaleJapanese;
    fake_.profile.sections["App section"]["Current Directory"] = "c:\\work";
    fake_.profile.sections["Recent TMF List"]["File1"] = "c:\\a.tmf";
    std::vector<std::string> steps;
    atServices_ = [&] {
        EXPECT_THAT(fake_.locale.runtimeLanguages, ElementsAre("Japanese"));
        EXPECT_THAT(fake_.locale.environment, ElementsAre("TZ=JST-9"));
        EXPECT_EQ(fake_.locale.timeZoneReads, 1);
        EXPECT_NE(fake_.files.currentDirectory(), "c:\\work");
        steps.emplace_back("services");
    };
    atFrame_ = [&](CDyeworksApp& app) {
        EXPECT_EQ(fake_.files.currentDirectory(), "c:\\work");
        EXPECT_THAT(app.recentImages().paths(), ElementsAre("c:\\a.tmf"));
        EXPECT_THAT(fake_.library.requests(),
                    ElementsAre("SwatchGrid.ocx", "FolderPick.ocx", "RampSlider.ocx"));
        EXPECT_EQ(fake_.library.loadedCount(), 0);
        EXPECT_NE(app.FindDocTemplate("Texture"), nullptr);
        EXPECT_TRUE(app.paletteSet()->palettes.empty()) << "an empty set is seen before there is one";
        EXPECT_EQ(applicationPaletteSet(), nullptr);
        EXPECT_THAT(fake_.shell.registered, IsEmpty());
        steps.emplace_back("frame");
    };
    atPalettes_ = [&] {
        std::vector<std::string> kinds;
        for (const FileTypeRegistration& type : fake_.shell.registered)
            kinds.push_back(type.typeName + type.extension);
        EXPECT_THAT(kinds, ElementsAre("TMF.Document.tmf", "TPF.Document.tpf", "TLF.Document.tlf"));
        EXPECT_TRUE(fake_.shell.deliverOpenRequest({})) << "open requests are taken";
        EXPECT_TRUE(app_->helpPath().empty());
        EXPECT_FALSE(app_->mainFrame().isVisible());
        steps.emplace_back("palettes");
    };
    ASSERT_TRUE(start());
    EXPECT_THAT(steps, ElementsAre("services", "frame", "palettes"));
    EXPECT_EQ(applicationPaletteSet(), app_->paletteSet());
    EXPECT_EQ(app_->helpPath(), fake_.files.programFolder() + "..\\doc\\index.html");
    EXPECT_TRUE(app_->mainFrame().isVisible());
    EXPECT_THAT(texts(), IsEmpty());
}

TEST_F(Start, TheUsersLocaleGoesBeforeTheSystems) {
    fake_.locale.locale = kLocaleEnglish;
    fake_.locale.system = kLocaleJapanese;
    ASSERT_TRUE(start());
    EXPECT_THAT(fake_.locale.runtimeLanguages, IsEmpty());
    EXPECT_THAT(fake_.locale.environment, IsEmpty());
}

TEST_F(Start, EndsWhereSomethingIsMissingAndSaysWhat) {
    services_ = false;
    fake_.profile.sections["Recent TMF List"]["File1"] = "c:\\a.tmf";
    EXPECT_FALSE(start());
    EXPECT_THAT(texts(), ElementsAre("OLE initialization failed.  Make sure that the OLE libraries are the "
                                     "correct version."));
    EXPECT_EQ(app_->ExitInstance(), 1);
    EXPECT_EQ(fake_.profile.sections["Recent TMF List"]["File1"], "c:\\a.tmf") << "never read, never lost";

    services_ = true;
    frame_ = false;
    EXPECT_FALSE(start());
    EXPECT_THAT(fake_.shell.registered, IsEmpty());
    frame_ = true;
    palettes_ = false;
    EXPECT_FALSE(start());
    EXPECT_EQ(app_->ExitInstance(), 1);
    EXPECT_EQ(texts().size(), 1U) << "neither has a message";
}

TEST(StartWithoutControls, TellsWhichOneIsMissingAndNeedsOnlyTheGrid) {
    const struct {
        std::vector<const char*> present;
        std::vector<std::string> messages;
        std::vector<std::string> asked;
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
        for (const char* control : c.present)
            fake.library.define(control, {{"DllRegisterServer", FakeLibrary::address(+[]() -> std::int32_t {
                                               ++registrations;
                                               return 0;
                                           })}});
        registrations = 0;
        CommandLine commandLine;
        commandLine.noSplash = true;
        CDyeworksApp app;
        EXPECT_EQ(app.InitInstance(commandLine), c.starts);
        std::vector<std::string> texts;
        for (const Message& message : fake.messages.shown)
            texts.push_back(message.text);
        EXPECT_EQ(texts, c.messages);
        EXPECT_EQ(fake.library.requests(), c.asked);
        EXPECT_EQ(registrations, c.starts ? 1 : 0);
    }
}

TEST_F(Start, APaletteOnTheCommandLineOpensNoWindowAndResumesNothing) {
    putPalette("c:\\Dyes.Tlf");
    putImage("c:\\a.tmf");
    fake_.profile.sections["Settings\\Documents"] = {{"count", "1"}, {"0", "c:\\a.tmf"}};
    open({"c:\\Dyes.Tlf"});
    ASSERT_TRUE(start());
    EXPECT_EQ(app_->paletteSet()->palettes.size(), 1U);
    EXPECT_THAT(app_->mainFrame().childFrames(), IsEmpty());
    EXPECT_THAT(texts(), IsEmpty());
}

TEST_F(Start, EndsWhenNoFileOfTheCommandLineOpens) {
    open({"c:\\gone.tlf", "c:\\gone.tmf"});
    EXPECT_FALSE(start());
    EXPECT_FALSE(app_->mainFrame().isVisible());
    const std::string palette = fromHost("c:\\gone.tlf");
    EXPECT_THAT(texts(), ElementsAre("[" + palette + "] file open failed.\n", palette + " open failed",
                                     "[" + fromHost("c:\\gone.tmf") + "] file open failed.\n"));
    EXPECT_EQ(app_->ExitInstance(), 1);
}

TEST_F(Start, AnImageOfTheCommandLineIsActiveInTheWindowThatComesUp) {
    putImage("c:\\a.tmf");
    putImage("c:\\b.tmf");
    open({"c:\\a.tmf", "c:\\gone.tmf", "c:\\b.tmf"});
    ASSERT_TRUE(start()) << "what did open is there to work with";
    ASSERT_NE(app_->activeView(), nullptr);
    EXPECT_EQ(app_->activeView()->document().pathName(), fromHost("c:\\b.tmf"));
    EXPECT_TRUE(app_->mainFrame().activeChild()->isVisible());
    EXPECT_EQ(app_->lastActivatedImage(), &app_->activeView()->document());
    EXPECT_TRUE(app_->router().state(ID_ZOOM_IN).enabled);
    EXPECT_EQ(app_->ExitInstance(), 0);
}

TEST_F(Start, AsAServerOfDocumentsItEndsWithoutAWindow) {
    commandLine_.task = CommandLine::Task::Serve;
    EXPECT_FALSE(start());
    EXPECT_FALSE(app_->mainFrame().isVisible());
    EXPECT_THAT(texts(), IsEmpty());
}

TEST_F(Start, LeavingKeepsTheFolderAndTheRecentFiles) {
    ASSERT_TRUE(start());
    fake_.files.createDirectory("c:\\elsewhere");
    ASSERT_TRUE(fake_.files.setCurrentDirectory("c:\\elsewhere"));
    for (const char* path : {"c:\\p.tpf", "c:\\i.tmf", "c:\\q.tlf", "c:\\b.bmp"})
        app_->AddToRecentFileList(path);
    EXPECT_EQ(app_->ExitInstance(), 0);
    EXPECT_EQ(applicationPaletteSet(), nullptr);
    auto& sections = fake_.profile.sections;
    EXPECT_EQ(sections["App section"]["Current Directory"], "c:\\elsewhere");
    EXPECT_EQ(sections["Recent TPF List"]["File1"], "c:\\p.tpf");
    EXPECT_EQ(sections["Recent TMF List"]["File1"], "c:\\i.tmf");
    EXPECT_EQ(sections["Recent TLF List"]["File1"], "c:\\q.tlf");
    EXPECT_EQ(sections["Recent File List"]["File1"], "c:\\b.bmp");
}

TEST_F(Start, ToRenderLeavesNoTrace) {
    putImage("c:\\a.tmf");
    open({"c:\\a.tmf"});
    commandLine_.renderTo = QStringLiteral("picture.png");
    ASSERT_TRUE(start());
    EXPECT_EQ(app_->ExitInstance(), 0);
    EXPECT_THAT(fake_.shell.registered, IsEmpty());
    EXPECT_FALSE(fake_.shell.deliverOpenRequest({}));
    EXPECT_THAT(fake_.profile.sections, IsEmpty());
}

TEST_F(Start, ToPrintWritesThePdfAndShowsNoWindow) {
    const QTemporaryDir folder;
    putPalette("c:\\p.tlf");
    putImage("c:\\a.tmf");
    fake_.profile.sections["Settings\\Documents"] = {{"count", "1"}, {"0", "c:\\gone.tmf"}};
    open({"c:\\p.tlf", "c:\\a.tmf"});
    commandLine_.task = CommandLine::Task::PrintTo;
    commandLine_.printFile = folder.filePath(QStringLiteral("out.pdf"));
    EXPECT_FALSE(start()) << "the printed page is all that was asked for";
    EXPECT_THAT(texts(), IsEmpty());
    for (const QWidget* window : QApplication::topLevelWidgets())
        EXPECT_FALSE(window->isVisible()) << window->objectName().toStdString();
    EXPECT_EQ(app_->ExitInstance(), 0);
    EXPECT_FALSE(fake_.profile.sections.contains("Settings")) << "nobody saw where the image's window stood";
    QFile pdf(commandLine_.printFile);
    ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
    EXPECT_TRUE(pdf.readAll().startsWith("%PDF-"));
}

TEST_F(Start, ToPrintFailsWhereThereIsNothingToPrintOrNoPlaceForIt) {
    const QTemporaryDir folder;
    putPalette("c:\\p.tlf");
    putImage("c:\\a.tmf");
    const struct {
        const char* path;
        const char* target;
        std::vector<std::string> messages;
    } cases[] = {
        {"c:\\p.tlf", "out.pdf", {"The document could not be printed."}},
        {"c:\\a.tmf", "gone/out.pdf", {"The document could not be printed."}},
        {"c:\\gone.tmf", "out.pdf", {"[" + fromHost("c:\\gone.tmf") + "] file open failed.\n"}},
    };
    for (const auto& c : cases) {
        fake_.messages.shown.clear();
        commandLine_.files.clear();
        open({c.path});
        commandLine_.task = CommandLine::Task::PrintTo;
        commandLine_.printFile = folder.filePath(QString::fromLatin1(c.target));
        EXPECT_FALSE(start());
        EXPECT_EQ(texts(), c.messages) << c.path;
        EXPECT_EQ(app_->ExitInstance(), 1) << c.path;
        EXPECT_FALSE(QFile::exists(commandLine_.printFile));
        app_.reset();
    }
}

} // namespace
} // namespace dyeworks

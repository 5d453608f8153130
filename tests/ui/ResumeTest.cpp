#include "Program.h"

namespace dyeworks {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kSection = "Settings\\Documents";
constexpr const char* kResumeFailed = "Some documents failed to resume.";

class Resume : public testing::Test {
protected:
    Resume() {
        defineControls(fake_);
        for (const char* path : {"c:\\a.tmf", "c:\\b.tmf", "c:\\c.tmf"})
            fake_.files.putFile(path, imageFile(texels(4, 4, [](int, int) { return 1U; }), 4));
        fake_.files.putFile("c:\\p.tlf", paletteFile(16, [](int) { return 1U; }));
        commandLine_.noSplash = true;
        app_ = std::make_unique<CDyeworksApp>();
    }
    [[nodiscard]] std::vector<std::string> openDocuments() {
        std::vector<std::string> paths;
        for (const CDocument* document : app_->imageTemplate().documents())
            paths.push_back(document->pathName());
        return paths;
    }
    [[nodiscard]] std::map<std::string, std::string>& stored() { return fake_.profile.sections[kSection]; }

    FakePlatform fake_;
    CommandLine commandLine_;
    std::unique_ptr<CDyeworksApp> app_;
};

TEST_F(Resume, OpensTheRestAfterAFailureAndTellsOnce) {
    const struct {
        std::map<std::string, std::string> entries;
        std::vector<std::string> opened;
        std::size_t messages; // of readers, before that of the resume
        bool fails;
    } cases[] = {
        {{}, {}, 0, false},
        {{{"0", "c:\\a.tmf"}}, {}, 0, false},
        {{{"count", "1"}, {"0", "c:\\a.tmf"}, {"1", "c:\\b.tmf"}}, {"c:\\a.tmf"}, 0, false},
        {{{"count", "3"}, {"0", "c:\\a.tmf"}, {"1", "c:\\gone.tmf"}, {"2", "c:\\c.tmf"}},
         {"c:\\a.tmf", "c:\\c.tmf"},
         1,
         true},
        {{{"count", "2147483647"}, {"0", "c:\\a.tmf"}, {"1", "c:\\b.tmf"}},
         {"c:\\a.tmf", "c:\\b.tmf"},
         0,
         true},
        {{{"count", "3"}, {"0", "c:\\a.tmf"}, {"2", "c:\\c.tmf"}}, {"c:\\a.tmf", "c:\\c.tmf"}, 0, true},
        {{{"count", "-1"}, {"0", "c:\\a.tmf"}}, {}, 0, false},
        {{{"count", "many"}, {"0", "c:\\a.tmf"}}, {}, 0, false},
        {{{"count", "2"}, {"0", "*palette"}, {"1", "c:\\b.tmf"}}, {"c:\\b.tmf"}, 1, true},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        const auto& c = cases[i];
        fake_.messages.shown.clear();
        stored() = c.entries;
        app_.reset();
        app_ = std::make_unique<CDyeworksApp>();
        ASSERT_TRUE(app_->InitInstance(commandLine_));
        EXPECT_EQ(openDocuments(), c.opened) << i;
        EXPECT_EQ(fake_.messages.shown.size(), c.messages + (c.fails ? 1 : 0)) << i;
        if (c.fails) {
            EXPECT_EQ(fake_.messages.lastText(), kResumeFailed) << i;
            EXPECT_EQ(fake_.messages.shown.back().icon, MessageIcon::Information) << i;
        }
    }
}

TEST_F(Resume, NothingWhenTheCommandLineAsksForSomething) {
    stored() = {{"count", "1"}, {"0", "c:\\gone.tmf"}};
    commandLine_.task = CommandLine::Task::Receive;
    ASSERT_TRUE(app_->InitInstance(commandLine_));
    EXPECT_THAT(fake_.messages.shown, IsEmpty());
}

TEST_F(Resume, PalettesAreStoredByKeyAndWindowsFromTheActiveOneDown) {
    ASSERT_TRUE(app_->InitInstance(commandLine_));
    ASSERT_TRUE(app_->paletteSet()->newPalette(16, ColourType::Rgba, 1));
    const std::string unsaved = app_->paletteSet()->currentKey;
    ASSERT_TRUE(app_->OpenFiles({"c:\\a.tmf", "c:\\p.tlf", "c:\\b.tmf", "c:\\c.tmf"}, false));
    app_->mainFrame().activateChild(*app_->mainFrame().frameOf(*app_->FindOpenDocument("c:\\a.tmf")));
    stored() = {{"count", "9"}, {"5", "old"}, {"7", "older"}};
    app_->SaveOpenDocuments();
    EXPECT_THAT(stored(), (std::map<std::string, std::string>{{"count", "5"},
                                                              {"0", unsaved},
                                                              {"1", "c:\\p.tlf"},
                                                              {"2", "c:\\a.tmf"},
                                                              {"3", "c:\\c.tmf"},
                                                              {"4", "c:\\b.tmf"},
                                                              {"5", "old"},
                                                              {"7", "older"}}));
}

} // namespace
} // namespace dyeworks

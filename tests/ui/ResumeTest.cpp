#include "Program.h"

namespace dyeworks {
namespace {

constexpr const char *kA = "c:\\a.tmf", *kB = "c:\\b.tmf", *kC = "c:\\c.tmf";

class Resume : public Launch {
protected:
    Resume() {
        putImages(fake_, {kA, kB, kC});
        fake_.files.putFile("c:\\p.tlf", paletteFile(16, [](int) { return 1U; }));
    }
    [[nodiscard]] std::map<std::string, std::string>& stored() {
        return fake_.profile.sections["Settings\\Documents"];
    }
};

TEST_F(Resume, OpensTheRestAfterAFailureAndTellsOnce) {
    const struct {
        std::map<std::string, std::string> entries;
        std::vector<std::string> opened;
        std::size_t messages; // of readers, before that of the resume
        bool fails;
    } cases[] = {
        {{}, {}, 0, false},
        {{{"0", kA}}, {}, 0, false},
        {{{"count", "1"}, {"0", kA}, {"1", kB}}, {kA}, 0, false},
        {{{"count", "3"}, {"0", kA}, {"1", "c:\\gone.tmf"}, {"2", kC}}, {kA, kC}, 1, true},
        {{{"count", "2147483647"}, {"0", kA}, {"1", kB}}, {kA, kB}, 0, true},
        {{{"count", "3"}, {"0", kA}, {"2", kC}}, {kA, kC}, 0, true},
        {{{"count", "-1"}, {"0", kA}}, {}, 0, false},
        {{{"count", "many"}, {"0", kA}}, {}, 0, false},
        {{{"count", "2"}, {"0", "*palette"}, {"1", kB}}, {kB}, 1, true},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i) {
        const auto& c = cases[i];
        fake_.messages.shown.clear();
        stored() = c.entries;
        ASSERT_TRUE(launch());
        EXPECT_EQ(openImages(), c.opened) << i;
        EXPECT_EQ(fake_.messages.shown.size(), c.messages + (c.fails ? 1 : 0)) << i;
        if (c.fails) {
            EXPECT_EQ(fake_.messages.lastText(), "Some documents failed to resume.") << i;
            EXPECT_EQ(fake_.messages.shown.back().icon, MessageIcon::Information) << i;
        }
    }
}

TEST_F(Resume, SavedPalettesAndWindowsFromTheActiveOneDownComeBack) {
    ASSERT_TRUE(launch());
    ASSERT_TRUE(app_->paletteSet()->newPalette(16, ColourType::Rgba, 1));
    ASSERT_TRUE(app_->OpenFiles({kA, "c:\\p.tlf", kB, kC}, false));
    frame().activateChild(*frame().frameOf(*app_->FindOpenDocument(kA)));
    stored() = {{"count", "9"}, {"5", "old"}, {"7", "older"}};
    app_->SaveOpenDocuments();
    const std::map<std::string, std::string> expected{
        {"count", "4"}, {"0", "c:\\p.tlf"}, {"1", kA}, {"2", kC}, {"3", kB}, {"5", "old"}, {"7", "older"}};
    EXPECT_EQ(stored(), expected);
    ASSERT_TRUE(launch());
    app_->SaveOpenDocuments();
    EXPECT_EQ(stored(), expected) << "the windows stand in another order";
    EXPECT_THAT(fake_.messages.shown, IsEmpty());
}

} // namespace
} // namespace dyeworks

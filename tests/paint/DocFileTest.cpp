#include "DocTestHost.h"

#include <gmock/gmock.h>

#include <functional>

namespace dyeworks {
namespace {

using testing::ElementsAre;

class DocFile : public DocFixture {
protected:
    DocFile() { document.setPathName("c:\\tex.tmf"); }
};

TEST_F(DocFile, SaveDropsTheMarkAndKeepsThePalette) {
    document.setPathName("c:\\a [b] * c.tmf");
    openPalette();
    document.Attach();
    const std::string palette = host.palettes.palettes.begin()->second->title;
    document.Pixel(nullptr, 1, 1, 5);
    EXPECT_EQ(document.title(), "a [b] * c.tmf [" + palette + "] * ");
    ASSERT_TRUE(document.save());
    EXPECT_EQ(document.title(), "a [b] * c.tmf [" + palette + "]");
    document.Undo();
    document.Redo();
    EXPECT_EQ(document.title(), "a [b] * c.tmf [" + palette + "] * ");
}

TEST_F(DocFile, SavedPixelsComeBack) {
    for (const Size size : {Size{5, 3}, Size{0, 4}, Size{7, 0}}) {
        document.canvas().Create(size.width, size.height, 1, 4);
        document.Line(nullptr, 0, 0, 4, 2, 13);
        ASSERT_TRUE(document.save());
        CDyeworksDoc copy(host);
        ASSERT_TRUE(copy.onOpenDocument("c:\\tex.tmf"));
        EXPECT_EQ(copy.canvas().width(), size.width);
        EXPECT_EQ(copy.canvas().height(), size.height);
        EXPECT_THAT(copy.canvas().pixelRows(), testing::ElementsAreArray(pixels()));
        EXPECT_FALSE(copy.hasUnsavedChanges());
    }
}

TEST_F(DocFile, FailedSaveTellsWhatAndWhyAndLeavesTheDocumentModified) {
    document.Pixel(nullptr, 1, 1, 5);
    platform.files.failNextWrite(FileError::NoSpace);
    EXPECT_FALSE(document.save());
    EXPECT_EQ(platform.messages.lastText(),
              "Cannot save \"c:\\tex.tmf\".\nThere is no space left on the disk.");
    EXPECT_EQ(document.title(), "tex.tmf * ");
    EXPECT_TRUE(document.hasUnsavedChanges());
}

TEST_F(DocFixture, SaveOfANewImageAsksForItsFile) {
    document.setTitle("Texture3");
    document.Pixel(nullptr, 1, 1, 5);
    EXPECT_FALSE(document.save()); // cancelled
    platform.dialogs.answerWith("c:\\new.tmf");
    platform.files.failNextWrite(FileError::AccessDenied);
    EXPECT_FALSE(document.save());
    EXPECT_EQ(document.pathName(), "");
    EXPECT_EQ(document.title(), "Texture3 * ");

    platform.dialogs.answerWith("c:\\new.tmf");
    ASSERT_TRUE(document.save());
    const FileDialogRequest& request = platform.dialogs.shown.back().request;
    EXPECT_EQ(request.filter, "Image Files (*.tmf)|*.tmf||");
    EXPECT_EQ(request.defaultExtension, ".tmf");
    EXPECT_EQ(request.initialName, "Texture3");
    EXPECT_TRUE(request.hideReadOnly && request.overwritePrompt);
    EXPECT_EQ(document.pathName(), "c:\\new.tmf");
    EXPECT_EQ(document.title(), "new.tmf");
}

TEST_F(DocFile, SaveQuestionIsAskedWhereverTheFileDiffers) {
    const auto draw = [this](std::uint32_t value) { document.Pixel(nullptr, 1, 1, value); };
    const auto save = [this] { ASSERT_TRUE(document.save()); };
    const auto undo = [this] { ASSERT_TRUE(document.Undo()); };
    struct Case {
        const char* name;
        std::function<void()> steps;
        bool modified;
        bool asks;
    };
    const std::vector<Case> cases{
        {"untouched", [] {}, false, false},
        {"drawn and undone", [&] { draw(1), undo(); }, false, false},
        {"saved, then undone to the start", [&] { draw(1), save(), undo(); }, false, true},
        {"saved, undone, then another edit undone", [&] { draw(1), save(), undo(), draw(2), undo(); }, false,
         true},
        {"back at the saved step", [&] { draw(1), save(), undo(), document.Redo(); }, true, true},
        {"history cleared where it was saved", [&] { draw(1), save(), document.ClearUndo(); }, false, false},
        {"history cleared elsewhere", [&] { draw(1), save(), undo(), document.ClearUndo(), draw(3), undo(); },
         false, true},
        {"start dropped for capacity",
         [&] {
             for (std::uint32_t n = 1; n <= 101; ++n)
                 draw(1 + n % 2);
             while (document.Undo()) {
             }
         },
         false, true},
    };
    for (const Case& step : cases) {
        SCOPED_TRACE(step.name);
        document.canvas().Create(16, 12, 1, 4);
        ASSERT_TRUE(document.save());
        ASSERT_TRUE(document.onOpenDocument("c:\\tex.tmf"));
        EXPECT_FALSE(document.CanUndo());
        step.steps();
        EXPECT_EQ(document.isModified(), step.modified);
        EXPECT_EQ(document.hasUnsavedChanges(), step.asks);
    }
}

TEST_F(DocFile, ClosingClearsThePanesAndForgetsTheDocument) {
    host.panes = {{1, "(1, 2) 100%"}, {2, "(16, 12) 4bit"}};
    {
        CDyeworksDoc other(host);
        host.setLastActivatedImage(&other);
        other.onCloseDocument();
    }
    EXPECT_THAT(host.panes, ElementsAre(std::pair(1, std::string()), std::pair(2, std::string())));
    EXPECT_EQ(host.lastActivatedImage(), nullptr);
}

} // namespace
} // namespace dyeworks

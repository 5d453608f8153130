#include "DocTestHost.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <utility>

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

TEST_F(DocFile, SavedPixelsComeBackInTheFormatOfTheName) {
    struct Case {
        const char* path;
        Size size;
        bool bmp;
    };
    for (const Case& c : {Case{"c:\\tex.tmf", {5, 3}, false}, Case{"c:\\no height.tmf", {7, 0}, false},
                          Case{"c:\\no width.bmp", {0, 4}, true}, Case{"c:\\A.BMP", {5, 3}, true},
                          Case{"c:\\a.bmp.tmf", {5, 3}, false}, Case{"c:\\d.bmp\\b", {5, 3}, false},
                          Case{"a.bmp", {5, 3}, false}, Case{"ab.bmp", {5, 3}, true}}) {
        SCOPED_TRACE(c.path);
        platform.files.createDirectory("c:\\d.bmp");
        platform.files.setCurrentDirectory("c:\\d.bmp");
        const Size size = c.size;
        document.canvas().Create(size.width, size.height, 1, 4);
        document.Line(nullptr, 0, 0, 4, 2, 13);
        ASSERT_TRUE(document.onSaveDocument(c.path));
        EXPECT_EQ(platform.files.textOf(c.path)->substr(0, 2) == "BM", c.bmp);
        CDyeworksDoc copy(host);
        const std::size_t palettes = host.palettes.palettes.size();
        ASSERT_TRUE(copy.onOpenDocument(c.path));
        EXPECT_EQ(host.palettes.palettes.size(), palettes + (c.bmp ? 1 : 0));
        EXPECT_FALSE(copy.IsAttached());
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

TEST_F(DocFile, ColoursOfABitmapBecomeTheCurrentPalette) {
    const auto colours = document.canvas().colourTable();
    const std::uint8_t third[] = {0x47, 0x88, 0xff, 0x08}; // blue, green, red, reserved
    std::ranges::copy(third, colours.begin() + 2 * 4);
    ASSERT_TRUE(document.canvas().SaveBmp("c:\\pic.bmp"));
    ASSERT_TRUE(document.onOpenDocument("c:\\pic.bmp"));
    const TlutData& table = host.palettes.lookup("")->table;
    EXPECT_EQ(table.count, 16);
    EXPECT_EQ(table.colourType, ColourType::Rgba);
    EXPECT_THAT((std::vector{table.getRed(2), table.getGreen(2), table.getBlue(2), table.getAlpha(2)}),
                ElementsAre(31, 17, 8, 1));
    EXPECT_EQ(table.getAlpha(3), 0);
    EXPECT_EQ(host.barRefreshes, 1);

    platform.files.putFile("c:\\bad.bmp", "BMP");
    EXPECT_FALSE(document.onOpenDocument("c:\\bad.bmp"));
    EXPECT_EQ(host.palettes.palettes.size(), 1U);

    EXPECT_EQ(platform.messages.shown.size(), 1U);
    std::string compressed = platform.files.textOf("c:\\pic.bmp").value();
    compressed[30] = 1; // run lengths
    platform.files.putFile("c:\\rle.bmp", compressed);
    EXPECT_FALSE(document.onOpenDocument("c:\\rle.bmp"));
    EXPECT_EQ(platform.messages.lastText(), "compressed format not supported.\n");
    EXPECT_EQ(platform.messages.shown.size(), 2U) << "told once";
}

TEST_F(DocFile, RevertGoesBackToTheFileAndKeepsThePalette) {
    openPalette();
    document.Attach();
    const auto canRevert = [&] { return stateOf(document, ID_FILE_REVERT).enabled; };
    document.Pixel(nullptr, 1, 1, 5);
    ASSERT_TRUE(document.save());
    const auto saved = pixels();
    const std::string title = document.title();
    openPalette(256); // another one is current now
    EXPECT_FALSE(canRevert());
    document.canvas().Create(40, 50, 1, 4); // the file has another size
    document.Fill(nullptr, 0, 0, 3);
    EXPECT_TRUE(canRevert());
    const auto edited = pixels();
    document.runCommand(ID_FILE_REVERT); // the question is answered with no
    EXPECT_EQ(pixels(), edited);
    platform.messages.answerWith({MessageAnswer::Yes, MessageAnswer::Ok});
    platform.files.failNextRead(FileError::AccessDenied);
    document.runCommand(ID_FILE_REVERT);
    EXPECT_EQ(pixels(), edited);
    EXPECT_TRUE(document.CanUndo());
    platform.messages.answerWith(MessageAnswer::Yes);
    document.runCommand(ID_FILE_REVERT);
    EXPECT_EQ(pixels(), saved);
    EXPECT_EQ(document.title(), title);
    EXPECT_FALSE(document.hasUnsavedChanges() || document.CanUndo() || canRevert());
    document.Pixel(nullptr, 15, 11, 2);
    document.Undo();
    EXPECT_EQ(pixels(), saved);
}

TEST_F(DocFixture, AddToProjectAsksForWhatIsMissing) {
    FakeProject project;
    platform.files.createDirectory("c:\\proj");
    const std::string start = platform.files.currentDirectory();
    const std::string question =
        "You must attach a palette before add to project.\nattach to active palette now?\n";
    const std::string pleaseSave = "Please save document that adds to project.";
    const auto run = [&](MessageAnswer attach, const std::vector<std::string>& messages,
                         const std::vector<std::string>& added) {
        platform.messages.shown.clear();
        platform.messages.answerWith(attach);
        document.runCommand(ID_IMAGE_ADD_TO_PROJECT);
        std::vector<std::string> texts;
        for (const Message& message : platform.messages.shown)
            texts.push_back(message.text);
        EXPECT_EQ(texts, messages);
        EXPECT_EQ(std::exchange(project.added, {}), added);
        EXPECT_EQ(platform.files.currentDirectory(), start);
    };
    EXPECT_FALSE(stateOf(document, ID_IMAGE_ADD_TO_PROJECT).enabled);
    host.project = &project;
    openPalette();
    EXPECT_TRUE(stateOf(document, ID_IMAGE_ADD_TO_PROJECT).enabled);
    run(MessageAnswer::No, {question}, {});
    run(MessageAnswer::Yes, {question, pleaseSave, "not add to project."}, {}); // no file is chosen
    platform.dialogs.answerWith("p.tmf");
    run(MessageAnswer::Ok, {pleaseSave}, {"c:\\proj\\p.tmf," + document.attachedName()});
}

} // namespace
} // namespace dyeworks

#include "DocTestHost.h"
#include "paint/BmpFormat.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <utility>

namespace dyeworks {
namespace {

using testing::ElementsAre;

class DocFile : public DocFixture {
protected:
    DocFile() { document.setPathName("c:\\tex.tmf"); }
};

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
        document.Edit(nullptr, [](TextureCanvas& canvas) { canvas.DrawLine(0, 0, 4, 2, 13); });
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

TEST_F(DocFixture, SaveOfANewImageAsksForItsFile) {
    document.setTitle("Texture3");
    pixel(1, 1, 5);
    EXPECT_FALSE(document.save()); // cancelled
    platform.dialogs.answerWith("c:\\new.tmf");
    platform.files.failNextWrite(FileError::NoSpace);
    EXPECT_FALSE(document.save());
    EXPECT_EQ(platform.messages.lastText(),
              "Cannot save \"c:\\new.tmf\".\nThere is no space left on the disk.");
    EXPECT_EQ(document.pathName(), "");
    EXPECT_EQ(document.title(), "Texture3 * ");
    EXPECT_TRUE(document.hasUnsavedChanges());

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
    TextureLookupTable& palette = *host.palettes.lookup("");
    palette.beginEdit();
    palette.setEntry(0, 5);
    palette.commitEdit();
    EXPECT_TRUE(palette.undo() && palette.hasUnsavedChanges()) << "no file holds them";
}

TEST_F(DocFile, WhatCannotBeOpenedIsToldWithTheReasonAndLeavesNothingBehind) {
    using namespace std::string_literals;
    ASSERT_TRUE(document.canvas().SaveBmp("c:\\pic.bmp"));
    const std::string whole = platform.files.textOf("c:\\pic.bmp").value();
    const auto with = [&](std::size_t at, char byte) {
        std::string changed = whole;
        changed[at] = byte;
        return changed;
    };
    // An image file may have sides that no canvas has.
    const std::string wide = "\0\x12\x03\0\0\0\x80\0\0\0\x80\0\0\0\0\x08"s + std::string(48, '\0');
    const std::string cannot = "Cannot open \"c:\\x.bmp\".\n";
    const std::string damaged = cannot + "The file is damaged or ends before the bitmap does.";
    const struct {
        std::optional<std::string> contents;
        std::string message;
        const char* path = "c:\\x.bmp";
    } cases[] = {
        {std::nullopt, cannot + "The file or its folder does not exist."},
        {with(0, 'P'), cannot + "The file is not a bitmap, or one of an unknown kind."},
        {whole.substr(0, whole.size() - 1), damaged},
        {"BM", damaged},
        {with(21, -1), cannot + "The width or height of the bitmap is out of range."},
        {with(30, 1), "compressed format not supported.\n"}, // run lengths
        {with(30, 3), "compressed format not supported.\n"}, // bit fields
        {wide, "Cannot open \"c:\\x.tmf\".\n" + describe(FileError::TooLarge), "c:\\x.tmf"},
    };
    for (const auto& [contents, message, path] : cases) {
        platform.messages.shown.clear();
        if (contents)
            platform.files.putFile(path, *contents);
        EXPECT_FALSE(document.onOpenDocument(path));
        EXPECT_EQ(platform.messages.shown.size(), 1U) << "told once";
        EXPECT_EQ(platform.messages.lastText(), message);
    }
    EXPECT_FALSE(document.CreateFrom(TmfImage()));
    BmpImage huge;
    huge.width = huge.height = BmpImage::kLongestSide;
    huge.bitsPerPixel = 32;
    EXPECT_FALSE(document.CreateFrom(huge));
    EXPECT_TRUE(host.palettes.palettes.empty());
}

TEST_F(DocFile, ReloadingTakesWhatTheFileHoldsWhateverItsKindAndIsAStep) {
    ASSERT_TRUE(document.save());
    for (const std::uint16_t bits : {std::uint16_t{8}, std::uint16_t{4}}) {
        for (const std::int32_t height : {12, 9}) {
            CDyeworksDoc other(host);
            other.canvas().Create(16, height, 1, bits);
            other.canvas().PutPixel(3, 3, 9);
            other.setPathName(document.pathName());
            ASSERT_TRUE(other.save());
            document.ClearUndo();
            const auto before = pixels();
            ASSERT_TRUE(document.reloadFile());
            EXPECT_EQ(document.canvas().bitsPerPixel(), bits);
            EXPECT_TRUE(std::ranges::equal(document.canvas().pixelRows(), other.canvas().pixelRows()));
            EXPECT_FALSE(document.hasUnsavedChanges());
            EXPECT_EQ(document.edits().steps->count(), 1);
            document.Undo();
            EXPECT_EQ(pixels(), before);
            EXPECT_TRUE(document.hasUnsavedChanges());
            document.Redo();
        }
    }
}

TEST_F(DocFile, WhatCameFromElsewhereIsUnsavedWithAllItsStepsTakenBack) {
    fill(0, 0, 7);
    document.setPathName("c:\\x.bmp");
    ASSERT_TRUE(document.save());
    const auto bytes = platform.files.bytesOf("c:\\x.bmp");
    const auto bitmap = parseBmp(*bytes);
    TmfImage image;
    ASSERT_TRUE(bitmap && image.create(4, 4, 4));
    for (const bool plain : {true, false}) {
        ASSERT_TRUE(plain ? document.CreateFrom(image) : document.CreateFrom(bitmap.value()));
        EXPECT_EQ(document.canvas().GetPixel(3, 3), plain ? 0U : 7U);
        pixel(1, 1, 5);
        EXPECT_TRUE(document.Undo() && document.hasUnsavedChanges());
        EXPECT_TRUE(document.title().ends_with(" * "));
    }
}

TEST_F(DocFile, EveryDepthOpensAndIsSavedAsABitmapOnly) {
    for (const int bits : {1, 16, 24, 32}) {
        SCOPED_TRACE(bits);
        TextureCanvas picture;
        picture.Create(3, 2, 1, static_cast<std::uint16_t>(bits));
        picture.SetPixel(2, 1, 0xABCDEF01);
        ASSERT_TRUE(picture.SaveBmp("c:\\deep.bmp"));
        ASSERT_TRUE(document.onOpenDocument("c:\\deep.bmp"));
        EXPECT_EQ(host.palettes.palettes.size(), 1U) << "of the two colours";
        EXPECT_EQ(host.palettes.lookup("")->table.count, 2);
        pixel(0, 0, 1);
        ASSERT_TRUE(document.onSaveDocument("c:\\again.bmp"));
        TextureCanvas again;
        ASSERT_TRUE(again.LoadBmp("c:\\again.bmp"));
        picture.SetPixel(0, 0, 1);
        EXPECT_TRUE(std::ranges::equal(again.block(), picture.block()));

        EXPECT_FALSE(document.onSaveDocument("c:\\no.tmf"));
        EXPECT_EQ(
            platform.messages.lastText(),
            "Cannot save \"c:\\no.tmf\".\nA TMF image has 4 or 8 bits for each texel, and this one has " +
                std::to_string(bits) + ".\nGive it a name that ends in .bmp.");
        EXPECT_FALSE(platform.files.exists("c:\\no.tmf"));
    }
}

TEST_F(DocFile, ExportedBitmapIsACopyAndTheDocumentKeepsItsFile) {
    pixel(1, 1, 5);
    const std::string title = document.title();
    document.runCommand(ID_FILE_EXPORT_BMP); // cancelled
    const FileDialogRequest& request = platform.dialogs.shown.back().request;
    EXPECT_EQ(request.filter, "Bitmap Files (*.bmp)|*.bmp||");
    EXPECT_EQ(request.initialName, "tex.bmp");
    EXPECT_TRUE(request.overwritePrompt);

    platform.files.putFile("c:\\copy.v2.bmp", "old");
    const std::string question = "\"c:\\copy.v2.bmp\" exists already.\nDo you want to replace it?";
    const struct {
        const char* name;
        const char* written;
        std::vector<MessageAnswer> answers;
        const char* failure;
    } cases[] = {
        {"c:\\copy.bmp", "c:\\copy.bmp", {}, nullptr},
        {"c:\\COPY2.BMP", "c:\\COPY2.BMP", {}, nullptr},
        {"c:\\copy.tmf", "c:\\copy.tmf.bmp", {}, nullptr},
        {"c:\\copy.v2", nullptr, {MessageAnswer::No}, nullptr},
        {"c:\\copy.v2", "c:\\copy.v2.bmp", {MessageAnswer::Yes}, nullptr},
        {"c:\\full.bmp", nullptr, {}, "Cannot save \"c:\\full.bmp\".\nThere is no space left on the disk."}};
    for (const auto& [name, written, answers, failure] : cases) {
        SCOPED_TRACE(name);
        platform.messages.shown.clear();
        for (const MessageAnswer answer : answers)
            platform.messages.answerWith(answer);
        if (failure != nullptr)
            platform.files.failNextWrite(FileError::NoSpace);
        platform.dialogs.answerWith(name);
        document.runCommand(ID_FILE_EXPORT_BMP);
        EXPECT_EQ(platform.messages.lastText(), failure != nullptr ? failure
                                                : answers.empty()  ? ""
                                                                   : question);
        if (written != nullptr) {
            EXPECT_TRUE(
                std::ranges::equal(platform.files.bytesOf(written).value(), document.canvas().block()));
        }
    }
    EXPECT_EQ(platform.files.textOf("c:\\copy.v2.bmp")->substr(0, 2), "BM");
    EXPECT_FALSE(platform.files.exists("c:\\full.bmp"));
    EXPECT_EQ(document.title(), title);
    EXPECT_EQ(document.pathName(), "c:\\tex.tmf");
    EXPECT_TRUE(document.hasUnsavedChanges());
}

TEST_F(DocFile, RevertOfAFileThatCannotBeReadLeavesWhatThereIs) {
    ASSERT_TRUE(document.save());
    fill(0, 0, 3);
    const auto edited = pixels();
    platform.messages.answerWith({MessageAnswer::Yes, MessageAnswer::Ok});
    platform.files.failNextRead(FileError::AccessDenied);
    document.runCommand(ID_FILE_REVERT);
    EXPECT_EQ(pixels(), edited);
    EXPECT_TRUE(document.edits().canUndo());
}

TEST_F(DocFixture, AddToProjectAsksForWhatIsMissing) {
    FakeProject project;
    platform.files.createDirectory("c:\\proj\\pal");
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
    const std::string pleaseSavePalette = "Please save the palette that is added to the project.";
    platform.dialogs.answerWith("p.tmf");
    run(MessageAnswer::Ok, {pleaseSave, pleaseSavePalette, "not add to project."}, {});
    platform.dialogs.answerWith("p.tlf");
    run(MessageAnswer::Ok, {pleaseSavePalette}, {"c:\\proj\\p.tmf,c:\\proj\\pal\\p.tlf"});
    run(MessageAnswer::Ok, {}, {"c:\\proj\\p.tmf,c:\\proj\\pal\\p.tlf"});
    EXPECT_TRUE(document.IsAttached());
}

} // namespace
} // namespace dyeworks

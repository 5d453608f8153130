#include "ProjectTestHost.h"

#include <gmock/gmock.h>

namespace dyeworks {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using Project = ProjectFixture;

constexpr const char* kPictures = "\\Project\\Picture\\";

TEST_F(Project, IsAskedForUntilItIsWrittenAtOnce) {
    fake_.files.putFile("c:\\p\\old.tpf", "old");
    host_.newProjects = {{"", "c:\\p", "", ""},
                         {"OLD.TPF", "c:\\p", "", ""},
                         {"sea", "c:\\p", "x", "y"},
                         {"sea", "c:\\p", "c:\\p#1", ""},
                         {"sea", "c:\\p", "tex", ""}};
    fake_.messages.answerWith({MessageAnswer::Ok, MessageAnswer::No});
    document_.setTitle("Project1");
    ASSERT_TRUE(document_.onNewDocument());
    EXPECT_THAT(messages(),
                ElementsAre("Incorrect parameter.", "c:\\p\\OLD.TPF file already exists.\nOver write?",
                            "TMF_DIR = \"c:\\p\\x\"and,\nTLF_DIR = \"c:\\p\\y\"is\nnot exist directory.",
                            "Incorrect parameter.", HasSubstr("c:\\p#1")));
    EXPECT_EQ(fake_.files.textOf("c:\\p\\sea.tpf"),
              "TPF_DIR\t=\tc:\\p\r\nTMF_DIR\t=\ttex\r\nTLF_DIR\t=\t\r\nPICT_NUM\t=\t0\r\n");
    EXPECT_EQ(fake_.files.textOf("c:\\p\\old.tpf"), "old");
    EXPECT_EQ(document_.title(), "sea");
    EXPECT_EQ(host_.project, &document_);
    EXPECT_EQ(document_.plugInHandles().size(), 1U);
}

TEST_F(Project, IsTheOnlyOne) {
    open("");
    CTPFDocument second(host_);
    fake_.messages.answerWith(MessageAnswer::Cancel);
    EXPECT_FALSE(second.onOpenDocument("c:\\p\\sea.tpf"));
    EXPECT_EQ(host_.project, &document_);
    host_.closes = false;
    fake_.messages.answerWith(MessageAnswer::Ok);
    EXPECT_FALSE(second.onOpenDocument("c:\\p\\sea.tpf")) << "its own question was cancelled";
    host_.closes = true;
    fake_.messages.answerWith(MessageAnswer::Ok);
    EXPECT_TRUE(second.onOpenDocument("c:\\p\\sea.tpf"));
    EXPECT_EQ(host_.project, &second);
    EXPECT_EQ(fake_.messages.shown[0].icon, MessageIcon::Warning);
}

TEST_F(Project, KeepsRulesForTheImagesOfItsPictures) {
    fake_.files.putFile("c:\\p\\tex\\a.tmf", "");
    fake_.files.putFile("c:\\p\\a.tmf", "");
    open("TMF_DIR = tex\nPICT_NUM = 1\nPICT.0 = a,A.tmf,a.tlf,0\nRules.PowersOfTwo = 1\n");
    TextureRules rules = document_.rules();
    EXPECT_TRUE(rules.powersOfTwo);
    document_.SetRules(rules);
    EXPECT_FALSE(document_.isModified());
    rules.texelBytes = 2048;
    document_.SetRules(rules);
    ASSERT_TRUE(document_.isModified() && document_.save());
    EXPECT_THAT(fake_.files.textOf("c:\\p\\sea.tpf").value(), HasSubstr("Rules.TexelBytes\t=\t2048\r\n"));
    EXPECT_TRUE(document_.holdsImage("c:\\p\\tex\\a.tmf"));
    EXPECT_FALSE(document_.holdsImage("c:\\p\\a.tmf"));
}

TEST_F(Project, TellsPicturesOfAnImageThatNameAnotherNumber) {
    fake_.files.putFile("c:\\p\\Sea.tmf", "");
    open("PICT.0\t=\tone,sea.tmf,a.tlf,2\r\nPICT.1\t=\ttwo,SEA.tmf,a.tlf,0\r\n"
         "PICT.2\t=\tthree,gone.tmf,a.tlf,2\r\nPICT_NUM\t=\t3\r\n");
    EXPECT_THAT(document_.PicturesOfOtherNumber("C:\\p\\sea.tmf", 0), ElementsAre("one"));
    EXPECT_THAT(document_.PicturesOfOtherNumber("c:\\p\\sea.tmf", 2), ElementsAre("two"));
}

TEST_F(Project, MarksItsTitleWhileItIsModified) {
    open("");
    document_.SetValue("Note.1", "x");
    EXPECT_EQ(document_.title(), "sea *");
    document_.setPathName("c:\\p\\lake.tpf");
    EXPECT_EQ(document_.title(), "lake *");
    ASSERT_TRUE(document_.save());
    EXPECT_EQ(document_.title(), "lake");
    EXPECT_THAT(fake_.files.textOf("c:\\p\\lake.tpf").value(), HasSubstr("Note.1\t=\tx\r\n"));
    EXPECT_FALSE(document_.RemoveKey("Note.2"));
    EXPECT_FALSE(document_.isModified());
    EXPECT_TRUE(document_.RemoveKey("Note.1"));
    EXPECT_TRUE(document_.isModified());

    fake_.files.failNextWrite(FileError::NoSpace);
    fake_.dialogs.answerWith("c:\\p\\full.tpf");
    EXPECT_FALSE(document_.saveAs());
    EXPECT_EQ(document_.pathName(), "c:\\p\\lake.tpf");
    EXPECT_EQ(document_.title(), "lake *");
    document_.setPathName("c:\\p\\sky *.tpf");
    document_.setModified(false);
    EXPECT_EQ(document_.title(), "sky *") << "the file's own star";
    fake_.dialogs.answerWith("c:\\p\\tex\\pond.tpf");
    EXPECT_TRUE(document_.saveAs());
    EXPECT_EQ(document_.pathName(), "c:\\p\\tex\\pond.tpf");
    EXPECT_EQ(document_.title(), "pond");
    EXPECT_THAT(fake_.files.textOf("c:\\p\\tex\\pond.tpf").value(), HasSubstr("TMF_DIR\t=\t..\\\r\n"));
}

TEST_F(Project, ProposesTheNextFreeName) {
    openPictures({"Picture0", "Picture1", "Tex5", "Tex6", "Sky", "Sky0", "N99999999999999999999"});
    const struct {
        std::optional<std::string> wanted;
        const char* proposed;
    } cases[] = {
        {std::nullopt, "Picture2"}, {"", "Picture2"}, {"Tex5", "Tex7"},
        {"Tex05", "Tex05"},         {"Sky", "Sky1"},  {"N99999999999999999999", "N999999999999999999990"}};
    for (const auto& c : cases) {
        EXPECT_FALSE(document_.AddPicture(c.wanted, "", "", 0, std::nullopt, false)) << "cancelled";
        EXPECT_EQ(host_.proposed.name, c.proposed);
    }
    EXPECT_FALSE(document_.isModified());
}

TEST_F(Project, AddsWhatTheDialogGivesBehindThePictureThatIsNamed) {
    openPictures({"A", "B"});
    host_.pictures = {{"C", "c.tmf", "tex\\c.tlf", 3, "", ""}};
    ASSERT_TRUE(document_.AddPicture(std::nullopt, "c:\\p\\tex\\x.tmf", "d:\\x.tlf", 1, "A", false));
    EXPECT_EQ(host_.proposed.imageFile, "tex\\x.tmf");
    EXPECT_EQ(host_.proposed.paletteFile, "d:\\x.tlf");
    EXPECT_THAT(document_.pictureNames(), ElementsAre("A", "C", "B"));
    PictureEntry entry;
    ASSERT_TRUE(document_.GetPicture("C", entry));
    EXPECT_EQ(entry, (PictureEntry{"c.tmf", "tex\\c.tlf", 3}));
    EXPECT_TRUE(document_.isModified());
    EXPECT_THAT(host_.take(), ElementsAre("changed"));
}

TEST_F(Project, RefusesWhatItsFileCannotHold) {
    openPictures({"A", "B"});
    const std::string longName(480, 'n');
    const struct {
        PictureSettings entered;
        PictureField refused;
    } cases[] = {
        {{"", "", "", 0, "", ""}, PictureField::Name},
        {{"a,b", "", "", 0, "", ""}, PictureField::Name},
        {{"a=b", "", "", 0, "", ""}, PictureField::Name},
        {{"a\\b", "", "", 0, "", ""}, PictureField::Name},
        {{"a", "x,y.tmf", "", 0, "", ""}, PictureField::Image},
        {{"a", "", "x#y.tlf", 0, "", ""}, PictureField::Palette},
        {{longName, "longer than fits behind it.tmf", "", 0, "", ""}, PictureField::Name},
        {{"B", "", "", 0, "", ""}, PictureField::Name},
    };
    for (const auto& c : cases) {
        fake_.messages.shown.clear();
        host_.pictures = {c.entered};
        EXPECT_FALSE(document_.AddPicture(std::nullopt, "", "", 0, std::nullopt, false)) << c.entered.name;
        EXPECT_EQ(host_.refused, c.refused) << c.entered.name;
        EXPECT_EQ(messages().size(), 1U) << c.entered.name;
        EXPECT_FALSE(document_.SetPicture(c.entered.name, {c.entered.imageFile, c.entered.paletteFile, 0}) &&
                     c.entered.name != "B")
            << c.entered.name;
    }
    document_.setModified(false);
    host_.pictures = {{"B-\xE7\xA9\xBA", "a b.tmf", "", 15, "", ""}};
    EXPECT_TRUE(document_.AddPicture(std::nullopt, "", "", 0, std::nullopt, false));
}

TEST_F(Project, ChangingTheNameRenamesThePicture) {
    openPictures({"A", "B", "C"});
    host_.pictures = {{"D", "d.tmf", "d.tlf", 1, "", ""}};
    ASSERT_TRUE(document_.ChangePicture("B"));
    EXPECT_THAT(document_.pictureNames(), ElementsAre("D", "A", "C"));
    host_.pictures = {{"C", "e.tmf", "", 0, "", ""}, {"A", "a.tmf", "", 0, "", ""}};
    fake_.messages.answerWith({MessageAnswer::No, MessageAnswer::Yes});
    ASSERT_TRUE(document_.ChangePicture("D"));
    EXPECT_THAT(document_.pictureNames(), ElementsAre("A", "C"));
    host_.pictures = {{"C", "new.tmf", "", 0, "", ""}};
    ASSERT_TRUE(document_.ChangePicture("C")) << "its own name needs no question";
    EXPECT_EQ(messages().size(), 2U);
    EXPECT_FALSE(document_.ChangePicture("gone"));
}

TEST_F(Project, TellsWhatADropWouldDo) {
    openPictures({"A"});
    const std::string picture = std::string(kPictures) + "A=a.tmf,a.tlf,0";
    const struct {
        const char* target;
        std::optional<std::string> data;
        std::uint32_t keys;
        std::uint32_t effect;
    } cases[] = {
        {"", picture, 0, drop_effect::kNone},
        {"\\project\\Picture", picture, 0, drop_effect::kNone},
        {"\\Project", picture, 0, drop_effect::kNone},
        {"\\Project\\Picture", std::nullopt, 0, drop_effect::kNone},
        {"\\Project\\Picture", "text", 0, drop_effect::kNone},
        {"\\Project\\Picture", "=\\Project\\Picture\\A", 0, drop_effect::kNone},
        {"\\Project\\Picture", picture, 0, drop_effect::kMove},
        {"\\Project\\Picture\\B", picture, drag_key::kShift, drop_effect::kMove},
        {"\\Project\\Picture\\A", picture, 0, drop_effect::kNone},
        {"\\Project\\Picture\\A", picture, drag_key::kControl, drop_effect::kCopy},
        {"\\Project\\Notes", picture, drag_key::kControl, drop_effect::kLink},
    };
    for (const auto& c : cases)
        EXPECT_EQ(document_.DragOverNode(c.target, c.data, c.keys), c.effect) << c.target;
    EXPECT_THAT(host_.take(), ElementsAre("\\Project\\Picture\\A over \\Project\\Notes 8"));
}

TEST_F(Project, DropsMoveCopyAndReorderPictures) {
    openPictures({"A b ", "B-1", "\xE7\xA9\xBA", "A b"});
    std::string text;
    EXPECT_TRUE(document_.NodeToString(std::string(kPictures) + "A b ", text));
    EXPECT_TRUE(document_.DropOnNode("\\Project\\Picture", text, drop_effect::kMove));
    EXPECT_THAT(document_.pictureNames(), ElementsAre("A b ", "B-1", "\xE7\xA9\xBA", "A b"));
    EXPECT_TRUE(document_.NodeToString(std::string(kPictures) + "B-1", text));
    EXPECT_TRUE(document_.DropOnNode(std::string(kPictures) + "A b", text, drop_effect::kCopy));
    EXPECT_THAT(document_.pictureNames(), ElementsAre("A b ", "B-1", "\xE7\xA9\xBA", "A b", "B-2"));
    PictureEntry entry;

    host_.log.clear();
    const std::string lines = "\\Project\\Picture\\X=x.tmf,y.tlf,7,8\n\nno key\nName=1 # old\n";
    EXPECT_TRUE(document_.DropOnNode("\\Project\\Notes", lines, drop_effect::kCopy));
    EXPECT_THAT(host_.take(), ElementsAre("\\Project\\Picture\\X=x.tmf,y.tlf,7,8 on \\Project\\Notes 1",
                                          "Name=1 on \\Project\\Notes 1"));
    EXPECT_TRUE(document_.DropOnNode("\\Project\\Picture", lines, drop_effect::kCopy));
    ASSERT_TRUE(document_.GetPicture("X", entry));
    EXPECT_EQ(entry, (PictureEntry{"x.tmf", "y.tlf", 7}));
    EXPECT_FALSE(document_.DropOnNode("\\Elsewhere", lines, drop_effect::kCopy));
    host_.onCall = [this] { document_.onCloseDocument(); };
    EXPECT_TRUE(document_.DropOnNode("\\Project\\Notes", "A=1\nB=2\n", drop_effect::kCopy));
    EXPECT_THAT(host_.take(), testing::Not(testing::Contains("B=2 on \\Project\\Notes 1"))) << "is closed";
    EXPECT_FALSE(document_.NodeToString("\\Project\\Picture\\gone", text));
    EXPECT_FALSE(document_.NodeToString("\\Project", text));
}

TEST_F(Project, OpensWhatIsThereOfAPicture) {
    fake_.files.putFile("c:\\p\\tex\\a.tmf", "x");
    fake_.files.putFile("c:\\p\\a.tlf", "x");
    fake_.files.putFile("c:\\d.tlf", "x");
    open("TMF_DIR = tex\nPICT_NUM = 2\nPICT.0 = A,a.tmf,c:d.tlf,3\nPICT.1 = B,b.tmf,a.tlf,3\n");
    document_.OnNodeDoubleClick("\\Project\\Picture\\A");
    EXPECT_THAT(host_.take(), ElementsAre("palette c:\\d.tlf", "image c:\\p\\tex\\a.tmf"));
    EXPECT_THAT(messages(), IsEmpty());
    EXPECT_TRUE(document_.OpenPicture("B"));
    EXPECT_THAT(host_.take(), ElementsAre("palette c:\\p\\a.tlf"));
    EXPECT_THAT(messages(), ElementsAre("\"b.tmf\" is not found."));
    fake_.messages.shown.clear();
    document_.SetPicture("D", {"z:\\d.tmf", "a.tlf", 0});
    EXPECT_TRUE(document_.OpenPicture("D"));
    EXPECT_THAT(messages(), ElementsAre(HasSubstr("--drive z=FOLDER")));
    ASSERT_TRUE(document_.RemovePicture("D"));
    host_.log.clear();
    document_.OnNodeDoubleClick("\\Project\\Picture\\a");
    document_.OnNodeDoubleClick("\\Project\\Picture");
    EXPECT_THAT(host_.take(), IsEmpty());

    ASSERT_TRUE(document_.save());
    EXPECT_TRUE(document_.mayClose()) << "nothing of it is open";
    EXPECT_EQ(host_.take().front(), "ask");
    document_.RestartPlugIns();
    static_cast<void>(host_.take());
    host_.open = {"c:\\p\\A.TLF", "c:\\p\\tex\\a.tmf", "c:\\d.tlf"};
    const std::string ask = "ask c:\\p\\tex\\a.tmf c:\\d.tlf c:\\p\\a.tlf";
    host_.closes = false;
    EXPECT_FALSE(document_.mayClose());
    EXPECT_THAT(host_.take(), ElementsAre(ask));
    host_.closes = true;
    host_.onCall = [this] {
        EXPECT_FALSE(document_.mayClose()) << "is being asked";
        document_.SetValue("Note.1", "x");
    };
    fake_.messages.answerWith({MessageAnswer::Cancel, MessageAnswer::No});
    EXPECT_FALSE(document_.mayClose());
    EXPECT_THAT(host_.take(), ElementsAre(ask, "delete", "new", "update"));
    ASSERT_TRUE(document_.save());
    EXPECT_TRUE(document_.mayClose());
    host_.onCall = nullptr;
    document_.onCloseDocument();
    EXPECT_THAT(host_.take(), ElementsAre(ask, "delete"));
    EXPECT_EQ(host_.project, nullptr);
}

TEST_F(Project, ExportsAfterItsQuestionUnlessThatIsCancelled) {
    open("");
    document_.setPathName("c:\\p\\sea.tpf");
    CommandUi ui;
    ui.id = ID_EXPORT_FIRST + 2;
    ASSERT_TRUE(document_.updateCommand(ui));
    EXPECT_FALSE(ui.visible);
    document_.setModified(true);
    fake_.messages.answerWith({MessageAnswer::Cancel, MessageAnswer::No});
    document_.runCommand(ID_EXPORT_FIRST + 1);
    EXPECT_THAT(host_.take(), IsEmpty());
    document_.runCommand(ID_EXPORT_FIRST + 1);
    EXPECT_THAT(host_.take(), ElementsAre("export 1 c:\\p\\sea.tpf"));
}

TEST_F(Project, PropertiesMarkItAndTellOfFoldersThatAreMissing) {
    open("");
    EXPECT_FALSE(document_.EditProperties());
    EXPECT_FALSE(document_.isModified());
    host_.newProjects = {{"sea.tpf", "c:\\p", "tex", "nowhere"}};
    EXPECT_TRUE(document_.EditProperties());
    EXPECT_TRUE(document_.isModified());
    EXPECT_EQ(document_.imageDirectory(), "c:\\p\\tex");
    EXPECT_THAT(messages(), ElementsAre("TLF_DIR = \"c:\\p\\nowhere\"is\nnot exist directory."));
}

} // namespace
} // namespace dyeworks

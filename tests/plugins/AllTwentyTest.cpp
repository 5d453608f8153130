#include "PlugInProgram.h"
#include "framework/widgets/ChildFrame.h"

namespace dyeworks {
namespace {

using AllTwenty = PlugInProgram;

const std::string kAlways = " getTMF:1 null:0 setTMF:1 again:1";
const std::string kWithoutProject =
    " setValue:0 getValue:0=# removeKey:0 gone:0=# addNode:0 renameNode:0 removeNode:0 addNode:0 setPicture:0"
    " getPicture:0=# getPictureName:0 first:0 tooLarge:0=# TPFDir:0 cut:0=# none:0=# back:0 TMFDir:0 cut:0=#"
    " none:0=# back:0 TLFDir:0 cut:0=# none:0=# back:0";
const std::string kWithoutPalette = " current:0 getTLF:0 setTLF:0 again:0";
const std::string kOnAThread = kWithoutProject + " getTMF:0 null:0 setTMF:0" + kWithoutPalette;
const std::string kEarly = kWithoutProject + kAlways + kWithoutPalette;

/// With a project, and nodes of it or none.
std::string withProject(const std::string& nodes) {
    return " setValue:1 getValue:1=a b removeKey:1 gone:0=# addNode:1 renameNode:" + nodes +
           " removeNode:" + nodes +
           " addNode:1 setPicture:1 getPicture:1=w.tmf getPictureName:1 first:1 tooLarge:0=# TPFDir:1 "
           "cut:1=c:\\d"
           " none:1=# back:1 TMFDir:1 cut:1=c:\\d none:1=# back:1 TLFDir:1 cut:1=c:\\d none:1=# back:1" +
           kAlways + " current:1 getTLF:1 setTLF:1 again:1";
}

TEST_F(AllTwenty, AnswerFromInsideEveryEntryPointAndOnNoOtherThread) {
    install("AllTwenty", "a.so");
    start();
    openImage();
    openProject();
    const auto runAndSee = [&](CommandId command) {
        repaints_ = 0;
        ASSERT_TRUE(run(command));
        QCoreApplication::processEvents();
        EXPECT_GT(repaints_, 0) << command;
    };
    tree().setCurrentIndex(node("\\Project\\onUpdateNodes"));
    ASSERT_TRUE(app_->router().state(ID_NODE_ADD).enabled);
    runAndSee(ID_NODE_ADD);
    EXPECT_EQ(drag("\\Project\\onCommand", "\\Project\\onUpdateNodes"), Qt::CopyAction);
    fake_.messages.answerWith({MessageAnswer::No, MessageAnswer::No}); // Whether to save the project.
    runAndSee(ID_EXPORT_FIRST);
    frame().activateChild(*frame().frameOf(*app_->FindOpenDocument(kImage)));
    for (const CommandId command : {ID_PREVIEW1, ID_IMPORT_FIRST, ID_EXPORT_FIRST})
        runAndSee(command);
    EXPECT_EQ(abouts_, 14);

    // An import's write-back takes the place of what was set from inside it.
    EXPECT_EQ(texel(1, 0), 1U + 2 + 11) << "two while the file was not open";
    EXPECT_EQ(palette().table.getEntry(7), 7 * 193 + 7 + 12);
    EXPECT_TRUE(palette().modified);
    for (int i = 0; i < 12; ++i) {
        EXPECT_TRUE(image().Undo());
        EXPECT_TRUE(palette().undo());
    }
    EXPECT_FALSE(image().edits().canUndo() || palette().canUndo());
    EXPECT_EQ(texel(1, 0), 3U);
    EXPECT_EQ(palette().table.getEntry(7), 7 * 193 + 7);

    const Lines inTree{"export",   "import",    "preview2", "TPF_export",    "onDrop", "isDroppable",
                       "toString", "onCommand", "query",    "onUpdateNodes", "Picture"};
    Lines nodes;
    for (const auto& child : tree().view().tree().FindNode("\\Project")->children)
        nodes.push_back(child->text);
    EXPECT_EQ(nodes, inTree);
    Lines pictures(inTree.begin(), inTree.end() - 1);
    pictures.insert(pictures.end(), {"onUpdate", "onNew", "Sky"});
    EXPECT_EQ(project().pictureNames(), pictures);

    ASSERT_TRUE(run(ID_PROJECT_CLOSE));
    EXPECT_EQ(texts(fake_), Lines(3, "Save changes to c:\\proj\\sea.tpf?")) << "once more after onDelete";

    Lines expected;
    const auto expect = [&](const std::string& where, const std::string& answers) {
        expected.push_back("a.so " + where + answers);
        expected.push_back("a.so thread" + kOnAThread);
    };
    for (const char* where : {"isAvail", "getType"})
        expect(where, kEarly);
    for (const char* where : {"onNew", "onUpdate"})
        expect(where, withProject("0"));
    for (auto where = inTree.rbegin() + 1; where != inTree.rend(); ++where)
        expect(*where, withProject("1"));
    expect("onDelete", withProject("1"));
    const Lines noted = log();
    ASSERT_EQ(noted.size(), expected.size());
    for (std::size_t i = 0; i < noted.size(); ++i)
        EXPECT_EQ(noted[i], expected[i]);
}

} // namespace
} // namespace dyeworks

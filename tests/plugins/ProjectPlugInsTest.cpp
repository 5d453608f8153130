#include "PlugInProgram.h"

#include <QStatusBar>

#include <algorithm>

namespace dyeworks {
namespace {

using ProjectPlugIns = PlugInProgram;

TEST_F(ProjectPlugIns, AreCalledInOrderWithTheirHandlesUntilOneAnswers) {
    for (const char* file : {"c.so", "b.so", "a.so"})
        install("Nodes", file);
    start();
    openProject();
    EXPECT_THAT(log(), ElementsAre("a.so onNew", "b.so onNew", "c.so onNew", "a.so onUpdate a.so",
                                   "b.so onUpdate b.so", "c.so onUpdate c.so", "a.so onUpdateNodes a.so",
                                   "b.so onUpdateNodes b.so", "c.so onUpdateNodes c.so"));
    EXPECT_EQ(node("\\Project\\a.so").row(), 1) << "behind the pictures";
    EXPECT_EQ(node("\\Project\\c.so").row(), 3);

    tree().setCurrentIndex(node("\\Project\\c.so"));
    EXPECT_FALSE(app_->router().state(ID_NODE_ADD).enabled);
    EXPECT_TRUE(app_->router().state(ID_NODE_EDIT).enabled);
    ASSERT_TRUE(run(ID_NODE_EDIT));
    EXPECT_THAT(log(),
                ElementsAre("a.so onCommand a.so", "a.so of \\Project\\c.so", "b.so onCommand b.so",
                            "b.so of \\Project\\c.so", "c.so onCommand c.so", "c.so of \\Project\\c.so"));

    EXPECT_EQ(drag("\\Project\\c.so", "\\Project\\a.so", Qt::ControlModifier), Qt::CopyAction);
    Lines dragged = log();
    // How often a drag that moves is asked about is the desktop's matter.
    const auto isQuestion = [](const std::string& line) {
        return line.find("isDroppable") != line.npos || line.ends_with("a.so\\Project\\c.so");
    };
    EXPECT_GT(std::erase_if(dragged, isQuestion), 0U);
    EXPECT_THAT(dragged, ElementsAre("a.so toString a.so", "b.so toString b.so",
                                     "a.so onDrop \\Project\\a.so \\Project\\c.so=1 1 a.so",
                                     "b.so onDrop \\Project\\a.so \\Project\\c.so=1 1 b.so",
                                     "a.so onDrop \\Project\\a.so key=two words 1 a.so",
                                     "b.so onDrop \\Project\\a.so key=two words 1 b.so"));
    EXPECT_EQ(drag("\\Project\\c.so", "\\Project\\a.so"), Qt::MoveAction);
    log();

    // All three have one name, which the first handler answers for.
    EXPECT_THAT(menu(ID_EXPORT_FIRST), ElementsAre("&0 nodes", "&1 nodes", "&2 nodes"));
    ASSERT_TRUE(run(ID_EXPORT_FIRST + 1));
    EXPECT_THAT(log(), ElementsAre("b.so export a.so", "b.so export c:\\proj\\sea.tpf"));
    EXPECT_EQ(fake_.waitCursor.depth, 0);
    ASSERT_TRUE(run(ID_PROJECT_CLOSE));
    EXPECT_THAT(log(), ElementsAre("a.so onDelete a.so", "b.so onDelete b.so", "c.so onDelete c.so"));
}

TEST_F(ProjectPlugIns, ThatThrowOrFailDoNotStopTheOthers) {
    install("Throwing", "a.so");
    install("Nodes", "b.so");
    install("Failing", "c.so");
    start();
    openProject();
    EXPECT_THAT(log(), ElementsAre("a.so onNew", "b.so onNew", "b.so onUpdate b.so", "a.so onUpdateNodes",
                                   "b.so onUpdateNodes b.so"));
    const std::string failed = "The plug-in a.so failed.";
    EXPECT_EQ(status_.back(), failed);
    tree();
    for (const CommandId which : {0U, 2U}) {
        frame().statusBar()->clearMessage();
        status_.clear();
        ASSERT_TRUE(run(ID_EXPORT_FIRST + which));
        EXPECT_EQ(status_, which == 0 ? Lines{failed} : Lines());
    }
    EXPECT_THAT(log(), ElementsAre("a.so TPF_export", "c.so exports without handle c:\\proj\\sea.tpf"));
    EXPECT_THAT(fake_.messages.shown, IsEmpty());
}

} // namespace
} // namespace dyeworks

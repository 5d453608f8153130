#include "ProjectTestHost.h"
#include "project/CTPFTreeView.h"
#include "project/ProjectTreeWindow.h"

#include <gmock/gmock.h>

#include <optional>
#include <set>

namespace dyeworks {
namespace {

using testing::ElementsAre;

/// A window that remembers what is expanded, and selects what it is told to.
class FakeTreeWindow : public ProjectTreeWindow {
public:
    [[nodiscard]] bool isExpanded(const ProjectNode& node) const override { return expanded.contains(&node); }
    void expand(const ProjectNode& node) override { expanded.insert(&node); }
    void select(const ProjectNode* node) override { view->SelectionChanged(node); }
    [[nodiscard]] std::optional<WindowPlacement> placement() const override { return place; }
    void setPlacement(const WindowPlacement& placement) override { place = placement; }

    CTPFTreeView* view = nullptr;
    std::set<const ProjectNode*> expanded;
    std::optional<WindowPlacement> place;
};

/// Of one project, shown in a window that can be opened again.
class TreeView : public ProjectFixture {
protected:
    void show() {
        view_.reset();
        window_ = FakeTreeWindow();
        view_.emplace(document_, window_);
        window_.view = &*view_;
        view_->InitialUpdate();
    }
    [[nodiscard]] ProjectNode* node(const std::string& path) { return view_->tree().FindNode(path); }
    void select(const std::string& path) { view_->SelectionChanged(node(path)); }
    [[nodiscard]] std::string selected() {
        std::string path;
        static_cast<void>(view_->GetNodePath(view_->tree().selected(), path));
        return path;
    }
    [[nodiscard]] std::vector<std::string> pictures() {
        std::vector<std::string> texts;
        for (const auto& child : node("\\Project\\Picture")->children)
            texts.push_back(child->text);
        return texts;
    }
    [[nodiscard]] bool enabled(CommandId id) {
        CommandUi ui;
        ui.id = id;
        return view_->updateCommand(ui) && ui.enabled;
    }

    FakeTreeWindow window_;
    std::optional<CTPFTreeView> view_;
};

TEST_F(TreeView, HasOnlyTheNewNodesOfPlugInsThatBeginAnew) {
    openPictures({"A"});
    show();
    ASSERT_TRUE(view_->AddNode("Notes", 2, "\\Project", std::string()) &&
                view_->AddNode("Top", 2, {}, std::string()));
    select("\\Project\\Picture\\A");
    window_.expanded.insert(node("\\Project\\Picture"));
    host_.log.clear();
    document_.EndPlugIns();
    document_.RestartPlugIns();
    EXPECT_THAT(host_.take(), ElementsAre("delete", "new", "update", "update nodes", "select A"));
    EXPECT_EQ(view_->tree().childrenOf(nullptr).size(), 1U);
    EXPECT_EQ(node("\\Project")->children.size(), 1U);
    EXPECT_EQ(selected(), "\\Project\\Picture\\A");
}

constexpr CommandId kNodeCommands[] = {ID_NODE_ADD, ID_NODE_EDIT, ID_NODE_REMOVE, ID_NODE_PROPERTY};

TEST_F(TreeView, BeginsWithTheProjectOpenAndItsPicturesInOrder) {
    openPictures({"B", "A"});
    show();
    EXPECT_THAT(pictures(), ElementsAre("B", "A"));
    EXPECT_THAT(window_.expanded, ElementsAre(node("\\Project")));
    EXPECT_THAT(host_.take(), ElementsAre("update nodes"));
}

TEST_F(TreeView, CommandsGoToThePicturesTheProjectOrThePlugIns) {
    openPictures({"A"});
    show();
    for (const char* text : {"Notes", "pictures too"})
        view_->AddNode(text, 2, "\\Project", std::string());
    const struct {
        const char* node;
        bool queries; ///< What the plug-ins answer.
        std::vector<bool> enabled;
        std::vector<std::string> done;
    } cases[] = {
        {"", true, {false, false, false, false}, {" 0", " 1", " 2", " 3"}},
        {"\\Project",
         true,
         {false, false, false, true},
         {"\\Project 0", "\\Project 1", "\\Project 2", "command 32815"}},
        {"\\Project\\Picture",
         true,
         {true, true, true, false},
         {"command 32807", "command 32809", "command 32808", "\\Project\\Picture 3"}},
        {"\\Project\\Picture\\A",
         false,
         {true, true, true, false},
         {"select A", "command 32807", "select A", "command 32809", "select A", "command 32808",
          "\\Project\\Picture\\A 3"}},
        // By how its path begins, in any case, a node is one of the pictures.
        {"\\Project\\pictures too",
         false,
         {true, true, true, false},
         {"command 32807", "command 32809", "command 32808", "\\Project\\pictures too 3"}},
        {"\\Project\\Notes",
         true,
         {true, true, true, true},
         {"\\Project\\Notes 0", "\\Project\\Notes 1", "\\Project\\Notes 2", "\\Project\\Notes 3"}},
        {"\\Project\\Notes",
         false,
         {false, false, false, false},
         {"\\Project\\Notes 0", "\\Project\\Notes 1", "\\Project\\Notes 2", "\\Project\\Notes 3"}},
    };
    for (const auto& c : cases) {
        host_.queries = c.queries;
        select(c.node);
        host_.log.clear();
        std::vector<bool> answers;
        for (const CommandId id : kNodeCommands) {
            answers.push_back(enabled(id));
            view_->runCommand(id);
        }
        EXPECT_EQ(answers, c.enabled) << c.node;
        EXPECT_EQ(host_.take(), c.done) << c.node;
    }
}

TEST_F(TreeView, ShowsWhatACommandAddsBelowItsNode) {
    openPictures({"A"});
    show();
    ASSERT_TRUE(view_->AddNode("Notes", 2, "\\Project", ""));
    select("\\Project\\Notes");
    view_->runCommand(ID_NODE_EDIT);
    EXPECT_FALSE(window_.isExpanded(*node("\\Project\\Notes")));
    host_.onCall = [this] { EXPECT_TRUE(view_->AddNode("first", 2, "\\Project\\Notes", "")); };
    view_->runCommand(ID_NODE_ADD);
    EXPECT_TRUE(window_.isExpanded(*node("\\Project\\Notes")));
    host_.onCall = [this] {
        view_.reset();
        host_.project = nullptr;
    };
    view_->runCommand(ID_NODE_ADD);
}

TEST_F(TreeView, SelectionFollowsItsPicture) {
    openPictures({"A", "B", "C"});
    show();
    EXPECT_EQ(view_->dragData(), std::nullopt);
    select("\\project\\picture\\b");
    EXPECT_THAT(host_.take(), ElementsAre("update nodes", "select B"));
    const std::string dragged = view_->dragData().value();
    EXPECT_FALSE(view_->Drop(nullptr, dragged, drop_effect::kMove));
    EXPECT_TRUE(view_->Drop(node("\\Project\\Picture"), dragged, drop_effect::kMove));
    EXPECT_THAT(pictures(), ElementsAre("B", "A", "C"));
    EXPECT_EQ(selected(), "\\Project\\Picture\\B");
    host_.log.clear();
    EXPECT_TRUE(view_->Drop(node("\\Project\\Picture\\C"), dragged, drop_effect::kCopy));
    EXPECT_THAT(pictures(), ElementsAre("B", "A", "C", "B0"));
    EXPECT_EQ(selected(), "\\Project\\Picture\\B");

    // A picture that goes leaves the selection on the next, the last one on what holds them.
    const char* const left[] = {"\\Project\\Picture\\A", "\\Project\\Picture\\C", "\\Project\\Picture\\B0",
                                "\\Project\\Picture"};
    for (const char* const path : left) {
        EXPECT_TRUE(document_.RemovePicture(view_->tree().selected()->text));
        EXPECT_EQ(selected(), path);
    }
}

TEST_F(TreeView, RemembersItsPlaceAndWhatIsExpanded) {
    openPictures({"A"});
    show();
    EXPECT_EQ(window_.place, std::nullopt);
    view_->AddNode("Notes", 2, "\\Project", std::string());
    view_->AddNode("first", 2, "\\Project\\Notes", std::string());
    view_->AddNode("Beside", 2, std::nullopt, std::string());
    view_->AddNode("Before", 2, std::nullopt, 0U);
    for (const char* path : {"\\Project\\Picture", "\\Project\\Notes\\first", "\\Beside", "\\Before"})
        window_.expand(*node(path));
    WindowPlacement placement;
    placement.right = 300;
    placement.bottom = 200;
    window_.place = placement;
    view_->Closing();
    const std::string section = "Settings\\ProjectTree\\c:\\p\\sea.tpf";
    EXPECT_THAT(fake_.profile.sections[section],
                ElementsAre(testing::Pair("0", "\\Project"), testing::Pair("1", "\\Project\\Picture"),
                            testing::Pair("2", "\\Beside"), testing::Pair("count", "3")))
        << "from the project on, and nothing of what a closed node hides";

    fake_.profile.sections[section]["0"] = "\\Project\\gone";
    fake_.profile.sections[section].erase("2");
    fake_.profile.sections[section]["3"] = "\\project\\picture\\a";
    fake_.profile.setInteger(section, "count", 2'000'000'000);
    show();
    EXPECT_EQ(window_.place, placement);
    EXPECT_EQ(window_.expanded, (std::set<const ProjectNode*>{node("\\Project"), node("\\Project\\Picture"),
                                                              node("\\Project\\Picture\\A")}));
}

TEST_F(TreeView, OutlivesItsOwnNodes) {
    openPictures({"A"});
    show();
    select("\\Project\\Picture\\A");
    EXPECT_TRUE(document_.RemoveNode("Picture", "\\Project"));
    EXPECT_EQ(selected(), "");
    host_.log.clear();
    EXPECT_TRUE(document_.RemovePicture("A"));
    EXPECT_THAT(host_.take(), ElementsAre("changed"));
    EXPECT_TRUE(document_.RemoveNode(0U, std::nullopt));
    view_->Closing();
    EXPECT_EQ(fake_.profile.integer("Settings\\ProjectTree\\c:\\p\\sea.tpf", "count", -1), 0);
    EXPECT_FALSE(document_.RemoveNode(0U, std::nullopt));
    EXPECT_FALSE(document_.RenameNode("x", 0U, std::nullopt));
    EXPECT_TRUE(document_.AddNode("x", 0, std::nullopt, 0U));
}

} // namespace
} // namespace dyeworks

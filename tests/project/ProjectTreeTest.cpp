#include "project/ProjectTree.h"

#include "platform/TextCase.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

using namespace dyeworks;
using testing::ElementsAre;

namespace {

/// "Project(Picture(A B C) Notes)"
std::string shown(const ProjectTree& tree, const ProjectNode* parent = nullptr) {
    std::string text;
    for (const auto& node : tree.childrenOf(parent)) {
        text += (text.empty() ? "" : " ") + node->text;
        if (!node->children.empty())
            text += "(" + shown(tree, node.get()) + ")";
    }
    return text;
}

struct FilledTree {
    ProjectTree tree;

    FilledTree() {
        tree.AddNode("Project", 4, std::nullopt, std::string());
        tree.AddNode("Picture", 0, "\\Project", std::string());
        for (const char* text : {"A", "B", "C"})
            tree.AddNode(text, 5, "\\Project\\Picture", std::string());
    }
};

struct ProjectTrees : testing::Test, FilledTree {};

TEST_F(ProjectTrees, AddsAtTheAskedPlace) {
    struct Case {
        std::optional<std::string> parent;
        NodePlace place;
        const char* result;
    };
    const char* const kFirst = "Project(Picture(x A B C))";
    for (const Case& each : std::vector<Case>{
             {"\\Project\\Picture", 0U, kFirst},
             {"\\Project\\Picture", 1U, "Project(Picture(A B x C))"},
             {"\\Project\\Picture", 2U, "Project(Picture(A B C x))"},
             {"\\Project\\Picture", 3U, kFirst},
             {"\\Project\\Picture", 65535U, kFirst},
             {"\\Project\\Picture", "", "Project(Picture(A B C x))"},
             {"\\project\\picture", "a", "Project(Picture(A x B C))"},
             {"\\Project\\Picture", "no", kFirst},
             {"\\Project\\Picture", "\\Project", kFirst},
             {"\\Project\\Picture\\B", 1U, "Project(Picture(A B(x) C))"},
             {"\\Project\\None", "", "Project(Picture(A B C)) x"},
             {std::nullopt, 0U, "x Project(Picture(A B C))"},
         }) {
        FilledTree fresh;
        EXPECT_NE(fresh.tree.AddNode("x", 1, each.parent, each.place), nullptr);
        EXPECT_EQ(shown(fresh.tree), each.result);
    }
}

TEST_F(ProjectTrees, FindsPathsInAnyCase) {
    tree.AddNode("\xE3\x81\x82 b=c", 5, "\\Project\\Picture", std::string());
    struct Case {
        const char* path;
        const char* found; ///< Its path; null for none.
    };
    for (const Case& each : std::initializer_list<Case>{
             {"\\PROJECT\\picture\\b", "\\Project\\Picture\\B"},
             {"Project\\Picture", "\\Project\\Picture"},
             {"\\Project\\", "\\Project"},
             {"\\Picture", nullptr},
             {"\\Project\\\\Project", "\\Project"}, // An empty part leads back to the top.
             {"\\Project\\\\Picture", nullptr},
             {"\\Project\\Picture\\B\\C", nullptr},
             {"\\Project\\Picture\\\xE3\x81\x82 B=C", "\\Project\\Picture\\\xE3\x81\x82 b=c"},
             {"", nullptr},
             {"\\", nullptr},
         }) {
        const ProjectNode* const node = tree.FindNode(each.path);
        std::string path;
        EXPECT_EQ(tree.GetNodePath(node, path), each.found != nullptr) << each.path;
        EXPECT_EQ(path, each.found == nullptr ? "" : each.found) << each.path;
    }
    ProjectNode* const picture = tree.FindNode("\\Project\\Picture");
    std::size_t position = 4;
    EXPECT_EQ(tree.FindNode("skipb", position, picture), picture->children[1].get());
    EXPECT_EQ(position, 5U);
    EXPECT_EQ(tree.FindNode("", picture), picture);
    EXPECT_EQ(tree.FindNode("Project", picture), nullptr);
}

TEST_F(ProjectTrees, OnlyTheFirstTopNodeBeginsPaths) {
    tree.AddNode("Other", 1, std::nullopt, std::string());
    ProjectNode* const below = tree.AddNode("x", 1, "\\Other", 0U);
    std::string path = "\\behind";
    EXPECT_FALSE(tree.GetNodePath(below, path));
    EXPECT_EQ(path, "\\Other\\x\\behind");
    path.clear();
    EXPECT_FALSE(tree.GetNodePath(nullptr, path));
}

TEST_F(ProjectTrees, RenamesAndRemovesByIndexAndByPath) {
    EXPECT_TRUE(tree.RenameNode("b2", 1U, "\\Project\\Picture"));
    EXPECT_FALSE(tree.RenameNode("x", 3U, "\\Project\\Picture"));
    EXPECT_FALSE(tree.RenameNode("x", "B", "\\Project\\Picture"));
    EXPECT_TRUE(tree.RenameNode("b3", "B2", "\\Project\\Picture"));
    EXPECT_EQ(shown(tree), "Project(Picture(A b3 C))");
    EXPECT_TRUE(tree.RemoveNode(0U, "\\Project\\Picture"));
    EXPECT_FALSE(tree.RemoveNode("A", "\\Project\\Picture"));
    EXPECT_EQ(shown(tree), "Project(Picture(b3 C))");
    EXPECT_TRUE(tree.RemoveNode("\\Project\\Picture", std::nullopt));
    EXPECT_EQ(shown(tree), "Project");
}

TEST_F(ProjectTrees, RemovingANodeAboveTheSelectedOneLeavesNoneSelected) {
    tree.setSelected(tree.FindNode("\\Project\\Picture\\B"));
    EXPECT_TRUE(tree.RemoveNode("A", "\\Project\\Picture"));
    EXPECT_NE(tree.selected(), nullptr);
    EXPECT_TRUE(tree.RemoveNode("Picture", "\\Project"));
    EXPECT_EQ(tree.selected(), nullptr);
}

/// Notes rows, and that they are told about when they are, and when they are not, in the tree.
struct RowNotes : ProjectTreeListener {
    void nodesComing(const ProjectNode*, std::size_t first, std::size_t count) override {
        notes.push_back("+" + std::to_string(first) + "x" + std::to_string(count));
    }
    void nodesCame() override {}
    void nodesGoing(const ProjectNode*, std::size_t first, std::size_t count) override {
        notes.push_back("-" + std::to_string(first) + "x" + std::to_string(count));
    }
    void nodesWent() override {}
    void nodeRenamed(const ProjectNode&) override {}
    std::vector<std::string> notes;
};

TEST_F(ProjectTrees, SettingChildrenTouchesOnlyWhatChanges) {
    struct Case {
        std::vector<std::string> texts;
        std::vector<std::string> notes;
    };
    for (const Case& each : std::vector<Case>{{{"A", "B", "C"}, {}},
                                              {{"A", "C"}, {"-1x1"}},
                                              {{"A", "B", "B", "C"}, {"+2x1"}},
                                              {{"A", "x", "C"}, {"-1x1", "+1x1"}},
                                              {{"C", "A", "B"}, {"-0x3", "+0x3"}},
                                              {{"A", "B"}, {"-2x1"}},
                                              {{}, {"-0x3"}}}) {
        FilledTree fresh;
        RowNotes listener;
        fresh.tree.setListener(&listener);
        ProjectNode& picture = *fresh.tree.FindNode("\\Project\\Picture");
        fresh.tree.setChildren(picture, each.texts, 5);
        EXPECT_EQ(listener.notes, each.notes);
        std::vector<std::string> texts;
        for (const auto& node : picture.children)
            texts.push_back(node->text);
        EXPECT_EQ(texts, each.texts);
    }
    // What a plug-in put below a picture, or beside the pictures under a picture's name, goes.
    tree.AddNode("below", 1, "\\Project\\Picture\\B", 0U);
    tree.RemoveNode("C", "\\Project\\Picture");
    tree.AddNode("C", 8, "\\Project\\Picture", std::string());
    ProjectNode& picture = *tree.FindNode("\\Project\\Picture");
    tree.setChildren(picture, {"A", "B", "C"}, 5);
    EXPECT_EQ(shown(tree), "Project(Picture(A B C))");
    EXPECT_EQ(picture.children[2]->image, 5);
}

TEST(ProjectTree, FindsTheFirstOfItsNameAfterAnyChanges) {
    std::mt19937 random(7); // NOLINT(cert-msc51-cpp): the same run every time.
    ProjectTree tree;
    ProjectNode& top = tree.insert(nullptr, 0, "T", 0);
    const auto any = [&random](std::size_t below) { return random() % below; };
    const auto name = [&any] { return std::string(1, "aAbBcdefghijkl"[any(14)]); };
    for (int step = 0; step < 4000; ++step) {
        const std::size_t count = top.children.size();
        const std::size_t action = any(8);
        if (action < 2)
            tree.insert(&top, any(2) == 0 ? ProjectTree::kEnd : any(count + 1), name(), 0);
        else if (action == 2 && count > 0)
            tree.remove(*top.children[any(count)]);
        else if (action == 3 && count > 0)
            tree.RenameNode(name(), static_cast<std::uint32_t>(any(count)), "T");
        else if (action == 4 && any(20) == 0)
            tree.setChildren(top, {name(), name(), name(), name()}, 0);
        const std::string wanted = name();
        const ProjectNode* first = nullptr;
        for (auto node = top.children.rbegin(); node != top.children.rend(); ++node) {
            if (equalIgnoringCase((*node)->text, wanted))
                first = node->get();
        }
        ASSERT_EQ(tree.FindNode(wanted, &top), first) << step;
    }
}

} // namespace

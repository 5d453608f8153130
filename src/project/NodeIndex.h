#pragma once

#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace dyeworks {

struct ProjectNode;

/// Finds one of many sibling nodes by its text, without regard to case. Of several with the same text it is
/// the first. Must be told of every change of the siblings; it is made when something is looked up first.
class NodeIndex {
public:
    using Nodes = std::vector<std::unique_ptr<ProjectNode>>;

    /// `folded` is the text as `foldedCase` gives it. Null when there is none.
    [[nodiscard]] ProjectNode* find(const Nodes& siblings, std::u32string_view folded);

    void added(ProjectNode& node, bool isLast);
    /// The node is about to go or to change its text.
    void removing(const ProjectNode& node);

private:
    void clear();

    std::unordered_map<std::u32string_view, ProjectNode*> first_; ///< The keys are the nodes' own texts.
    bool complete_ = false;
    bool hasDoubles_ = false; ///< Some node is not entered, because one before it has its text.
};

} // namespace dyeworks

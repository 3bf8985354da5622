#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "project/project.h"

namespace borvik {

/// What a click on a node opens. `name` is that of a table entry or of a picture.
enum class NodeOpens { Nothing, InputForm, Table, Picture, DetailedResults, Notes, Groups, Opinion };

/// A node of a result tree. Nodes are told apart by their text.
struct TreeNode {
    std::string key;
    std::string text;
    NodeOpens opens = NodeOpens::Nothing;
    std::string name = {};     ///< table or picture; for an input form its text
    bool needsLoadsY = false;  ///< has something to show only where horizontal wheel loads are present
    std::vector<TreeNode> children = {};
};

inline constexpr const char* kCalculateFirst = " Calculate before results can be presented ";
inline constexpr const char* kNoLoadsY = " No loads in y-direction";

/// The tree of the main window. The result part is there only
/// after a calculation; nodes of crane 2 only with two cranes.
/// @param input  the part that opens input forms
[[nodiscard]] TreeNode mainTree(TreeNode input, const Project& project, bool withResults);
/// The tree of the detailed results.
[[nodiscard]] TreeNode detailedTree(const Project& project);
/// The node of that text, depth first; null where there is none. "ULS" occurs in both trees with another meaning, and
/// the heads "Input", "Results", "Diagram" open nothing.
[[nodiscard]] const TreeNode* findNode(const TreeNode& root, std::string_view text);

}  // namespace borvik

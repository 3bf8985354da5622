#include "results/result_tree.h"

#include <utility>

#include "diagrams/diagram_kind.h"

namespace borvik {
namespace {

TreeNode head(const char* key, const char* text, std::vector<TreeNode> children = {}) {
    return {key, text, NodeOpens::Nothing, "", false, std::move(children)};
}

TreeNode table(const char* key, const char* text, const char* name, bool needsLoadsY = false) {
    return {key, text, NodeOpens::Table, name, needsLoadsY, {}};
}

/// The pictures, below the heads that they stand under.
TreeNode diagrams(const Project& project) {
    TreeNode tree = head("Diagram", "Diagram");
    for (const PictureKind& picture : pictureKinds()) {
        if (picture.crane() == 2 && project.NofCranes != 2) continue;
        TreeNode node{picture.name, picture.node, NodeOpens::Picture, picture.name, picture.needsLoadsY(), {}};
        if (*picture.group == '\0') {
            tree.children.push_back(std::move(node));
            continue;
        }
        if (tree.children.empty() || tree.children.back().text != picture.group)
            tree.children.push_back(head(picture.group, picture.group));
        tree.children.back().children.push_back(std::move(node));
    }
    return tree;
}

}  // namespace

TreeNode mainTree(TreeNode input, const Project& project, bool withResults) {
    TreeNode root = head("root", "Borvik", {std::move(input)});
    if (!withResults) return root;
    root.children.push_back(
        head("Result", "Results",
             {table("Uls", "ULS", "SummaryULS"), table("UlsSLs", "ULS + SLS", "SummaryULSSLS"),
              table("UlsSlsFls", "ULS + SLS + FLS", "SummaryAll"), table("Sum", "Summary", "Summary")}));
    root.children.push_back(diagrams(project));
    root.children.push_back(table("ReactSup", "Reactions for supports", "SupportReactions"));
    // Of a project with crane data.
    if (!project.Attached.empty())
        root.children.push_back({"Groups", "Compare groups", NodeOpens::Groups, "", false, {}});
    root.children.push_back({"Opinion", "Second opinion", NodeOpens::Opinion, "", false, {}});
    root.children.push_back({"Comp", "Detailed Results", NodeOpens::DetailedResults, "", false, {}});
    root.children.push_back({"Notes", "Notes", NodeOpens::Notes, "", false, {}});
    return root;
}

TreeNode detailedTree(const Project& project) {
    TreeNode fls = head("FLS", "FLS", {table("FLS1", "FLS - Crane 1", "Stress1")});
    if (project.NofCranes == 2) fls.children.push_back(table("FLS2", "FLS - Crane 2", "Stress2"));
    return head("root", "Borvik",
                {head("ULS", "ULS",
                      {head("Moment", "Moment",
                            {table("MyVz", "MyVz max/min", "MyVz"), table("MzVy", "MzVy max/min", "MzVy", true)}),
                       table("Reactions", "Reactions", "Reactions")}),
                 head("SLS", "SLS", {table("Deflection", "Uz/Uy", "Deflection")}),
                 head("CodeCheck", "Codecheck",
                      {table("Stat", "Static", "CodeStatic"), table("Fat", "Fatigue", "CodeFatigue")}),
                 fls});
}

const TreeNode* findNode(const TreeNode& root, std::string_view text) {
    if (root.text == text) return &root;
    for (const TreeNode& child : root.children)
        if (const TreeNode* found = findNode(child, text)) return found;
    return nullptr;
}

}  // namespace borvik

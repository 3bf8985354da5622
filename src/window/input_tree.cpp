#include "window/input_tree.h"

#include <string_view>

#include "dialogs/dialogs.h"

namespace borvik {

TreeNode inputTree() {
    TreeNode tree{"Input", "Input"};
    for (const FormKind& form : formKinds()) {
        const bool known =
            std::string_view(form.node).empty() || (!tree.children.empty() && tree.children.back().text == form.node);
        if (!known) tree.children.push_back({form.key, form.node, NodeOpens::InputForm, form.node});
    }
    return tree;
}

}  // namespace borvik

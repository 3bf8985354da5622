#pragma once

#include <QHash>
#include <QTreeWidget>

#include "results/result_tree.h"

namespace borvik {

/// A tree of input and result nodes. A click on a node, or Enter on it, chooses it; walking over the tree by the arrow
/// keys shows tables and pictures as well, but opens no window.
class ResultTreeView : public QTreeWidget {
    Q_OBJECT

public:
    /// @param name  object name
    explicit ResultTreeView(const QString& name, QWidget* parent = nullptr);

    /// Fills the tree, all nodes visible. A tree of the same nodes is left as the user has it.
    void showTree(const TreeNode& root);
    /// Nodes of results are shown grey while they can't be reached.
    void setResultsReachable(bool reachable);
    /// The item of a node by its text, depth first; null where there is none.
    [[nodiscard]] QTreeWidgetItem* itemOf(const QString& text) const;

Q_SIGNALS:
    /// @param byWalking  by the arrow keys, in passing
    void nodeChosen(const borvik::TreeNode& node, bool byWalking);
    /// F1 on a node that opens something.
    void helpWanted(const borvik::TreeNode& node);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void add(QTreeWidgetItem* parent, const TreeNode& node);
    void choose(QTreeWidgetItem* item, bool byWalking = false);

    TreeNode root_;
    QHash<QTreeWidgetItem*, const TreeNode*> nodes_;
};

}  // namespace borvik

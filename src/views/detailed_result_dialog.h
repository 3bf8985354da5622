#pragma once

#include <QDialog>
#include <QPushButton>

#include "views/calculation_record.h"
#include "views/result_table_view.h"
#include "views/result_tree_view.h"

namespace borvik {

/// frmDetailedResult: every table of a calculation, chosen from a tree of its own.
class DetailedResultDialog : public QDialog {
    Q_OBJECT

public:
    DetailedResultDialog(CalculationPtr calculation, QWidget* parent);

Q_SIGNALS:
    /// A cell has been chosen: where the cranes stand for it.
    void standsChosen(const std::array<CraneStand, 2>& stands);
    /// How the ratio of a row comes about is asked for.
    void workingAsked(const borvik::RowOrigin& origin);

private:
    void showNode(const TreeNode& node);
    [[nodiscard]] int widestTable(const TreeNode& node) const;

    CalculationPtr calculation_;
    ResultTreeView* tree_;
    ResultTablePane* pane_;
    QString shown_;  ///< the node of the table that is shown
};

/// frmTemp: the positions that the cranes took in the last walk.
class CranePositionsDialog : public QDialog {
    Q_OBJECT

public:
    /// @param calculation  null before a calculation, or when the input has changed since: the list is then empty
    CranePositionsDialog(const CalculationPtr& calculation, QWidget* parent);
};

}  // namespace borvik

#include "views/detailed_result_dialog.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>

#include "views/dialog_parts.h"
#include "views/printing.h"

namespace borvik {

DetailedResultDialog::DetailedResultDialog(CalculationPtr calculation, QWidget* parent)
    : QDialog(parent), calculation_(std::move(calculation)) {
    setObjectName("frmDetailedResult");
    setWindowTitle("Detailed Results");
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    tree_ = new ResultTreeView("TreeView1");
    tree_->showTree(detailedTree(calculation_->project));
    pane_ = new ResultTablePane("lstViewDetailed");
    auto* splitter = new QSplitter;
    splitter->addWidget(tree_);
    splitter->addWidget(pane_);
    splitter->setStretchFactor(1, 1);
    splitter->setChildrenCollapsible(false);

    auto* exportButton = new QPushButton("Export to Excel");
    exportButton->setObjectName("cmdDetailedResult");
    exportButton->setAutoDefault(false);
    connect(exportButton, &QPushButton::clicked, this, [this] { exportTable(pane_->list()->table(), this); });

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(exportButton);
    buttons->addStretch();
    buttons->addWidget(closeButton("cmbOk", this));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(splitter, 1);
    layout->addLayout(buttons);
    connect(tree_, &ResultTreeView::nodeChosen, this, &DetailedResultDialog::showNode);
    connect(pane_->list(), &ResultTableView::cellChosen, this,
            [this](int row, int column) { Q_EMIT standsChosen(standsOf(pane_->list()->table(), row, column)); });
    connect(pane_->list(), &ResultTableView::workingAsked, this, &DetailedResultDialog::workingAsked);
    connect(pane_->list(), &ResultTableView::rowChosen, this, [this](int row) {
        if (standsOf(pane_->list()->table(), row, 0)[0].isKnown()) accept();  // the picture behind shows it
    });

    // Wide enough for the widest table, where the screen is.
    constexpr int kTreeWidth = 220, kMargins = 40;
    const TreeNode nodes = detailedTree(calculation_->project);
    const int table = widestTable(nodes);
    const QSize size = generousSize(parent);
    const int most = screen()->availableSize().width() - kMargins;
    resize(std::max(size.width(), std::min(kTreeWidth + table + kMargins, most)), size.height());
    splitter->setSizes({kTreeWidth, width() - kTreeWidth});
    if (const TreeNode* first = findNode(nodes, "MyVz max/min")) showNode(*first);
}

int DetailedResultDialog::widestTable(const TreeNode& node) const {
    int widest = 0;
    if (const TableEntry* entry = findTable(node.name)) {
        pane_->list()->showTable(entry->fill(calculation_->project, calculation_->results));
        widest = pane_->list()->wantedWidth();
    }
    for (const TreeNode& child : node.children) widest = std::max(widest, widestTable(child));
    return widest;
}

void DetailedResultDialog::showNode(const TreeNode& node) {
    const TableEntry* entry = findTable(node.name);
    if (entry == nullptr) return;
    if (!node.needsLoadsY || calculation_->project.HasLoadsY) shown_ = QString::fromStdString(node.text);
    tree_->setCurrentItem(tree_->itemOf(shown_));
    if (shown_.toStdString() != node.text) return;  // without horizontal loads there is nothing to show
    pane_->showTable(QString::fromUtf8(entry->title), entry->fill(calculation_->project, calculation_->results));
}

namespace {

/// The walk whose positions are kept: the last of the fatigue runs.
QString lastWalk(const CalculationRecord& calculation) {
    const FatigueResults& fatigue = calculation.results.Fatigue;
    if (fatigue.Cr12) return QObject::tr("both cranes together");
    if (fatigue.Cr2) return QObject::tr("crane 2 alone, its wheels in the columns of crane 1");
    if (calculation.project.CraneType == CraneKind::Monorail) return QObject::tr("the hoist");
    return calculation.project.NofCranes == 2 ? QObject::tr("both cranes as one train") : QObject::tr("the crane");
}

}  // namespace

CranePositionsDialog::CranePositionsDialog(const CalculationPtr& calculation, QWidget* parent) : QDialog(parent) {
    setObjectName("frmTemp");
    setWindowTitle("TempResults");
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* pane = new ResultTablePane("lstViewTemp");
    if (calculation) {
        pane->showTable(tr("Positions in the last walk, fatigue: %1").arg(lastWalk(*calculation)),
                        TableSteps(calculation->project, calculation->results));
    } else {
        pane->showTable(tr("No calculation of the present input"), TableSteps(Project{}, Results{}));
    }
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(pane, 1);
    layout->addWidget(closeButton("cmdOK", this), 0, Qt::AlignRight);
    resize(generousSize(parent));
}

}  // namespace borvik

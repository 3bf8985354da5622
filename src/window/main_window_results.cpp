#include <QApplication>
#include <QStatusBar>
#include <algorithm>
#include <string_view>

#include "base/number_text.h"
#include "calculation/calculation.h"
#include "calculation/load_check.h"
#include "results/group_tables.h"
#include "results/notes_table.h"
#include "results/ratios.h"
#include "results/second_opinion_tables.h"
#include "results/tables.h"
#include "views/detailed_result_dialog.h"
#include "views/printing.h"
#include "views/working_dialog.h"
#include "window/input_tree.h"
#include "window/main_window.h"

namespace borvik {

void MainWindow::ShowTreeView() {
    tree_->showTree(mainTree(inputTree(), session_.project, session_.Calculated));
}

void MainWindow::ShowTreeViewResults() {
    tree_->showTree(mainTree(inputTree(), session_.project, true));
}

void MainWindow::showNode(const TreeNode& node, bool byWalking) {
    if (node.opens == NodeOpens::InputForm) {
        openForm(node.name, &FormRefusal::inTree);
        return;
    }
    const bool nothingThere = node.needsLoadsY && !session_.project.HasLoadsY;
    if (byWalking && (!session_.Calculated || nothingThere)) {
        if (session_.Calculated) statusBar()->showMessage(kNoLoadsY, 6000);
        return;
    }
    if (!session_.Calculated) {
        services_.messages.show(kCalculateFirst);
        return;
    }
    if (nothingThere) {
        services_.messages.show(kNoLoadsY);
        tree_->setCurrentItem(tree_->itemOf(chosenNode_));  // what is still shown
        return;
    }
    if (node.opens != NodeOpens::DetailedResults) chosenNode_ = QString::fromStdString(node.text);
    switch (node.opens) {
        case NodeOpens::Table:
            showTable(node.name);
            break;
        case NodeOpens::Picture:
            picRes_->showResults(pictureDiagrams(node.name, calculation_->project), calculation_);
            if (driving_) showDrive();
            break;
        case NodeOpens::Notes:
            showNotes();
            break;
        case NodeOpens::Groups:
            showGroups();
            break;
        case NodeOpens::Opinion:
            showOpinion();
            break;
        case NodeOpens::DetailedResults: {
            DetailedResultDialog dialog(calculation_, this);
            connect(&dialog, &DetailedResultDialog::standsChosen, this, &MainWindow::showStands);
            connect(&dialog, &DetailedResultDialog::workingAsked, this, &MainWindow::showWorking);
            dialog.exec();
            break;
        }
        case NodeOpens::InputForm:
        case NodeOpens::Nothing:
            break;
    }
}

void MainWindow::showTable(const std::string& name) {
    const TableEntry* entry = findTable(name);
    if (entry == nullptr) return;
    shownNotes_ = shownGroups_ = false;
    results_->showTable(QString::fromUtf8(entry->title), entry->fill(calculation_->project, calculation_->results));
}

void MainWindow::showNotes() {
    if (!session_.Calculated) return;
    shownNotes_ = true;
    shownGroups_ = false;
    tree_->setCurrentItem(tree_->itemOf("Notes"));
    results_->showTable(tr("Notes for the checking engineer"), TableNotes(*calculation_->notes));
}

/// What a beam with warping torsion says: made where it is asked for.
void MainWindow::showOpinion() {
    shownNotes_ = shownGroups_ = false;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const SecondOpinion opinion = secondOpinion(session_, opinionOptionsOf(session_.project));
    QApplication::restoreOverrideCursor();
    results_->showTable(tr("Second opinion"), tableOf(calculation_->project, opinion));
}

void MainWindow::showGroups() {
    if (!calculation_->groups) {
        services_.messages.show("The crane data can't be used: see Input > Crane data.");
        return;
    }
    shownNotes_ = false;
    shownGroups_ = true;
    results_->showTable(tr("Compare groups"), tableOf(*calculation_->groups));
}

/// The calculation of a row of the matrix: how its largest ratio comes about.
void MainWindow::openGroup(int row) {
    const auto& runs = calculation_->groups->runs;
    if (!session_.Calculated || row < 0 || static_cast<std::size_t>(row) >= runs.size()) return;
    const GroupRun& run = runs[static_cast<std::size_t>(row)];
    const auto largest = std::max_element(run.ratios.begin(), run.ratios.end());
    if (largest == run.ratios.end() || !*largest) return;
    const RowOrigin origin = run.origins[static_cast<std::size_t>(largest - run.ratios.begin())];
    MessageList silent;
    Progress progress;
    const Outcome outcome = Calculate(run.project, session_.tables, silent, progress);
    if (!outcome.results || !origin.isKnown()) return;
    WorkingDialog(workingsOf(session_.tables, outcome.settled, *outcome.results, origin), this).exec();
}

/// From a note to the row that it names, in the summary of all checks or in one of the tables of the detailed results.
void MainWindow::showWorking(const RowOrigin& origin) {
    if (!origin.isKnown() || !session_.Calculated) return;
    WorkingDialog(workingsOf(session_.tables, calculation_->project, calculation_->results, origin), this).exec();
}

void MainWindow::chooseRow(int row) {
    if (shownNotes_)
        goToCheckOf(row);
    else if (shownGroups_)
        openGroup(row);
    else
        showWorking(originOf(results_->list()->table(), row));
}

void MainWindow::goToCheckOf(int note) {
    const auto& notes = calculation_->notes->notes;
    if (!shownNotes_ || !session_.Calculated || note < 0 || static_cast<std::size_t>(note) >= notes.size()) return;
    const auto [table, row] =
        targetOf(notes[static_cast<std::size_t>(note)], calculation_->project, calculation_->results);
    const bool ofSummary = std::string_view(table) == "SummaryAll";
    tree_->setCurrentItem(tree_->itemOf(ofSummary ? "ULS + SLS + FLS" : "Detailed Results"));
    showTable(table);
    if (row < 0) return;
    results_->list()->selectRow(row);
    showStandsOfCell(row, 0);
}

void MainWindow::showGoverning() {
    const auto notes = static_cast<int>(calculation_->notes->notes.size());
    stateNotes_->setText(notes == 1 ? tr("1 note") : tr("%1 notes").arg(notes));
    RatioVerdict verdict = verdictOf(calculation_->results);
    QString ofGroup;
    if (const auto& groups = calculation_->groups; groups && groups->largestRun >= 0) {
        // With crane data the answer is that of all groups.
        if (groups->largest >= verdict.largest)
            ofGroup = tr(" (%1)").arg(
                QString::fromStdString(nameOf(groups->runs[static_cast<std::size_t>(groups->largestRun)].choice)));
        verdict.largest = std::max(verdict.largest, groups->largest);
        verdict.negative |= groups->negative;
    }
    const QString ratio = QString::fromStdString(formatNumber(verdict.largest, "0.000"));
    const bool over = verdict.largest > 1.0;
    // A sign beside the number, so that the state doesn't rest
    // on colour. Loads that are not in order let no tick stand.
    const bool warns = verdict.exceeds(1.0) || !loadRemark(calculation_->project).empty();
    stateGoverning_->setText((warns ? tr("\u26a0 Largest ratio %1") : tr("\u2713 Largest ratio %1")).arg(ratio) +
                             (over ? " > 1" : "") + ofGroup + QString::fromStdString(verdict.remark()));
    stateGoverning_->setToolTip(tr("The largest ratio of all spans, parts, details and points"));
    QFont font = stateCalculated_->font();
    font.setBold(verdict.exceeds(1.0));
    stateGoverning_->setFont(font);
    const double milliseconds = calculation_->results.Seconds * 1000.0;
    stateTime_->setText(milliseconds < 1000.0 ? tr("%1 ms").arg(milliseconds, 0, 'f', 0)
                                              : tr("%1 s").arg(milliseconds / 1000.0, 0, 'f', 1));
    stateTime_->setToolTip(tr("Time of the calculation"));
}

void MainWindow::print(int scope, PrintCommand command) {
    if (running_ || !panel_->commit()) return;
    if (!session_.Calculated) {
        services_.messages.show("  Calculate before print  ");
        return;
    }
    const std::string file = command(session_, scope, reportExtras_, services_, this);
    if (!file.empty()) statusBar()->showMessage(tr("Saved: %1").arg(QString::fromStdString(file)), 10000);
}

}  // namespace borvik

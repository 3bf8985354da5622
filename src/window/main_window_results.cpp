#include <QApplication>
#include <QStatusBar>
#include <algorithm>
#include <string_view>
#include <utility>

#include "base/number_text.h"
#include "calculation/calculation.h"
#include "calculation/load_check.h"
#include "results/notes_table.h"
#include "results/ratios.h"
#include "results/tables.h"
#include "views/detailed_result_dialog.h"
#include "views/icons.h"
#include "views/printing.h"
#include "window/main_window.h"

namespace borvik {

namespace {

/// The hourglass pointer, as long as it lives.
struct BusyPointer {
    BusyPointer() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~BusyPointer() { QApplication::restoreOverrideCursor(); }
    BusyPointer(const BusyPointer&) = delete;
    BusyPointer& operator=(const BusyPointer&) = delete;
};

/// The input form of a node of the tree.
struct FormOfNode {
    const char* node;
    DialogKind overhead, monorail;
};
constexpr FormOfNode kForms[] = {
    {"Setup", DialogKind::Setup, DialogKind::Setup},
    {"Beam", DialogKind::Beam, DialogKind::Beam},
    {"Profile", DialogKind::Profile, DialogKind::Profile},
    {"Rail", DialogKind::Rail, DialogKind::Rail},
    {"Lateral Tors Buckl", DialogKind::Lateral, DialogKind::Lateral},
    {"Loads", DialogKind::Load, DialogKind::LoadRunway},
    {"Fatigue", DialogKind::Fatigue1, DialogKind::Fatigue2},
};

/// Splices in use: the calculation drops those that no longer fit the beam.
int splicesInUse(const Project& project) {
    return static_cast<int>(std::count(project.ChkFat5Sp.begin(), project.ChkFat5Sp.end(), true) +
                            std::count(project.ChkFatR5Sp.begin(), project.ChkFatR5Sp.end(), true));
}

}  // namespace

void MainWindow::openForm(const std::string& node) {
    const auto* form =
        std::find_if(std::begin(kForms), std::end(kForms), [&](const FormOfNode& each) { return node == each.node; });
    if (form == std::end(kForms)) return;
    openForm(session_.project.CraneType == 1 ? form->overhead : form->monorail, QString::fromStdString(node));
}

void MainWindow::openRail(const char* refusal) {
    if (session_.project.CraneType == 1) {
        openForm("Rail");
    } else {
        services_.messages.show(refusal);
    }
}

void MainWindow::openForm(DialogKind kind, const QString& what) {
    if (running_ || !panel_->commit()) return;
    const auto changed = [this, what] { formChanged(what); };
    const auto form = makeDialog(kind, session_, services_.messages, changed, this);
    if (!form) {
        statusBar()->showMessage(tr("This version has no form for: %1").arg(what), 6000);
        return;
    }
    // The setup form knows itself whether it has changed anything; after all others the results count as out of date.
    if (kind != DialogKind::Setup) session_.inputChanged();
    form_ = form.get();
    showState();
    form->exec();
    form_ = nullptr;
    takeOver(*form, kind, what);
}

/// An edit within the form that is open: shown in the sketch and kept for recovery at once, a step of the history when
/// the form closes, since only then its last guard is asked.
void MainWindow::formChanged(const QString& what) {
    picBalk_->showSketch(session_.project);
    panel_->showProject();
    showState();
    if (form_ == nullptr) return;
    keepCopy();
    if (form_->edited()) {
        statusBar()->showMessage(tr("Changed: %1").arg(what), 4000);
    } else {
        statusBar()->clearMessage();
    }
}

/// What a form has made of the project, settled by its closing, is one step. Results that still belong to the input are
/// in reach again.
void MainWindow::takeOver(const InputDialog& form, DialogKind kind, const QString& what) {
    const bool dropped =
        kind == DialogKind::Beam && splicesInUse(session_.project) < splicesInUse(history_.present().project);
    const QString changes = form.whatChanged();
    if (form.edited()) {
        remember(changes.isEmpty() ? what : what + ": " + changes);
        splicesDropped_ = dropped;
    } else {
        history_.settled(session_.project);
        splicesDropped_ = splicesDropped_ || dropped;
    }
    keepCopy();
    followInput();
    WritefrmInput();
}

/// Whether the results shown are those of the input as it stands; names change no result.
bool MainWindow::inputIsCalculated() const {
    if (!calculation_) return false;
    Project input = session_.project;
    input.Proj = calculation_->project.Proj;
    input.Ident = calculation_->project.Ident;
    return input == calculation_->project;
}

/// After a change that may have led back to what was calculated.
void MainWindow::followInput() {
    session_.Calculated = inputIsCalculated();
}

void MainWindow::calculate() {
    if (running_ || !panel_->commit()) return;
    const int splices = splicesInUse(session_.project);
    const bool twoCranes = session_.project.NofCranes == 2;
    Progress silent;
    progress_.reset();
    if (twoCranes) {
        progress_ = std::make_unique<ProgressDialog>(this);
        connect(progress_.get(), &ProgressDialog::closedByUser, this, [this] {
            activateWindow();
            findChild<QWidget*>("iproj")->setFocus();
        });
    }
    running_ = true;
    bool done = false;
    try {
        const BusyPointer busy;
        done = Calculate(session_, services_.messages, twoCranes ? static_cast<Progress&>(*progress_) : silent);
    } catch (const std::exception& error) {
        session_.inputChanged();
        services_.messages.show(std::string("Run-time error. ") + error.what());
    }
    running_ = false;
    history_.settled(session_.project);
    splicesDropped_ = splicesDropped_ || splicesInUse(session_.project) < splices;
    if (!done) {
        progress_.reset();
        WritefrmInput();
        return;
    }
    {
        const BusyPointer busy;
        calculation_ = std::make_shared<const CalculationRecord>(
            CalculationRecord{session_.project, *session_.results, ProjectNotes(session_)});
    }
    ShowTreeViewResults();
    showState();
    picBalk_->showSketch(session_.project);
    picRes_->showResults(pictureDiagrams("MyVz", session_.project), calculation_);
    chosenNode_ = "My + Vz";
    showTable("Summary");
    showGoverning();
    const std::string fault = LoadRemark(session_.project);
    if (fault != std::exchange(loadFaultTold_, fault) && !fault.empty()) services_.messages.show(fault);
}

void MainWindow::ShowTreeView() {
    tree_->showTree(mainTree(session_.project, session_.Calculated));
}

void MainWindow::ShowTreeViewResults() {
    tree_->showTree(mainTree(session_.project, true));
}

void MainWindow::showNode(const TreeNode& node, bool byWalking) {
    if (node.opens == NodeOpens::InputForm) {
        if (node.name == "Rail") {
            openRail(" Rail not available for Monorails");
        } else {
            openForm(node.name);
        }
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
            break;
        case NodeOpens::Notes:
            showNotes();
            break;
        case NodeOpens::DetailedResults:
            DetailedResultDialog(calculation_, this).exec();
            break;
        case NodeOpens::InputForm:
        case NodeOpens::Nothing:
            break;
    }
}

void MainWindow::showTable(const std::string& name) {
    const TableEntry* entry = findTable(name);
    if (entry == nullptr) return;
    shownNotes_ = false;
    results_->showTable(QString::fromUtf8(entry->title), entry->fill(calculation_->project, calculation_->results));
}

void MainWindow::showNotes() {
    if (!session_.Calculated) return;
    shownNotes_ = true;
    tree_->setCurrentItem(tree_->itemOf("Notes"));
    results_->showTable(tr("Notes for the checking engineer"), TableNotes(calculation_->notes));
}

/// From a note to the row that it names, in the summary of all checks or in one of the tables of the detailed results.
void MainWindow::goToCheckOf(int note) {
    const auto& notes = calculation_->notes.notes;
    if (!shownNotes_ || !session_.Calculated || note < 0 || static_cast<std::size_t>(note) >= notes.size()) return;
    const auto [table, row] =
        TargetOf(notes[static_cast<std::size_t>(note)], calculation_->project, calculation_->results);
    const bool ofSummary = std::string_view(table) == "SummaryAll";
    tree_->setCurrentItem(tree_->itemOf(ofSummary ? "ULS + SLS + FLS" : "Detailed Results"));
    showTable(table);
    if (row >= 0) results_->list()->selectRow(row);
}

void MainWindow::showGoverning() {
    const auto notes = static_cast<int>(calculation_->notes.notes.size());
    stateNotes_->setText(notes == 1 ? tr("1 note") : tr("%1 notes").arg(notes));
    const RatioVerdict verdict = verdictOf(calculation_->results);
    const QString ratio = QString::fromStdString(formatNumber(verdict.largest, "0.000"));
    const bool over = verdict.largest > 1.0;
    // A sign beside the number, so that the state doesn't rest on colour. Loads that are not in order let no tick
    // stand.
    const bool warns = verdict.exceeds(1.0) || !LoadRemark(calculation_->project).empty();
    stateGoverning_->setText((warns ? tr("\u26a0 Largest ratio %1") : tr("\u2713 Largest ratio %1")).arg(ratio) +
                             (over ? " > 1" : "") + QString::fromStdString(verdict.remark()));
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
    const std::string file = command(session_, scope, printNotes_->isChecked(), services_, this);
    if (!file.empty()) statusBar()->showMessage(tr("Saved: %1").arg(QString::fromStdString(file)), 10000);
}

}  // namespace borvik

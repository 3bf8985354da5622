#include <QApplication>
#include <utility>

#include "calculation/calculation.h"
#include "calculation/load_check.h"
#include "exchange/attached.h"
#include "project/input_ranges.h"
#include "project/project_file.h"
#include "results/tables.h"
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

/// The groups of a project with crane data; null where there are none, or they can't be used.
std::shared_ptr<const GroupMatrix> groupsOf(const Session& session) {
    std::string fault;
    const Attached attached = attachedOf(session.project, &fault);
    if (attached.cranes.empty() || !fault.empty()) return nullptr;
    try {
        return std::make_shared<const GroupMatrix>(
            compareGroups(session.project, session.tables, attached.cranes, attached.farRails));
    } catch (const std::invalid_argument&) {
        return nullptr;
    }
}

}  // namespace

/// Whether the results shown are those of the input as it stands; names change no result.
bool MainWindow::inputIsCalculated() const {
    if (!calculation_) return false;
    Project input = session_.project;
    input.Proj = calculation_->project.Proj;
    input.Ident = calculation_->project.Ident;
    return sameRecord(input, calculation_->project);
}

/// After a change that may have led back to what was calculated.
void MainWindow::followInput() {
    session_.Calculated = inputIsCalculated();
}

void MainWindow::calculate() {
    if (running_ || !panel_->commit()) return;
    if (run()) {
        showCalculation();
    } else {
        progress_.reset();
        settleInput();
    }
}

/// @return false when there are no results; a message has said so
bool MainWindow::run() {
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
    return done;
}

void MainWindow::showCalculation() {
    {
        const BusyPointer busy;
        makeNotes(session_);
        calculation_ = std::make_shared<const CalculationRecord>(
            CalculationRecord{session_.project, *session_.results, session_.notes, groupsOf(session_)});
    }
    takeDrive();
    ShowTreeViewResults();
    showState();
    picBalk_->showSketch(session_.project);
    picRes_->showResults(pictureDiagrams("MyVz", session_.project), calculation_);
    chosenNode_ = "My + Vz";
    showTable("Summary");
    results_->list()->showRow(governingRow(results_->list()->table()));
    showGoverning();
    const std::string fault = loadRemark(session_.project);
    if (fault != std::exchange(loadFaultShown_, fault) && !fault.empty()) services_.messages.show(fault);
}

}  // namespace borvik

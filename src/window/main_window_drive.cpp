#include <QStatusBar>
#include <algorithm>

#include "diagrams/diagram_reading.h"
#include "diagrams/momentary.h"
#include "results/notes_table.h"
#include "window/main_window.h"

namespace borvik {

namespace {

/// Driven cranes with the calculation that they belong to.
struct DrivenCalculation {
    CalculationPtr calculation;
    CraneDrive drive;
};

}  // namespace

/// Cranes of another calculation; they stand still and out of sight until they are asked for.
void MainWindow::takeDrive() {
    stopDriving();
    auto driven = std::make_shared<DrivenCalculation>(
        DrivenCalculation{calculation_, CraneDrive(calculation_->project, calculation_->results)});
    drive_ = std::shared_ptr<CraneDrive>(driven, &driven->drive);
    driveBar_->showDrive(drive_.get());
}

/// Puts the cranes where a result is reached, and shows the picture that has its line.
void MainWindow::showStands(const std::array<CraneStand, 2>& stands) {
    if (!session_.Calculated || !drive_ || !drive_->goTo(stands)) return;
    driveBar_->stop();
    const std::vector<Diagram> diagrams = pictureOf(drive_->stand(), calculation_->project);
    if (!diagrams.empty() && diagrams != picRes_->diagrams()) picRes_->showResults(diagrams, calculation_);
    showDrive();
}

void MainWindow::showStandsOfCell(int row, int column) {
    if (!session_.Calculated) return;
    if (!shownNotes_) return showStands(standsOf(results_->list()->table(), row, column));
    const auto& notes = calculation_->notes->notes;
    if (row < 0 || static_cast<std::size_t>(row) >= notes.size()) return;
    const auto [table, target] =
        targetOf(notes[static_cast<std::size_t>(row)], calculation_->project, calculation_->results);
    showStands(standsOf(findTable(table)->fill(calculation_->project, calculation_->results), target, 0));
}

/// The line of the present position in both pictures. Another picture may be of another walk.
void MainWindow::showDrive() {
    driving_ = true;
    if (!picRes_->diagrams().empty()) drive_->take(walkOf(picRes_->diagrams().front()));
    picBalk_->showDrive(drive_);
    picRes_->showDrive(drive_);
    driveBar_->showDrive(drive_.get());
    if (!drive_->isThere()) return statusBar()->clearMessage();
    const QString stand = QString::fromStdString(standText(calculation_->project, drive_->stand()));
    const QString cranes = QString::fromStdString(craneText(calculation_->project, *drive_));
    statusBar()->showMessage(tr("%1: %2").arg(stand, cranes), 10000);
}

void MainWindow::driveTo(int j, int k) {
    if (!session_.Calculated || !drive_) return;
    drive_->moveTo(j, k);
    showDrive();
}

/// Begins to drive, or goes back to the result that is looked at: to begin with, the one that governs.
void MainWindow::backToGoverning() {
    if (!session_.Calculated || !drive_) return;
    driveBar_->stop();
    if (drive_->stand().isKnown()) {
        const bool range = drive_->isThere();
        if (range) return showStands(drive_->stands());
        drive_->goBack();
        return showDrive();
    }
    const ResultTable summary = findTable("Summary")->fill(calculation_->project, calculation_->results);
    int row = std::max(0, governingRow(summary));
    // A local check doesn't ask where the cranes stand: then the first one that does.
    if (!standsOf(summary, row, 0)[0].isKnown())
        for (row = 0; row < static_cast<int>(summary.rows.size()) && !standsOf(summary, row, 0)[0].isKnown();) ++row;
    showStands(standsOf(summary, row, 0));
}

void MainWindow::stopDriving() {
    driveBar_->stop();
    driving_ = false;
    picBalk_->showDrive(nullptr);
    picRes_->showDrive(nullptr);
}

}  // namespace borvik

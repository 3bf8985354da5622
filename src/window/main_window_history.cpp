#include <QDir>
#include <QLocale>
#include <QStatusBar>

#include "project/project_file.h"
#include "window/main_window.h"

namespace borvik {

bool MainWindow::hasUnsavedChanges() const {
    const bool asRemembered = form_ != nullptr && !form_->edited();
    return history_.unsaved(asRemembered ? history_.present().project : session_.project);
}

/// A change of the project becomes a step of the history, and is safe from then on.
void MainWindow::remember(const QString& what) {
    if (!history_.changed(what.toStdString(), session_.project)) return;
    keepCopy();
    showHistory();
}

/// A project with unsaved changes has its copy, one without has none.
void MainWindow::keepCopy() {
    const auto& document = history_.present().document;
    const bool keptBefore = copyTrouble_.isEmpty();
    copyTrouble_.clear();
    if (!hasUnsavedChanges()) {
        recovery_.drop(document);
        return;
    }
    const QString reason = recovery_.keep(document, session_.project);
    if (reason.isEmpty()) return;
    copyTrouble_ = tr("No copy of unsaved changes can be kept: %1").arg(reason);
    if (keptBefore) statusBar()->showMessage(copyTrouble_, 20000);
}

void MainWindow::undo() {
    if (running_ || !panel_->commit() || history_.undoName() == nullptr) return;
    const QString message = tr("Undone: %1").arg(QString::fromStdString(*history_.undoName()));
    const auto before = history_.present().document;
    const ProjectStep& step = history_.undo();
    standAt(step, message, step.document != before);
}

void MainWindow::redo() {
    if (running_ || !panel_->commit() || history_.redoName() == nullptr) return;
    const QString message = tr("Done again: %1").arg(QString::fromStdString(*history_.redoName()));
    const auto before = history_.present().document;
    const ProjectStep& step = history_.redo();
    standAt(step, message, step.document != before);
}

/// Puts the project of a step in place of the present one.
/// @param another  the step is of another project than the one shown
void MainWindow::standAt(const ProjectStep& step, const QString& message, bool another) {
    session_.project = step.project;
    session_.FileName = step.document->FileName;
    session_.FileTitle = step.document->FileTitle;
    splicesDropped_ = false;
    followInput();
    if (another) {
        projectShown();
    } else {
        settleInput();
    }
    keepCopy();
    statusBar()->showMessage(message, 4000);
}

void MainWindow::showHistory() {
    const auto show = [](QAction* action, const QString& caption, const std::string* step) {
        action->setEnabled(step != nullptr);
        action->setText(step == nullptr ? caption : caption + ": " + QString::fromStdString(*step).replace("&", "&&"));
    };
    show(undo_, tr("&Undo"), history_.undoName());
    show(redo_, tr("&Redo"), history_.redoName());
}

void MainWindow::offerRecovery() {
    for (const LeftCopy& copy : recovery_.leftCopies()) {
        const QString name = QDir::toNativeSeparators(QString::fromStdString(copy.FileName));
        const QString file = name.isEmpty()            ? tr("a project without a file")
                             : hasPlace(copy.FileName) ? name
                                                       : tr("%1, not saved to a file yet").arg(name);
        if (!copy.project) {
            services_.messages.show(tr("The copy of unsaved changes to %1 can't be read. It is kept as %2")
                                        .arg(file, RecoveryCopies::setAside(copy))
                                        .toStdString());
            continue;
        }
        const QString when = QLocale().toString(copy.written, QLocale::ShortFormat);
        const QString title = QString::fromStdString(copy.project->Proj + ", " + copy.project->Ident);
        switch (services_.questions.yesNoCancel(tr("Borvik ended with unsaved changes.\n\n%1\n%2\nlast changed "
                                                   "%3\n\nBring them back? \"No\" throws them away, "
                                                   "\"Cancel\" asks again at the next start.")
                                                    .arg(file, title, when)
                                                    .toStdString())) {
            case Answer::Yes:
                bringBack(copy);
                return;
            case Answer::No:
                RecoveryCopies::remove(copy);
                break;
            case Answer::Cancel:
                break;
        }
    }
}

void MainWindow::bringBack(const LeftCopy& copy) {
    ProjectDocument document{copy.FileName, copy.FileName, {}, copy.stamp};
    try {
        if (hasPlace(copy.FileName)) LoadProject(copy.FileName, document.saved);
    } catch (const ProjectFileError&) {
        document.saved = {};  // the file is gone or spoilt: what is brought back stands nowhere else
    }
    history_.replaced("Bring back", *copy.project, std::move(document));
    standAt(history_.present(), tr("Brought back: %1").arg(QString::fromStdString(copy.FileName)), true);
    RecoveryCopies::remove(copy);
}

}  // namespace borvik

#include <QStatusBar>

#include "project/input_ranges.h"
#include "window/main_window.h"

namespace borvik {

void MainWindow::openForm(std::string_view node, const char* FormRefusal::*refusal) {
    const bool monorail = session_.project.CraneType != CraneKind::Overhead;
    const FormKind* form = findForm(node, monorail);
    if (form == nullptr) return;
    if (monorail && form->cranes == FormKind::Overhead) {
        services_.messages.show(form->refusal.*refusal);
        return;
    }
    openForm(form->kind, QString::fromUtf8(form->node));
}

void MainWindow::openForm(DialogKind kind, const QString& what) {
    if (running_ || !panel_->commit()) return;
    const auto changed = [this, what] { formChanged(what); };
    const auto form = makeDialog(kind, session_, services_.messages, changed, this);
    // The setup form puts the results out of date itself, and only by a change; all others do so by being opened.
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
    keepInside();
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
    settleInput();
}

}  // namespace borvik

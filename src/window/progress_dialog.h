#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>

#include "platform/progress.h"

namespace borvik {

/// frmProgress: the progress of a run with two cranes. It shows itself, without blocking, when the first walk starts,
/// and stays after the run until the user closes it.
class ProgressDialog : public QDialog, public Progress {
    Q_OBJECT

public:
    explicit ProgressDialog(QWidget* parent);

    void walkStarts(Walk walk) override;
    void position(Walk walk, double percent) override;
    void walkEnds(Walk walk) override;

    /// Lets the user close the window.
    void runEnds(double secondsStatic) override;

Q_SIGNALS:
    /// The user has closed the window by its button.
    void closedByUser();

protected:
    void reject() override;

private:
    void repaintNow();

    ProgressText lines_;
    QPlainTextEdit* txt_;
    QProgressBar* bar_;
    QPushButton* cmdOK_;
    QElapsedTimer sinceRepaint_;
};

}  // namespace borvik

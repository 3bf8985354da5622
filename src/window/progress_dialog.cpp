#include "window/progress_dialog.h"

#include <QCoreApplication>
#include <QVBoxLayout>
#include <cmath>

namespace borvik {

namespace {
constexpr qint64 kRepaintEvery = 33;  // ms: some 30 times a second
}

ProgressDialog::ProgressDialog(QWidget* parent) : QDialog(parent) {
    setObjectName("frmProgress");
    setWindowTitle("Calculating...");
    setModal(false);
    txt_ = new QPlainTextEdit;
    txt_->setObjectName("txt");
    txt_->setReadOnly(true);
    txt_->setAccessibleName(tr("Progress of the calculation"));
    bar_ = new QProgressBar;
    bar_->setObjectName("ProgressBar");
    bar_->setRange(0, 100);
    cmdOK_ = new QPushButton("Close");
    cmdOK_->setObjectName("cmdOK");
    cmdOK_->setDefault(true);
    cmdOK_->setEnabled(false);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(txt_);
    layout->addWidget(bar_);
    layout->addWidget(cmdOK_, 0, Qt::AlignRight);
    const int character = fontMetrics().averageCharWidth();
    resize(60 * character, 14 * fontMetrics().lineSpacing());
    connect(cmdOK_, &QPushButton::clicked, this, [this] {
        hide();
        Q_EMIT closedByUser();
    });
}

void ProgressDialog::walkStarts(Walk walk) {
    lines_.walkStarts(walk);
    bar_->setValue(0);
    show();
    repaintNow();
}

void ProgressDialog::position(Walk walk, double percent) {
    lines_.position(walk, percent);
    if (sinceRepaint_.isValid() && sinceRepaint_.elapsed() < kRepaintEvery) return;
    bar_->setValue(static_cast<int>(std::lround(percent)));
    repaintNow();
}

void ProgressDialog::walkEnds(Walk walk) {
    lines_.walkEnds(walk);
    bar_->setValue(100);
    repaintNow();
}

void ProgressDialog::runEnds(double secondsStatic) {
    lines_.runEnds(secondsStatic);
    cmdOK_->setEnabled(true);
    repaintNow();
    cmdOK_->setFocus();
}

void ProgressDialog::reject() {
    if (cmdOK_->isEnabled()) cmdOK_->click();
}

void ProgressDialog::repaintNow() {
    txt_->setPlainText(QString::fromStdString(lines_.text()));
    sinceRepaint_.restart();
    // Windows are painted, but clicks and keys wait until the run has ended.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace borvik

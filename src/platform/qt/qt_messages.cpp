#include "platform/qt/qt_messages.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

namespace borvik {

namespace {

/// A box that shows the text as it stands: no markup is read out of it, blanks stay.
int box(QMessageBox::Icon icon, const std::string& text, QMessageBox::StandardButtons buttons) {
    QMessageBox message(icon, QApplication::applicationDisplayName(), QString::fromStdString(text), buttons,
                        QApplication::activeWindow());
    message.setTextFormat(Qt::PlainText);
    // A box wants an answer, also while a calculation shows the hourglass.
    const bool busy = QApplication::overrideCursor() != nullptr;
    if (busy) QApplication::setOverrideCursor(Qt::ArrowCursor);
    const int answer = message.exec();
    if (busy) QApplication::restoreOverrideCursor();
    return answer;
}

}  // namespace

void QtMessages::show(const std::string& text) { box(QMessageBox::Warning, text, QMessageBox::Ok); }

Answer QtQuestions::yesNoCancel(const std::string& text) {
    switch (box(QMessageBox::Question, text, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel)) {
        case QMessageBox::Yes: return Answer::Yes;
        case QMessageBox::No: return Answer::No;
        default: return Answer::Cancel;
    }
}

std::optional<std::string> QtQuestions::fileToOpen(const std::string& pattern) {
    const QString filter = QString::fromStdString(pattern);
    const QString path =
        QFileDialog::getOpenFileName(QApplication::activeWindow(), {}, QString::fromStdString(folder_), filter);
    if (path.isEmpty()) return std::nullopt;
    folder_ = QFileInfo(path).absolutePath().toStdString();
    return path.toStdString();
}

std::optional<std::string> QtQuestions::fileToSave(const std::string& proposal, const std::string& pattern,
                                                   const std::string& extension) {
    QFileDialog chooser(QApplication::activeWindow(), {}, {}, QString::fromStdString(pattern));
    chooser.setAcceptMode(QFileDialog::AcceptSave);
    chooser.setDefaultSuffix(QString::fromStdString(extension));
    const QFileInfo start(QString::fromStdString(proposal));
    if (start.isAbsolute()) {
        chooser.setDirectory(start.absolutePath());
    } else if (!folder_.empty()) {
        chooser.setDirectory(QString::fromStdString(folder_));
    }
    chooser.selectFile(start.fileName());
    if (chooser.exec() != QDialog::Accepted || chooser.selectedFiles().isEmpty()) return std::nullopt;
    const QString path = chooser.selectedFiles().constFirst();
    folder_ = QFileInfo(path).absolutePath().toStdString();
    return path.toStdString();
}

}  // namespace borvik

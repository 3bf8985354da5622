#include "platform/qt/qt_messages.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <algorithm>

namespace borvik {

namespace {

/// A box that shows the text as it stands: no markup is read out of it, blanks stay.
class Box : public QMessageBox {
public:
    Box(Icon icon, const std::string& text, StandardButtons buttons)
        : QMessageBox(icon, QApplication::applicationDisplayName(), QString::fromStdString(text), buttons,
                      QApplication::activeWindow()) {
        setTextFormat(Qt::PlainText);
        // A short text leaves room for the whole title all the same.
        constexpr int kButtonsOfTheFrame = 160;
        if (auto* grid = qobject_cast<QGridLayout*>(layout()))
            grid->addItem(new QSpacerItem(fontMetrics().horizontalAdvance(windowTitle()) + kButtonsOfTheFrame, 0),
                          grid->rowCount(), 0, 1, grid->columnCount());
    }

    /// A box wants an answer, also while a calculation shows the hourglass.
    int ask() {
        const bool busy = QApplication::overrideCursor() != nullptr;
        if (busy) QApplication::setOverrideCursor(Qt::ArrowCursor);
        const int answer = exec();
        if (busy) QApplication::restoreOverrideCursor();
        return answer;
    }
};

/// The ending of a chooser's pattern such as "SVG (*.svg)".
QString endingOf(const QString& pattern) {
    static const QRegularExpression ending(QStringLiteral("\\*\\.(\\w+)"));
    return ending.match(pattern).captured(1);
}

/// A name that is no text in the alphabet of the file system can't be handed on unchanged.
std::optional<std::string> chosen(const QString& path) {
    if (path.isEmpty()) return std::nullopt;
    if (!path.contains(QChar::ReplacementCharacter)) return path.toStdString();
    QtMessages().show("The name " + path.toStdString() + " holds characters that can't be read.");
    return std::nullopt;
}

}  // namespace

void QtMessages::show(const std::string& text) {
    Box(QMessageBox::Warning, text, QMessageBox::Ok).ask();
}

Answer QtQuestions::yesNoCancel(const std::string& text) {
    switch (Box(QMessageBox::Question, text, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel).ask()) {
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        default:
            return Answer::Cancel;
    }
}

std::optional<std::size_t> QtQuestions::choose(const std::string& text, const std::vector<std::string>& choices) {
    Box box(QMessageBox::Question, text, QMessageBox::Cancel);
    std::vector<const QAbstractButton*> buttons;
    for (const std::string& choice : choices)
        buttons.push_back(box.addButton(QString::fromStdString(choice), QMessageBox::ActionRole));
    box.setDefaultButton(QMessageBox::Cancel);
    box.ask();
    const auto pressed = std::find(buttons.begin(), buttons.end(), box.clickedButton());
    if (pressed == buttons.end()) return std::nullopt;
    return static_cast<std::size_t>(pressed - buttons.begin());
}

std::optional<std::string> QtQuestions::fileToOpen(const std::string& pattern, const std::string& folder) {
    const std::string& start = folder.empty() ? folder_ : folder;
    const auto path = chosen(QFileDialog::getOpenFileName(
        QApplication::activeWindow(), {}, QString::fromStdString(start), QString::fromStdString(pattern)));
    if (path) folder_ = QFileInfo(QString::fromStdString(*path)).absolutePath().toStdString();
    return path;
}

std::optional<std::string> QtQuestions::fileToSave(const std::string& proposal, const std::string& pattern,
                                                   const std::string& extension) {
    QFileDialog chooser(QApplication::activeWindow(), {}, {}, QString::fromStdString(pattern));
    chooser.setAcceptMode(QFileDialog::AcceptSave);
    chooser.setDefaultSuffix(QString::fromStdString(extension));
    QObject::connect(&chooser, &QFileDialog::filterSelected, &chooser,
                     [&](const QString& kind) { chooser.setDefaultSuffix(endingOf(kind)); });
    const QFileInfo start(QString::fromStdString(proposal));
    if (start.isAbsolute()) {
        chooser.setDirectory(start.absolutePath());
    } else if (!folder_.empty()) {
        chooser.setDirectory(QString::fromStdString(folder_));
    }
    chooser.selectFile(start.fileName());
    if (chooser.exec() != QDialog::Accepted || chooser.selectedFiles().isEmpty()) return std::nullopt;
    const auto path = chosen(chooser.selectedFiles().constFirst());
    if (path) folder_ = QFileInfo(QString::fromStdString(*path)).absolutePath().toStdString();
    return path;
}

}  // namespace borvik

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QStatusBar>
#include <filesystem>
#include <system_error>

#include "base/whole_file.h"
#include "project/project_file.h"
#include "window/main_window.h"

namespace borvik {

namespace {

constexpr const char* kPattern = "*.brvk";
constexpr int kWidestEntry = 480;  // pixels; longer paths of recent files are cut in their middle
constexpr const char* kFolderKey = "ProjectFolder";

/// A path that leads to its file from another folder and at another start, too.
std::string fullPath(const std::string& path) {
    return QFileInfo(QString::fromStdString(path)).absoluteFilePath().toStdString();
}

/// What tells the bytes of a file from others; empty where it can't be read.
std::string stampOf(const std::string& path) {
    try {
        return QCryptographicHash::hash(QByteArray::fromStdString(readFile(path)), QCryptographicHash::Sha256)
            .toHex()
            .toStdString();
    } catch (const std::system_error&) {
        return {};
    }
}

}  // namespace

void MainWindow::ShowRecentFiles() {
    recent_.ShowRecentFiles();
    const auto& captions = recent_.captions();
    recentSeparator_->setVisible(!captions.empty());
    for (int i = 0; i < RescentFile::kEntries; ++i) {
        const bool has = i < static_cast<int>(captions.size());
        QAction* entry = recentEntries_[i];
        entry->setVisible(has);
        if (!has) continue;
        const QString caption = QString::fromStdString(captions[static_cast<std::size_t>(i)]);
        const QString cut = fontMetrics().elidedText(caption, Qt::ElideMiddle, kWidestEntry);
        entry->setText(QString(cut).replace("&", "&&"));  // a "&" of the path is no mnemonic
        entry->setToolTip(QString::fromStdString(RescentFile::pathOf(caption.toStdString())));
    }
}

void MainWindow::newProject() {
    panel_->commit();
    if (!session_.FileName.empty()) {
        switch (services_.questions.yesNoCancel("Vill du spara ändringarna i det aktuella projektet?")) {
            case Answer::Yes:
                if (!saveInPlace()) return;
                break;
            case Answer::Cancel:
                return;
            case Answer::No:
                recovery_.drop(history_.present().document);
                break;
        }
    }
    session_.startAnew();
    projectReplaced("New");
}

bool MainWindow::hasPlace(const std::string& fileName) {
    return std::filesystem::path(fileName).is_absolute();
}

/// Where choosers start: beside the project, or where one was opened or saved last.
std::string MainWindow::projectFolder() const {
    const std::string& file = session_.FileName;
    if (hasPlace(file)) return QFileInfo(QString::fromStdString(file)).absolutePath().toStdString();
    const std::string last = services_.settings.get(kApplicationTitle, "Settings", kFolderKey);
    return QFileInfo(QString::fromStdString(last)).isDir() ? last : std::string();
}

void MainWindow::chooseAndOpen() {
    if (const auto path = services_.questions.fileToOpen(kPattern, projectFolder())) openProject(*path);
}

bool MainWindow::openProject(const std::string& path) {
    const std::string place = fullPath(path);
    if (!load(place, "Open", place)) return false;
    recent_.AddRecentOnOpen(place);
    ShowRecentFiles();
    services_.settings.save(kApplicationTitle, "Settings", kFolderKey, projectFolder());
    return true;
}

void MainWindow::openExample(const QFileInfo& file) {
    // Without a folder it is only the name that the first save proposes, and the example stays as it is.
    load(file.filePath().toStdString(), "Open example", file.fileName().toStdString());
}

void MainWindow::openRecent(int entry) {
    const std::string path = RescentFile::pathOf(recent_.captions().at(static_cast<std::size_t>(entry)));
    if (const QFileInfo file(QString::fromStdString(path)); !file.exists() || !file.isReadable()) {
        services_.messages.show("can't find file - " + path);
        return;
    }
    openProject(path);
}

/// @param step     the command's name in the history
/// @param shownAs  the file that the project belongs to from now on; without a folder it has none yet
bool MainWindow::load(const std::string& path, const std::string& step, const std::string& shownAs) {
    panel_->commit();
    Project loaded;
    // Taken before the file is read: what another program writes meanwhile is then seen as a change.
    const std::string stamp = hasPlace(shownAs) ? stampOf(path) : std::string();
    try {
        if (const std::string remark = LoadProject(path, loaded); !remark.empty()) services_.messages.show(remark);
    } catch (const ProjectFileError& error) {
        services_.messages.show(error.what());
        return false;
    }
    session_.project = std::move(loaded);
    session_.named(shownAs);
    projectReplaced(step);
    history_.present().document->stamp = stamp;
    return true;
}

void MainWindow::projectReplaced(const std::string& step) {
    history_.replaced(step, session_.project, session_.FileName);
    projectShown();
}

/// Another project stands in the window, as it will be saved.
void MainWindow::projectShown() {
    session_.inputChanged();
    stopDriving();
    drive_.reset();
    calculation_.reset();
    loadFaultShown_.clear();
    splicesDropped_ = false;
    picRes_->clear();
    results_->clear();
    settleInput();
}

bool MainWindow::saveTo(const std::string& path) {
    try {
        if (!SaveProject(path, session_.project))
            services_.messages.show("Some characters can't be stored in a project file and were replaced by \"?\".");
    } catch (const ProjectFileError& error) {
        services_.messages.show(error.what());
        return false;
    }
    session_.named(path);
    history_.saved(session_.project, path);
    history_.present().document->stamp = stampOf(path);
    services_.settings.save(kApplicationTitle, "Settings", kFolderKey, projectFolder());
    keepCopy();
    WritefrmInput();
    statusBar()->showMessage(tr("Saved: %1").arg(QString::fromStdString(path)), 6000);
    return true;
}

/// Asks for a file to save to. @return nothing when cancelled
std::optional<std::string> MainWindow::askForPlace() {
    const std::string folder = projectFolder();
    const QString name = QFileInfo(QString::fromStdString(session_.FileName)).fileName();
    const auto chosen = services_.questions.fileToSave(
        folder.empty() ? name.toStdString() : QDir(QString::fromStdString(folder)).filePath(name).toStdString(),
        kPattern, "brvk");
    return chosen ? std::optional(fullPath(*chosen)) : std::nullopt;
}

/// The file that the project is saved to: its own, unless that would overwrite what the user has not seen.
/// @return nothing when the user wants no saving
std::optional<std::string> MainWindow::placeToSave() {
    const std::string& file = session_.FileName;
    if (!hasPlace(file)) {
        // The default project goes to the current folder where its name is free there; an example asks for a name.
        const bool isNew = file == kNewProjectFile;
        return isNew && !QFileInfo::exists(QString::fromStdString(file)) ? fullPath(file) : askForPlace();
    }
    const std::string present = stampOf(file);
    if (present.empty() || present == history_.present().document->stamp) return file;
    const auto choice = services_.questions.choose(
        tr("%1\n\nhas been changed by another program since it was opened or saved here.")
            .arg(QDir::toNativeSeparators(QString::fromStdString(file)))
            .toStdString(),
        {tr("Save over it").toStdString(), tr("Save as...").toStdString(), tr("Load it").toStdString()});
    if (choice == 0) return file;
    if (choice == 1) return askForPlace();
    if (choice == 2) openProject(std::string(file));
    return std::nullopt;
}

bool MainWindow::saveInPlace() {
    const auto path = placeToSave();
    return path && saveTo(*path);
}

void MainWindow::save() {
    if (!panel_->commit() || !saveInPlace()) return;
    recent_.AddRecentOnSave(session_.FileName);
    ShowRecentFiles();
}

void MainWindow::saveAs() {
    if (!panel_->commit()) return;
    const auto path = askForPlace();
    if (!path || !saveTo(*path)) return;
    recent_.AddRecentOnSave(*path);
    ShowRecentFiles();
}

}  // namespace borvik

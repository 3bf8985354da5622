#include <QFile>
#include <QFileInfo>
#include <QStatusBar>

#include "forms/main_window.h"
#include "project/project_file.h"

namespace borvik {

namespace {

constexpr const char* kPattern = "*.brvk";
constexpr int kWidestEntry = 480;  // pixels; longer paths of recent files are cut in their middle

/// The recent list holds full paths, so that an entry still leads to its file from another folder.
std::string fullPath(const std::string& path) {
    return QFileInfo(QString::fromStdString(path)).absoluteFilePath().toStdString();
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
    if (!session_.context.FileName.empty()) {
        switch (services_.questions.yesNoCancel("Vill du spara ändringarna i det aktuella projektet?")) {
            case Answer::Yes:
                if (!saveTo(session_.context.FileName)) return;
                break;
            case Answer::Cancel:
                return;
            case Answer::No:
                recovery_.drop(history_.present().document);
                break;
        }
    }
    session_.project = {};
    DefaultProject(session_.tables, session_.project, session_.context);
    projectReplaced("New");
}

void MainWindow::chooseAndOpen() {
    if (const auto path = services_.questions.fileToOpen(kPattern)) openProject(*path);
}

bool MainWindow::openProject(const std::string& path) {
    if (!load(path, "Open", path)) return false;
    recent_.AddRecentOnOpen(fullPath(path));
    ShowRecentFiles();
    return true;
}

void MainWindow::openExample(const QFileInfo& file) {
    // Without its folder, so that saving makes a copy in the current folder and leaves the example as it is.
    load(file.filePath().toStdString(), "Open example", file.fileName().toStdString());
}

void MainWindow::openRecent(int entry) {
    const std::string path = RescentFile::pathOf(recent_.captions().at(static_cast<std::size_t>(entry)));
    if (!QFile(QString::fromStdString(path)).open(QIODevice::ReadOnly)) {
        services_.messages.show("can't find file - " + path);
        return;
    }
    openProject(path);
}

/// @param step     the command's name in the history
/// @param shownAs  the file that the project belongs to from now on
bool MainWindow::load(const std::string& path, const std::string& step, const std::string& shownAs) {
    panel_->commit();
    Project loaded;
    try {
        LoadProject(path, loaded);
    } catch (const ProjectFileError& error) {
        services_.messages.show(error.what());
        return false;
    }
    session_.project = std::move(loaded);
    session_.context.FileName = session_.context.FileTitle = shownAs;
    FollowProject(session_.tables, session_.project, session_.context);
    projectReplaced(step);
    return true;
}

void MainWindow::projectReplaced(const std::string& step) {
    history_.replaced(step, session_.project, session_.context);
    projectShown();
}

/// Another project stands in the window, as it will be saved.
void MainWindow::projectShown() {
    session_.inputChanged();
    calculation_.reset();
    loadFaultTold_.clear();
    splicesDropped_ = false;
    picRes_->clear();
    results_->clear();
    WritefrmInput();
}

bool MainWindow::saveTo(const std::string& path) {
    try {
        if (!SaveProject(path, session_.project))
            services_.messages.show("Some characters can't be stored in a project file and were replaced by \"?\".");
    } catch (const ProjectFileError& error) {
        services_.messages.show(error.what());
        return false;
    }
    history_.saved(session_.project, path);
    keepCopy();
    showState();
    statusBar()->showMessage(tr("Saved: %1").arg(QString::fromStdString(fullPath(path))), 6000);
    return true;
}

void MainWindow::save() {
    if (!panel_->commit() || !saveTo(session_.context.FileName)) return;
    recent_.AddRecentOnSave(fullPath(session_.context.FileName));
    ShowRecentFiles();
}

void MainWindow::saveAs() {
    if (!panel_->commit()) return;
    const auto path = services_.questions.fileToSave(session_.context.FileName, kPattern, "brvk");
    if (!path || !saveTo(*path)) return;
    session_.context.FileName = *path;
    session_.context.FileTitle = *path;
    recent_.AddRecentOnSave(fullPath(*path));
    ShowRecentFiles();
    WritefrmInput();
}

}  // namespace borvik

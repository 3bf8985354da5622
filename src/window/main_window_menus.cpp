#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>
#include <algorithm>
#include <vector>

#include "boxes/undo_keys.h"
#include "project/project_file.h"
#include "views/icons.h"
#include "views/office_fields.h"
#include "views/printing.h"
#include "window/about_dialog.h"
#include "window/help.h"
#include "window/main_window.h"

namespace borvik {

/// One entry of a menu; without a caption a separator.
struct MainWindow::MenuEntry {
    const char* name;
    const char* caption = nullptr;
    QKeySequence shortcut = {};
    QIcon icon = {};
    std::function<void()> run = {};
};

void MainWindow::fill(QMenu* menu, std::initializer_list<MenuEntry> entries) {
    for (const MenuEntry& entry : entries) {
        QAction* action = entry.caption == nullptr ? menu->addSeparator()
                                                   : menu->addAction(entry.icon, QString::fromUtf8(entry.caption));
        action->setObjectName(QString::fromUtf8(entry.name));
        action->setShortcut(entry.shortcut);
        if (entry.run) connect(action, &QAction::triggered, this, entry.run);
    }
}

QMenu* MainWindow::menu(QMenu* parent, const char* name, const char* caption) {
    auto* made = new QMenu(QString::fromUtf8(caption), this);
    made->setObjectName(QString::fromUtf8(name));
    made->menuAction()->setObjectName(QString::fromUtf8(name));
    if (parent == nullptr) {
        menuBar()->addMenu(made);
    } else {
        parent->addMenu(made);
    }
    return made;
}

void MainWindow::buildRecentEntries(QMenu* menu) {
    menu->setToolTipsVisible(true);  // the whole path of an entry that is cut
    recentSeparator_ = menu->addSeparator();
    recentSeparator_->setObjectName("mnuMRU0");
    for (int i = 0; i < RescentFile::kEntries; ++i) {
        QAction* entry = menu->addAction(QString());
        entry->setObjectName("mnuMRU" + QString::number(i + 1));
        entry->setVisible(false);
        connect(entry, &QAction::triggered, this, [this, i] { openRecent(i); });
        recentEntries_.append(entry);
    }
}

void MainWindow::buildExampleEntries(QMenu* menu) {
    const QStringList folders = QDir::searchPaths(kExamplesPath);
    const QFileInfoList files =
        folders.isEmpty() ? QFileInfoList() : QDir(folders.first()).entryInfoList({"*.brvk"}, QDir::Files, QDir::Name);
    for (const QFileInfo& file : files) {
        QString caption = file.completeBaseName().replace('-', ' ');
        caption[0] = caption[0].toUpper();
        menu->addAction(caption, this, [this, file] { openExample(file); });
    }
    menu->menuAction()->setVisible(!menu->isEmpty());
}

void MainWindow::buildPrintEntries(QMenu* menu, const char* const (&names)[4], const char* const (&captions)[4],
                                   PrintCommand command) {
    for (int i = 0; i < 4; ++i) {
        const int scope = i + 1;
        fill(menu, {{names[i],
                     captions[i],
                     {},
                     QIcon::fromTheme("document-print", pictureIcon(Picture::Printer)),
                     [this, scope, command] { print(scope, command); }}});
    }
}

/// The picture that the menu's commands are for: the sketch where it has the focus or stands alone, else the results.
DiagramView& MainWindow::chosenPicture() {
    return sketchChosen_ || picRes_->diagrams().empty() ? *picBalk_ : *picRes_;
}

void MainWindow::buildMenus() {
    buildFileMenu();
    buildEditMenu();
    QAction* setup = menuBar()->addAction("&Setup", this, [this] { openForm("Setup"); });
    setup->setObjectName("mnuSetup");
    buildInputMenu();
    QAction* calc = menuBar()->addAction("&Calculate", this, [this] { calculate(); });
    calc->setObjectName("mnuCalc");
    calc->setShortcut(Qt::Key_F5);
    buildDiagramMenu();
    buildPrintMenu();
    buildHelpMenu();
}

void MainWindow::buildFileMenu() {
    static constexpr const char* kScopes[4] = {"ULS", "ULS+SLS", "ULS+SLS+FLS", "Compressed"};
    QMenu* file = menu(nullptr, "mnuArkiv", "&File");
    fill(file, {{"mnuArkivNytt", "&New   ", QKeySequence::New, themeIcon("document-new", QStyle::SP_FileIcon),
                 [this] { newProject(); }},
                {"mnuArkivÖppna", "&Open", QKeySequence::Open, themeIcon("document-open", QStyle::SP_DialogOpenButton),
                 [this] { chooseAndOpen(); }}});
    buildExampleEntries(menu(file, "mnuExamples", "Open example"));
    fill(file, {{"mnuArkivLinje1"},
                {"mnuArkivSpara", "&Save", QKeySequence::Save, themeIcon("document-save", QStyle::SP_DialogSaveButton),
                 [this] { save(); }},
                {"mnuArkivSparasom", "Save as", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
                 themeIcon("document-save-as", QStyle::SP_DialogSaveButton), [this] { saveAs(); }},
                {"mnuArkivLinje2"}});
    buildPrintEntries(menu(file, "LmnuPrint", "Print"),
                      {"LmnuPrintULS", "LmnuPrintULSSLS", "LmnuPrintALL", "LmnuPrintCompressed"},
                      {"Print ULS", "Print ULS+SLS", "Print ULS+SLS+FLS ", "Print Compressed"}, printReport);
    buildPrintEntries(menu(file, "mnuPreview", "Print preview"),
                      {"mnuPreviewULS", "mnuPreviewULSSLS", "mnuPreviewAll", "mnuPreviewCompressed"}, kScopes,
                      previewReport);
    buildPrintEntries(menu(file, "mnuPdf", "Print to PDF"),
                      {"mnuPdfULS", "mnuPdfULSSLS", "mnuPdfAll", "mnuPdfCompressed"}, kScopes, saveReportAsPdf);
    buildRecentEntries(file);
    fill(file, {{"mnuspace"},
                {"mnuArkivAvsluta", "&Exit", QKeySequence(Qt::CTRL | Qt::Key_Q),
                 themeIcon("application-exit", QStyle::SP_DialogCloseButton), [this] { close(); }}});
}

void MainWindow::buildEditMenu() {
    QMenu* edit = menu(nullptr, "mnuEdit", "&Edit");
    fill(edit, {{"mnuUndo", "&Undo", {}, themeIcon("edit-undo", QStyle::SP_ArrowBack), [this] { undo(); }},
                {"mnuRedo", "&Redo", {}, themeIcon("edit-redo", QStyle::SP_ArrowForward), [this] { redo(); }}});
    undo_ = edit->actions().at(0);
    redo_ = edit->actions().at(1);
    undo_->setShortcuts(undoKeys());
    redo_->setShortcuts(redoKeys());
}

void MainWindow::buildInputMenu() {
    std::vector<const FormKind*> forms;
    for (const FormKind& form : formKinds())
        if (*form.menu.name != '\0') forms.push_back(&form);
    std::sort(forms.begin(), forms.end(),
              [](const FormKind* a, const FormKind* b) { return a->menu.digit < b->menu.digit; });
    QMenu* input = menu(nullptr, "mnuIndata", "&Input");
    for (const FormKind* form : forms)
        fill(input,
             {{form->menu.name, form->menu.caption, QKeySequence(Qt::CTRL | Qt::Key(Qt::Key_0 + form->menu.digit)),
               pictureIcon(Picture::Form), [this, form] {
                   if (*form->node != '\0')
                       openForm(form->node);
                   else if (form->cranes == FormKind::Overhead && session_.project.CraneType == CraneKind::Monorail)
                       services_.messages.show(form->refusal.inMenu);
                   else
                       openForm(form->kind, form->menu.caption);
               }}});
    fill(input, {{"mnuIndataDivider1"}});
}

void MainWindow::buildDiagramMenu() {
    fill(
        menu(nullptr, "mnuDiagram", "&Diagram"),
        {{"mnuSavePicture", "&Save picture...", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P),
          themeIcon("document-save-as", QStyle::SP_DialogSaveButton), [this] { chosenPicture().savePictureAs(); }},
         {"mnuCopyPicture", "&Copy picture", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C),
          themeIcon("edit-copy", QStyle::SP_FileIcon),
          [this] {
              chosenPicture().copyPicture();
              statusBar()->showMessage(tr("Copied: %1").arg(chosenPicture().accessibleName()), 4000);
          }},
         {"mnuZoomIn", "Zoom &in", QKeySequence(Qt::CTRL | Qt::Key_Plus), {}, [this] { chosenPicture().zoom(1.25); }},
         {"mnuZoomOut", "Zoom &out", QKeySequence(Qt::CTRL | Qt::Key_Minus), {}, [this] { chosenPicture().zoom(0.8); }},
         {"mnuWholeBeam",
          "&Whole beam",
          QKeySequence(Qt::CTRL | Qt::Key_0),
          {},
          [this] { chosenPicture().showWholeBeam(); }},
         {"mnuDrive",
          "&Drive the cranes",
          QKeySequence(Qt::CTRL | Qt::Key_D),
          {},
          [this] {
              if (!driving_) backToGoverning();
              driveBar_->takeFocus();
          }},
         {"mnuGoverning",
          "Back to the &governing position",
          QKeySequence(Qt::CTRL | Qt::Key_G),
          {},
          [this] { backToGoverning(); }},
         {"mnuDriveEnd", "&End driving", {}, {}, [this] { stopDriving(); }}});
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* now) {
        const bool inMenu = now == menuBar() || qobject_cast<const QMenu*>(now) != nullptr;
        if (now != nullptr && !inMenu) sketchChosen_ = now == picBalk_;
    });
}

void MainWindow::buildPrintMenu() {
    QMenu* printMenu = menu(nullptr, "mnuPrint", "&Print");
    buildPrintEntries(printMenu, {"mnuPrintULS", "mnuPrintULSSLS", "mnuPrintAll", "mnuPrintCompressed"},
                      {"Print ULS ", "Print ULS+SLS", "Print ULS+SLS+FLS", "Print Compressed"}, printReport);
    printMenu->actions().at(2)->setShortcut(QKeySequence::Print);
    printMenu->addSeparator();
    for (const ExtraChapter& chapter : extraChapters()) {
        QAction* action = printMenu->addAction(QString("With %1").arg(chapter.title));
        action->setObjectName(QString("mnuPrint%1").arg(chapter.name));
        action->setCheckable(true);
        action->setStatusTip(tr("The report, its preview and its PDF tell %1").arg(chapter.holds));
        connect(action, &QAction::toggled, this,
                [this, wanted = chapter.wanted](bool on) { reportExtras_.*wanted = on; });
    }
    printMenu->addSeparator();
    loadOffice(services_.settings, reportExtras_);
    fill(printMenu, {{"mnuPrintFirstPage", "&First page and logo ...", {}, {}, [this] {
                          editOffice(reportExtras_, services_, this);
                      }}});
}

void MainWindow::buildHelpMenu() {
    fill(menu(nullptr, "mnuHelp", "&Help"),
         {{"mnuContents", "&Contents", QKeySequence::HelpContents,
           themeIcon("help-contents", QStyle::SP_DialogHelpButton),
           [this] { showHelp(HelpPage::Contents, services_.messages); }},
          {"mnuHelpSearch",
           "Search for Help On . . .",
           {},
           {},
           [this] { showHelp(HelpPage::Search, services_.messages); }},
          {"mnuTheory", "Theory Manual", {}, {}, [this] { showHelp(HelpPage::Theory, services_.messages); }},
          {"mnuHjalpLinje1"},
          {"mnuAbout", "&About Borvik", {}, themeIcon("help-about", QStyle::SP_MessageBoxInformation), [this] {
               AboutDialog(QString::fromStdString(fingerprintOf(session_.project)), this).exec();
           }}});
}

}  // namespace borvik

#include "window/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QMimeData>
#include <QScrollArea>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>
#include <algorithm>

#include "calculation/load_check.h"
#include "project/input_ranges.h"
#include "project/project_file.h"
#include "views/detailed_result_dialog.h"
#include "window/help.h"

namespace borvik {

namespace {

constexpr QSize kStartSize(1024, 741);

/// Height of the frame of results that holds ten rows, one of them of two lines, or eight notes and the text of one.
int heightOfResults(const QFontMetrics& font) {
    constexpr int kLines = 17, kBetween = 58;
    return kLines * font.height() + kBetween;
}

/// A frame of the right side: little room between its border and what stands in it.
QGroupBox* frameAround(QWidget* content, const char* caption) {
    auto* frame = new QGroupBox(QString::fromUtf8(caption));
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(content);
    return frame;
}

QPushButton* button(const char* name, const char* caption) {
    auto* made = new QPushButton(QString::fromUtf8(caption));
    made->setObjectName(QString::fromUtf8(name));
    return made;
}

bool isProjectFile(const QMimeData* data) {
    return data->urls().size() == 1 && data->urls().constFirst().isLocalFile() &&
           data->urls().constFirst().path().endsWith(".brvk", Qt::CaseInsensitive);
}

}  // namespace

MainWindow::MainWindow(Session& session, const Services& services, QWidget* parent)
    : QMainWindow(parent),
      session_(session),
      services_(services),
      recent_(services.settings, kApplicationTitle),
      history_(session.project, session.FileName),
      recovery_(QString::fromStdString(services.recoveryFolder)) {
    setObjectName("frmBorvik");
    setAcceptDrops(true);
    resize(kStartSize);
    buildCentre();
    buildMenus();
    buildStatusBar();
    ShowRecentFiles();
    settleInput();
}

MainWindow::~MainWindow() {
    hide();  // the focus leaves its box while there is still a project to take what was typed
    disconnect(qApp, nullptr, this, nullptr);  // it leaves one widget after another while they go
}

void MainWindow::buildCentre() {
    auto* right = new QSplitter(Qt::Vertical);
    right->setObjectName("splitterResults");
    right->addWidget(pictureFrame());
    right->addWidget(resultFrame());
    right->setStretchFactor(0, 3);
    right->setStretchFactor(1, 2);
    right->setChildrenCollapsible(false);
    const int results = heightOfResults(fontMetrics());
    right->setSizes({kStartSize.height() - results, results});
    auto* centre = new QSplitter(Qt::Horizontal);
    centre->setObjectName("splitterMain");
    centre->addWidget(inputColumn());
    centre->addWidget(right);
    centre->setStretchFactor(0, 1);  // on a wide screen long names get some of the room
    centre->setStretchFactor(1, 8);
    centre->setChildrenCollapsible(false);
    centre->setContentsMargins(6, 6, 6, 0);
    setCentralWidget(centre);
    restoreSplitters();
}

/// Splitters stand where the user has left them; one that was never dragged keeps to the start sizes.
void MainWindow::restoreSplitters() {
    for (QSplitter* splitter : findChildren<QSplitter*>()) {
        QList<int> sizes;
        const std::string kept =
            services_.settings.get(kApplicationTitle, "Settings", splitter->objectName().toStdString());
        for (const QString& size : QString::fromStdString(kept).split(' ')) sizes.append(size.toInt());
        if (sizes.size() == splitter->count() &&
            std::all_of(sizes.begin(), sizes.end(), [](int size) { return size > 0; }))
            splitter->setSizes(sizes);
        connect(splitter, &QSplitter::splitterMoved, this, [this, splitter] { dragged_.insert(splitter); });
    }
}

void MainWindow::keepSplitters() {
    for (const QSplitter* splitter : dragged_) {
        QStringList sizes;
        for (const int size : splitter->sizes()) sizes.append(QString::number(size));
        services_.settings.save(kApplicationTitle, "Settings", splitter->objectName().toStdString(),
                                sizes.join(' ').toStdString());
    }
}

QWidget* MainWindow::inputColumn() {
    panel_ = new ProjectPanel(session_, services_.messages);
    connect(panel_, &ProjectPanel::inputChanged, this, [this](const QString& what) { projectChanged(what); });
    connect(panel_, &ProjectPanel::namesChanged, this, [this] { projectChanged(tr("Names"), true); });

    auto* cmdProfile = button("cmdProfile", "Profile");
    auto* command1 = button("Command1", "Beam");
    auto* command2 = button("Command2", "Load");
    auto* command3 = button("Command3", "TempResults");
    cmdCalc_ = button("cmdCalc", "Calculate");
    QFont bold = cmdCalc_->font();
    bold.setBold(true);
    cmdCalc_->setFont(bold);
    cmdCalc_->setToolTip(tr("Calculate the beam (F5)"));
    command3->setToolTip(tr("Positions of the cranes in the last walk"));
    connect(cmdProfile, &QPushButton::clicked, this, [this] { openForm("Profile"); });
    connect(command1, &QPushButton::clicked, this, [this] { openForm("Beam"); });
    connect(command2, &QPushButton::clicked, this, [this] { openForm("Loads"); });
    connect(command3, &QPushButton::clicked, this,
            [this] { CranePositionsDialog(session_.Calculated ? calculation_ : nullptr, this).exec(); });
    connect(cmdCalc_, &QPushButton::clicked, this, &MainWindow::calculate);

    tree_ = new ResultTreeView("TreeView1");
    connect(tree_, &ResultTreeView::nodeChosen, this, &MainWindow::showNode);
    connect(tree_, &ResultTreeView::helpWanted, this, [this](const TreeNode& node) {
        showHelpPage(helpPageOf(node, session_.project.CraneType != CraneKind::Overhead), services_.messages);
    });

    auto* buttons = new QGridLayout;
    buttons->addWidget(cmdProfile, 0, 0, 1, 2);
    buttons->addWidget(command1, 0, 2, 1, 2);
    buttons->addWidget(command2, 0, 4, 1, 2);
    buttons->addWidget(cmdCalc_, 1, 0, 1, 3);
    buttons->addWidget(command3, 1, 3, 1, 3);
    auto* column = new QWidget;
    auto* layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(panel_);
    layout->addLayout(buttons);
    layout->addWidget(tree_, 1);
    return column;
}

QWidget* MainWindow::pictureFrame() {
    picBalk_ = new DiagramView(services_);
    picBalk_->setObjectName("picBalk");
    picBalk_->setClickArea(100.0, 800.0, tr("A click opens the loads"));
    connect(picBalk_, &DiagramView::clicked, this, [this] { openForm("Loads"); });
    picRes_ = new DiagramView(services_);
    picRes_->setObjectName("picRes");
    // Sketch and diagrams show the same part of the beam.
    connect(picBalk_, &DiagramView::partChanged, picRes_, &DiagramView::showPart);
    connect(picRes_, &DiagramView::partChanged, picBalk_, &DiagramView::showPart);
    auto* scrolled = new QScrollArea;  // several diagrams below each other keep a legible height
    scrolled->setWidgetResizable(true);
    scrolled->setFrameShape(QFrame::NoFrame);
    scrolled->setFocusPolicy(Qt::NoFocus);  // the picture in it has the focus
    connect(picRes_, &DiagramView::readingMoved, scrolled,
            [scrolled](QPoint to) { scrolled->ensureVisible(to.x(), to.y(), 50, 120); });
    scrolled->setWidget(picRes_);
    auto* pictures = new QSplitter(Qt::Vertical);
    pictures->setObjectName("splitterPictures");
    driveBar_ = new DriveBar;
    connect(driveBar_, &DriveBar::moved, this, &MainWindow::driveTo);
    connect(driveBar_, &DriveBar::backWanted, this, &MainWindow::backToGoverning);
    connect(driveBar_, &DriveBar::endWanted, this, &MainWindow::stopDriving);
    connect(picRes_, &DiagramView::extremeChosen, this, &MainWindow::showStands);
    auto* sketch = new QWidget;
    auto* underSketch = new QVBoxLayout(sketch);
    underSketch->setContentsMargins(0, 0, 0, 0);
    underSketch->setSpacing(0);
    underSketch->addWidget(picBalk_, 1);
    underSketch->addWidget(driveBar_);
    pictures->addWidget(sketch);
    pictures->addWidget(scrolled);
    pictures->setStretchFactor(0, 2);
    pictures->setStretchFactor(1, 3);
    pictures->setChildrenCollapsible(false);
    pictures->setSizes({166, 260});
    return frameAround(pictures, "Beamdata and Results");
}

QWidget* MainWindow::resultFrame() {
    results_ = new ResultTablePane("lstViewDetailed");
    connect(results_->list(), &ResultTableView::rowChosen, this, &MainWindow::chooseRow);
    connect(results_->list(), &ResultTableView::workingAsked, this, &MainWindow::showWorking);
    connect(results_->list(), &ResultTableView::cellChosen, this, &MainWindow::showStandsOfCell);
    QGroupBox* frame = frameAround(results_, "Results");
    frame->setObjectName("frmResults");
    return frame;
}

void MainWindow::buildStatusBar() {
    stateCalculated_ = new QLabel;
    stateCalculated_->setObjectName("stateCalculated");
    stateRanges_ = new QLabel;
    stateRanges_->setObjectName("stateRanges");
    stateGoverning_ = new QLabel;
    stateGoverning_->setObjectName("stateGoverning");
    stateTime_ = new QLabel;
    stateTime_->setObjectName("stateTime");
    stateUnsaved_ = new QLabel;
    stateUnsaved_->setObjectName("stateUnsaved");
    stateNotes_ = new QToolButton;
    stateNotes_->setObjectName("stateNotes");
    stateNotes_->setAutoRaise(true);
    stateNotes_->setToolTip(tr("What the checks assume or leave out, where it matters in this project"));
    connect(stateNotes_, &QToolButton::clicked, this, [this] {
        showNotes();
        results_->list()->setFocus();
    });
    // Temporary messages cover it and give it free again, so that it can't vanish unread.
    stateRemark_ = new QLabel;
    stateRemark_->setObjectName("stateRemark");
    stateRemark_->setMargin(4);
    stateRemark_->setMinimumWidth(1);  // never widens the window
    statusBar()->addWidget(stateRemark_, 1);
    for (QLabel* label : {stateRanges_, stateUnsaved_, stateGoverning_, stateTime_, stateCalculated_})
        label->setMargin(4);
    for (QWidget* state : std::initializer_list<QWidget*>{stateRanges_, stateUnsaved_, stateGoverning_, stateNotes_,
                                                          stateTime_, stateCalculated_})
        statusBar()->addPermanentWidget(state);
}

/// A crane that is fixed at its place neither starts nor stops outside the beam.
void MainWindow::keepInside() {
    if (session_.project.Fixerad) session_.project.StartStopOutside = 0;
}

/// What the window derives from an input that has arrived: a file's, an earlier step's, a form's. It belongs to the
/// step that stands and is no change of the user's.
void MainWindow::settleInput() {
    const bool asRemembered = sameRecord(session_.project, history_.present().project);
    session_.project.BeamChecked = true;
    keepInside();
    if (asRemembered) history_.settled(session_.project);
    WritefrmInput();
}

/// Refreshes everything that shows the input, and writes none of it.
void MainWindow::WritefrmInput() {
    panel_->showProject();
    picBalk_->showSketch(session_.project);
    setWindowTitle("Borvik : " + QString::fromStdString(session_.FileName));
    ShowTreeView();
    showState();
}

void MainWindow::projectChanged(const QString& what, bool resultsStand) {
    if (!resultsStand) session_.inputChanged();
    splicesDropped_ = false;
    keepInside();
    picBalk_->showSketch(session_.project);
    panel_->showProject();
    remember(what);
    showState();
    statusBar()->showMessage(tr("Changed: %1").arg(what), 4000);
}

void MainWindow::showState() {
    const bool current = session_.Calculated;
    // An open form puts the results out of reach, but out of date only by an edit.
    const bool looking = !current && form_ != nullptr && inputIsCalculated();
    cmdCalc_->setEnabled(!current);
    tree_->setResultsReachable(current);
    picRes_->setOutOfDate(!current && !looking);
    driveBar_->setEnabled(current && drive_ != nullptr);
    if (!current && !looking) stopDriving();
    results_->setOutOfDate(!current && !looking);
    stateUnsaved_->setText(!hasUnsavedChanges()     ? QString()
                           : copyTrouble_.isEmpty() ? tr("Unsaved changes")
                                                    : tr("Unsaved changes, no copy kept"));
    stateUnsaved_->setToolTip(copyTrouble_);
    stateCalculated_->setText(current        ? tr("Calculated")
                              : looking      ? tr("Form open")
                              : calculation_ ? tr("Out of date: calculate again")
                                             : tr("Not calculated"));
    showRanges();
    stateGoverning_->setVisible(current);
    stateTime_->setVisible(current);
    stateNotes_->setVisible(current);
    showRemark();
    showHistory();
}

/// Values of a file, or of a form closed twice, that their forms don't take: the first in words, all in the tool tip.
void MainWindow::showRanges() {
    QStringList all;
    for (const std::string& each : valuesOutOfRange(session_.project)) all += QString::fromStdString(each);
    stateRanges_->setVisible(!all.isEmpty());
    if (all.isEmpty()) return;
    stateRanges_->setText(all.size() == 1 ? tr("\u26a0 %1").arg(all.first())
                                          : tr("\u26a0 %1, and %2 more").arg(all.first()).arg(all.size() - 1));
    stateRanges_->setToolTip(tr("The calculation takes these values as they stand:\n%1").arg(all.join('\n')));
}

void MainWindow::showRemark() {
    QStringList remarks;
    if (splicesDropped_) remarks.append(tr("Splices that no longer fit the beam have been left out"));
    if (session_.Calculated && calculation_) remarks.append(QString::fromStdString(loadRemark(calculation_->project)));
    remarks.removeAll(QString());
    stateRemark_->setText(remarks.join("; "));
    stateRemark_->setToolTip(stateRemark_->text());
}

bool MainWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && !running_) WritefrmInput();
    return QMainWindow::event(event);
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (running_) {
        event->ignore();
        return;
    }
    panel_->commit();
    keepCopy();
    if (!isMinimized()) {
        const auto keep = [this](const char* key, int edge) {
            services_.settings.save(kApplicationTitle, "Settings", key, std::to_string(edge));
        };
        keep("MainLeft", x());
        keep("MainTop", y());
        keep("MainWidth", width());
        keep("MainHeight", height());
    }
    keepSplitters();
    progress_.reset();
    event->accept();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (isProjectFile(event->mimeData())) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    if (isProjectFile(event->mimeData()))
        openProject(event->mimeData()->urls().constFirst().toLocalFile().toStdString());
}

}  // namespace borvik

#pragma once

#include <QAction>
#include <QFileInfo>
#include <QLabel>
#include <QMainWindow>
#include <QPushButton>
#include <QSet>
#include <QSplitter>
#include <QToolButton>
#include <initializer_list>
#include <memory>
#include <optional>

#include "calculation/session.h"
#include "dialogs/dialogs.h"
#include "platform/services.h"
#include "project/project_history.h"
#include "views/calculation_record.h"
#include "views/diagram_view.h"
#include "views/drive_bar.h"
#include "views/printing.h"
#include "views/result_table_view.h"
#include "views/result_tree_view.h"
#include "window/progress_dialog.h"
#include "window/project_panel.h"
#include "window/recent_files.h"
#include "window/recovery_copies.h"

namespace borvik {

/// Where the example projects are found: Qt's search path of this name, which the program sets.
inline constexpr const char* kExamplesPath = "examples";

/// frmBorvik: the main window and the hub of all work. Commands are in main_window_projects.cpp (files),
/// main_window_forms.cpp (input), main_window_calculation.cpp, main_window_results.cpp and main_window_drive.cpp (what
/// it shows), undo and recovery in main_window_history.cpp; menus are made in main_window_menus.cpp.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// @param session, services  must outlive the window
    MainWindow(Session& session, const Services& services, QWidget* parent = nullptr);
    ~MainWindow() override;

    /// Refreshes everything that shows the project. Runs each time the window is activated, so that every closed input
    /// form is reflected.
    void WritefrmInput();

    /// Opens a project file and puts it on the list of recent files. A file that can't be read leaves the project as it
    /// is; a message has said so.
    /// @return false when nothing was opened
    bool openProject(const std::string& path);

    /// The one road by which edits reach the window: results are out of date, the sketch follows. Commands that put
    /// another project in place of this one go through projectReplaced instead.
    /// @param what          the change in the user's words, such as "Material"
    /// @param resultsStand  the change touches no result: a name
    void projectChanged(const QString& what, bool resultsStand = false);

    /// True when the project differs from what was last saved, opened or made new.
    [[nodiscard]] bool hasUnsavedChanges() const;

    /// Offers what a former run could not save, the latest first: to bring it back, to throw it away, or to be asked
    /// again at the next start. To be called once, when the window stands.
    void offerRecovery();

    /// The calculation that is shown, of this input or of a former one; null before the first.
    [[nodiscard]] const CalculationPtr& calculation() const { return calculation_; }

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    struct MenuEntry;

    void buildCentre();
    void restoreSplitters();
    void keepSplitters();
    QWidget* inputColumn();
    QWidget* pictureFrame();
    QWidget* resultFrame();
    void buildStatusBar();

    void buildMenus();
    void buildFileMenu();
    void buildEditMenu();
    void buildInputMenu();
    void buildDiagramMenu();
    void buildPrintMenu();
    void buildHelpMenu();
    void fill(QMenu* menu, std::initializer_list<MenuEntry> entries);
    QMenu* menu(QMenu* parent, const char* name, const char* caption);
    void buildExampleEntries(QMenu* menu);
    void buildRecentEntries(QMenu* menu);
    void buildPrintEntries(QMenu* menu, const char* const (&names)[4], const char* const (&captions)[4],
                           PrintCommand command);
    DiagramView& chosenPicture();

    // Projects
    void newProject();
    void chooseAndOpen();
    void openExample(const QFileInfo& file);
    void openRecent(int entry);
    bool saveTo(const std::string& path);
    bool saveInPlace();
    /// False for a project that has been saved nowhere yet: its file name is only a proposal.
    [[nodiscard]] static bool hasPlace(const std::string& fileName);
    [[nodiscard]] std::string projectFolder() const;
    std::optional<std::string> askForPlace();
    std::optional<std::string> placeToSave();
    void save();
    void saveAs();
    bool load(const std::string& path, const std::string& step, const std::string& shownAs);
    void projectReplaced(const std::string& step);
    void projectShown();
    void ShowRecentFiles();

    // History
    void remember(const QString& what);
    void keepCopy();
    void undo();
    void redo();
    void standAt(const ProjectStep& step, const QString& message, bool another);
    void bringBack(const LeftCopy& copy);
    void showHistory();

    // Input forms
    void openForm(std::string_view node, const char* FormRefusal::*refusal = &FormRefusal::inMenu);
    void openForm(DialogKind kind, const QString& what);
    void formChanged(const QString& what);
    void takeOver(const InputDialog& form, DialogKind kind, const QString& what);

    // Calculation
    void calculate();
    bool run();
    void showCalculation();
    [[nodiscard]] bool inputIsCalculated() const;
    void keepInside();
    void settleInput();
    void followInput();

    // Results
    void showRemark();
    void showNode(const TreeNode& node, bool byWalking);
    void showTable(const std::string& name);
    void showNotes();
    void showGroups();
    void showOpinion();
    void openGroup(int row);
    /// Enter or a double click on a row: of a note its check, of a check how its ratio comes about.
    void chooseRow(int row);
    void showWorking(const RowOrigin& origin);
    void goToCheckOf(int note);
    void ShowTreeView();
    void ShowTreeViewResults();
    void print(int scope, PrintCommand command);

    // The cranes on the beam
    void takeDrive();
    void showStands(const std::array<CraneStand, 2>& stands);
    void showStandsOfCell(int row, int column);
    void showDrive();
    void driveTo(int j, int k);
    void backToGoverning();
    void stopDriving();

    void showState();
    void showRanges();
    void showGoverning();

    Session& session_;
    Services services_;
    RescentFile recent_;
    ProjectHistory history_;
    RecoveryCopies recovery_;
    QString copyTrouble_;  ///< why no copy of the unsaved changes is kept; empty where one is
    CalculationPtr calculation_;
    std::shared_ptr<CraneDrive> drive_;  ///< of that calculation
    bool driving_ = false;               ///< the pictures show where the cranes stand
    const InputDialog* form_ = nullptr;  ///< the one that is open
    bool splicesDropped_ = false;        ///< by the input check, since the last edit
    std::string loadFaultShown_;         ///< so that it is shown once
    bool shownNotes_ = false;            ///< the table shown is that of the notes
    bool shownGroups_ = false;           ///< the table shown is the matrix of groups
    bool running_ = false;
    std::unique_ptr<ProgressDialog> progress_;

    ProjectPanel* panel_ = nullptr;
    QSet<const QSplitter*> dragged_;  ///< by the user, since the start
    ResultTreeView* tree_ = nullptr;
    DiagramView* picBalk_ = nullptr;
    DiagramView* picRes_ = nullptr;
    DriveBar* driveBar_ = nullptr;
    bool sketchChosen_ = false;  ///< picBalk has the focus, or had it before a menu took it
    QString chosenNode_;         ///< the tree's node of what was chosen last to be seen
    ResultTablePane* results_ = nullptr;
    QPushButton* cmdCalc_ = nullptr;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    ReportExtras reportExtras_;  ///< chapters chosen in the menu
    QAction* recentSeparator_ = nullptr;
    QList<QAction*> recentEntries_;
    QLabel* stateRemark_ = nullptr;
    QLabel* stateCalculated_ = nullptr;
    QLabel* stateRanges_ = nullptr;
    QLabel* stateGoverning_ = nullptr;
    QLabel* stateTime_ = nullptr;
    QToolButton* stateNotes_ = nullptr;
    QLabel* stateUnsaved_ = nullptr;
};

}  // namespace borvik

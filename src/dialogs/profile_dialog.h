#pragma once

#include <memory>

#include "dialogs/input_dialog.h"
#include "section/section.h"

class QLabel;
class QListWidget;
class QRadioButton;
class QTabWidget;

namespace borvik {

class Picture;
class SectionCombo;

/// frmProfile: choose or define a section, keep the project's list of sections, set end post and point of load, and see
/// properties and capacities at once.
class ProfileDialog final : public InputDialog {
public:
    ProfileDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent);
    /// A section left behind that is not in the list is named in the window's status line.
    void done(int result) override;

    /// Fills the input fields from CurrentSection.
    void WriteProfInput();
    /// Recomputes CurrentSection and shows what follows from it.
    /// Dimensions that make no section leave the list with the reason.
    void UpdateResult();
    /// Fills the list of properties and capacities.
    void WriteSectionResult();

protected:
    void showInput() override;
    void settle(Project& project) const override { MarkSectionsInUse(project); }
    [[nodiscard]] bool boxesShowRecord() const override { return false; }
    [[nodiscard]] bool editsSection() const override { return true; }
    void showEvent(QShowEvent* event) override;

private:
    enum Tab { TableTab = 0, IsTab = 1, IuTab = 2 };

    QWidget* tabs();
    QWidget* tableTab();
    QWidget* weldedTab(const std::vector<NumberRow>& rows);
    Group sectionList();
    Group endPost();
    Group loadLevel();
    NumberRow dimension(const char* name, Single& field, const char* mask, double lowest, const char* message,
                        const QString& meaning);
    void showSection(int tab);
    /// Plates belong to the section for which they were entered: another row begins without.
    void chooseTableRow(int row);
    void chooseEntry(int row);
    void showTab(int tab);
    void keepCurrent();
    /// The place of the section shown in the project's list; -1 for one that isn't there.
    [[nodiscard]] int listedRow() const;
    void showName();
    void replaceInList();
    void writeList(int current);
    void addToList();
    void removeFromList();
    void move(int by);
    void openReinforcement();

    SectionRecord& current_;
    SectionRecord keptTable_, keptIs_, keptIu_;  ///< of each kind the section as last edited, while another is shown
    std::string from_;                           ///< name of the entry of the list that was shown last
    QTabWidget* SSTab1_;
    SectionCombo* cboEuprofile_;
    QListWidget* lstDatabase_;
    QTreeWidget* results_;
    std::vector<std::pair<QRadioButton*, EndPost>> endPosts_;  ///< each with its value in the record
    std::vector<std::pair<QRadioButton*, LoadPoint>> loadLevels_;
    QLabel *lblName_, *lblWarning_;
    Picture* picture_;
    std::unique_ptr<InputDialog> reinforcement_;
};

}  // namespace borvik

#pragma once

#include <memory>

#include "forms/input_dialog.h"

class QListWidget;
class QTabWidget;

namespace borvik {

class Picture;

/// frmProfile: choose or define a section, keep the project's list of sections, set end post and point of load, and see
/// properties and capacities at once.
class ProfileDialog : public InputDialog {
public:
    ProfileDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent);

    /// Fills the input fields from CurrentSection.
    void WriteProfInput();
    /// Recomputes CurrentSection and shows what follows from it. Dimensions that make no section leave the list with
    /// the reason.
    void UpdateResult();
    /// Fills the list of properties and capacities.
    void WriteSectionResult();

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
    void chooseTableRow(int row);
    void chooseEntry(int row);
    void showTab(int tab);
    void keepWelded();
    void writeList(int current);
    void addToList();
    void removeFromList();
    void move(int by);
    void openReinforcement();

    SectionRecord& current_;
    SectionRecord keptIs_, keptIu_;  ///< welded sections as last edited, while another tab is shown
    QTabWidget* SSTab1_;
    QComboBox* cboEuprofile_;
    QListWidget* lstDatabase_;
    QTreeWidget* results_;
    Picture* picture_;
    std::unique_ptr<QDialog> reinforcement_;
};

}  // namespace borvik

#pragma once

#include <memory>

#include "dialogs/crane_group.h"
#include "dialogs/input_dialog.h"

class QCheckBox;
class QLabel;
class QRadioButton;

namespace borvik {

class CombinationList;
class Picture;

/// frmLoad: one or two overhead cranes, their wheels, dynamic
/// factors and classes, the gangway and the placing of the load.
class LoadDialog final : public InputDialog {
public:
    LoadDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent);

    /// Fills all controls from the record, sets what is enabled, and builds the texts of the load combinations.
    void Write();
    /// The closing test. @return false when it showed a message
    bool CheckLoads();

protected:
    bool mayClose() override { return CheckLoads(); }
    void showInput() override { Write(); }
    void settle(Project& project) const override { settleLoads(project, LoadForm::Overhead); }

private:
    Group gangway();
    Group numberOfCranes();
    Group loads();
    void takeEdit();
    void setNumberOfCranes(int number);
    void setTwoCraneMode(TwoCranes mode);
    void writeDamageSum();
    void writeSource();

    QRadioButton *optEn_, *optTwo_, *optIndepend_, *optSimultan_;
    QCheckBox* chkMinDistConst_;
    QGroupBox* frIndepend_;
    QLabel* LblUF_;
    NumberBox* txtMinAvst_;
    CombinationList* lstCombination_;
    Picture* picture_;
    QLabel* source_;
    std::unique_ptr<InputDialog> craneData_;
    std::unique_ptr<PositionGroup> position_;
    std::unique_ptr<CraneGroup> crane1_, crane2_;
};

}  // namespace borvik

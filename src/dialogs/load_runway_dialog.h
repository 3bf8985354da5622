#pragma once

#include <memory>

#include "dialogs/crane_group.h"
#include "dialogs/input_dialog.h"

namespace borvik {

class CombinationList;
class Picture;

/// frmLoadRunway: the wheels of a monorail hoist, its dynamic
/// factors and class, the distance n, and the placing of the load.
class LoadRunwayDialog final : public InputDialog {
public:
    LoadRunwayDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent);

    /// Fills all controls from the record and builds the texts of the load combinations.
    void Write();
    /// The closing test. @return false when it showed a message
    bool CheckLoads();

protected:
    bool mayClose() override { return CheckLoads(); }
    void showInput() override;
    void settle(Project& project) const override { settleLoads(project, LoadForm::Monorail); }

private:
    Group runway();
    Group combinations();
    void takeEdit();

    CombinationList* lstCombination_;
    Picture *wheels_, *flange_;
    std::unique_ptr<PositionGroup> position_;
    std::unique_ptr<CraneGroup> hoist_;
};

}  // namespace borvik

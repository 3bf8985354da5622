#pragma once

#include "dialogs/input_dialog.h"

class QCheckBox;
class QRadioButton;

namespace borvik {

/// frmvipping: factors of the critical moment of lateral torsional buckling, and the method of the reduction.
class LateralBucklingDialog final : public InputDialog {
public:
    LateralBucklingDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent);

protected:
    void showInput() override;
    void settle(Project& project) const override;

private:
    Group method();
    Group factors();
    void useDefaultFactors(bool use);
    NumberBox* factor(const char* name, Single& field, int order);

    QCheckBox* chkDefaultCfactor_;
    QRadioButton* curves_[2];  ///< of the general case, of rolled and equivalent welded sections
    std::vector<NumberBox*> boxes_;
};

}  // namespace borvik

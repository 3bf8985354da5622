#pragma once

#include "forms/input_dialog.h"

class QCheckBox;
class QRadioButton;

namespace borvik {

/// frmvipping: factors of the critical moment of lateral torsional buckling, and the method of the reduction.
class VippingDialog : public InputDialog {
public:
    VippingDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent);

private:
    Group method();
    Group factors();
    void useDefaultFactors(bool use);
    NumberBox* factor(const char* name, Single& field, int order);

    QCheckBox* chkDefaultCfactor_;
    std::vector<NumberBox*> boxes_;
};

}  // namespace borvik

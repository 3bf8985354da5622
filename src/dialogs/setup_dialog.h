#pragma once

#include "dialogs/input_dialog.h"

namespace borvik {

class CombinationList;

/// frmSetup: load factors, partial factors, buckling parameters and deflection limits, and the load combinations that
/// follow from them.
class SetupDialog final : public InputDialog {
public:
    SetupDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent);

    /// Fills all controls from the record and builds the three combination texts anew.
    void WriteSetup();

protected:
    void showInput() override { WriteSetup(); }

private:
    Group loadFactors();
    Group deflectionLimits();
    Group shearFactor();
    Group bucklingParameters();
    Group partialFactors();
    NumberBox* factor(const char* name, Single& field, const char* message, const QString& meaning);

    CombinationList* lstCombination_;
};

}  // namespace borvik

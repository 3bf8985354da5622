#pragma once

#include "forms/input_dialog.h"

namespace borvik {

class Picture;

/// frmProfReinf: two plates at the top flange of the section being edited.
class ProfReinfDialog : public InputDialog {
public:
    ProfReinfDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent);

protected:
    /// Names the section after its plates.
    bool mayClose() override;

private:
    Group arrangement();
    Group plate();
    void arrange(bool reinforced, const char* text);
    void update();

    SectionRecord& current_;
    Picture* picture_;
};

}  // namespace borvik

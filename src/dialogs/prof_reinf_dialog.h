#pragma once

#include "dialogs/input_dialog.h"

class QRadioButton;

namespace borvik {

class Picture;

/// The message for plates that don't fit their section: height or thickness outside its limits; null for plates that
/// fit and for none.
[[nodiscard]] const char* plateRefusal(const SectionRecord& section);

/// frmProfReinf: two plates at the top flange of the section being edited.
class ProfReinfDialog final : public InputDialog {
public:
    ProfReinfDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent);

protected:
    /// Asks whether the plates fit, and names the section after them.
    bool mayClose() override;
    void showInput() override;
    [[nodiscard]] bool editsSection() const override { return true; }

private:
    Group arrangement();
    Group plate();
    void arrange(bool reinforced, const char* text);
    void update();

    SectionRecord& current_;
    QRadioButton* arrangements_[3];  ///< none, at the tips, under the flange
    Picture* picture_;
};

}  // namespace borvik

#pragma once

#include "dialogs/input_dialog.h"

class QCheckBox;
class QRadioButton;

namespace borvik {

class Picture;

/// frmRail: the crane rail, whether its weight counts, and how it is fastened to the flange.
class RailDialog final : public InputDialog {
public:
    RailDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent);

protected:
    void showInput() override;

private:
    Group choice();
    Group fastening();
    void chooseRail(int row);
    void writeList();

    QComboBox* cboRail_;
    QCheckBox* chkRail_;
    QRadioButton* fixes_[3];
    QTreeWidget* list_;
    Picture* picture_;
};

}  // namespace borvik

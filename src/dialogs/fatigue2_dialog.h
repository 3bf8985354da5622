#pragma once

#include "dialogs/fatigue_dialog.h"

namespace borvik {

/// frmFatigue2: the fatigue details of a monorail beam.
class Fatigue2Dialog final : public FatigueDialog {
public:
    Fatigue2Dialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent);

    /// cmdOK, as against the other ways of closing the form.
    void accept() override;

protected:
    void settle(Project& project) const override;
};

}  // namespace borvik

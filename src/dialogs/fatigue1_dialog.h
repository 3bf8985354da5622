#pragma once

#include "dialogs/fatigue_dialog.h"

namespace borvik {

/// frmFatigue1: the fatigue details of an overhead crane's runway beam.
class Fatigue1Dialog final : public FatigueDialog {
public:
    Fatigue1Dialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent);
};

}  // namespace borvik

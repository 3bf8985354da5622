#pragma once

#include <functional>
#include <memory>

#include "calculation/session.h"
#include "dialogs/input_dialog.h"
#include "platform/messages.h"

namespace borvik {

/// The input forms. Each edits the session's project and is shown modally, owned by the main window.
enum class DialogKind {
    Setup,       ///< frmSetup
    Beam,        ///< frmBeam
    Load,        ///< frmLoad: overhead cranes
    LoadRunway,  ///< frmLoadRunway: monorail hoist
    Profile,     ///< frmProfile
    ProfReinf,   ///< frmProfReinf, opened from the section form
    Rail,        ///< frmRail
    Lateral,     ///< frmvipping
    Fatigue1,    ///< frmFatigue1: details of an overhead crane
    Fatigue2     ///< frmFatigue2: details of a monorail
};

/// Makes an input form, not yet shown.
/// @param session  must outlive the form; its project is edited in place, field by field
/// @param messages  where refusals go; must outlive the form
/// @param changed  called after each field that the form has written, so that the window's sketch can follow
/// @return the form, or nothing when the program was built without it
[[nodiscard]] std::unique_ptr<InputDialog> makeDialog(DialogKind kind, Session& session, Messages& messages,
                                                      std::function<void()> changed, QWidget* parent);

}  // namespace borvik

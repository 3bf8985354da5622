#pragma once

namespace borvik {

/// The input forms. Each edits the session's project and is shown modally.
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
    Fatigue2,    ///< frmFatigue2: details of a monorail
    CraneData    ///< frmCraneData: wheel loads from crane data
};

}  // namespace borvik

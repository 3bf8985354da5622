#pragma once

#include <optional>
#include <string>
#include <vector>

#include "analysis/results.h"
#include "analysis/walk.h"
#include "checks/static_checks.h"
#include "fatigue/fatigue_results.h"
#include "platform/messages.h"
#include "platform/progress.h"
#include "project/project.h"
#include "tables/reference_tables.h"

namespace borvik {

/// Everything that one calculation produced.
struct Results {
    UlsResults Uls;
    SlsResults Sls;
    CheckResults Checks;
    FatigueResults Fatigue;
    PositionLog Steps;         ///< of the last walk that wrote one
    double SecondsStatic = 0;  ///< time of the ULS and SLS part
    double Seconds = 0;        ///< time of the whole run
};

/// One project being worked on: the record, the tables it rests on, the flags, and the last results. Owned by the
/// application; sessions know nothing of each other.
struct Session {
    ReferenceTables tables;
    Project project;
    ProjectContext context;
    bool Calculated = false;         ///< true from the end of a run until any input changes; gates every result view
    bool InputOK = true;             ///< result of the last input check
    std::string Fault;               ///< text of the run-time fault that ended the last run; empty if none did
    std::optional<Results> results;  ///< of the last finished run; stays in memory when an input changes, out of reach

    /// A session with the default project.
    explicit Session(ReferenceTables loaded);
    /// Any input has changed: results can't be reached until the next run.
    void inputChanged() noexcept { Calculated = false; }
};

}  // namespace borvik

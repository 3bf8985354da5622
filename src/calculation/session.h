#pragma once

#include <memory>
#include <optional>
#include <string>

#include "analysis/results.h"
#include "checks/static_checks.h"
#include "fatigue/fatigue_results.h"
#include "project/project.h"
#include "tables/reference_tables.h"

namespace borvik {

/// Everything that one calculation produced.
struct Results {
    UlsResults Uls;
    SlsResults Sls;
    CheckResults Checks;
    FatigueResults Fatigue;
    RailRecord Rail;           ///< with which it was calculated
    PositionLog Steps;         ///< of the last walk that wrote one
    double SecondsStatic = 0;  ///< time of the ULS and SLS part
    double Seconds = 0;        ///< time of the whole run
};

/// What a calculation gives back.
struct Outcome {
    Project settled;  ///< the input with what the calculation derives: lengths, spans, sections, C factors
    std::optional<Results> results;  ///< none where it was refused or ended in a fault
    bool InputOK = true;             ///< result of the input check
    std::string Fault;               ///< text of the run-time fault that ended it; empty if none did
};

struct Notes;

/// One project being worked on: the record, the tables it rests on, the flags, and the last results. Owned by the
/// application; sessions know nothing of each other.
struct Session {
    ReferenceTables tables;
    Project project;
    SectionRecord CurrentSection;    ///< what the section form works on; after a calculation that of the last span
    std::string FileName;            ///< path of the project; a mere name as long as it has no file
    std::string FileTitle;           ///< the path as opened, for the report's heading
    bool Calculated = false;         ///< true from the end of a run until any input changes; gates every result view
    bool InputOK = true;             ///< result of the last input check
    std::string Fault;               ///< text of the run-time fault that ended the last run; empty if none did
    std::optional<Results> results;  ///< of the last finished run; stays in memory when an input changes, out of reach
    std::shared_ptr<const Notes> notes;  ///< on these results, made once by makeNotes; null where nobody asked for them

    /// A session with the default project.
    explicit Session(ReferenceTables loaded);
    /// Puts the default project in place of the present one.
    void startAnew();
    /// The project belongs to this file from now on.
    void named(const std::string& file) { FileName = FileTitle = file; }
    /// Any input has changed: results can't be reached until the next run.
    void inputChanged() noexcept { Calculated = false; }
    /// Puts what a calculation of this project gave back in place.
    void take(Outcome outcome);
    /// The rail in use.
    [[nodiscard]] const RailRecord& rail() const { return railOf(project, tables); }
};

}  // namespace borvik

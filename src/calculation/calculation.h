#pragma once

#include "analysis/walk.h"
#include "calculation/session.h"
#include "platform/messages.h"
#include "platform/progress.h"

namespace borvik {

/// Checks the beam input: no gap in the spans, a section for each span and a span for each section. Counts NofSpans,
/// and drops, without a message and for good, fatigue splices that no longer fit the beam. Shows its own messages.
/// @return false when a message was shown
[[nodiscard]] bool CheckInput(Project& project, Messages& messages);
/// The span at which that check stops; 0 where it passes.
[[nodiscard]] int refusedSpan(const Project& project);

/// Gives the reactions at the far end, which the walk of the ultimate
/// limit state keeps as shears, the sign of upward support forces.
void turnReactionsUpward(UlsResults& uls);

/// The whole run: input check, lengths, fit of the cranes, sections, ULS, SLS, checks, fatigue. What was entered is
/// only read; of a refused or faulty run `settled` holds NofSpans, the splice flags and the lengths as far as it came,
/// and the sections as entered. Of a refusal or a run-time fault a message has been shown.
[[nodiscard]] Outcome Calculate(const Project& entered, const ReferenceTables& tables, Messages& messages,
                                Progress& progress, WalkMethod method = WalkMethod::Fast);

/// The same of a session's project, and the outcome put in place.
/// @return true when the run has ended with results
bool Calculate(Session& session, Messages& messages, Progress& progress, WalkMethod method = WalkMethod::Fast);

}  // namespace borvik

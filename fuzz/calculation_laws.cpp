#include <algorithm>

#include "base/fault.h"
#include "calculation/calculation.h"
#include "diagrams/diagrams.h"
#include "laws.h"
#include "notes/notes.h"
#include "project/project_file.h"
#include "results/json.h"
#include "results/summary.h"
#include "results/tables.h"
#include "support/recording_surface.h"

namespace borvik::fuzzing {

namespace {

constexpr double kMostPositions = 400;
constexpr int kLongestSpan = 20'000;

/// The positions that the walks would visit, with the lengths as the calculation will write them; 0 where the
/// calculation will refuse the project.
double positionsOf(Project project) {
    project.BeamLength = project.CranesLength = 0;
    for (const std::int32_t span : project.Span) project.BeamLength += span;
    project.CranesLength = project.MinAvst;
    for (const Single gap : project.Avst) project.CranesLength += gap;
    if (!(project.CranesLength < project.BeamLength)) return 0;
    try {
        return countPositions(project, project.NofCranes);
    } catch (const RuntimeFault&) {
        return 0;
    }
}

const ReferenceTables& tablesOfTheProgram() {
    static const ReferenceTables tables = LoadTables(BORVIK_SOURCE_DIR "/data");
    return tables;
}

/// One more run of a session, and everything that it shows, as one text.
std::string outcome(Session& session, WalkMethod method) {
    MessageList messages;
    Progress progress;
    const bool finished = Calculate(session, messages, progress, method);
    if (finished != session.Calculated) throw BrokenLaw("a run that has ended has no results, or the other way round");
    if (!finished && messages.texts.empty()) throw BrokenLaw("a calculation is refused without a word");
    if (finished) makeNotes(session);
    return resultsJson(session, messages.texts, {}, "", {.notes = true});
}

/// Makes all tables and pictures of a run, and its summary.
void present(const Session& session) {
    (void)summaryText(session);
    for (const TableEntry& entry : tableEntries()) (void)tabSeparated(entry.fill(session.project, *session.results));
    const DiagramData data{session.project, &*session.results};
    for (const std::string& name : pictureNames()) {
        const auto diagrams = pictureDiagrams(name, session.project);
        RecordingSurface surface(1400, 900);
        if (!diagrams.empty()) drawPicture(surface, diagrams, data);
    }
}

}  // namespace

void checkCalculation(const std::string& bytes) {
    Project project;
    try {
        readProjectBytes(bytes, project);
    } catch (const ProjectFileError&) {
        return;
    }
    for (std::int32_t& span : project.Span) span = std::min(span, kLongestSpan);
    if (positionsOf(project) > kMostPositions) return;
    Session session(tablesOfTheProgram());
    session.project = project;
    const std::string fast = outcome(session, WalkMethod::Fast);
    if (outcome(session, WalkMethod::Plain) != fast)
        throw BrokenLaw("a second run, by the plain walk, gives other results");
    const bool now = bytes.size() % 8 == 0;  // drawing takes longer than calculating
    if (session.Calculated && now) present(session);
}

}  // namespace borvik::fuzzing

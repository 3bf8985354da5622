#include "batch.h"

#include <algorithm>

#include "base/fault.h"
#include "base/whole_file.h"
#include "calculation/calculation.h"
#include "calculation/load_check.h"
#include "console.h"
#include "exchange/attached.h"
#include "exchange/input_json.h"
#include "exit_codes.h"
#include "groups/group_runs.h"
#include "notes/notes.h"
#include "output.h"
#include "project/project_file.h"
#include "reactions/support_reactions.h"
#include "results/ratios.h"
#include "results/second_opinion_tables.h"
#include "second_opinion/second_opinion.h"

namespace borvik {

namespace {

/// The project to calculate. @return kDone, or the exit code after its message
int load(Session& session, const std::string& file, bool asJson, Messages& messages) {
    try {
        if (asJson)
            session.project = projectFromJson(readFile(file), session.tables);
        else if (const std::string remark = LoadProject(file, session.project); !remark.empty())
            messages.show(remark);
    } catch (const InputJsonError& error) {
        messages.show(error.what());
        return kRefused;
    } catch (const std::system_error& error) {
        messages.show("can't be read: " + reasonOf(error));
        return kFileFault;
    } catch (const ProjectFileError& error) {
        messages.show(error.what());
        return kFileFault;
    }
    session.named(file);
    return kDone;
}

int outcome(const Session& session, const Options& options, const GroupMatrix* groups) {
    if (!session.Fault.empty()) return kFault;
    if (!session.Calculated) return kRefused;
    if (options.failAbove && groups != nullptr && groups->exceeds(*options.failAbove)) return kRatioAbove;
    return options.failAbove && verdictOf(*session.results).exceeds(*options.failAbove) ? kRatioAbove : kDone;
}

/// Reactions for supports, next to the neighbouring beam where there is one.
/// @return kDone, or the exit code after its message
int makeReactions(const Session& session, const std::string& neighbour, Console& console,
                  std::optional<SupportReactions>& reactions) {
    try {
        if (neighbour.empty()) {
            reactions = supportReactions(session.project, *session.results);
            return kDone;
        }
        Session beyond(session.tables);
        Console itsConsole(neighbour, false);
        if (const int code = load(beyond, neighbour, false, itsConsole); code != kDone) return code;
        if (!Calculate(beyond, itsConsole, itsConsole)) return kRefused;
        const JoinedBeam joined{beyond.project, beyond.rail()};
        reactions = supportReactions(session.project, *session.results, &joined);
        return kDone;
    } catch (const RuntimeFault& fault) {
        console.show(std::string("no reactions for supports: ") + fault.what());
        return kFault;
    }
}

/// The groups of a project with crane data, which its largest ratio is of.
std::optional<GroupMatrix> makeGroups(const Session& session, bool wanted, Console& console) {
    std::string fault;
    const Attached attached = attachedOf(session.project, &fault);
    if (!fault.empty()) {
        console.show("no groups of loads: " + fault);
        return std::nullopt;
    }
    if (attached.cranes.empty() && !wanted) return std::nullopt;
    try {
        return compareGroups(session.project, session.tables, attached.cranes, attached.farRails);
    } catch (const std::invalid_argument& error) {
        console.show(std::string("no groups of loads: ") + error.what());
        return std::nullopt;
    }
}

int runProject(const Options& options, const ReferenceTables& tables, const std::optional<std::string>& file,
               Outputs& outputs) {
    Console console(file.value_or("default project"), !options.quiet);
    Session session(tables);
    if (file)
        if (const int code = load(session, *file, !options.fromJson.empty(), console); code != kDone) return code;
    const std::string fingerprint = options.fingerprint ? fingerprintOf(session.project) : "";
    Calculate(session, console, console, options.walk);
    if (session.Calculated && (options.notes || options.extras.notes)) makeNotes(session);
    std::optional<SecondOpinion> opinion;
    if (session.Calculated && options.secondOpinion) {
        // What the command line names takes the place of what the project keeps.
        const bool named = !options.opinionOptions.lateralSupports.empty() || options.opinionOptions.freeWarping;
        opinion = secondOpinion(session, named ? options.opinionOptions : opinionOptionsOf(session.project));
    }
    std::optional<std::vector<CheckWorking>> workings;
    if (session.Calculated && options.values)
        workings = checkWorkings(session.tables, session.project, *session.results);
    std::optional<SupportReactions> reactions;
    std::optional<GroupMatrix> groups;
    if (session.Calculated) groups = makeGroups(session, options.groups, console);
    int exitCode = outcome(session, options, groups ? &*groups : nullptr);
    if (session.Calculated && options.wantsReactions())
        exitCode = std::max(exitCode, makeReactions(session, options.neighbour, console, reactions));
    const std::vector<std::string> messages = console.texts();
    // Not among the messages of the run, which is done as if the loads were sound.
    const std::string onLoads = session.Calculated ? loadRemark(session.project) : std::string();
    if (!onLoads.empty()) console.show(onLoads);
    try {
        for (const std::string& remark :
             outputs.write({session, messages, file, opinion ? &*opinion : nullptr, workings ? &*workings : nullptr,
                            reactions ? &*reactions : nullptr, fingerprint, groups ? &*groups : nullptr}))
            console.show(remark);
    } catch (const OutputError& error) {
        console.show(error.what());
        exitCode = kFileFault;
    }
    return exitCode;
}

}  // namespace

int runBatch(const Options& options, const ReferenceTables& tables) {
    Outputs outputs(options);
    if (options.useDefault) return runProject(options, tables, std::nullopt, outputs);
    if (!options.fromJson.empty()) return runProject(options, tables, options.fromJson, outputs);
    int highest = kDone;
    for (const std::string& file : options.files)
        highest = std::max(highest, runProject(options, tables, file, outputs));
    return highest;
}

}  // namespace borvik

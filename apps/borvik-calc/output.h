#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "base/whole_file.h"
#include "calculation/check_working.h"
#include "calculation/session.h"
#include "groups/group_runs.h"
#include "options.h"
#include "reactions/support_reactions.h"

namespace borvik {

/// Writes a file; a fault says that this file can't be written, and why.
template <class Write>
void naming(const std::string& file, Write write) {
    try {
        write();
    } catch (const std::system_error& error) {
        throw OutputError("can't write " + file + ": " + reasonOf(error));
    } catch (const OutputError& error) {
        throw OutputError("can't write " + file + ": " + error.what());
    }
}

/// One project of the batch after its run.
struct FinishedRun {
    const Session& session;
    const std::vector<std::string>& messages;
    std::optional<std::string> file;                      ///< as given; nothing for the default project
    const SecondOpinion* opinion = nullptr;               ///< where it was asked for and there are results
    const std::vector<CheckWorking>* workings = nullptr;  ///< the same
    const SupportReactions* reactions = nullptr;          ///< the same
    std::string fingerprint;                              ///< of the input as it was read
    const GroupMatrix* groups = nullptr;                  ///< of a project with crane data that has results
};

/// Writes what the options ask for, one project after the other.
class Outputs {
public:
    explicit Outputs(const Options& options) : options_(options) {}

    /// All outputs of one project.
    /// @return remarks for the user on what was written
    /// @throws OutputError  after everything else has been written
    std::vector<std::string> write(const FinishedRun& run);

private:
    void writeJson(const FinishedRun& run);
    void writeReport(const FinishedRun& run);
    /// Where the output of one project goes. With several projects, or where a folder is named: a file in that folder,
    /// named as the project. Projects of the same name in different folders get a number.
    std::string fileFor(const std::string& target, const FinishedRun& run, const char* ending);
    void writeTable(const FinishedRun& run);
    void writeSpreadsheet(const FinishedRun& run);
    void writeWorkbook(const FinishedRun& run);
    void writeSummary(const FinishedRun& run);
    void writeNotes(const FinishedRun& run);
    void writeSecondOpinion(const FinishedRun& run);
    void writeReactions(const FinishedRun& run);
    void writeGroups(const FinishedRun& run);
    /// Texts of several projects stand apart, each under its name.
    void printText(const FinishedRun& run, const std::string& text);

    const Options& options_;
    std::set<std::string> taken_;  ///< result files in folders, so that none is written twice
    bool textPrinted_ = false;
};

}  // namespace borvik

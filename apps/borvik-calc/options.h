#pragma once

#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "analysis/walk.h"
#include "report/report.h"
#include "results/csv.h"
#include "second_opinion/second_opinion.h"

namespace borvik {

/// What the command line asks for.
struct Options {
    std::vector<std::string> files;  ///< projects to calculate
    bool useDefault = false;         ///< the default project instead of files
    std::string fromJson;            ///< JSON file of the input of one project, instead of files; empty: none
    std::string tables;              ///< folder of the reference tables; empty: where programs look for them
    WalkMethod walk = WalkMethod::Fast;
    bool summary = false;
    bool notes = false;          ///< print the notes for the checking engineer
    bool secondOpinion = false;  ///< print torsion and buckling by finite elements, and put them into the JSON
    SecondOpinionOptions opinionOptions;
    bool values = false;                   ///< print how the governing ratios come about, and put it into the JSON
    bool groups = false;                   ///< print the matrix of groups of loads
    bool reactions = false;                ///< print the reactions for supports, and put them into the JSON
    std::string neighbour;                 ///< project of the beam beyond either end; empty: the same beam mirrored
    std::string reactionsCsv;              ///< CSV file of what acts together; empty: none
    std::string reactionsXlsx;             ///< workbook of it, a sheet for each support; empty: none
    std::string json;                      ///< file, "-" for standard output, or folder; empty: none
    std::string table;                     ///< name of a result table to print; empty: none
    std::string diagram;                   ///< name of a picture to save as `picture`; empty: none
    std::string picture;                   ///< file of the picture, .png or .svg
    std::string at;                        ///< where the cranes of the diagram stand; empty: nowhere
    std::string xlsx;                      ///< spreadsheet file that takes the table instead; empty: none
    std::string csv;                       ///< CSV file that takes the table; empty: none
    std::string workbook;                  ///< spreadsheet file that takes all tables; empty: none
    std::optional<DecimalSign> decimal;    ///< of CSV; none: a point
    bool fingerprint = false;              ///< print the fingerprint of the input
    std::string report;                    ///< PDF file of the report, or folder; empty: none
    std::string paper;                     ///< of the report, "a4" or "letter"; empty: as is the custom here
    ReportScope scope = ReportScope::All;  ///< of the report
    ReportExtras extras;                   ///< what the report has besides
    std::string save;                      ///< project file to write; empty: none
    std::optional<double> failAbove;
    std::string craneLoads;  ///< file of crane data whose loads are printed, instead of projects; empty: none
    bool quiet = false;

    [[nodiscard]] bool wantsReactions() const { return reactions || !reactionsCsv.empty() || !reactionsXlsx.empty(); }
    [[nodiscard]] std::size_t projects() const { return useDefault || !fromJson.empty() ? 1 : files.size(); }
    /// The summary is printed when it is asked for, and when nothing else is.
    [[nodiscard]] bool printsSummary() const {
        return summary || (!values && !groups && !reactions && reactionsCsv.empty() && reactionsXlsx.empty() &&
                           json.empty() && save.empty() && workbook.empty() && !fingerprint && table.empty() &&
                           diagram.empty() && report.empty() && !notes && !secondOpinion && !quiet);
    }
};

/// @return the options, or the exit code where the command line was answered already (help, version) or is wrong
[[nodiscard]] std::variant<Options, int> parseOptions(int argc, const char* const* argv);

}  // namespace borvik

#pragma once

#include "calculation/check_working.h"
#include "calculation/session.h"
#include "groups/group_runs.h"
#include "notes/notes.h"
#include "report/report.h"
#include "report/report_page.h"
#include "results/tables.h"
#include "second_opinion/second_opinion.h"

namespace borvik {

/// A report being written.
struct Report {
    ReportPage& page;
    const Project& project;
    const RailRecord& rail;
    const Results& results;
    bool isBegun = false;  ///< a page before the chapters is written
};

/// The page before the others: project and office, the largest ratio of each limit state, standards, how the cranes are
/// walked, program and fingerprint; with more than four pages the contents.
/// @param contents  chapters and their pages; empty while they are being found out
/// @param groups    of a project with crane data; else null
void printFirstPage(Report& report, const OfficeTexts& office, const PageHeadTexts& head,
                    const std::vector<PageRange::Chapter>& contents, const GroupMatrix* groups);

// Each chapter begins below PrintY with its heading in bold, leaves PrintY below its last line, and goes on on a new
// page where the old one is full.

/// "General:": steel and partial factors.
/// @param withDeflections  their limits too
void PrintGeneral(Report& report, bool withDeflections);
/// "Crane & Loadcombinations:": crane classes, load combinations, wheels.
void PrintCraneAndLoad(Report& report);
/// "Profile:": every distinct section with its sketch, properties, classes and resistances; what counts as dead load.
void PrintSection(Report& report);
/// "Lateral Torsional Buckling:": factors of the critical moment, curves, point of load.
void PrintLtb(Report& report);
/// "Fatigue Details:" of an overhead crane: categories and welds of the details in use.
void PrintFatigueOverhead(Report& report);
/// The input of the fatigue check of a monorail.
void PrintFatigueMonorail(Report& report);

/// "Results: ": the rows of the ultimate and serviceability limit states, the governing ones first, then span by span.
void PrintResults(Report& report);
/// The same, and "FLS - Fatigue Control" with the governing row of each detail.
void PrintResultsCompressed(Report& report);
/// "FLS - Fatigue Control": all rows of the details. With two cranes a row sums up the damage of both.
void PrintFlsCrane1(Report& report);
/// With two cranes: the stress ranges of crane 2 that the rows take in; nothing where crane 2 was not walked by itself.
void PrintFlsCrane2(Report& report);

/// "Governing positions of the cranes:" on a new page: for each governing check the sketch with the cranes where they
/// stand then, and the forces, deflections or stresses of that position within their envelopes. Checks of one position
/// share a picture; one that no position decides has none.
/// @param withDeflections, withFatigue  those checks too
void printPositions(Report& report, bool withDeflections, bool withFatigue);

/// "Intermediate values:" on a new page: how each governing ratio comes about, line by line,
/// behind the sections that they rest on.
void printValues(ReportPage& page, const std::vector<CheckWorking>& workings);

/// One of them: its title, then line by line symbol, formula, numbers and, at the margin, the clause.
void printWorking(ReportPage& page, const CheckWorking& working);

/// A table over the width of the page, with its head again on every page; the first columns have these
/// shares of the width, the others the same of what is left.
void printTable(ReportPage& page, const ResultTable& table, const std::vector<double>& shares);

/// "Wheel loads from crane data" on a new page: every formula with its numbers, the groups of loads, the ratios of all
/// groups. @pre the project has good crane data @param matrix  null: it could not be made
void printWheelLoads(Report& report, const GroupMatrix* matrix);

/// "Second opinion" on a new page: the ratios beside those of the checks, rotation and bimoment, the mode of buckling.
void printSecondOpinion(Report& report, const SecondOpinion& opinion);

/// "Reactions for supports:" on a new page: every extreme by its parts, of the ultimate limit state with the wheels and
/// what acts at all supports then.
/// @param groups  of a project with crane data: those of every group too; else null
void printSupportReactions(Report& report, const GroupMatrix* groups);

/// "Notes for the checking engineer:" on a new page: the notes in their order, then the assumptions.
void PrintNotes(ReportPage& page, const Notes& notes);

}  // namespace borvik

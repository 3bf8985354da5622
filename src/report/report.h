#pragma once

#include <ctime>
#include <span>
#include <string>

#include "calculation/session.h"
#include "platform/printer.h"

namespace borvik {

/// What a report covers.
enum class ReportScope : int {
    Uls = 1,         ///< input and the diagrams of the ultimate limit state
    UlsSls = 2,      ///< the same with the deflections
    All = 3,         ///< input, all diagrams, all checks of every span, support and splice
    Compressed = 4,  ///< input, a choice of diagrams, the checks, of fatigue the governing rows
};

/// What an office writes on the first page of a report beside what the project tells.
struct OfficeTexts {
    std::string client, preparedBy, checkedBy, revision;
    std::string date;  ///< empty: that of the print
};
/// A line of the first page that the office fills in: in the print dialog and by "--" and its option in a terminal.
struct OfficeField {
    std::string OfficeTexts::*text;
    const char* name;    ///< "PreparedBy": of its box and in the settings
    const char* option;  ///< "prepared-by"
    const char* title;   ///< "Prepared by"
};
/// All of them, in the order of the page.
[[nodiscard]] std::span<const OfficeField> officeFields();

/// What a report has where it is asked for: chapters behind the others, which are the same with and without, and what
/// makes it a document of an office.
struct ReportExtras {
    bool positions = false;  ///< where the cranes stand for each governing check, as pictures
    bool values = false;     ///< how each governing ratio comes about
    bool reactions = false;  ///< the reactions for the design of the supports
    bool loads = false;      ///< wheel loads from crane data, and the ratios of all groups, where there are crane data
    bool opinion = false;    ///< torsion with warping and buckling by eigenvalue beside the checks
    bool notes = false;      ///< the notes for the checking engineer
    bool firstPage = false;  ///< a page before the others: project, office, largest ratios, standards, contents
    OfficeTexts office = {};
    std::string logo = {};  ///< picture file for the head of every page (PNG, JPEG or SVG); empty: none
};

/// A chapter that can be asked for: in the menu, in the print dialog and, by "--with-" and its name, in a terminal.
struct ExtraChapter {
    bool ReportExtras::*wanted;
    const char* name;   ///< "Positions"
    const char* title;  ///< "governing positions of the cranes"
    const char* holds;  ///< what the report tells there
};
/// All of them, in the order of the report.
[[nodiscard]] std::span<const ExtraChapter> extraChapters();

/// When a report is printed; the local date and clock time as they are to be shown.
struct ReportTime {
    std::string date;
    std::string time;
};

/// The local time as "2026-03-01" and "9:05".
[[nodiscard]] ReportTime reportTime(const std::tm& local);

inline constexpr const char* kCalculateBeforePrint = "  Calculate before print  ";

/// True when the session holds results that belong to its input: only such may be printed.
[[nodiscard]] bool canReport(const Session& session);

/// Writes the whole report, from page 1, on paper whose first page is empty.
/// @pre canReport(session); with notes, those that the session keeps
void PrintReport(Printer& printer, const Session& session, ReportScope scope, const ReportTime& when,
                 const ReportExtras& extras = {});

/// "beam-a-ULS-SLS.pdf": a name for the file of a report, from the project's file or, where it has none, its title.
[[nodiscard]] std::string reportFileName(const Session& session, ReportScope scope);

/// Subject of the document, beside its title.
inline constexpr const char* kReportSubject = "Crane supporting structures to EN 1993-6: static calculation";

/// Title of the document: project, identification.
[[nodiscard]] std::string reportTitle(const Session& session);

}  // namespace borvik

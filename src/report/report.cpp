#include "report/report.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <limits>

#include "base/number_text.h"
#include "exchange/attached.h"
#include "platform/version.h"
#include "report/report_chapters.h"
#include "results/second_opinion_tables.h"
#include "results/tables.h"

namespace borvik {
namespace {

// Diagrams stand in a page scale of so many units from top to bottom, which gives them their height on the paper, and
// each takes a fixed part of the page.
constexpr double kForceScale = 1400.0;
constexpr double kFlatScale = 2000.0;
constexpr double kSketchStep = 0.075;
constexpr double kForceStep = 0.162;
constexpr double kUzStep = 0.051;
constexpr double kUyStep = 0.05;
constexpr double kFlsStep = 0.052;

/// Lower case of the letters of Windows-1252 that have one, in UTF-8.
std::string lowerCase(std::string text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte < 0x80)
            text[i] = static_cast<char>(std::tolower(byte));
        else if (byte == 0xC3 && i + 1 < text.size()) {  // U+00C0 to U+00FF
            auto& next = text[++i];
            const auto low = static_cast<unsigned char>(next);
            if (low >= 0x80 && low <= 0x9E && low != 0x97) next = static_cast<char>(low + 0x20);
        }
    }
    return text;
}

PageHeadTexts headOf(const Session& session, const ReportTime& when) {
    return {kProgramAndVersion,   when.date, when.time, session.project.Proj, lowerCase(session.FileTitle),
            session.project.Ident};
}

void printInput(Report& report, ReportScope scope) {
    const bool withFatigue = scope == ReportScope::All || scope == ReportScope::Compressed;
    ReportPage& page = report.page;
    if (report.isBegun)
        page.newPage();
    else
        page.PageHead();
    PrintGeneral(report, scope != ReportScope::Uls);
    PrintCraneAndLoad(report);
    page.advance(0.5);
    PrintSection(report);
    page.ruleAcross();
    PrintLtb(report);
    if (withFatigue) {
        if (report.project.CraneType == CraneKind::Overhead)
            PrintFatigueOverhead(report);
        else
            PrintFatigueMonorail(report);
    }
    page.advance(1.5);
    if (page.PrintY > page.LinesPerPage * 0.85) {
        page.newPage();
        page.advance(0.5);
    }
}

void printUlsDiagrams(Report& report, const DiagramData& data) {
    report.page.chapterOfDiagrams("Sketch and diagrams: ULS");
    report.page.diagram(Diagram::Sketch, data, kForceScale, kSketchStep);
    report.page.diagram(Diagram::UlsMyVz, data, kForceScale, kForceStep);
}

/// The reactions as a list: those across the beam stand in no diagram of the report, and the diagram of a long beam has
/// no room for all the numbers.
void printReactions(Report& report) {
    ReportPage& page = report.page;
    const ResultTable table = TableReactions(report.project, report.results);
    const double column = page.width() / static_cast<double>(table.columns.size());
    const auto at = [&](std::size_t number) { return page.ColLeft + static_cast<double>(number) * column; };
    const auto head = [&] {
        for (std::size_t c = 0; c < table.columns.size(); ++c)
            page.put(at(c), table.columns[c].header, {false, colours::grey});
        page.advance(1.2);
    };
    page.need(std::min(6.0 + static_cast<double>(table.rows.size()), 12.0));
    page.chapter("ULS - Reactions");
    page.put(page.ColLeft, "ULS - Reactions (kN)", {true});
    page.advance(1.2);
    head();
    page.afterBreak = head;
    for (const std::vector<TableCell>& row : table.rows) {
        page.need(1.0);
        for (std::size_t c = 0; c < row.size(); ++c) page.put(at(c), row[c].text);
        page.advance(1.0);
    }
    page.afterBreak = nullptr;
    page.advance(1.0);
}

/// Diagrams of a limit state one below the other; on a new page where they would be torn apart.
void printTogether(Report& report, const DiagramData& data, const char* chapter,
                   std::initializer_list<Diagram> diagrams, double step) {
    ReportPage& page = report.page;
    const double apart = static_cast<double>(beamParts(report.project).size());
    if (page.room() < apart * static_cast<double>(diagrams.size()) * step * page.LinesPerPage) {
        page.newPage();
        page.advance(0.5);
    }
    page.chapterOfDiagrams(chapter);
    for (const Diagram diagram : diagrams) page.diagram(diagram, data, kFlatScale, step);
}

void PrintFull(Report& report, const DiagramData& data) {
    ReportPage& page = report.page;
    printInput(report, ReportScope::All);
    printUlsDiagrams(report, data);
    page.chapterOfDiagrams("Diagrams: SLS");
    page.diagram(Diagram::SlsUz, data, kFlatScale, kUzStep);
    page.diagram(Diagram::SlsUy, data, kFlatScale, kUyStep);
    printReactions(report);
    printTogether(report, data, "Diagrams: FLS",
                  {Diagram::Cr1TopRange, Diagram::Cr1BottomRange, Diagram::Cr1ShearRange, Diagram::FlsReactions},
                  kFlsStep);
    PrintResults(report);
    PrintFlsCrane1(report);
    PrintFlsCrane2(report);
}

void PrintPartial(Report& report, const DiagramData& data, ReportScope scope) {
    ReportPage& page = report.page;
    const bool compressed = scope == ReportScope::Compressed;
    printInput(report, scope);
    printUlsDiagrams(report, data);
    page.chapterOfDiagrams("Diagrams: SLS");
    if (scope != ReportScope::Uls) page.diagram(Diagram::SlsUz, data, kFlatScale, kUzStep);
    if (compressed || (scope == ReportScope::UlsSls && report.project.HasLoadsY))
        page.diagram(Diagram::SlsUy, data, kFlatScale, kUyStep);
    printReactions(report);
    if (!compressed) return;
    printTogether(report, data, "Diagrams: FLS", {Diagram::Cr1TopRange, Diagram::Cr1ShearRange}, kFlsStep);
    page.advance(0.5);
    PrintResultsCompressed(report);
}

void write(Printer& printer, const Session& session, ReportScope scope, const PageHeadTexts& head,
           const ReportExtras& extras, const std::vector<PageRange::Chapter>& contents, const GroupMatrix* groups,
           const SecondOpinion* opinion) {
    ReportPage page(printer, head);
    Report report{page, session.project, session.rail(), *session.results};
    if (extras.firstPage) {
        page.PageHead();
        printFirstPage(report, extras.office, head, contents, groups);
        report.isBegun = true;
    }
    const DiagramData data{session.project, &*session.results};
    if (scope == ReportScope::All)
        PrintFull(report, data);
    else
        PrintPartial(report, data, scope);
    if (extras.positions)
        printPositions(report, scope != ReportScope::Uls,
                       scope == ReportScope::All || scope == ReportScope::Compressed);
    if (extras.values) printValues(page, checkWorkings(session.tables, session.project, *session.results));
    if (extras.reactions) printSupportReactions(report, groups);
    if (extras.loads && groups != nullptr) printWheelLoads(report, groups);
    if (opinion != nullptr) printSecondOpinion(report, *opinion);
    if (extras.notes) PrintNotes(page, *session.notes);
}

/// The groups of a project with crane data; nothing where there are none, or they can't be used.
std::optional<GroupMatrix> groupsOf(const Session& session) {
    std::string fault;
    const Attached attached = attachedOf(session.project, &fault);
    if (attached.cranes.empty() || !fault.empty()) return std::nullopt;
    try {
        return compareGroups(session.project, session.tables, attached.cranes, attached.farRails);
    } catch (const std::invalid_argument&) {
        return std::nullopt;
    }
}

const char* nameOf(ReportScope scope) {
    switch (scope) {
        case ReportScope::Uls:
            return "ULS";
        case ReportScope::UlsSls:
            return "ULS-SLS";
        case ReportScope::All:
            return "ULS-SLS-FLS";
        case ReportScope::Compressed:
            return "compressed";
    }
    return "";
}

}  // namespace

std::span<const ExtraChapter> extraChapters() {
    static constexpr ExtraChapter kChapters[] = {
        {&ReportExtras::positions, "Positions", "governing positions of the cranes",
         "where the cranes stand for each governing check"},
        {&ReportExtras::values, "Values", "intermediate values", "how each governing ratio comes about, line by line"},
        {&ReportExtras::reactions, "Reactions", "reactions for supports",
         "the reactions for the design of the supports, by parts and by position of the cranes"},
        {&ReportExtras::loads, "Loads", "wheel loads from crane data",
         "how the wheel loads follow from the crane data, and the ratios of all groups"},
        {&ReportExtras::opinion, "Opinion", "second opinion",
         "torsion with warping and buckling by eigenvalue, beside the ratios of the checks"},
        {&ReportExtras::notes, "Notes", "notes for the checking engineer",
         "in its last chapter what the checks assume and leave out"},
    };
    return kChapters;
}

bool canReport(const Session& session) {
    return session.Calculated && session.results.has_value();
}

void PrintReport(Printer& printer, const Session& session, ReportScope scope, const ReportTime& when,
                 const ReportExtras& extras) {
    PageHeadTexts head = headOf(session, when);
    head.logo = extras.logo;
    // Laid out once for the number of pages, which stands on each of them, and for the contents.
    PageRange nowhere(printer, std::numeric_limits<int>::max(), 0);
    std::optional<GroupMatrix> groups;
    if (extras.loads || extras.reactions || extras.firstPage) groups = groupsOf(session);
    const GroupMatrix* const all = groups ? &*groups : nullptr;
    std::optional<SecondOpinion> opinion;
    if (extras.opinion) opinion = secondOpinion(session, opinionOptionsOf(session.project));
    const SecondOpinion* const other = opinion ? &*opinion : nullptr;
    write(nowhere, session, scope, head, extras, {}, all, other);
    head.pages = nowhere.pages();
    write(printer, session, scope, head, extras, nowhere.chapters(), all, other);
}

std::span<const OfficeField> officeFields() {
    static constexpr OfficeField kFields[] = {
        {&OfficeTexts::client, "Client", "client", "Client"},
        {&OfficeTexts::preparedBy, "PreparedBy", "prepared-by", "Prepared by"},
        {&OfficeTexts::checkedBy, "CheckedBy", "checked-by", "Checked by"},
        {&OfficeTexts::revision, "Revision", "revision", "Revision"},
        {&OfficeTexts::date, "Date", "date", "Date"},
    };
    return kFields;
}

ReportTime reportTime(const std::tm& local) {
    return {formatNumber(1900 + local.tm_year, "0000") + "-" + formatNumber(local.tm_mon + 1, "00") + "-" +
                formatNumber(local.tm_mday, "00"),
            formatNumber(local.tm_hour, "0") + ":" + formatNumber(local.tm_min, "00")};
}

std::string reportFileName(const Session& session, ReportScope scope) {
    std::string name = std::filesystem::path(session.FileName).stem().string();
    if (name.empty()) name = session.project.Proj;
    // A title may hold what no file name may.
    std::replace_if(
        name.begin(), name.end(),
        [](char c) { return std::string_view("/\\:*?\"<>|").find(c) != std::string_view::npos; }, '-');
    const auto first = name.find_first_not_of(' ');
    name = first == std::string::npos ? "report" : name.substr(first, name.find_last_not_of(' ') - first + 1);
    return name + "-" + nameOf(scope) + ".pdf";
}

std::string reportTitle(const Session& session) {
    std::string title = session.project.Proj;
    if (session.project.Ident.find_first_not_of(' ') != std::string::npos) title += ", " + session.project.Ident;
    return title;
}

}  // namespace borvik

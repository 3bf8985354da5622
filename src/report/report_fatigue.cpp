#include <array>
#include <string>

#include "base/number_text.h"
#include "fatigue/details.h"
#include "report/report_chapters.h"

namespace borvik {
namespace {

/// "Cz/Ct = 160/100".
std::string categoriesOf(const Detail& detail, const Project& project) {
    std::string symbols, numbers;
    for (std::size_t i = 0; i < detail.terms.size(); ++i) {
        if (detail.terms[i].category == nullptr) continue;
        const char* between = i > 0 ? "/" : "";
        symbols += between + std::string(detail.symbols[i]);
        numbers += between + std::to_string(project.*detail.terms[i].category);
    }
    return symbols + " = " + numbers;
}

void printSplices(ReportPage& page, const Project& project) {
    const bool monorail = project.CraneType == CraneKind::Monorail;
    const auto& used = monorail ? project.ChkFatR5Sp : project.ChkFat5Sp;
    const auto& spans = monorail ? project.FatR5Span : project.Fat5Span;
    const auto& places = monorail ? project.FatR5d1 : project.Fat5d1;
    for (int splice = 1; splice <= kCheckedSplices; ++splice) {
        if (!used(splice)) continue;
        page.put(page.Col3.stop1,
                 "Span: " + formatNumber(spans(splice), "0") + "  x = " + formatNumber(places(splice), "0") + " mm");
        // The stresses of a hoist's splice are those of the span that the overhead crane's splice names.
        const Single stressed = project.Fat5Span(splice);
        if (stressed != spans(splice)) page.put(page.Col4.stop1, "Stresses of span " + formatNumber(stressed, "0"));
        page.nextLine();
    }
}

void printDetail(ReportPage& page, const Project& project, const Detail& detail) {
    page.put(page.Col1.stop1, inputTitleOf(detail));
    page.put(page.Col2.stop1 + 3.0, categoriesOf(detail, project));
    if (kindOf(detail.places) == PlaceKind::Splice) {
        printSplices(page, project);
        return;
    }
    if (detail.weldShown.kind != nullptr)
        page.put(page.Col3.stop1,
                 project.*detail.weldShown.kind == kFilletWeld
                     ? "Fillet Weld - a" + formatNumber(project.*detail.weldShown.throat, "0.0") + " mm"
                     : std::string("Full Pen Weld "));
    // Detail 6 of a monorail: the kind of weld W3 decides, whatever that of W4 is.
    if (detail.weldShown.throat == &Project::RW4a && (project.RW3 == kFilletWeld) != (project.RW4 == kFilletWeld))
        page.put(page.Col4.stop1, project.RW3 == kFilletWeld
                                      ? "taken as fillet weld - a" + formatNumber(project.RW4a, "0.0") + " mm"
                                      : std::string("taken as full pen weld"));
    if (detail.plate.length != nullptr)
        page.put(page.Col4.stop1, "e = " + formatNumber(project.*detail.plate.length, "0") + ", t = " +
                                      formatNumber(DecimalValue(project.*detail.plate.thickness), "0") + " mm");
    page.nextLine();
}

void printDetails(Report& report, const std::array<Detail, 6>& details) {
    ReportPage& page = report.page;
    page.advance(0.5);
    page.need(4.0);
    page.chapter("Fatigue Details");
    page.put(page.Col1.stop1, "Fatigue Details:", {true});
    page.nextLine();
    bool any = false;
    for (const Detail& detail : details)
        if (report.project.*detail.checked) {
            printDetail(page, report.project, detail);
            any = true;
        }
    if (any) return;
    page.put(page.Col1.stop1, "No fatigue details are checked");
    page.nextLine();
}

}  // namespace

void PrintFatigueOverhead(Report& report) {
    printDetails(report, kOverheadDetails);
}

void PrintFatigueMonorail(Report& report) {
    printDetails(report, kMonorailDetails);
}

}  // namespace borvik

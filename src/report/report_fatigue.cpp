#include <string>

#include "base/number_text.h"
#include "report/report_chapters.h"

namespace borvik {
namespace {

/// A weld of a detail: its kind and throat.
struct WeldFields {
    std::string Project::*kind = nullptr;
    Single Project::*throat = nullptr;
};

/// The stiffened support or the hanger: bearing length and thickness of its plate.
struct SupportFields {
    Single Project::*length = nullptr;
    std::string Project::*thickness = nullptr;
};

/// What a detail is printed with, beside its name.
struct DetailInputs {
    const char* name;
    bool Project::*flag;
    const char* categories;  ///< "Cz/Ct = "
    std::int16_t Project::*first;
    std::int16_t Project::*second = nullptr;
    WeldFields weld = {};
    SupportFields support = {};
    bool splices = false;
};

constexpr DetailInputs kOverhead[] = {
    {"1 Rail to topflange", &Project::Fat1, "Cx = ", &Project::Fat1C1},
    {"2 Stiffener to bottom flange", &Project::Fat2, "Cx = ", &Project::Fat2C1},
    {"3 Top flange/web", &Project::Fat3, "Cz/Ct = ", &Project::Fat3C1, &Project::Fat3C2, {&Project::W1, &Project::W1a}},
    {"4 Bottom flange/web", &Project::Fat4, "Ct = ", &Project::Fat4C1, nullptr, {&Project::W2, &Project::W2a}},
    {"5 Beam Splice", &Project::Fat5, "Cx = ", &Project::Fat5C1, nullptr, {}, {}, true},
    {"6  Support Point",
     &Project::Fat6,
     "Cz = ",
     &Project::Fat6C1,
     nullptr,
     {&Project::W3, &Project::W3a},
     {&Project::Fat6d1, &Project::WS1t}},
};

constexpr DetailInputs kMonorail[] = {
    {"1 Edge of Support", &Project::FatR1, "Cx = ", &Project::FatR1C1},
    {"2 Support to top flange",
     &Project::FatR2,
     "Cz = ",
     &Project::FatR2C1,
     nullptr,
     {&Project::RW1, &Project::RW1a},
     {&Project::RWS1d, &Project::RWS1t}},
    {"3 Top flange/web at support",
     &Project::FatR3,
     "Cz/Ct = ",
     &Project::FatR3C1,
     &Project::FatR3C2,
     {&Project::RW2, &Project::RW2a}},
    {"4 Top flange/web", &Project::FatR4, "Ct = ", &Project::FatR4C1, nullptr, {&Project::RW3, &Project::RW3a}},
    {"5 Beam Splice", &Project::FatR5, "Cx = ", &Project::FatR5C1, nullptr, {}, {}, true},
    {"6 Bottom flange/web",
     &Project::FatR6,
     "Cy/Ct = ",
     &Project::FatR6C1,
     &Project::FatR6C2,
     {&Project::RW4, &Project::RW4a}},
};

void printSplices(ReportPage& page, const Project& project) {
    const bool monorail = project.CraneType == 2;
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

void printDetail(ReportPage& page, const Project& project, const DetailInputs& detail) {
    page.put(page.Col1.stop1, detail.name);
    std::string categories = detail.categories + std::to_string(project.*detail.first);
    if (detail.second != nullptr) categories += "/" + std::to_string(project.*detail.second);
    page.put(page.Col2.stop1 + 3.0, categories);
    if (detail.splices) {
        printSplices(page, project);
        return;
    }
    if (detail.weld.kind != nullptr)
        page.put(page.Col3.stop1, project.*detail.weld.kind == "FW"
                                      ? "Fillet Weld - a" + formatNumber(project.*detail.weld.throat, "0.0") + " mm"
                                      : std::string("Full Pen Weld "));
    // Detail 6 of a monorail: the kind of weld W3 decides, whatever that of W4 is.
    if (detail.weld.throat == &Project::RW4a && (project.RW3 == "FW") != (project.RW4 == "FW"))
        page.put(page.Col4.stop1, project.RW3 == "FW"
                                      ? "taken as fillet weld - a" + formatNumber(project.RW4a, "0.0") + " mm"
                                      : std::string("taken as full pen weld"));
    if (detail.support.length != nullptr)
        page.put(page.Col4.stop1, "e = " + formatNumber(project.*detail.support.length, "0") + ", t = " +
                                      formatNumber(DecimalValue(project.*detail.support.thickness), "0") + " mm");
    page.nextLine();
}

template <std::size_t Count>
void printDetails(Report& report, const DetailInputs (&details)[Count]) {
    ReportPage& page = report.page;
    page.advance(0.5);
    page.need(4.0);
    page.put(page.Col1.stop1, "Fatigue Details:", {true});
    page.nextLine();
    bool any = false;
    for (const DetailInputs& detail : details)
        if (report.project.*detail.flag) {
            printDetail(page, report.project, detail);
            any = true;
        }
    if (any) return;
    page.put(page.Col1.stop1, "No fatigue details are checked");
    page.nextLine();
}

}  // namespace

void PrintFatigueOverhead(Report& report) {
    printDetails(report, kOverhead);
}

void PrintFatigueMonorail(Report& report) {
    printDetails(report, kMonorail);
}

}  // namespace borvik

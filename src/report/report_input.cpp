#include <string>

#include "base/number_text.h"
#include "diagrams/section_sketch.h"
#include "diagrams/sketch_geometry.h"
#include "project/load_combinations.h"
#include "project/steel.h"
#include "report/report_chapters.h"

namespace borvik {
namespace {

constexpr TextStyle kBold{true};

void heading(ReportPage& page, std::string_view text) {
    page.need(4.0);
    page.chapter(text.substr(0, text.find(':')));
    page.put(page.Col1.stop1, text, kBold);
    page.nextLine();
}

/// "  5.0/5.0/5.0" of the wheels first..last, up to the last that isn't 0.
template <class Numbers>
std::string joined(const Numbers& numbers, int first, int last) {
    while (last > first && numbers(last) == 0.0) --last;
    std::string text;
    for (int i = first; i <= last; ++i) text += (i > first ? "/" : "") + formatNumber(numbers(i), "0.0");
    return text;
}

/// Loads and distances of the wheels of one crane.
void wheelLine(ReportPage& page, const Project& project, const std::string& crane, int firstWheel, int firstGap) {
    page.put(page.Col1.stop1, crane + "Vk = " + joined(project.V, firstWheel, firstWheel + 3) + " kN");
    page.put(page.Col2.stop1, "Hk = " + joined(project.H, firstWheel, firstWheel + 3) + " kN");
    page.put(page.Col3.stop1, "Wheel distances = " + joined(project.Avst, firstGap, firstGap + 2) + " mm");
    page.nextLine();
}

/// Wheels 5 to 8 of a single crane: no form enters them, yet what a file brings of them acts, behind the first four;
/// and their distances shorten the walk even without loads.
void furtherWheels(ReportPage& page, const Project& project) {
    bool loaded = false, gaps = project.MinAvst != 0.0;
    for (int wheel = 5; wheel <= 8; ++wheel) loaded = loaded || project.V(wheel) != 0.0 || project.H(wheel) != 0.0;
    for (int gap = 4; gap <= 6; ++gap) gaps = gaps || project.Avst(gap) != 0.0;
    if (!loaded && !gaps) return;
    wheelLine(page, project, "Wheels 5-8: ", 5, 4);
    page.put(page.Col1.stop1, "Wheel 5 behind wheel 4 = " + formatNumber(project.MinAvst, "0.0") + " mm");
    if (loaded)
        page.put(page.Col2.stop1,
                 "Psi2V/Psi2H = " + formatNumber(project.PsiV2, "0.00") + "/" + formatNumber(project.PsiH2, "0.00"));
    page.nextLine();
}

/// Where the cranes stand: their distance and the first wheel's place; no line where there is nothing to tell.
void positionLine(ReportPage& page, const Project& project) {
    const bool two = project.NofCranes == 2;
    if (two)
        page.put(page.Col1.stop1, std::string(project.MinDistConst == 1.0 ? "D" : "Smallest d") +
                                      "istance between the cranes = " + formatNumber(project.MinAvst, "0.0") + " mm");
    const bool placed = project.Fixerad || project.Position != 0.0;
    if (placed)
        page.put(two ? page.Col3.stop1 : page.Col1.stop1,
                 std::string(project.Fixerad ? "Fixed position of the first wheel" : "The first wheel starts at") +
                     " x = " + formatNumber(project.Position, "0.0") + " mm");
    if (two || placed) page.nextLine();
}

std::string className(int craneClass) {
    return craneClass >= CraneClassName.first && craneClass <= CraneClassName.last ? CraneClassName(craneClass) : "";
}

/// "1, 2, 4" or "1-30": the spans that have a section; more than three in a row stand as a range, so that a long beam
/// keeps to its line.
std::string spansOf(const DistinctSections& sections, int number, int spans) {
    std::string text;
    for (int span = 1; span <= spans; ++span) {
        if (sections.numberOf(span) != number) continue;
        int last = span;
        while (last < spans && sections.numberOf(last + 1) == number) ++last;
        text += (text.empty() ? "" : ", ") + std::to_string(span);
        if (last - span < 3) continue;
        text += "-" + std::to_string(last);
        span = last;
    }
    return text;
}

int firstSpanOf(const DistinctSections& sections, int number) {
    int span = 1;
    while (sections.numberOf(span) != number) ++span;
    return span;
}

/// A property with its sign of equality and unit at the three stops of a column.
void property(ReportPage& page, const TabColumn& column, const char* label, double number, const char* mask,
              const char* unit) {
    page.put(column.stop1, label);
    page.put(column.stop2 + 2.0, "= " + formatNumber(number, mask) + " " + unit);
}

/// Resistances and classes, then the properties in three columns of the width beside the sketch.
void sectionTexts(ReportPage& page, const Project& project, const SectionRecord& s) {
    const auto oneDecimal = [](double number) { return formatNumber(number, "0.0"); };
    const double m0 = project.GammaM0;
    const double positive = m0 > 0.0 ? s.MyRdPos / m0 : 0.0;
    const double negative = m0 > 0.0 ? s.MyRdNeg / m0 : 0.0;
    const double lateral = m0 > 0.0 ? s.MzRd / m0 : 0.0;
    page.put(page.Col2.stop1, "MyRd/VzRd (kNm/kN)");
    page.put(page.Col3.stop1, "M+ = " + oneDecimal(positive) + "/" + oneDecimal(s.VzRd));
    page.put(page.Col4.stop1, "M- = " + oneDecimal(negative) + "/" + oneDecimal(s.VzRd));
    page.advance(1.0);
    page.put(page.Col2.stop1, "Section Class M+/M-");
    page.put(page.Col3.stop1, "= " + std::to_string(s.ClassPos) + "/" + std::to_string(s.ClassNeg));
    page.put(page.Col4.stop1, "MzRd = " + oneDecimal(lateral) + " kNm");
    page.advance(1.0);

    struct Line {
        const char* label;
        Single SectionRecord::*field;
        const char* mask;
        const char* unit;
    };
    // The columns beside the sketch, each from top to bottom.
    static constexpr Line kLines[3][5] = {{{"A", &SectionRecord::A, "0.000E+0", "mm2"},
                                           {"Iy", &SectionRecord::Iy, "0.000E+0", "mm4"},
                                           {"Iz", &SectionRecord::Iz, "0.000E+0", "mm4"},
                                           {"It", &SectionRecord::It, "0.000E+0", "mm4"},
                                           {"Iw", &SectionRecord::Iw, "0.000E+0", "mm6"}},
                                          {{"Wel,y1", &SectionRecord::Wely1, "0.000E+0", "mm3"},
                                           {"Wel,y2", &SectionRecord::Wely2, "0.000E+0", "mm3"},
                                           {"Wpl,y", &SectionRecord::Wply, "0.000E+0", "mm3"},
                                           {"ez(el)", &SectionRecord::EzEl, "0.0", "mm"},
                                           {"ez(pl)", &SectionRecord::EzPl, "0.0", "mm"}},
                                          {{"h", &SectionRecord::h, "0.0", "mm"},
                                           {"b1", &SectionRecord::b1, "0.0", "mm"},
                                           {"b2", &SectionRecord::b2, "0.0", "mm"},
                                           {"tw", &SectionRecord::tw, "0.0", "mm"},
                                           {"Weight", &SectionRecord::Weight, "0.0", "kg/m"}}};
    const TabColumn columns[3] = {page.Col2, page.Col3, page.Col4};
    for (int row = 0; row < 5; ++row) {
        for (int column = 0; column < 3; ++column) {
            const Line& line = kLines[column][row];
            property(page, columns[column], line.label, s.*line.field, line.mask, line.unit);
        }
        page.advance(1.0);
    }
}

const char* railFixing(RailFixing railFix) {
    switch (railFix) {
        case RailFixing::Rigid:
            return "Fixed";
        case RailFixing::NotRigid:
            return "Not Fixed";
        default:
            return "Elastometric bearing";
    }
}

const char* loadLevel(LoadPoint level) {
    switch (level) {
        case LoadPoint::TopOfRail:
            return "Top of rail";
        case LoadPoint::TopFlange:
            return "Top of flange";
        case LoadPoint::ShearCentre:
            return "In shear center";
        default:
            return "On bottom flange";
    }
}

}  // namespace

void PrintGeneral(Report& report, bool withDeflections) {
    ReportPage& page = report.page;
    const Project& project = report.project;
    page.advance(0.5);
    heading(page, "General:");
    page.put(page.Col1.stop1, "Material: " + project.SteelGrade);
    page.put(page.Col2.stop1, "fy");
    page.put(page.Col2.stop2, " = ");
    page.put(page.Col2.stop3, formatNumber(project.fyk, "###") + " MPa");
    page.put(page.Col3.stop1, "E = ");
    page.put(page.Col3.stop3, formatNumber(steel::kE, "##.0") + " MPa");
    page.put(page.Col4.stop1, "gm0/gm1 =");
    page.put(page.Col4.stop2 + 6.0,
             formatNumber(project.GammaM0, "#.00") + "/" + formatNumber(project.GammaM1, "#.00"));
    page.nextLine();
    page.put(page.Col1.stop1, "gmFf/gmMf =");
    page.put(page.Col1.stop2 + 6.0,
             formatNumber(project.GammaFf, "#.00") + "/" + formatNumber(project.GammaMf, "#.00"));
    page.put(page.Col2.stop1, "Shear area factor = " + formatNumber(project.Eta, "0.00"));
    if (withDeflections)
        page.put(page.Col3.stop1, "Deflection limits: dz = L/" + formatNumber(project.DefZ, "0") + ", dy = L/" +
                                      formatNumber(project.DefY, "0"));
    page.advance(1.5);
}

void PrintCraneAndLoad(Report& report) {
    ReportPage& page = report.page;
    const Project& project = report.project;
    const bool monorail = project.CraneType == CraneKind::Monorail;
    const bool two = project.NofCranes == 2;
    heading(page, "Crane & Loadcombinations:");
    page.put(page.Col1.stop1, std::string("Cranetype: ") + (monorail ? "Monorail" : "Overhead Crane"));
    if (two) {
        page.put(page.Col2.stop1, "Craneclass Crane 1: " + className(project.CraneClass1));
        page.put(page.Col3.stop1, "Craneclass Crane 2: " + className(project.CraneClass2));
        page.put(page.Col4.stop1,
                 project.TwoCraneMode == TwoCranes::Together ? "Acting Simultaneously" : "Acting Independently");
    } else {
        page.put(page.Col2.stop1, "Craneclass: " + className(monorail ? project.CraneClassR : project.CraneClass1));
    }
    page.nextLine();
    const LoadCombinations texts = combinationTexts(project, CombinationText::WithPermanentLoad);
    for (const std::string& text : {texts.TextULS, texts.TextSLS, texts.TextFLS}) {
        page.put(page.Col1.stop1, text);
        page.nextLine();
    }
    wheelLine(page, project, two ? "Crane 1: " : "", 1, 1);
    if (two)
        wheelLine(page, project, "Crane 2: ", 5, 4);
    else
        furtherWheels(page, project);
    if (monorail) page.put(page.Col1.stop1, "Wheel to flange edge n = " + formatNumber(project.Inn, "0.0") + " mm");
    if (!monorail) page.put(page.Col1.stop1, "Load on gangway qk = " + formatNumber(project.Gangway, "0.0") + " kN/m");
    if (project.StartStopOutside == 1) page.put(page.Col2.stop1, "The crane start/stop outside the beam      ");
    if (two && project.MinDistConst == 1.0) page.put(page.Col3.stop1 + 6.0, "Constant distance between the cranes");
    page.nextLine();
    positionLine(page, project);
}

void PrintSection(Report& report) {
    constexpr double kSketchLines = 8.5;  // room of a section's sketch, with its texts beside it
    ReportPage& page = report.page;
    const Project& project = report.project;
    const DistinctSections sections(project);
    page.need(kSketchLines + 2.0);
    heading(page, "Profile:");
    for (int number = 1; number <= static_cast<int>(sections.names().size()); ++number) {
        page.need(kSketchLines + 1.0);
        const SectionRecord& section = project.SpanSection(firstSpanOf(sections, number));
        page.put(page.Col1.stop1, std::to_string(number) + " - " + section.DisplayName);
        page.put(page.Col2.stop1, "Span: " + spansOf(sections, number, project.NofSpans));
        page.advance(1.0);
        const double top = page.PrintY;
        const double gap = 2.0;
        drawSectionSketch(page.surface(), section, {page.Col1.stop1, top + 0.2},
                          {page.Col2.stop1 - page.Col1.stop1 - gap, kSketchLines - 1.2}, page.cell(),
                          {"Arial", kReportFontSize - 1.0});
        sectionTexts(page, project, section);
        page.advance(top + kSketchLines - page.PrintY);
    }
    page.need(2.0);
    page.put(page.Col1.stop1,
             std::string("Deadload (qk) of profile ") + (project.SelfWeight ? "included, " : "not Included, ") +
                 (project.StiffenerMode == EndPost::NonRigid ? "non rigid end-post (one stiffener/support)"
                                                             : "rigid end-post (two stiffeners/support)"));
    page.nextLine();
    if (project.CraneType == CraneKind::Overhead) {
        page.put(page.Col1.stop1, "Rail: " + project.RailName);
        page.put(page.Col2.stop1, std::string("Rail deadload: ") + (project.RailOn ? "Included" : "Not included "));
        page.put(page.Col3.stop1, std::string("Rail mounted: ") + railFixing(project.RailFix));
        page.nextLine();
    }
    page.advance(0.5);
}

void PrintLtb(Report& report) {
    ReportPage& page = report.page;
    const Project& p = report.project;
    struct Factor {
        const char* name;
        Single endPos, midPos, endNeg, midNeg;
    };
    const Factor factors[] = {{"C1", p.C1EndPos, p.C1MidPos, p.C1EndNeg, p.C1MidNeg},
                              {"C2", p.C2EndPos, p.C2MidPos, p.C2EndNeg, p.C2MidNeg},
                              {"C3", p.C3EndPos, p.C3MidPos, p.C3EndNeg, p.C3MidNeg}};
    page.advance(0.5);
    page.need(9.0);
    heading(page, "Lateral Torsional Buckling:");
    page.put(page.Col1.stop1, "Positiv Moment");
    page.put(page.Col3.stop1, "Negativ Moment");
    page.nextLine();
    for (const Factor& factor : factors) {
        const std::string name = factor.name;
        page.put(page.Col1.stop1, name + " = (Endspan) " + formatNumber(factor.endPos, "0.000"));
        if (p.NofSpans > 2) page.put(page.Col2.stop1, name + " = (Midspan) " + formatNumber(factor.midPos, "0.000"));
        page.put(page.Col3.stop1, name + " = (Endspan/Midspan) " + formatNumber(factor.endNeg, "0.000") + "/" +
                                      formatNumber(factor.midNeg, "0.000"));
        page.nextLine();
    }
    page.put(page.Col1.stop1,
             p.LtbCurve == LtbCase::General
                 ? "Lateral torsional buckling curves: General Case (conservative, ch 6.3.2.2/EN 1993-1-1)"
                 : "Lateral torsional buckling curves: Rolled or welded I-sections (ch 6.3.2.3/EN 1993-1-1)");
    page.nextLine();
    if (p.LtbCurve != LtbCase::General) {  // rolled sections take the numbers of welded ones too
        page.put(page.Col1.stop1, "lamdaLT,0 = " + formatNumber(p.LamdaLT0w, "0.000"));
        page.put(page.Col2.stop1, "beta = " + formatNumber(p.Betaw, "0.000"));
        page.nextLine();
    }
    page.put(page.Col1.stop1, std::string("Load Level: ") + loadLevel(p.LoadLevel));
    page.nextLine();
}

}  // namespace borvik

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/number_text.h"
#include "checks/loaded_length.h"
#include "checks/section_checks.h"
#include "notes/note_rules.h"
#include "notes/recorded_worst.h"
#include "project/loads.h"
#include "section/geometry.h"

namespace borvik {

namespace {

/// The ratio that the bending check finds in a span: the larger of its two positions.
double shownBendingRatio(const CheckResults& checks, int span) {
    return std::max(checks["Bend"].extremes[0](span).Ratio, checks["Bend"].extremes[1](span).Ratio);
}

/// The interaction at every point of every record of the walk: each holds the forces of one position.
std::optional<NoteFinding> interactionElsewhere(const Session& session) {
    const UlsResults& uls = session.results->Uls;
    const Project& project = session.project;
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const SectionRecord& section = project.SpanSection(span);
        const RecordedWorst worst = worstRecorded(uls, span, [&](double My, double Vz, double Mz) -> double {
            const SectionForces forces(My, Vz, Mz);
            return bendingRatio(forces, BendingResistance(project, section, forces), section.ClassPos);
        });
        changes.push_back({inSpan("bending", span) + atPoint(project, span, worst.point),
                           shownBendingRatio(session.results->Checks, span), worst.ratio});
    }
    return worstOf(changes);
}

/// Hogging with the formula of its own class.
std::optional<NoteFinding> formulaOfPositiveClass(const Session& session) {
    const Project& project = session.project;
    const Table<Single>& records = session.results->Uls.MyMinSpan;
    const CheckResults& checks = session.results->Checks;
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const SectionRecord& section = project.SpanSection(span);
        if (!(section.ClassNeg > 2 && section.ClassPos <= 2)) continue;
        const SectionForces forces(records(span, 1), records(span, 2), records(span, 3));
        if (!(forces.My < 0)) continue;
        const double linear = bendingRatio(forces, BendingResistance(project, section, forces), section.ClassNeg);
        changes.push_back({inSpan("bending", span), shownBendingRatio(checks, span),
                           std::max(linear, checks["Bend"].extremes[0](span).Ratio)});
    }
    return worstOf(changes);
}

/// Design shear resistance of one flange across, elastic, kN: two thirds of its area.
double flangeShearResistance(const Project& project, const SectionRecord& section) {
    const double area = project.CraneType == CraneKind::Overhead ? section.b1 * section.tf1 : section.b2 * section.tf2;
    return 2.0 / 3 * area * project.fyk / std::numbers::sqrt3 / project.GammaM0 / 1000;
}

/// The largest horizontal shear in the loaded flange, where it is more than a tenth of what that holds.
std::string horizontalShear(const Session& session) {
    constexpr double kWorthANote = 0.1;
    const Project& project = session.project;
    const UlsResults& uls = session.results->Uls;
    double worst = 0;
    int at = 1;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const double VyEd = std::max(std::abs(uls.VyMaxSpan(span, 4)), std::abs(uls.VyMinSpan(span, 4))) / 1000;
        const double ratio = VyEd / flangeShearResistance(project, project.SpanSection(span));
        if (ratio > worst) {
            worst = ratio;
            at = span;
        }
    }
    if (!(worst > kWorthANote)) return "";
    return "the horizontal shear takes " + formatNumber(worst, "0.000") + " of the flange in span " +
           std::to_string(at);
}

/// The local shear stress of the heaviest wheel on top of that of the beam, EN 1993-6 5.7.2.
std::optional<NoteFinding> shearLeftOut(const Session& session) {
    const Project& project = session.project;
    std::string remark = horizontalShear(session);
    if (project.CraneType != CraneKind::Overhead) return matters(!remark.empty(), remark);

    constexpr double kLocalShare = 0.2;  // of the local vertical stress
    const RailRecord& rail = session.rail();
    const WornRail worn = wearRail(rail, kWearStatic);
    RunLoads loads;
    setUlsLoads(project, rail, loads);
    const double FzEd = *std::max_element(loads.WheelV.begin(), loads.WheelV.end()) * 1000;
    const double tauRd = project.fyk / std::numbers::sqrt3 / project.GammaM0;
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const SectionRecord& section = project.SpanSection(span);
        const double sigma = FzEd / (effectiveLoadedLength(rail, worn, project.RailFix, section) * section.tw);
        const double shown = session.results->Checks["Shear"].spans(span).Ratio;
        changes.push_back({inSpan("shear", span), shown, shown + kLocalShare * sigma / tauRd});
    }
    return worstOf(changes, remark);
}

/// What the web's part of the modulus loses when the yield strength of the web falls by rho, mm3: the plates with a web
/// as much thinner, about the axis that they have then.
double exactWebLoss(const SectionRecord& section, double rho, bool elastic) {
    const auto modulus = [elastic](const SectionRecord& s) {
        const auto plates = plateStrips(s);
        if (!elastic) return plasticAxisBySearch(plates).Wply;
        const double ez = Centroid(s);
        return SecondMomentY(plates, ez) / std::max(ez, s.h - ez);
    };
    SectionRecord thinner = section;
    thinner.tw = (1 - rho) * section.tw;
    return modulus(section) - modulus(thinner);
}

/// Unequal flanges beside a large shear.
std::optional<NoteFinding> shearWithUnequalFlanges(const Session& session) {
    const Project& project = session.project;
    const UlsResults& uls = session.results->Uls;
    std::vector<NoteChange> changes;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const SectionRecord& section = project.SpanSection(span);
        if (section.Id != "Iu" || section.Reinforced) continue;
        double largest = shownBendingRatio(session.results->Checks, span);
        const double shown = largest;
        for (const Table<Single>* records : {&uls.MyMaxSpan, &uls.MyMinSpan}) {
            const SectionForces forces((*records)(span, 1), (*records)(span, 2), (*records)(span, 3));
            const double rho = shearReduction(section, forces.Vz);
            const int sectionClass = forces.My >= 0 ? section.ClassPos : section.ClassNeg;
            if (rho == 0 || sectionClass == 4) continue;
            BendingResistance resistance(project, section, forces);
            resistance.My = reducedMoment(project, section, forces.My, 0) -
                            exactWebLoss(section, rho, sectionClass == 3) * project.fyk / project.GammaM0 / 1e6;
            largest = std::max<double>(largest, bendingRatio(forces, resistance, section.ClassPos));
        }
        changes.push_back({inSpan("bending", span), shown, largest});
    }
    return worstOf(changes);
}

/// A span whose web has more moment taken off than the section had.
std::optional<NoteFinding> noMomentLeft(const Session& session) {
    const Project& project = session.project;
    const UlsResults& uls = session.results->Uls;
    for (int span = 1; span <= project.NofSpans; ++span)
        for (const Table<Single>* records : {&uls.MyMaxSpan, &uls.MyMinSpan}) {
            const SectionForces forces((*records)(span, 1), (*records)(span, 2), (*records)(span, 3));
            const BendingResistance resistance(project, project.SpanSection(span), forces);
            if (resistance.My > 0) continue;
            return matters(true, "no moment resistance is left beside a shear of " + formatNumber(forces.Vz, "0.0") +
                                     " kN in span " + std::to_string(span));
        }
    return std::nullopt;
}

/// "wheel 1 in span 2 at 1200 mm", from rows 5 to 8 of a check.
std::string wheelPlace(const RowSet& rows, int wheel) {
    const int row = wheel == 1 ? 5 : 7;
    return "wheel " + std::to_string(wheel) + " in span " + rows(row) + " at " + rows(row + 1) + " mm";
}

bool sameRows(const RowSet& a, const RowSet& b, int first) {
    for (int row = first; row <= 8; ++row)
        if (a(row) != b(row)) return false;
    return true;
}

/// The crane position of the governing ratios, where the rows show that of the other extreme.
std::optional<NoteFinding> wrongPosition(const Session& session) {
    const bool twoCranes = session.project.NofCranes == 2;
    const CheckResults& checks = session.results->Checks;
    const auto governingSpan = [&](const Array<RowSet>& spans, const RowSet& governing) {
        int span = 1;
        while (span < spans.last() && spans(span) != governing) ++span;
        return span;
    };
    std::string remark;
    const int bent = governingSpan(checks["Bend"].spans, checks["Bend"].governing);
    if (const RowSet& min = checks["Bend"].extremes[1](bent);
        min.Ratio > 0 && !ranksAbove(checks["Bend"].extremes[0](bent)(3), min(3)) &&
        !sameRows(checks["Bend"].governing, min, 5)) {
        remark = inSpan("bending", bent) + ": " + wheelPlace(min, 1);
        if (twoCranes) remark += ", " + wheelPlace(min, 5);
    }
    const int sheared = governingSpan(checks["Shear"].spans, checks["Shear"].governing);
    if (const RowSet& min = checks["Shear"].extremes[1](sheared);
        twoCranes && !(checks["Shear"].extremes[0](sheared).Ratio > min.Ratio) &&
        !sameRows(checks["Shear"].governing, min, 7))
        remark += (remark.empty() ? "" : "; ") + inSpan("shear", sheared) + ": " + wheelPlace(min, 5);
    return matters(!remark.empty(), remark);
}

constexpr NoteRule kRules[]{
    {"C1", NoteCheck::Section, NoteEffect::Unsafe,
     "The interaction of bending and shear is tested at the largest and at the smallest My of a span, with the forces "
     "that act there; a larger Mz or Vz beside a slightly smaller My is not.",
     "at every point and recorded position", "EN 1993-1-1 6.2.8, 6.2.9", interactionElsewhere},
    {"C2", NoteCheck::Section, NoteEffect::Unsafe,
     "The class under positive moment chooses the formula for the negative moment too, so that an elastic resistance "
     "enters the plastic interaction, where its share is squared.",
     "with the linear sum of class 3", "EN 1993-1-1 6.2.9", formulaOfPositiveClass},
    {"C3", NoteCheck::Section, NoteEffect::Unsafe,
     "The shear check holds Vz alone: the local shear stress of a wheel at the top of the web and the horizontal shear "
     "of the loaded flange are not added.",
     "with 0.2 of the local vertical stress", "EN 1993-6 5.7.2, EN 1993-1-1 6.2.6", shearLeftOut},
    {"C5", NoteCheck::Section, NoteEffect::Either,
     "Beside a large shear the moment resistance loses rho hw^2 tw/4 (elastic: /6), which holds for equal flanges "
     "only.",
     "with the modulus of the plates and a web of reduced strength", "EN 1993-1-1 6.2.8(3), (5)",
     shearWithUnequalFlanges},
    {"C6", NoteCheck::Section, NoteEffect::Unsafe,
     "The moment resistance beside a large shear is not limited below, and a negative one gives a negative ratio, "
     "which never governs.",
     "", "EN 1993-1-1 6.2.8", noMomentLeft},
    {"C7", NoteCheck::Section, NoteEffect::Information,
     "The governing rows of bending and shear show the cranes at the largest moment, and crane 2 at the largest shear, "
     "also where the smallest governs; the rows of the span show them rightly.",
     "", "", wrongPosition},
};

}  // namespace

std::span<const NoteRule> bendingNotes() {
    return kRules;
}

}  // namespace borvik

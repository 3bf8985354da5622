#include <algorithm>
#include <cmath>

#include "base/number_text.h"
#include "checks/loaded_length.h"
#include "notes/note_rules.h"
#include "project/steel.h"

namespace borvik {

namespace {

/// The number of a span and the value there, where some span passes the limit: "250.3 in span 2".
template <class Value>
std::optional<NoteFinding> beyond(const Session& session, const char* what, double limit, Value value,
                                  const char* unit = "") {
    double worst = limit;
    int at = 0;
    for (int span = 1; span <= session.project.NofSpans; ++span) {
        const double here = value(span, session.project.SpanSection(span));
        if (here > worst) {
            worst = here;
            at = span;
        }
    }
    if (at == 0) return std::nullopt;
    return matters(true,
                   std::string(what) + " " + formatNumber(worst, "0.0") + unit + " in span " + std::to_string(at));
}

/// sigma_x, sigma_oz and tau at the web's top where My is
/// largest, as part of the yield strength; spoken of from 0.8 on.
std::optional<NoteFinding> stressUnderWheel(const Session& session) {
    constexpr double kWorthANote = 0.8;
    const Project& project = session.project;
    if (project.CraneType != CraneKind::Overhead) return std::nullopt;
    const RailRecord& rail = session.rail();
    const WornRail worn = wearRail(rail, kWearStatic);
    double FzEd = 0;
    for (int wheel = 1; wheel <= 8; ++wheel)
        FzEd = std::max<double>(FzEd,
                                project.V(wheel) * (wheel <= 4 ? project.PsiV1 : project.PsiV2) * project.LfULS * 1000);
    NoteFinding finding;
    for (int span = 1; span <= project.NofSpans; ++span) {
        const SectionRecord& section = project.SpanSection(span);
        const Table<Single>& records = session.results->Uls.MyMaxSpan;
        const double x = records(span, 1) / section.Iy * (section.h - section.EzEl - section.tf1);
        const double z = FzEd / (effectiveLoadedLength(rail, worn, project.RailFix, section) * section.tw);
        const double tau = records(span, 2) / (section.Hw * section.tw);
        const double sum = std::sqrt(x * x + z * z - x * z + 3 * tau * tau) / (project.fyk / project.GammaM0);
        const double shown = session.results->Checks["Bend"].spans(span).Ratio;
        if (sum > kWorthANote && sum > shown) finding.changes.push_back({inSpan("bending", span), shown, sum});
    }
    return worstOf(finding.changes);
}

/// L/iz of the bottom flange between the supports.
std::optional<NoteFinding> slenderBottomFlange(const Session& session) {
    return beyond(session, "slenderness", 250, [&](int span, const SectionRecord& section) {
        return session.project.Span(span) / std::sqrt(section.IzBottom / (section.b2 * section.tf2));
    });
}

/// hw/tw over k (E/fyf) sqrt(Aw/Afc), as a multiple of it.
std::optional<NoteFinding> flangeInducedBuckling(const Session& session) {
    return beyond(session, "hw/tw over its limit", 1, [&](int, const SectionRecord& section) {
        const bool plastic = std::min(section.ClassPos, section.ClassNeg) <= 2;
        const double k = plastic ? 0.4 : 0.55;  // plastic or elastic moment resistance
        const double flange = std::min(section.b1 * section.tf1, section.b2 * section.tf2);
        const double limit = k * steel::kE / session.project.fyk * std::sqrt(section.Hw * section.tw / flange);
        return section.Hw / section.tw / limit;
    });
}

std::optional<NoteFinding> thickProduct(const Session& session) {
    const auto thickest = [](int, const SectionRecord& section) {
        return std::max({double(section.tf1), double(section.tf2), double(section.tw)});
    };
    return beyond(session, "a thickness of", 30, thickest, " mm");
}

constexpr NoteRule kRules[]{
    {"I1", NoteCheck::General, NoteEffect::Unsafe,
     "Stiffeners at supports and ends, the web under the reaction, and bolts and welds of splices are not checked.", "",
     "EN 1993-1-5 6 and 9, EN 1993-1-8", always, true},
    {"I2", NoteCheck::Section, NoteEffect::Unsafe,
     "The stresses in the web under a wheel (bending, wheel load and shear together) are not checked.",
     "as part of the yield strength", "EN 1993-1-1 6.2.1(5), EN 1993-6 5.7.1", stressUnderWheel},
    {"I3", NoteCheck::Deflection, NoteEffect::Unsafe,
     "The slenderness of the bottom flange between its restraints is not limited to 250 to avoid vibration.", "",
     "EN 1993-6 7.6", slenderBottomFlange},
    {"I4", NoteCheck::Section, NoteEffect::Unsafe, "Flange induced buckling of a slender web is not checked.", "",
     "EN 1993-1-5 8", flangeInducedBuckling},
    {"I5", NoteCheck::General, NoteEffect::Unsafe,
     "Longitudinal forces of cranes (driving, braking, buffers) and axial force in the beam are left out.", "",
     "EN 1991-3 2.7 and 2.11, EN 1993-1-1 6.3.3", always, true},
    {"I6", NoteCheck::WheelLoad, NoteEffect::Unsafe,
     "The rail, its clips and the welds of rail and flange are not checked in the ultimate limit state.", "",
     "EN 1993-6 8", ofOverheadCranes, true},
    {"I8", NoteCheck::Section, NoteEffect::Unsafe,
     "The choice of the steel's toughness for its thickness is not checked.", "", "EN 1993-1-10", thickProduct},
};

}  // namespace

std::span<const NoteRule> missingNotes() {
    return kRules;
}

}  // namespace borvik

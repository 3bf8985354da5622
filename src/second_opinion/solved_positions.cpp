#include "second_opinion/solved_positions.h"

#include <algorithm>
#include <string>

#include "base/fault.h"
#include "base/number_text.h"
#include "second_opinion/warping_section.h"

namespace borvik {

namespace {

LineBeam beamOf(const Project& project, bool freeWarping) {
    LineBeam beam;
    beam.warping = freeWarping ? InnerWarping::Free : InnerWarping::Continuous;
    for (int span = 1; span <= project.NofSpans; ++span)
        beam.spans.push_back({double(project.Span(span)), WarpingSection(project.SpanSection(span)).line});
    return beam;
}

std::vector<LateralSupport> supportsOf(const Project& project, const LineBeam& beam,
                                       const std::vector<SpanSupport>& asked) {
    std::vector<LateralSupport> supports;
    for (const SpanSupport& support : asked) {
        const bool onBeam = support.span >= 1 && support.span <= project.NofSpans && support.a > 0 &&
                            support.a < project.Span(support.span);
        if (!onBeam)
            throw RuntimeFault("a lateral support at " + formatNumber(support.a, "0") + " mm in span " +
                               std::to_string(support.span) + " does not stand between the ends of a span");
        supports.push_back({beam.supportAt(static_cast<std::size_t>(support.span - 1)) + support.a,
                            support.z.value_or(WarpingSection(project.SpanSection(support.span)).top)});
    }
    return supports;
}

}  // namespace

SolvedPositions::SolvedPositions(const Session& session, const SecondOpinionOptions& options)
    : project_(session.project),
      loads_(session.results->Uls.Loads),
      beam_(beamOf(session.project, options.freeWarping)),
      torques_(session.project, session.rail()),
      supports_(supportsOf(session.project, beam_, options.lateralSupports)),
      cranes_(session.project, loads_, true) {}

std::vector<LargestBimoment> SolvedPositions::largestBimoments() const {
    return borvik::largestBimoments(project_, loads_, torques_, TorsionBeam(beam_, {}));
}

const SolvedBeam& SolvedPositions::at(WalkPosition position) {
    const auto [found, fresh] = solved_.try_emplace({position.j, position.k});
    SolvedBeam& solved = found->second;
    if (!fresh) return solved;
    cranes_.standAt(position);
    solved.wheel1 = cranes_.place(1);
    for (int span = 1; span <= project_.NofSpans; ++span) {
        solved.vertical.push_back(verticalLoading(span));
        solved.horizontal.push_back(horizontalLoading(span));
    }
    solveTorsion(solved);
    solved.buckling = lowestBuckling(beam_, solved.vertical, supports_);
    return solved;
}

SpanLoading SolvedPositions::verticalLoading(int span) const {
    const SectionRecord& section = project_.SpanSection(span);
    const SpanStep& step = cranes_.forces(span);
    SpanLoading loading;
    loading.Ma = step.quantity[1][1];
    loading.Mb = step.quantity[1][kPoints];
    loading.q = loads_.SpanLoad(span);
    // The beam's own weight acts at its centroid, gangway and rail where the wheels do.
    const double own = project_.SelfWeight ? project_.LfULS * section.Weight / 1000 * 9.81 : 0;
    loading.qz = -own * WarpingSection(section).zs + (loading.q - own) * section.Zg;
    const SpanWheels wheels = wheelsInSpan(cranes_.wheels(), span, &Wheel::P);
    for (int w = 0; w < wheels.count; ++w) loading.loads.push_back({wheels.item[w].a, wheels.item[w].load, section.Zg});
    return loading;
}

SpanLoading SolvedPositions::horizontalLoading(int span) const {
    SpanLoading loading;
    if (!cranes_.hasHorizontal()) return loading;
    const SpanStep& step = cranes_.forces(span);
    loading.Ma = step.quantity[3][1];
    loading.Mb = step.quantity[3][kPoints];
    const SpanWheels wheels = wheelsInSpan(cranes_.wheels(), span, &Wheel::Q);
    for (int w = 0; w < wheels.count; ++w) loading.loads.push_back({wheels.item[w].a, wheels.item[w].load, 0});
    return loading;
}

void SolvedPositions::solveTorsion(SolvedBeam& solved) const {
    std::vector<double> places;
    Torques torques[2];
    for (const Wheel& wheel : cranes_.wheels()) {
        if (wheel.P == 0 && wheel.Q == 0) continue;
        const double x = beam_.supportAt(static_cast<std::size_t>(wheel.span - 1)) + wheel.a;
        places.push_back(x);
        torques[0].points.push_back({x, torques_.ofH(wheel) + torques_.ofV(wheel)});
        torques[1].points.push_back({x, torques_.ofH(wheel) - torques_.ofV(wheel)});
    }
    const TorsionBeam torsion(beam_, places);
    for (const int side : {0, 1}) solved.torsion[side] = torsion.solve(torques[side]);
}

std::size_t SolvedPositions::spanOf(const std::vector<TorsionState>& states, std::size_t index) const {
    const std::size_t left = index / 2 * 2;  // of the element, whose middle lies within its span
    const double middle = (states[left].x + states[left + 1].x) / 2;
    std::size_t span = 0;
    for (double end = beam_.spans[0].L; middle > end && span + 1 < beam_.spans.size(); end += beam_.spans[span].L)
        ++span;
    return span;
}

}  // namespace borvik

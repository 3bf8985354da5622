#include "analysis/random_beam.h"

#include <cmath>

namespace borvik::testing {

void setLengths(Project& project) {
    project.BeamLength = 0;
    for (int i = 1; i <= project.NofSpans; ++i) project.BeamLength += project.Span(i);
    project.CraneLength1 = project.Avst(1) + project.Avst(2) + project.Avst(3);
    project.CraneLength2 = project.Avst(4) + project.Avst(5) + project.Avst(6);
    project.CranesLength = project.MinAvst + project.CraneLength1 + project.CraneLength2;
}

void RandomBeams::makeSpans(Project& project, int maxSpans, int maxLength) {
    const int n = whole(1, maxSpans);
    const bool equal = chance(0.3);    // symmetric beams: ties everywhere
    const bool onSteps = chance(0.4);  // supports and points meet the 200 mm of the walk
    const int length = whole(3, maxLength / 200) * 200;
    const double I = std::pow(10, real(7, 9));
    project.NofSpans = static_cast<std::int16_t>(n);
    project.SpanSection = Array<SectionRecord>(1, 30);
    for (int i = 1; i <= n; ++i) {
        project.Span(i) = equal ? length : onSteps ? whole(3, maxLength / 200) * 200 : whole(600, maxLength);
        project.SpanSection(i).Iy = equal || chance(0.3) ? I : std::pow(10, real(7, 9));
        project.SpanSection(i).Iz = project.SpanSection(i).Iy * real(0.05, 0.5);
    }
}

void RandomBeams::makeLoads(Project& project, RunLoads& loads) {
    const bool fractional = chance(0.25);
    const bool equalWheels = chance(0.4);
    const double wheel = real(5, 200);
    const int wheels1 = whole(1, 4);
    const int wheels2 = whole(0, 4);
    const double second = chance(0.15) ? std::pow(10, real(-8, -1)) : 1.0;
    const double sideways = chance(0.3) ? 0.0 : real(0.02, 0.2);
    for (int w = 1; w <= 8; ++w) {
        const bool loaded = w <= 4 ? w <= wheels1 : w - 4 <= wheels2;
        const double V = (equalWheels ? wheel : real(5, 200)) * (w > 4 ? second : 1.0);
        loads.WheelV(w) = loaded ? V : 0.0;
        loads.WheelH(w) = loaded && !(w > 4 && chance(0.2)) ? V * sideways * (chance(0.3) ? -1 : 1) : 0.0;
    }
    if (chance(0.05)) loads.WheelV(whole(1, 8)) = -real(1, 50);
    for (int g = 1; g <= 6; ++g) {
        const bool used = g <= 3 ? g < wheels1 : g - 3 < wheels2;
        project.Avst(g) = !used || chance(0.05) ? 0.0
                          : fractional          ? real(100, 1500)
                          : chance(0.5)         ? whole(1, 7) * 200
                                                : whole(50, 1500);
    }
    project.MinAvst = chance(0.3) ? 0.0 : chance(0.2) && fractional ? real(0, 2000) : whole(0, 10) * 100;
    loads.WheelGap = project.Avst;
    for (int i = 1; i <= project.NofSpans; ++i) loads.SpanLoad(i) = chance(0.2) ? 0.0 : real(0, 6);
    if (chance(0.3)) loads.SpanLoad = {};
}

BeamCase RandomBeams::next(int maxSpans, int maxLength) {
    for (;;) {
        BeamCase c;
        makeSpans(c.project, maxSpans, maxLength);
        makeLoads(c.project, c.loads);
        c.loads.NCranes = whole(1, 3) == 1 ? 1 : 2;
        c.project.MinDistConst = chance(0.2) ? 1.0 : 0.0;
        c.project.Fixerad = chance(0.05);
        c.project.StartStopOutside = chance(0.3) ? 1 : 0;
        c.project.Position = c.project.Fixerad || chance(0.1) ? real(0, 2000) : 0.0;
        setLengths(c.project);
        if (c.project.CranesLength <= c.project.BeamLength) return c;
    }
}

}  // namespace borvik::testing

#include <functional>

#include "analysis/walk.h"
#include "support/stiffness_beam.h"
#include "validation.h"

namespace borvik::validation {

namespace {

constexpr double kE = 210000;  // N/mm2

struct Wheel {
    double x, P;   ///< mm from the left end of the beam, kN
    double H = 0;  ///< kN, in the horizontal plane
};

/// A beam under uniform loads and wheels that stand still, calculated by the walk of the program.
class StandingLoad {
public:
    StandingLoad(const std::vector<int>& spans, const std::vector<double>& I, const std::vector<double>& q,
                 const std::vector<Wheel>& wheels) {
        project_.SpanSection = Array<SectionRecord>(1, kMaxSpans);
        project_.NofSpans = static_cast<std::int16_t>(spans.size());
        for (int i = 1; i <= project_.NofSpans; ++i) {
            const auto at = static_cast<std::size_t>(i - 1);
            project_.Span(i) = spans[at];
            project_.BeamLength += spans[at];
            project_.SpanSection(i).Iy = I[at];
            project_.SpanSection(i).Iz = I[at];
            loads_.SpanLoad(i) = q[at];
        }
        project_.Fixerad = true;
        project_.NofCranes = 1;
        for (std::size_t w = 0; w < wheels.size(); ++w) {
            const int wheel = static_cast<int>(w) + 1;
            loads_.WheelV(wheel) = wheels[w].P;
            loads_.WheelH(wheel) = wheels[w].H;
            if (w > 0) project_.Avst(wheel - 1) = wheels[w].x - wheels[w - 1].x;
        }
        if (!wheels.empty()) {
            project_.Position = wheels.front().x;
            project_.CranesLength = wheels.back().x - wheels.front().x;
        }
        loads_.WheelGap = project_.Avst;
        MessageList messages;
        Progress progress;
        uls_ = RunUls(project_, loads_, WalkMethod::Plain, messages, progress);
        sls_ = RunSls(project_, loads_, WalkMethod::Plain, messages, progress);
    }
    // With one position an envelope is that position's value on one side and zero on the other.
    [[nodiscard]] double M(int span, int k) const {
        return (uls_.MyMaxPoint(span, k, 1) + uls_.MyMinPoint(span, k, 1)) / 1e6;
    }
    [[nodiscard]] double Mz(int span, int k) const {
        return (uls_.MzMaxPoint(span, k, 3) + uls_.MzMinPoint(span, k, 3)) / 1e6;
    }
    [[nodiscard]] double R(int support) const {
        const double sum = uls_.RzMax(support) + uls_.RzMin(support);
        return (support == project_.NofSpans + 1 ? -sum : sum) / 1000;  // the last one has the sign of the shear
    }
    /// Downward positive.
    [[nodiscard]] double w(int span, int k) const { return -sls_.UzMaxPoint(span, k, 1); }
    /// Along the load positive.
    [[nodiscard]] double v(int span, int k) const { return -sls_.UyMaxPoint(span, k, 1); }

private:
    Project project_;
    RunLoads loads_;
    UlsResults uls_;
    SlsResults sls_;
};

struct Quantity {
    const char* name;
    const char* formula;
    double hand;
    std::function<double(const StandingLoad&)> program;
};

std::function<double(const StandingLoad&)> M(int span, int k) {
    return [=](const StandingLoad& beam) { return beam.M(span, k); };
}
std::function<double(const StandingLoad&)> R(int support) {
    return [=](const StandingLoad& beam) { return beam.R(support); };
}
std::function<double(const StandingLoad&)> w(int span, int k) {
    return [=](const StandingLoad& beam) { return beam.w(span, k); };
}

std::function<double(const StandingLoad&)> Mz(int span, int k) {
    return [=](const StandingLoad& beam) { return beam.Mz(span, k); };
}
std::function<double(const StandingLoad&)> v(int span, int k) {
    return [=](const StandingLoad& beam) { return beam.v(span, k); };
}

struct BeamExample {
    const char* title;
    const char* text;
    std::vector<int> spans;
    std::vector<double> I, q;
    std::vector<Wheel> wheels;
    std::vector<Quantity> quantities;
};

// Points of a span are k = 1..21 at (k - 1) L/20: 9 at 0.4 L, 11 at mid-span.
const std::vector<BeamExample>& examples() {
    constexpr double I = 1e8, EI = kE * I;
    static const std::vector<BeamExample> list = {
        {"Simple beam, load at mid-span",
         "L = 8 m, P = 100 kN, I = 1e8 mm4. Timoshenko, *Strength of Materials* I, simply supported beams; Roark, "
         "table 8.1, case 1e.",
         {8000},
         {I},
         {0},
         {{4000, 100}},
         {{"M at mid-span, kNm", "P L/4 = 100 x 8/4", 200, M(1, 11)},
          {"R, kN", "P/2", 50, R(1)},
          {"w at mid-span, mm", "P L^3/(48 E I) = 1e5 x 8000^3/(48 x 2.1e13)", 1e5 * 512e9 / (48 * EI), w(1, 11)}}},
        {"Simple beam, uniform load",
         "L = 8 m, q = 10 kN/m. The same sources, case 2e.",
         {8000},
         {I},
         {10},
         {},
         {{"M at mid-span, kNm", "q L^2/8 = 10 x 64/8", 80, M(1, 11)},
          {"R, kN", "q L/2", 40, R(2)},
          {"w at mid-span, mm", "5 q L^4/(384 E I) = 5 x 10 x 8000^4/(384 x 2.1e13)", 5 * 10 * 4096e12 / (384 * EI),
           w(1, 11)}}},
        {"Simple beam, two equal wheels where they give the largest moment",
         R"(L = 8 m, P = 50 kN twice, d = 1.6 m apart. The moment under a wheel is largest when mid-span halves the distance between
that wheel and the resultant: the wheel stands d/4 = 0.4 m before mid-span, at 3.6 m (Timoshenko and Young, *Theory of
Structures*, moving loads).)",
         {8000},
         {I},
         {0},
         {{3600, 50}, {5200, 50}},
         {{"M under the first wheel, kNm", "P (L - d/2)^2/(2 L) = 50 x 7.2^2/16", 162, M(1, 10)}}},
        {"Two equal spans, uniform load",
         "L = 6 m, q = 10 kN/m. Theorem of three moments (Clapeyron), Timoshenko, *Strength of Materials* I, "
         "continuous beams.",
         {6000, 6000},
         {I, I},
         {10, 10},
         {},
         {{"M_B, kNm", "-q L^2/8 = -10 x 36/8", -45, M(1, 21)},
          {"M at 0.4 L, kNm", "R_A 0.4 L - q (0.4 L)^2/2 = 0.07 q L^2", 25.2, M(1, 9)},
          {"R_A, kN", "3/8 q L", 22.5, R(1)},
          {"R_B, kN", "10/8 q L", 75, R(2)},
          {"w at mid-span, mm", "5 q L^4/384EI - M_B L^2/16EI = q L^4/(192 E I)", 10 * 1296e12 / (192 * EI),
           w(1, 11)}}},
        {"Two equal spans, load in the middle of the first",
         "L = 6 m, P = 100 kN.",
         {6000, 6000},
         {I, I},
         {0, 0},
         {{3000, 100}},
         {{"M_B, kNm", "-3/32 P L", -56.25, M(1, 21)},
          {"M under P, kNm", "13/64 P L", 121.875, M(1, 11)},
          {"R_A, kN", "13/32 P", 40.625, R(1)},
          {"R_B, kN", "22/32 P", 68.75, R(2)},
          {"R_C, kN", "-3/32 P", -9.375, R(3)}}},
        {"Horizontal loads",
         "The same beam with H = 8 kN beside P and the same I about the vertical axis: the horizontal plane is a beam "
         "of "
         "its own.",
         {6000, 6000},
         {I, I},
         {0, 0},
         {{3000, 100, 8}},
         {{"Mz over B, kNm", "-3/32 H L", -4.5, Mz(1, 21)},
          {"Mz under H, kNm", "13/64 H L", 9.75, Mz(1, 11)},
          {"v under H, mm", "23 H L^3/(1536 E I)", 23 * 8e3 * 216e9 / (1536 * EI), v(1, 11)}}},
        {"Propped cantilever: a very stiff second span",
         "L = 6 m, P = 100 kN in the middle of the first span, I2 = 1e8 I1, which clamps its end. Roark, table 8.1, "
         "case 1c.",
         {6000, 6000},
         {I, 1e8 * I},
         {0, 0},
         {{3000, 100}},
         {{"M_B, kNm", "-3/16 P L", -112.5, M(1, 21)},
          {"R_A, kN", "5/16 P", 31.25, R(1)},
          {"w under P, mm", "7 P L^3/(768 E I)", 7e5 * 216e9 / (768 * EI), w(1, 11)}}},
        {"Beam clamped at both ends: very stiff neighbours",
         "The same load in the middle of three spans, I1 = I3 = 1e8 I2.",
         {6000, 6000, 6000},
         {1e8 * I, I, 1e8 * I},
         {0, 0, 0},
         {{9000, 100}},
         {{"M_B, kNm", "-P L/8", -75, M(2, 1)}, {"M under P, kNm", "P L/8", 75, M(2, 11)}}},
        {"Two unequal spans, uniform load",
         "L1 = 5 m, L2 = 8 m, q = 12 kN/m.",
         {5000, 8000},
         {I, I},
         {12, 12},
         {},
         {{"M_B, kNm", "-q (L1^3 + L2^3)/(8 (L1 + L2)) = -12 x 637/104", -73.5, M(2, 1)},
          {"R_A, kN", "q L1/2 + M_B/L1 = 30 - 14.7", 15.3, R(1)},
          {"R_C, kN", "q L2/2 + M_B/L2 = 48 - 9.1875", 38.8125, R(3)}}},
        {"Two spans of different stiffness, uniform load",
         R"(L1 = 6 m with I1 = 1e8 mm4, L2 = 8 m with I2 = 2e8 mm4, q = 10 kN/m; three moments with the terms L/I:
2 M_B (L1/I1 + L2/I2) = -q/4 (L1^3/I1 + L2^3/I2).)",
         {6000, 8000},
         {I, 2 * I},
         {10, 10},
         {},
         {{"M_B, kNm", "-10/8 x (216/1 + 512/2)/(6/1 + 8/2) = -1.25 x 472/10", -59, M(1, 21)}}},
        {"Three equal spans, uniform load",
         "L = 6 m, q = 10 kN/m.",
         {6000, 6000, 6000},
         {I, I, I},
         {10, 10, 10},
         {},
         {{"M_B, kNm", "-q L^2/10", -36, M(2, 1)},
          {"M at 0.4 L, kNm", "0.4 x 0.4 - 0.08 = 0.08 q L^2", 28.8, M(1, 9)},
          {"M in the middle, kNm", "q L^2 (1/8 - 1/10)", 9, M(2, 11)},
          {"R_A, kN", "0.4 q L", 24, R(1)},
          {"R_B, kN", "1.1 q L", 66, R(2)},
          {"R_D, kN", "0.4 q L", 24, R(4)}}},
        {"Four equal spans, uniform load",
         "L = 7 m, q = 8 kN/m; moments -3/28, -2/28, -3/28 q L^2.",
         {7000, 7000, 7000, 7000},
         {I, I, I, I},
         {8, 8, 8, 8},
         {},
         {{"M_B, kNm", "-3/28 q L^2", -42, M(1, 21)},
          {"M_C, kNm", "-1/14 q L^2", -28, M(2, 21)},
          {"R_A, kN", "11/28 q L", 22, R(1)},
          {"R_B, kN", "32/28 q L", 64, R(2)},
          {"R_C, kN", "26/28 q L", 52, R(3)}}},
    };
    return list;
}

}  // namespace

void closedFormBeams(Document& document) {
    document.section("Continuous beams: closed forms");
    for (const BeamExample& example : examples()) {
        document.example(example.title);
        document.text(example.text);
        const StandingLoad beam(example.spans, example.I, example.q, example.wheels);
        std::vector<Comparison> comparisons;
        for (const Quantity& quantity : example.quantities)
            comparisons.push_back({quantity.name, quantity.formula, quantity.hand, quantity.program(beam)});
        document.compare(comparisons);
    }
}

void stiffnessSolution(Document& document) {
    const std::vector<int> spans = {4200, 6300, 7500, 5100, 6000};
    const std::vector<double> I = {6e7, 9e7, 2.5e8, 1.2e8, 8e7}, q = {2, 3.5, 1, 4, 2.5};
    const std::vector<Wheel> wheels = {{6700, 120}, {8500, 110}, {11700, 95}, {13500, 80}};
    document.section("Continuous beams: displacement method");
    document.text(
        R"(Five spans of 4.2, 6.3, 7.5, 5.1, 6.0 m, with I = 0.6, 0.9, 2.5, 1.2, 0.8 e8 mm4 and q = 2, 3.5, 1, 4, 2.5 kN/m. Wheels
of 120, 110, 95, 80 kN stand 6.7, 8.5, 11.7 and 13.5 m from the left end. The program solves the support moments (theorem
of three moments); tests/support/stiffness_beam.cpp solves the rotations at the supports (displacement method, one cubic
element a span, fixed-end forces by the textbook) and shares no formula with it. The tests do the same at every position
of random beams.)");
    const StandingLoad beam(spans, I, q, wheels);
    std::vector<testing_support::StiffnessBeam::Span> parts;
    for (std::size_t i = 0; i < spans.size(); ++i) parts.push_back({double(spans[i]), I[i], q[i]});
    testing_support::StiffnessBeam other(parts);
    std::vector<testing_support::StiffnessBeam::PointLoad> loads;
    for (const Wheel& wheel : wheels) {
        double a = wheel.x;
        int span = 0;
        while (a > spans[static_cast<std::size_t>(span)]) a -= spans[static_cast<std::size_t>(span++)];
        loads.push_back({span, a, wheel.P * 1000});
    }
    other.solve(loads);
    const std::string name = "ABCDEF";
    std::vector<Comparison> comparisons;
    for (int support = 1; support <= 4; ++support)
        comparisons.push_back({std::string("M_") + name[static_cast<std::size_t>(support)] + ", kNm", "rotations",
                               other.at(support, 0).M / 1e6, beam.M(support + 1, 1)});
    for (int support = 0; support <= 5; ++support)
        comparisons.push_back({std::string("R_") + name[static_cast<std::size_t>(support)] + ", kN", "rotations",
                               other.reaction(support) / 1000, beam.R(support + 1)});
    for (int span = 0; span <= 4; ++span)
        comparisons.push_back({"w in the middle of span " + std::to_string(span + 1) + ", mm", "rotations",
                               other.at(span, spans[static_cast<std::size_t>(span)] / 2.0).w, beam.w(span + 1, 11)});
    document.compare(comparisons, 2e-6);
}

}  // namespace borvik::validation

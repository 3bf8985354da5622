#include "support/walked_beam.h"

#include <algorithm>
#include <cmath>
#include <sstream>

namespace borvik::testing_support {

namespace {

constexpr double kStep = 200;

double asSingle(double x) {
    return static_cast<double>(static_cast<float>(x));
}

StiffnessBeam beamOf(const Project& project, const RunLoads* dead) {
    std::vector<StiffnessBeam::Span> spans;
    for (int i = 1; i <= project.NofSpans; ++i) {
        const SectionRecord& section = project.SpanSection(i);
        spans.push_back({double(project.Span(i)), dead != nullptr ? section.Iy : section.Iz,
                         dead != nullptr ? double(dead->SpanLoad(i)) : 0.0});
    }
    return StiffnessBeam(std::move(spans));
}

double pointX(const Project& project, int i, int k) {
    return (k - 1) * double(project.Span(i)) / 20;
}

/// Collects what disagrees; the first few in full.
class Comparison {
public:
    explicit Comparison(double tolerance) : tolerance_(tolerance) {}
    void scale(double largest) { allowed_ = tolerance_ * largest; }
    void expect(const char* what, int i, int k, double ours, double theirs) {
        if (std::abs(ours - theirs) <= allowed_) return;
        if (++count_ > 8) return;
        text_ << what << "(" << i << ", " << k << "): " << ours << ", stiffness solution " << theirs << ", allowed "
              << allowed_ << "\n";
    }
    [[nodiscard]] std::string text() const {
        return count_ > 8 ? text_.str() + std::to_string(count_) + " in all\n" : text_.str();
    }

private:
    double tolerance_, allowed_ = 0;
    int count_ = 0;
    std::ostringstream text_;
};

/// @param most  the least that counts as a magnitude: below it everything is rounding
double largest(const std::vector<std::array<Range, 22>>& ranges, double most) {
    for (const auto& span : ranges)
        for (const Range& range : span) most = std::max(most, range.magnitude());
    return most;
}

double largest(const std::vector<Range>& ranges, double most) {
    for (const Range& range : ranges) most = std::max(most, range.magnitude());
    return most;
}

void compareRecords(Comparison& comparison, const char* name, const Cube<Single>& largestPoint,
                    const Cube<Single>& smallestPoint, int key, const std::vector<std::array<Range, 22>>& walked) {
    comparison.scale(largest(walked, key % 2 == 1 ? 1e5 : 1000.0));
    for (int i = 1; i <= largestPoint.rows(); ++i)
        for (int k = 1; k <= 21; ++k) {
            const Range& range = walked[static_cast<std::size_t>(i)][static_cast<std::size_t>(k)];
            comparison.expect((std::string(name) + "MaxPoint").c_str(), i, k, largestPoint(i, k, key), range.largest);
            comparison.expect((std::string(name) + "MinPoint").c_str(), i, k, smallestPoint(i, k, key), range.smallest);
        }
}

/// A span record is the point record with the extreme; where several points share it, any of them may have been first.
void compareSpans(Comparison& comparison, const char* name, const Cube<Single>& points, const Table<Single>& spans,
                  int key, const Project& project) {
    comparison.scale(0);
    for (int i = 1; i <= points.rows(); ++i) {
        int extreme = 1, shared = 0;
        for (int k = 2; k <= 21; ++k)
            if (std::abs(points(i, k, key)) > std::abs(points(i, extreme, key))) extreme = k;
        const double value = points(i, extreme, key);
        for (int k = 1; k <= 21; ++k) shared += points(i, k, key) == value;
        comparison.expect(name, i, 0, spans(i, key), value);
        if (shared > 1) continue;
        for (int slot = 1; slot <= points.slots(); ++slot)
            comparison.expect(name, i, slot, spans(i, slot), points(i, extreme, slot));
        comparison.expect(name, i, points.slots() + 1, spans(i, points.slots() + 1),
                          asSingle(pointX(project, i, extreme)));
    }
}

void compareReactions(Comparison& comparison, const char* name, const Array<Single>& most, const Array<Single>& least,
                      const std::vector<Range>& walked) {
    comparison.scale(largest(walked, 1000.0));
    for (int support = 1; support <= most.last(); ++support) {
        const Range& R = walked[static_cast<std::size_t>(support)];
        const bool shearSign = support == most.last();
        comparison.expect(name, support, 1, most(support), shearSign ? -R.smallest : R.largest);
        comparison.expect(name, support, 2, least(support), shearSign ? -R.largest : R.smallest);
    }
}

void compareDeflections(Comparison& comparison, const char* name, const Cube<Single>& points,
                        const Table<Single>& spans, const std::vector<std::array<Range, 22>>& walked) {
    comparison.scale(largest(walked, 0.1));
    for (int i = 1; i <= points.rows(); ++i) {
        double most = 0;
        for (int k = 1; k <= 21; ++k) {
            const Range& range = walked[static_cast<std::size_t>(i)][static_cast<std::size_t>(k)];
            const double u = points(i, k, 1);
            comparison.expect(name, i, k, std::abs(u), range.magnitude());
            comparison.expect(name, i, k, u, u > 0 ? range.largest : range.smallest);
            most = std::max(most, range.magnitude());
        }
        comparison.expect(name, i, 0, spans(i, 1), most);
    }
}

}  // namespace

WalkedBeam::WalkedBeam(const Project& project, const RunLoads& loads)
    : project_(project), loads_(loads), beamZ_(beamOf(project, &loads)), beamY_(beamOf(project, nullptr)) {
    const auto n = static_cast<std::size_t>(project.NofSpans);
    for (PlaneEnvelopes* envelopes : {&envelopesZ_, &envelopesY_}) {
        envelopes->M.resize(n + 1);
        envelopes->V.resize(n + 1);
        envelopes->U.resize(n + 1);
        envelopes->R.resize(n + 2);
    }
}

/// The wheels stand at x1.. and x5.. of an axis whose origin is where the walk begins.
void WalkedBeam::place(double x1, double x5) {
    const double beamStart = project_.StartStopOutside != 0 ? double(project_.CranesLength) : 0.0;
    std::vector<StiffnessBeam::PointLoad> vertical, horizontal;
    double x = x1;
    for (int w = 1; w <= 8; ++w) {
        if (w == 5)
            x = x5;
        else if (w > 1)
            x = asSingle(x + (w < 5 ? loads_.WheelGap(w - 1) : loads_.WheelGap(w - 2)));
        double left = beamStart;
        for (int i = 1; i <= project_.NofSpans && x >= beamStart; ++i) {
            const double right = asSingle(left + project_.Span(i));
            if (x <= right) {
                vertical.push_back({i - 1, asSingle(x - left), loads_.WheelV(w) * 1000});
                horizontal.push_back({i - 1, asSingle(x - left), loads_.WheelH(w) * 1000});
                break;
            }
            left = right;
        }
    }
    beamZ_.solve(vertical);
    beamY_.solve(horizontal);
}

void WalkedBeam::keep(const StiffnessBeam& beam, const Project& project, PlaneEnvelopes& envelopes) {
    for (int i = 1; i <= beam.spans(); ++i)
        for (int k = 1; k <= 21; ++k) {
            const auto [M, V, w] = beam.at(i - 1, pointX(project, i, k));
            const auto row = static_cast<std::size_t>(i), column = static_cast<std::size_t>(k);
            envelopes.M[row][column].add(M);
            envelopes.V[row][column].add(V);
            envelopes.U[row][column].add(-w);
        }
    for (int support = 0; support <= beam.spans(); ++support)
        envelopes.R[static_cast<std::size_t>(support + 1)].add(beam.reaction(support));
}

double WalkedBeam::wheel5(double x1) const {
    double x = x1;
    for (int gap = 1; gap <= 3; ++gap) x = asSingle(x + loads_.WheelGap(gap));
    return x + project_.MinAvst;
}

void WalkedBeam::walk() {
    const double sign = project_.StartStopOutside != 0 ? 1 : -1;
    const double T = (project_.BeamLength + sign * project_.CranesLength) / kStep;
    const int last = project_.Fixerad ? 0 : static_cast<int>(std::floor(T));
    const bool independent = loads_.NCranes == 2 && project_.MinDistConst != 1.0 && !project_.Fixerad;
    for (int j = 0; j <= last; ++j) {
        const double x1 = asSingle(project_.Position + j * kStep);
        for (int k = 0; k <= (independent ? static_cast<int>(std::floor(T - j)) : 0); ++k) {
            place(x1, asSingle(wheel5(x1) + k * kStep));
            keep(beamZ_, project_, envelopesZ_);
            keep(beamY_, project_, envelopesY_);
        }
    }
}

std::array<double, 5> WalkedBeam::forces(double x1, double x5, int i, int k) {
    place(x1, x5);
    const auto z = beamZ_.at(i - 1, pointX(project_, i, k));
    const auto y = beamY_.at(i - 1, pointX(project_, i, k));
    return {0, z.M, z.V, y.M, y.V};
}

double WalkedBeam::onAxis(int span, double a) const {
    double x = project_.StartStopOutside != 0 ? double(project_.CranesLength) : 0.0;
    for (int i = 1; i < span; ++i) x = asSingle(x + project_.Span(i));
    return x + a;
}

std::string disagreement(const UlsResults& uls, WalkedBeam& walked, const Project& project, double tolerance) {
    Comparison comparison(tolerance);
    const PlaneEnvelopes &z = walked.vertical(), &y = walked.horizontal();
    compareRecords(comparison, "My", uls.MyMaxPoint, uls.MyMinPoint, 1, z.M);
    compareRecords(comparison, "Vz", uls.VzMaxPoint, uls.VzMinPoint, 2, z.V);
    compareRecords(comparison, "Mz", uls.MzMaxPoint, uls.MzMinPoint, 3, y.M);
    compareRecords(comparison, "Vy", uls.VyMaxPoint, uls.VyMinPoint, 4, y.V);
    compareReactions(comparison, "Rz", uls.RzMax, uls.RzMin, z.R);
    compareReactions(comparison, "Ry", uls.RyMax, uls.RyMin, y.R);
    const struct {
        const char* name;
        const Cube<Single>& point;
        const Table<Single>& span;
        int key;
    } spans[] = {{"MyMaxSpan", uls.MyMaxPoint, uls.MyMaxSpan, 1}, {"MyMinSpan", uls.MyMinPoint, uls.MyMinSpan, 1},
                 {"VzMaxSpan", uls.VzMaxPoint, uls.VzMaxSpan, 2}, {"VzMinSpan", uls.VzMinPoint, uls.VzMinSpan, 2},
                 {"MzMaxSpan", uls.MzMaxPoint, uls.MzMaxSpan, 3}, {"MzMinSpan", uls.MzMinPoint, uls.MzMinSpan, 3},
                 {"VyMaxSpan", uls.VyMaxPoint, uls.VyMaxSpan, 4}, {"VyMinSpan", uls.VyMinPoint, uls.VyMinSpan, 4}};
    for (const auto& [name, point, span, key] : spans) compareSpans(comparison, name, point, span, key, project);
    return comparison.text();
}

std::string disagreement(const FlsResults& fls, WalkedBeam& walked, const Project&, double tolerance) {
    Comparison comparison(tolerance);
    const PlaneEnvelopes& z = walked.vertical();
    compareRecords(comparison, "FlsMy", fls.FlsMyMaxPoint, fls.FlsMyMinPoint, 1, z.M);
    compareRecords(comparison, "FlsVz", fls.FlsVzMaxPoint, fls.FlsVzMinPoint, 2, z.V);
    compareReactions(comparison, "FlsRz", fls.FlsRzMax, fls.FlsRzMin, z.R);
    return comparison.text();
}

std::string disagreement(const SlsResults& sls, WalkedBeam& walked, const Project&, double tolerance) {
    Comparison comparison(tolerance);
    compareDeflections(comparison, "Uz", sls.UzMaxPoint, sls.UzMaxSpan, walked.vertical().U);
    compareDeflections(comparison, "Uy", sls.UyMaxPoint, sls.UyMaxSpan, walked.horizontal().U);
    return comparison.text();
}

}  // namespace borvik::testing_support

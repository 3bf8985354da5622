#include "second_opinion/buckling.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <utility>

#include "base/fault.h"
#include "second_opinion/band_matrix.h"

namespace borvik {

namespace {

/// Freedoms of an element: v, v', phi, phi' of its left end, then of its right end. A freedom of the beam, or -1 where
/// it is held, and its share: at a lateral support v is -z times the rotation of the node.
struct Freedom {
    int index = -1;
    double share = 1;
};
using Freedoms = std::array<Freedom, 8>;
constexpr std::array<std::size_t, 4> kV{0, 1, 4, 5}, kPhi{2, 3, 6, 7};

using ElementMatrix = std::array<std::array<double, 8>, 8>;

/// The two matrices of (K + factor G) u = 0: stiffness, and what the loads of factor 1 take from it.
class BucklingMatrices {
public:
    BucklingMatrices(const LineBeam& beam, const std::vector<SpanLoading>& loading,
                     const std::vector<LateralSupport>& supports, int perSpan);

    BandMatrix K{0, 0}, G{0, 0};
    [[nodiscard]] std::vector<ModePoint> shape(const std::vector<double>& u) const;

private:
    void number(const LineBeam& beam, const std::vector<LateralSupport>& supports);
    [[nodiscard]] static ElementMatrix stiffness(const LineSection& section, double h);
    [[nodiscard]] ElementMatrix loads(const LineBeam::Span& span, const SpanLoading& loading, double start,
                                      std::size_t e) const;
    void assemble(const ElementMatrix& matrix, std::size_t e, BandMatrix& sum) const;

    LineMesh mesh_;
    std::vector<Freedoms> freedoms_;
};

std::vector<double> nodesFor(const LineBeam& beam, const std::vector<SpanLoading>& loading,
                             const std::vector<LateralSupport>& supports) {
    std::vector<double> places;
    for (const LateralSupport& support : supports) places.push_back(support.x);
    for (std::size_t i = 0; i < beam.spans.size(); ++i)
        for (const SpanLoading::Load& load : loading[i].loads) places.push_back(beam.supportAt(i) + load.a);
    return places;
}

BucklingMatrices::BucklingMatrices(const LineBeam& beam, const std::vector<SpanLoading>& loading,
                                   const std::vector<LateralSupport>& supports, int perSpan)
    : mesh_(beam, std::vector<int>(beam.spans.size(), perSpan), nodesFor(beam, loading, supports)) {
    number(beam, supports);
    for (std::size_t e = 0; e < mesh_.elements.size(); ++e) {
        const std::size_t span = mesh_.elements[e].span;
        assemble(stiffness(beam.spans[span].section, mesh_.elements[e].h), e, K);
        assemble(loads(beam.spans[span], loading[span], beam.supportAt(span), e), e, G);
    }
}

void BucklingMatrices::number(const LineBeam& beam, const std::vector<LateralSupport>& supports) {
    const std::size_t nodes = mesh_.isSupport.size();
    std::vector<std::vector<double>> heights(nodes);
    for (const LateralSupport& support : supports) heights[mesh_.nodeAt(support.x)].push_back(support.z);
    int next = 0;
    std::array<Freedom, 4> left;
    for (std::size_t node = 0; node < nodes; ++node) {
        std::array<Freedom, 4> own;
        const std::vector<double>& z = heights[node];
        const bool fork = mesh_.isSupport[node] != 0 || (!z.empty() && z.front() != z.back());
        if (!fork) {
            own[2] = {next++, 1};
            own[0] = z.empty() ? Freedom{next++, 1} : Freedom{own[2].index, -z.front()};
        }
        own[1] = {next++, 1};
        own[3] = {next++, 1};
        if (node > 0) freedoms_.push_back({left[0], left[1], left[2], left[3], own[0], own[1], own[2], own[3]});
        left = own;
        const bool inner = mesh_.isSupport[node] != 0 && node > 0 && node + 1 < nodes;
        if (inner && beam.warping == InnerWarping::Free) left[3] = {next++, 1};
    }
    K = G = BandMatrix(next, 8);
}

ElementMatrix BucklingMatrices::stiffness(const LineSection& section, double h) {
    ElementMatrix k{};
    for (const GaussPoint& point : kGauss) {
        const Cubic cubic(point.s, h);
        const double dx = point.weight * h;
        for (std::size_t i = 0; i < 4; ++i)
            for (std::size_t j = 0; j < 4; ++j) {
                const double bending = cubic.curvature[i] * cubic.curvature[j] * dx;
                k[kV[i]][kV[j]] += kLineE * section.Iz * bending;
                k[kPhi[i]][kPhi[j]] +=
                    kLineE * section.Iw * bending + kLineG * section.It * cubic.slope[i] * cubic.slope[j] * dx;
            }
    }
    return k;
}

/// Of the work 1/2 integral(2 M v'' phi + 2 M zj phi'^2 - qz phi^2) dx - 1/2 sum(P z phi^2).
ElementMatrix BucklingMatrices::loads(const LineBeam::Span& span, const SpanLoading& loading, double start,
                                      std::size_t e) const {
    const LineMesh::Element& element = mesh_.elements[e];
    const double h = element.h;
    ElementMatrix g{};
    for (const GaussPoint& point : kGauss) {
        const Cubic cubic(point.s, h);
        const double dx = point.weight * h;
        const double M = loading.moment(element.x - start + point.s * h, span.L);
        for (std::size_t i = 0; i < 4; ++i)
            for (std::size_t j = 0; j < 4; ++j) {
                const double coupling = M * cubic.curvature[i] * cubic.value[j] * dx;
                g[kV[i]][kPhi[j]] += coupling;
                g[kPhi[j]][kV[i]] += coupling;
                g[kPhi[i]][kPhi[j]] += (2 * M * span.section.zj * cubic.slope[i] * cubic.slope[j] -
                                        loading.qz * cubic.value[i] * cubic.value[j]) *
                                       dx;
            }
    }
    for (const SpanLoading::Load& load : loading.loads) {
        if (mesh_.elementAt(start + load.a) != e) continue;
        const Cubic cubic((start + load.a - element.x) / h, h);
        for (std::size_t i = 0; i < 4; ++i)
            for (std::size_t j = 0; j < 4; ++j)
                g[kPhi[i]][kPhi[j]] -= load.P * load.z * cubic.value[i] * cubic.value[j];
    }
    return g;
}

void BucklingMatrices::assemble(const ElementMatrix& matrix, std::size_t e, BandMatrix& sum) const {
    for (std::size_t i = 0; i < 8; ++i)
        for (std::size_t j = 0; j < 8; ++j) {
            const Freedom& row = freedoms_[e][i];
            const Freedom& column = freedoms_[e][j];
            if (row.index >= 0 && column.index >= 0)
                sum.add(row.index, column.index, row.share * column.share * matrix[i][j]);
        }
}

std::vector<ModePoint> BucklingMatrices::shape(const std::vector<double>& u) const {
    const auto value = [&u](const Freedom& freedom) {
        return freedom.index < 0 ? 0 : freedom.share * u[static_cast<std::size_t>(freedom.index)];
    };
    std::vector<ModePoint> points{{0, 0, 0}};
    for (std::size_t e = 0; e < freedoms_.size(); ++e)
        points.push_back({mesh_.elements[e].end(), value(freedoms_[e][4]), value(freedoms_[e][6])});
    double largest = 0, sign = 1;
    for (const ModePoint& point : points)
        if (std::abs(point.phi) > largest) {
            largest = std::abs(point.phi);
            sign = point.phi;
        }
    for (ModePoint& point : points) {
        point.v /= sign;
        point.phi /= sign;
    }
    return points;
}

struct Eigenpair {
    double factor;
    std::vector<double> u;
};

/// The lowest positive factor: bracketed by the number of negative pivots, which is the number of factors below, and
/// found by Rayleigh's quotient in inverse iteration from the middle of the bracket.
class LowestFactor {
public:
    explicit LowestFactor(const BucklingMatrices& matrices) : K_(matrices.K), G_(matrices.G) {}

    /// @param guess  of the factor, > 0
    [[nodiscard]] std::optional<Eigenpair> find(double guess) const {
        constexpr int kMostDoublings = 60;
        double low = guess, high = guess;
        for (int i = 0; below(high) == 0; high *= 2) {
            if (++i > kMostDoublings) return std::nullopt;
            low = high;
        }
        while (below(low) > 0) {
            high = low;
            low /= 2;
        }
        for (double width = 1.2;; width = 1 + (width - 1) / 8) {
            while (high > width * low) {
                const double middle = std::sqrt(low * high);
                (below(middle) > 0 ? high : low) = middle;
            }
            const Eigenpair found = iterate(std::sqrt(low * high));
            const bool within = found.factor > low * (1 - 1e-9) && found.factor < high * (1 + 1e-9);
            if ((within && below(found.factor * (1 - 1e-7)) == 0) || width - 1 < 1e-10) return found;
        }
    }

private:
    [[nodiscard]] int below(double factor) const { return K_.plus(factor, G_).factor(); }

    [[nodiscard]] Eigenpair iterate(double shift) const {
        constexpr int kMost = 12;
        Eigenpair pair{shift, std::vector<double>(static_cast<std::size_t>(K_.size()))};
        for (std::size_t i = 0; i < pair.u.size(); ++i) pair.u[i] = 1 + 0.3 * std::sin(1.7 * static_cast<double>(i));
        for (int i = 0; i < kMost; ++i) {
            BandMatrix shifted = K_.plus(pair.factor, G_);
            shifted.factor();
            std::vector<double> next = G_.times(pair.u);
            shifted.solve(next);
            double largest = 0;
            for (const double each : next) largest = std::max(largest, std::abs(each));
            for (double& each : next) each /= largest;
            pair.u = std::move(next);
            if (i < 2) continue;  // the shift stays until the shape stands
            const double factor = -K_.form(pair.u) / G_.form(pair.u);
            const bool settled = std::abs(factor - pair.factor) < 1e-10 * std::abs(factor);
            pair.factor = factor;
            if (settled) break;
        }
        return pair;
    }

    const BandMatrix &K_, &G_;
};

/// Some factor of the right size: that of a uniform moment as large as the largest in a span.
double guessOf(const LineBeam& beam, const std::vector<SpanLoading>& loading) {
    constexpr int kPlaces = 20;
    constexpr double kPi = std::numbers::pi;
    double guess = 0;
    for (std::size_t i = 0; i < beam.spans.size(); ++i) {
        const double L = beam.spans[i].L;
        const LineSection& s = beam.spans[i].section;
        double largest = 0;
        for (int k = 0; k <= kPlaces; ++k) largest = std::max(largest, std::abs(loading[i].moment(L * k / kPlaces, L)));
        const double Mcr = kPi / L * std::sqrt(kLineE * s.Iz * (kLineG * s.It + kPi * kPi * kLineE * s.Iw / (L * L)));
        if (largest > 0 && (guess == 0 || Mcr / largest < guess)) guess = Mcr / largest;
    }
    return guess;
}

}  // namespace

std::optional<BucklingResult> lowestBuckling(const LineBeam& beam, const std::vector<SpanLoading>& loading,
                                             const std::vector<LateralSupport>& supports, double tolerance) {
    constexpr int kFirst = 8, kLast = 128;
    beam.check();
    for (const LineBeam::Span& span : beam.spans)
        if (!(span.section.Iz > 0 && span.section.It > 0 && span.section.Iw > 0))
            throw RuntimeFault("a section has no stiffness against torsion or lateral bending");
    double guess = guessOf(beam, loading);
    if (!(guess > 0)) return std::nullopt;
    double before = 0;
    for (int elements = kFirst;; elements *= 2) {
        const BucklingMatrices matrices(beam, loading, supports, elements);
        const std::optional<Eigenpair> found = LowestFactor(matrices).find(guess);
        if (!found) return std::nullopt;
        if (std::abs(found->factor - before) < tolerance * found->factor || elements == kLast)
            return BucklingResult{found->factor, matrices.shape(found->u), elements};
        guess = before = found->factor;
    }
}

}  // namespace borvik

#include "actions/code_tables.h"

#include <algorithm>
#include <iterator>

namespace borvik::actions {

namespace {

constexpr double kSpectrumLimits[] = {0.0313, 0.0625, 0.125, 0.25, 0.5, 1.0};
constexpr double kCycleLimits[] = {1.6e4, 3.15e4, 6.3e4, 1.25e5, 2.5e5, 5e5, 1e6, 2e6, 4e6, 8e6};

template <std::size_t n>
std::optional<int> classOf(const double (&limits)[n], double value) {
    const double* limit = std::lower_bound(std::begin(limits), std::end(limits), value);
    if (!(value >= 0) || limit == std::end(limits)) return std::nullopt;
    return static_cast<int>(limit - limits);
}

}  // namespace

HoistingRow hoistingRow(HoistingClass hc) {
    constexpr HoistingRow rows[] = {{0.17, 1.05}, {0.34, 1.10}, {0.51, 1.15}, {0.68, 1.20}};
    return rows[static_cast<std::size_t>(hc)];
}

double beta3(Release release) {
    constexpr double values[] = {0, 0.5, 1.0};
    return values[static_cast<std::size_t>(release)];
}

SkewingRow skewingRow(Guide guide) {
    return guide == Guide::Rollers ? SkewingRow{0.75, 5, 0.03, 0.001} : SkewingRow{0.75, 10, 0.10, 0.001};
}

int fatigueClass(int Q, int U) {
    return std::max(0, Q + U - 5);
}

std::optional<int> loadSpectrumOf(double kQ) {
    return classOf(kSpectrumLimits, kQ);
}

std::optional<int> utilisationOf(double cycles) {
    return classOf(kCycleLimits, cycles);
}

double NationalValues::gammaOf(Situation situation) const {
    switch (situation) {
        case Situation::Test:
            return gammaTest;
        case Situation::Accidental:
            return gammaAccidental;
        case Situation::InService:
            break;
    }
    return gammaUnfavourable;
}

double NationalValues::psi2Of(const CraneData& crane) const {
    return psi2.value_or(crane.selfWeight() / (crane.selfWeight() + crane.hoist));
}

}  // namespace borvik::actions

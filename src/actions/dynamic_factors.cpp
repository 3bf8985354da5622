#include "actions/dynamic_factors.h"

#include <algorithm>

namespace borvik::actions {

double bufferFactor(double xib) {
    return 1.25 + 0.7 * std::max(0.0, xib - 0.5);
}

DynamicFactors dynamicFactors(const CraneData& crane) {
    const HoistingRow row = hoistingRow(crane.hc);
    DynamicFactors factors;
    factors.phi1 = crane.phi1;
    factors.phi2 = crane.phi2.value_or(row.phi2Min + row.beta2 * crane.vh);
    factors.phi3 = 1 - crane.released * (1 + beta3(crane.release));
    factors.phi4 = crane.phi4;
    factors.phi5 = crane.phi5;
    factors.phi6 = factors.phiFat2 = (1 + factors.phi2) / 2;
    factors.phi7 = crane.xib ? bufferFactor(*crane.xib) : 1;
    factors.phiFat1 = (1 + factors.phi1) / 2;
    factors.eta = crane.eta.value_or(0);
    return factors;
}

double DynamicFactors::of(Factor factor) const {
    switch (factor) {
        case Factor::None:
            return 0;
        case Factor::One:
            return 1;
        case Factor::Phi1:
            return phi1;
        case Factor::Phi2:
            return phi2;
        case Factor::Phi3:
            return phi3;
        case Factor::Phi4:
            return phi4;
        case Factor::Phi5:
            return phi5;
        case Factor::Phi6:
            return phi6;
        case Factor::Phi7:
            return phi7;
        case Factor::Eta:
            return eta;
    }
    return 0;
}

}  // namespace borvik::actions

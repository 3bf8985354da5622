#pragma once

#include "analysis/span_points.h"
#include "checks/ltb_checks.h"

namespace borvik {

/// The factors of the critical moment by the moment diagram of one position and the loads that stand in the span, for
/// fork supports: energy method with one half sine wave of rotation, phi = sin(pi x/L). With m = My/My,Ed:
///   C1 = 1/sqrt(2/L int m^2 phi^2 dx), C2 = C1 L/pi^2 sum (F/My,Ed) phi^2, C3 = C1 2/L int m cos^2(pi x/L) dx.
/// This is where the usual tables come from: a uniform load gives 1.132, 0.459 and 0.525, a load in the middle 1.366,
/// 0.553 and 0.406. End moments alone come out up to 8 % high where psi nears -1.
/// @param My      [1..21], Nmm
/// @param MyEd    the design moment that the factors belong to, Nmm with its sign, not 0
/// @param wheels  loads at the level Zg, N; what the beam carries evenly counts in the diagram alone
[[nodiscard]] CFactors diagramFactors(const PointSteps& My, double MyEd, const SpanWheels& wheels, double L);

}  // namespace borvik

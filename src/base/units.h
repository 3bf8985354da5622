#pragma once

namespace borvik {

// Results are kept in N and mm, and shown in larger units.
constexpr double kPerKilo = 1000.0;          ///< N to kN
constexpr double kPerKiloMetre = 1000000.0;  ///< Nmm to kNm

}  // namespace borvik

#pragma once

/// Constants of structural steel, EN 1993-1-1 3.2.6.
namespace borvik::steel {

constexpr double kE = 210000.0;  ///< modulus of elasticity, N/mm2
constexpr double kEtoG = 2.6;    ///< E/G, with Poisson's ratio 0.3
/// Shear modulus of the torsion stiffness G It, N/mm2: above E/2.6 = 81000. Kept, since stored sections carry it; no
/// check reads the product.
constexpr double kStoredG = 89100.0;
constexpr double kDensity = 7.9e-6;  ///< kg/mm3

}  // namespace borvik::steel

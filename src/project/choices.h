#pragma once

#include <cstdint>

namespace borvik {

// What the user chooses between. The numbers are those of the project file, which may hold others: a value without a
// name here is kept as it is, and each reader says with == or != on which side it falls.

enum class CraneKind : std::int16_t { Overhead = 1, Monorail = 2 };

/// How two cranes are summed up in fatigue.
enum class TwoCranes : std::int16_t { Independent = 1, Together = 2 };

/// End post of the web in shear, EN 1993-1-5 9.3.
enum class EndPost : std::int16_t { NonRigid = 1, Rigid = 2 };

/// Where the wheel loads act, for lateral torsional buckling.
enum class LoadPoint : std::int16_t { TopOfRail = 1, TopFlange = 2, ShearCentre = 3, BottomFlange = 4 };

/// How the rail lies on the beam, EN 1993-6 Table 5.1.
enum class RailFixing : std::int16_t { Rigid = 1, NotRigid = 2, ResilientPad = 3 };

/// Curve of lateral torsional buckling: EN 1993-1-1 6.3.2.2 or 6.3.2.3.
enum class LtbCase : std::int16_t { General = 2, RolledOrWelded = 3 };

/// Kinds of weld, as the project file writes them.
inline constexpr const char* kFilletWeld = "FW";
inline constexpr const char* kFullPenetrationWeld = "FP";

}  // namespace borvik

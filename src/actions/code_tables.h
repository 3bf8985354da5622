#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "actions/crane_data.h"

/// Tables of EN 1991-3:2006, section 2 and annexes A and B, and the classes of EN 13001-1 that they lead to.
namespace borvik::actions {

/// Table 2.5: phi2 = phi2Min + beta2 vh.
struct HoistingRow {
    double beta2;  ///< s/m
    double phi2Min;
};
[[nodiscard]] HoistingRow hoistingRow(HoistingClass hc);

/// Table 2.4, phi3: beta3 of a grab or a magnet; of a hook 0.
[[nodiscard]] double beta3(Release release);

/// Table 2.6: range of phi5 for how the drive force changes.
struct DriveForceRow {
    std::string_view change;
    double least, most;
};
inline constexpr DriveForceRow kDriveForce[] = {
    {"centrifugal forces", 1.0, 1.0},
    {"forces change smoothly", 1.0, 1.5},
    {"sudden changes can occur", 1.5, 2.0},
    {"drives with considerable backlash", 3.0, 3.0},
};

/// Table 2.7: the parts of the skewing angle and their minima.
struct SkewingRow {
    double share;       ///< of the clearance x that counts
    double leastSlip;   ///< least value of 0.75 x, mm
    double leastWear;   ///< y over the width of the rail head
    double tolerances;  ///< alpha0, of wheel and rail directions
};
[[nodiscard]] SkewingRow skewingRow(Guide guide);

/// Table 2.2: the factor of each load in a group, and the situation that the group belongs to.
enum class Factor { None, One, Phi1, Phi2, Phi3, Phi4, Phi5, Phi6, Phi7, Eta };
enum class Situation { InService, Test, Accidental };
struct GroupRow {
    int group;
    Factor selfWeight, hoistLoad, acceleration, skewing, crab, wind;
    Factor special;  ///< group 8 test load, 9 buffer force, 10 tilting force
    Situation situation;
};
inline constexpr std::array<GroupRow, 10> kGroups = {{
    {1, Factor::Phi1, Factor::Phi2, Factor::Phi5, Factor::None, Factor::None, Factor::One, Factor::None,
     Situation::InService},
    {2, Factor::Phi1, Factor::Phi3, Factor::Phi5, Factor::None, Factor::None, Factor::One, Factor::None,
     Situation::InService},
    {3, Factor::One, Factor::None, Factor::Phi5, Factor::None, Factor::None, Factor::One, Factor::None,
     Situation::InService},
    {4, Factor::Phi4, Factor::Phi4, Factor::Phi5, Factor::None, Factor::None, Factor::One, Factor::None,
     Situation::InService},
    {5, Factor::Phi4, Factor::Phi4, Factor::None, Factor::One, Factor::None, Factor::One, Factor::None,
     Situation::InService},
    {6, Factor::Phi4, Factor::Phi4, Factor::None, Factor::None, Factor::One, Factor::None, Factor::None,
     Situation::InService},
    {7, Factor::One, Factor::Eta, Factor::None, Factor::None, Factor::None, Factor::None, Factor::None,
     Situation::InService},
    {8, Factor::Phi1, Factor::None, Factor::Phi5, Factor::None, Factor::None, Factor::One, Factor::Phi6,
     Situation::Test},
    {9, Factor::One, Factor::One, Factor::None, Factor::None, Factor::None, Factor::None, Factor::Phi7,
     Situation::Accidental},
    {10, Factor::One, Factor::One, Factor::None, Factor::None, Factor::None, Factor::None, Factor::One,
     Situation::Accidental},
}};

/// Table 2.11 by its rule: S = max(0, Q + U - 5), for Q0 to Q5 and U0 to U9.
[[nodiscard]] int fatigueClass(int Q, int U);
/// Load spectrum Q of kQ: the first class whose limit is not exceeded. @return nothing above 1
[[nodiscard]] std::optional<int> loadSpectrumOf(double kQ);
/// Utilisation U of a number of working cycles. @return nothing above 8e6
[[nodiscard]] std::optional<int> utilisationOf(double cycles);

/// Table 2.12: lambda of S0 to S9, for normal and for shear stress.
inline constexpr std::array<double, 10> kLambdaSigma = {0.198, 0.250, 0.315, 0.397, 0.500,
                                                        0.630, 0.794, 1.000, 1.260, 1.587};
inline constexpr std::array<double, 10> kLambdaTau = {0.379, 0.436, 0.500, 0.575, 0.660,
                                                      0.758, 0.871, 1.000, 1.149, 1.320};

/// Annex B (informative): classes to propose for a type of crane, from - to.
struct CraneType {
    std::string_view name;
    HoistingClass hcFrom, hcTo;
    int sFrom, sTo;
};
inline constexpr CraneType kCraneTypes[] = {
    {"hand-operated crane", HoistingClass::HC1, HoistingClass::HC1, 0, 1},
    {"assembly crane", HoistingClass::HC1, HoistingClass::HC2, 0, 1},
    {"powerhouse crane", HoistingClass::HC1, HoistingClass::HC1, 1, 2},
    {"storage crane, intermittent operation", HoistingClass::HC2, HoistingClass::HC2, 4, 4},
    {"storage or scrap-yard crane, continuous operation", HoistingClass::HC3, HoistingClass::HC4, 6, 7},
    {"workshop crane", HoistingClass::HC2, HoistingClass::HC3, 3, 4},
    {"grab or magnet crane", HoistingClass::HC3, HoistingClass::HC4, 6, 7},
    {"casting crane", HoistingClass::HC2, HoistingClass::HC3, 6, 7},
    {"soaking-pit crane", HoistingClass::HC3, HoistingClass::HC4, 7, 8},
    {"stripper or charging crane", HoistingClass::HC4, HoistingClass::HC4, 8, 9},
    {"forging crane", HoistingClass::HC4, HoistingClass::HC4, 6, 7},
};

/// Values that a national annex may set; the recommended ones to begin with.
struct NationalValues {
    /// Table 2.3: cranes in the most unfavourable position. On one runway, in a bay, in several bays, in several bays
    /// with cranes on more than one level.
    std::array<int, 4> cranesVertical = {3, 4, 4, 2};
    std::array<int, 4> cranesHorizontal = {2, 2, 2, 2};
    /// Table A.1, gamma of crane actions: unfavourable; favourable with the crane there, with the crane away; of the
    /// test load; in accidental situations.
    double gammaUnfavourable = 1.35, gammaThere = 1.00, gammaAway = 0.00, gammaTest = 1.10, gammaAccidental = 1.00;
    /// Table A.2: psi0, psi1; psi2 is the permanent share where it is not set.
    double psi0 = 1.0, psi1 = 0.9;
    std::optional<double> psi2;

    [[nodiscard]] double gammaOf(Situation situation) const;
    [[nodiscard]] double psi2Of(const CraneData& crane) const;
};

}  // namespace borvik::actions

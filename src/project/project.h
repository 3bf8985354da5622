#pragma once

#include <cstdint>
#include <string>

#include "base/array.h"
#include "base/single.h"
#include "project/choices.h"
#include "tables/reference_tables.h"

namespace borvik {

constexpr int kMaxSpans = 30;
constexpr int kCheckedSplices = 4;  // of the ten that a file holds

/// Every value that the user enters, and the few lengths that a calculation settles. Fields stand in the order of
/// the project file; fields named Spare are never used and survive load and save unchanged. mm, kN, kN/m, MPa. Flags
/// are true or false here and -1 or 0 in the file. A default-made record is empty, as after no input at all;
/// DefaultProject gives the values that the program starts with.
struct Project {
    // Identity and beam
    std::string Proj;                      ///< project title, UTF-8
    std::string Ident;                     ///< girder identification, UTF-8
    FixedArray<std::int32_t, 1, 30> Span;  ///< span lengths; 0 = no such span
    Single BeamLength;                     ///< sum of all spans, written by the calculation
    std::int16_t NofSpans = 0;             ///< spans in use, recomputed by the input check
    bool BeamChecked = false;
    FixedArray<std::uint8_t, 1, 4> Spare1;
    Single MinAvst;              ///< smallest distance between the two cranes
    Single Gangway;              ///< load of the gangway on the girder, kN/m
    std::int16_t NofCranes = 0;  ///< 1 or 2

    // Loads
    Single Position;       ///< of wheel 1: at the start of the walk, or fixed
    bool Fixerad = false;  ///< the crane stands fixed at Position
    TwoCranes TwoCraneMode{};
    FixedArray<std::uint8_t, 1, 4> Spare2;
    std::int16_t FatigueSpare = 0;  ///< crane class of both cranes together, settled by the calculation
    std::int16_t CraneClass1 = 0;   ///< 0..9 for S0..S9
    std::int16_t CraneClass2 = 0;
    std::int16_t CraneClassR = 0;       ///< of the monorail hoist
    Single PsiV1, PsiH1, PsiV2, PsiH2;  ///< dynamic factors, vertical and horizontal, of cranes 1 and 2
    FixedArray<Single, 1, 8> V;         ///< vertical wheel loads; 1..4 crane 1, 5..8 crane 2
    FixedArray<Single, 1, 8> H;         ///< horizontal wheel loads
    FixedArray<Single, 1, 6> Avst;      ///< wheel distances; 1..3 within crane 1, 4..6 within crane 2

    // Sections
    Array<SectionRecord> SectionList{0, -1};  ///< from 0: the working sections of the section form
    Array<SectionRecord> SpanSection{1, 0};   ///< from 1: the section of each span, a full copy
    bool SelfWeight = false;
    std::int16_t Spare3 = 0;
    bool HasLoadsY = false;  ///< some horizontal wheel load is present
    CraneKind CraneType{};
    EndPost StiffenerMode{};
    LoadPoint LoadLevel{};
    std::string RailName;
    RailFixing RailFix{};
    bool RailOn = false;

    // Lateral torsional buckling
    LtbCase LtbCurve{};
    bool DefaultCfactor = false;
    Single C1EndPos, C2EndPos, C3EndPos, C1MidPos, C2MidPos, C3MidPos;
    Single C1EndNeg, C2EndNeg, C3EndNeg, C1MidNeg, C2MidNeg, C3MidNeg;
    Single Inn;  ///< distance n of the wheel's contact point from the flange tip (monorail)

    // Fatigue details of an overhead crane; C1, C2 are detail categories in MPa
    bool Fat1 = false;  ///< rail to top flange
    std::int16_t Fat1C1 = 0, Fat1Spare1 = 0;
    Single Fat1Spare2, Fat1Spare3;
    bool Fat2 = false;  ///< stiffener to bottom flange
    std::int16_t Fat2C1 = 0, Fat2Spare1 = 0;
    Single Fat2Spare2, Fat2Spare3;
    bool Fat3 = false;  ///< top flange to web
    std::int16_t Fat3C1 = 0, Fat3C2 = 0;
    Single Fat3Spare1, Fat3Spare2;
    bool Fat4 = false;  ///< bottom flange to web
    std::int16_t Fat4C1 = 0, Fat4Spare1 = 0;
    Single Fat4Spare2, Fat4Spare3;
    bool Fat5 = false;  ///< beam splice
    std::int16_t Fat5C1 = 0;
    FixedArray<bool, 1, 10> ChkFat5Sp;   ///< splice in use; the form offers four
    FixedArray<Single, 1, 10> Fat5Span;  ///< span number of each splice
    FixedArray<Single, 1, 10> Fat5d1;    ///< distance from the left support of its span
    FixedArray<Single, 1, 10> Fat5Spare;
    bool Fat6 = false;  ///< support point
    std::int16_t Fat6C1 = 0, Fat6Spare1 = 0;
    Single Fat6d1, Fat6Spare2;
    std::string W1;  ///< weld kind, kFilletWeld or kFullPenetrationWeld
    Single W1a;      ///< throat
    std::string W2;
    Single W2a;
    std::string W3;
    Single W3a;
    std::string WSpare1;
    Single WSpare1a;
    std::string WSpare2;
    Single WSpare2a;
    std::string WS1t;  ///< stiffener thickness, held as text
    Single WS1Spare;
    std::string WSpare3;
    Single WSpare3a;

    // Fatigue details of a monorail
    bool FatR1 = false;
    std::int16_t FatR1C1 = 0, FatR1Spare1 = 0;
    Single FatR1Spare2, FatR1Spare3;
    bool FatR2 = false;
    std::int16_t FatR2C1 = 0, FatR2Spare1 = 0;
    Single FatR2Spare2, FatR2Spare3;
    bool FatR3 = false;
    std::int16_t FatR3C1 = 0, FatR3C2 = 0;
    Single FatR3Spare1, FatR3Spare2;
    bool FatR4 = false;
    std::int16_t FatR4C1 = 0, FatR4Spare1 = 0;
    Single FatR4Spare2, FatR4Spare3;
    bool FatR5 = false;
    std::int16_t FatR5C1 = 0;
    FixedArray<bool, 1, 10> ChkFatR5Sp;
    FixedArray<Single, 1, 10> FatR5Span;
    FixedArray<Single, 1, 10> FatR5d1;
    FixedArray<Single, 1, 10> FatR5Spare;
    bool FatR6 = false;
    std::int16_t FatR6C1 = 0, FatR6C2 = 0;
    Single FatR6Spare1, FatR6Spare2;
    std::string RW1;
    Single RW1a;
    std::string RW2;
    Single RW2a;
    std::string RW3;
    Single RW3a;
    std::string RW4;
    Single RW4a;
    std::string RWSpare1;
    Single RWSpare1a;
    std::string RWS1t;  ///< stiffener thickness, held as text
    Single RWS1d;
    std::string RWSpare2;
    Single RWSpare2a;

    // Material and setup
    std::string SteelGrade;
    Single fyk;  ///< MPa
    Single Eta;  ///< shear factor, EN 1993-1-5
    Single LamdaLT0, LamdaLT0w, Beta, Betaw;
    Single GammaM0, GammaM1;
    Single GammaFf, GammaMf;  ///< fatigue: load and resistance factor
    Single DefY, DefZ;        ///< deflection limits L/DefY, L/DefZ
    Single LfULS, LfSLS;      ///< load factors
    Single SetupSpare1;
    Single CraneLength1, CraneLength2, CranesLength;  ///< written by the calculation
    Single MinDistConst;  ///< 1.0: the cranes keep the distance MinAvst. A flag held in a number
    FixedArray<Single, 1, 8> SetupSpare2;
    std::int16_t StartStopOutside = 0;  ///< 1: the load may start and stop outside the girder; 0: not
    FixedArray<Single, 1, 5> SetupSpare3;

    /// What belongs to the project beside its record, such as crane data: JSON, see exchange/attached.h. Empty:
    /// nothing, as in every file of earlier versions.
    std::string Attached;

    bool operator==(const Project&) const = default;
};

/// The name of a new project's file, until it is saved under another.
inline constexpr const char* kNewProjectFile = "test.brvk";

/// sqrt(235 / fyk), EN 1993-1-1 Table 5.2; 0 where fyk is not above 0. @param fyk MPa
[[nodiscard]] Single epsilonOf(double fyk);

/// The rail of a project, a row of the rail table; the rail of a new project where the table has none of its name.
[[nodiscard]] const RailRecord& railOf(const Project& project, const ReferenceTables& tables);

/// The section that a new project and a new span start with.
[[nodiscard]] SectionRecord blankSection(const ReferenceTables& tables);

/// What the program starts with: three spans of HEA 300 under one two-wheel crane. Every field is set.
[[nodiscard]] Project DefaultProject(const ReferenceTables& tables);

/// The steel grade that lets the user type fyk freely.
inline constexpr const char* kGeneralSteel = "General";

/// Damage equivalence factor for direct stress by crane class
/// S0..S9, EN 1991-3 Table 2.12. The last is 1.32, as for shear.
extern const FixedArray<Single, 0, 9> LambdaSigma;
/// The same for shear stress.
extern const FixedArray<Single, 0, 9> LambdaTau;
/// "S0" to "S9".
extern const FixedArray<const char*, 0, 9> CraneClassName;

}  // namespace borvik

#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

#include "base/array.h"
#include "base/single.h"

namespace borvik {

/// One cross-section: its input and its computed properties. mm, mm2, mm3, mm4, mm6, kg/m; resistances in kN and kNm.
/// The order of the fields is their order in the project file. Axes: y strong, z weak.
struct SectionRecord {
    /// Family: "HEA", "HEB", "HEM", "IPE", "IPN" rolled; "Is" welded, equal flanges; "Iu" welded, unequal.
    std::string Id;
    std::string Fab;              ///< "R" rolled, "W" welded
    std::string TableName;        ///< designation in the section table, such as "IPE 300"
    std::int16_t TableIndex = 0;  ///< row of the section table, from 0
    std::int16_t CType = 0;       ///< column CType of the table
    Single Spare1;
    std::string ReinfText;
    std::string ReinfSuffix;  ///< appended to DisplayName when reinforced
    bool Reinforced = false;  ///< two plates stand at the tips of the top flange
    std::string DisplayName;  ///< the name shown everywhere; a span without one has no section
    bool InUse = false;       ///< in SectionList: assigned to a span

    /// Height, width of top and bottom flange, web, thickness of top and bottom flange.
    Single h, b1, b2, tw, tf1, tf2;
    Single R;  ///< root radius; for welded sections 0.4 tw
    FixedArray<Single, 1, 4> Spare2;
    Single ReinfD, ReinfB, ReinfT;  ///< depth, (unused) width and thickness of one reinforcement plate
    Single TfMax;                   ///< the larger of tf1, tf2
    FixedArray<Single, 1, 2> Spare3;
    Single A, It, Iy, Iz;
    Single IzLoadedFlange;   ///< IzTop for an overhead crane, IzBottom for a monorail
    Single IzTop, IzBottom;  ///< second moment about z of each flange alone
    Single Iw;
    FixedArray<Single, 1, 3> Spare4;
    Single GIt, EIw;            ///< stored for welded sections, read nowhere
    Single Weight;              ///< kg/m
    Single EzEl;                ///< elastic centroid above the underside
    Single EzEffPos, EzEffNeg;  ///< centroid of the effective section (class 4)
    Single EzPl;                ///< plastic neutral axis above the underside
    std::int16_t Spare5 = 0;

    Single Hw;             ///< clear web depth h - tf1 - tf2
    Single CWeb;           ///< flat web width Hw - 2 R
    Single CTop, CBottom;  ///< outstand of each flange, b/2 - R - tw/2
    std::int16_t ClassTopFlange = 0, ClassBottomFlange = 0;
    std::int16_t WebFatigueClass = 0;
    std::int16_t ClassWebPos = 0, ClassWebNeg = 0;
    std::int16_t ClassPos = 0, ClassNeg = 0;  ///< of the section: positive moment compresses the top flange

    Single Av, WyPos, WyNeg, Wely1, Wely2, WelMin, Wply, WplZ;
    Single Spare6;
    Single WplZTop, WplZBottom;
    Single WeffTopPos, WeffBottomPos, WeffTopNeg, WeffBottomNeg;
    Single VzRd, VplRd;  ///< kN, partial factors included
    Single MyRdPos, MyRdPosTop, MyRdPosBottom, MyRdNeg, MyRdNegTop,
        MyRdNegBottom;  ///< kNm, fyk x modulus, no partial factor
    Single Spare7;
    Single MzRd;  ///< kNm, of the loaded flange, no partial factor
    FixedArray<Single, 1, 18> Spare8;
    Single Zs;            ///< shear centre above the centroid
    Single Zg;            ///< point of load application above the shear centre
    Single ZjPos, ZjNeg;  ///< monosymmetry terms of lateral torsional buckling
    FixedArray<Single, 1, 8> Spare9;
    FixedArray<std::string, 1, 5> SpareText;  ///< 64 bytes each in the file, where blanks fill them

    bool operator==(const SectionRecord&) const = default;
};

/// True for a section of the families that are welded of plates, "Is" and "Iu".
[[nodiscard]] bool isWelded(const SectionRecord& section);
/// True for a section of the table of rolled ones, reinforced or not.
[[nodiscard]] bool isRolled(const SectionRecord& section);

/// One steel grade.
struct SteelGradeRow {
    std::string MatName;
    Single fyk1;  ///< MPa, the strength that the grade gives fyk; 0 for "General"
    Single fyk2;  ///< MPa, of products thicker than 40 mm; no check reads it: note B1
};

/// One rail. mm, mm2, mm4, kg/m.
struct RailRecord {
    std::string Id;  ///< "A" crane rail with head and foot, "P" flat bar
    std::string Name;
    Single RailAx;      ///< area
    Single RailWeight;  ///< kg/m
    Single RailHr;      ///< height
    Single RailBr;      ///< foot width
    Single RailKr;      ///< head width
    Single RailR1;
    Single RailE1;  ///< distance of the centroid from the top of the head
    Single RailIy;  ///< second moment of area
    Single RailH2, RailH3, RailF2, RailF3;

    bool operator==(const RailRecord&) const = default;
};

/// The three tables beside the program, read once at start and never changed.
struct ReferenceTables {
    Array<SectionRecord> SectionTable;   ///< from 0, rows as in Euprof.csv
    Array<RailRecord> RailTable;         ///< from 0, rows as in Rail.csv
    Array<SteelGradeRow> MaterialTable;  ///< from 0, rows as in ECmat.csv
};

/// Rows of the tables that the default project is made of: HEA 300, Pl 50x30, S355.
inline constexpr int kDefaultSection = 49;
inline constexpr int kDefaultRail = 7;
inline constexpr int kDefaultMaterial = 2;

/// A reference table that is missing or can't be used; the text names the file.
class TableError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Reads Euprof.csv, Rail.csv and ECmat.csv from `folder`. Tolerant line by line: a cell that is missing or unreadable
/// stays zero or empty and the loading goes on.
/// @throws TableError  when a file is missing or unreadable, or has too few rows for a default project (section row 49,
///                     rail row 7, material row 2, each with a name)
[[nodiscard]] ReferenceTables LoadTables(const std::string& folder);

/// The row of a section by its designation. @return index from 0, or -1
[[nodiscard]] int findSection(const ReferenceTables& tables, const std::string& name);
/// The row of a rail by its name. @return index from 0, or -1
[[nodiscard]] int findRail(const ReferenceTables& tables, const std::string& name);
/// The row of a steel grade by its name. @return index from 0, or -1
[[nodiscard]] int findMaterial(const ReferenceTables& tables, const std::string& name);

}  // namespace borvik

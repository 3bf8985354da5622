#pragma once

#include <array>
#include <string>

#include "project/project.h"

namespace borvik {

/// The stress range that a term of the damage sum takes at a place.
enum class Stress {
    TopFlange,       ///< Sig1Range
    BottomFlange,    ///< Sig2Range
    Web,             ///< TauRange, in the throats of the term's weld
    Support,         ///< SigSupRange
    Wheel,           ///< SigLoc, vertical, under the wheel
    WebAndWheel,     ///< the same as Web, plus TauLoc
    HangerReaction,  ///< reaction spread over hanger plate and flange into the web, or the throats of the weld
    FlangeBending,   ///< SigBend, transverse bending of the flange under the wheel
};

/// Where the partial factors stand in a term of range r, category C and exponent m.
enum class Factors {
    Usual,            ///< [GammaFf r/(C/GammaMf)]^m
    LoadOutside,      ///< GammaFf [r/(C/GammaMf)]^m: the load counts once only
    CategoryDivided,  ///< [(r GammaFf/C)/GammaMf]^m: GammaMf lowers the damage
};

/// A weld of the project: its kind ("FW" a pair of fillets, else full penetration) and its throat. None where not set.
struct Weld {
    std::string Project::*kind = nullptr;
    Single Project::*throat = nullptr;
};

/// One term of the damage sum of a crane.
struct Term {
    Stress stress = Stress::TopFlange;
    std::int16_t Project::*category = nullptr;  ///< reference strength at two million cycles, MPa
    int exponent = 0;  ///< slope: 3 for direct stress, 5 for shear, EN 1993-1-9 figures 7.1, 7.2; 0: no such term
    Weld weld = {};
    Factors factors = Factors::Usual;
    bool bracketed = false;  ///< the range is printed in brackets
};

/// Where a detail is checked.
enum class Places {
    SpanPoints,       ///< a row for each span, of its governing point
    StrongerSide,     ///< a row for each support, at the end of the neighbouring span with the larger Iy (the left at a
                      ///< tie): at a change of section the lower stress is the one checked: note G9
    RightOfSupport,   ///< a row for each support, at the start of the span to its right (the last: at its left)
    Splices,          ///< a row for each of four splices, at the point of its span that lies nearest
    MonorailSplices,  ///< the same with the monorail's splices; see kMonorailSplices for where the stress is read
};

/// What a row of a detail stands for.
enum class PlaceKind { Span, Support, Splice };
[[nodiscard]] PlaceKind kindOf(Places places);
/// "Span", "Support", "Splice".
[[nodiscard]] const char* nameOf(PlaceKind kind);

/// The stiffened support or the hanger of a detail: bearing length and thickness of its plate. None where not set.
struct SupportPlate {
    Single Project::*length = nullptr;
    std::string Project::*thickness = nullptr;
};

/// Damage sum of two cranes that also act together: D values of crane 1, of crane 2 and of both.
enum class Together {
    EachSet,           ///< D1, D2, D12: the term, taken of the sets Cr1, Cr2, Cr12
    TopFlangeWeld,     ///< six values of the weld between top flange and web
    BottomFlangeWeld,  ///< the web's shear in the welds of the bottom flange
};

/// Which cranes a check sums up, and so which label, first text of a row, it carries.
enum class Cranes { Alone, Independent, Together };

/// One fatigue detail: how it is called, where it is checked, and with what. Forms, tables and report read it here.
struct Detail {
    const char* name = "";        ///< in a fault
    const char* title = "";       ///< "1 Rail to topflange"
    const char* inputTitle = "";  ///< where the input is shown, if otherwise
    bool Project::*checked = nullptr;
    int result = 0;  ///< its number, entry of FatResult
    int rows = 0;    ///< entry of FatRows; where two share one, the later one's rows replace those of the earlier
    /// Of the terms' categories: x along the beam, y across, z vertical, t shear.
    std::array<const char*, 2> symbols = {};
    Weld weldShown = {};  ///< with the input; a term may read another
    SupportPlate plate = {};
    Places places = Places::SpanPoints;
    std::array<Term, 2> terms = {};
    std::array<const char*, 3> label = {};  ///< by Cranes
    Together together = Together::EachSet;
    bool rankedByFullDigits = false;  ///< points are ranked by the text of the whole number, not of its three decimals
};

/// The splices of the project, four of them in use.
struct SpliceFields {
    FixedArray<bool, 1, 10> Project::*used;
    FixedArray<Single, 1, 10> Project::*span;        ///< looked up rounded, halves to even
    FixedArray<Single, 1, 10> Project::*distance;    ///< mm from the left support of that span
    FixedArray<Single, 1, 10> Project::*stressSpan;  ///< the span at which the stress is read
};

extern const SpliceFields kOverheadSplices;
extern const SpliceFields kMonorailSplices;

/// The details of an overhead crane's girder and of a monorail, in the order in which they are checked.
extern const std::array<Detail, 6> kOverheadDetails;
extern const std::array<Detail, 6> kMonorailDetails;
[[nodiscard]] const std::array<Detail, 6>& detailsOf(const Project& project);

/// Where the input of a detail is shown it is called so.
[[nodiscard]] const char* inputTitleOf(const Detail& detail);

/// Whether the rows of a detail that was checked have been
/// replaced by those of another: only its governing row is left.
[[nodiscard]] bool rowsAreReplaced(const Detail& detail, const Project& project);

}  // namespace borvik

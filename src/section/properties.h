#pragma once

#include "project/choices.h"
#include "tables/reference_tables.h"

namespace borvik {

/// What the properties and resistances of a section depend on besides the section itself.
struct SectionSetting {
    CraneKind CraneType = CraneKind::Overhead;  ///< an overhead crane loads the top flange, any other the bottom flange
    LoadPoint LoadLevel = LoadPoint::TopOfRail;  ///< any value without a name: bottom flange
    EndPost StiffenerMode = EndPost::NonRigid;   ///< any other is rigid
    Single RailHr;                               ///< height of the rail, mm
    Single Epsilon;                              ///< sqrt(235 / fyk)
    Single fyk;                                  ///< N/mm2
    Single Eta;                                  ///< shear area factor, EN 1993-1-5, 5.1
    Single GammaM0, GammaM1;
};

/// Completes a rolled section whose published values have just been loaded: widths, elastic moduli, shear area,
/// properties of the flanges alone, level of the load. A, Iy, Iz, It, Iw, Wply and WplZ stay as published; Zs isn't
/// touched. In: h, b1, b2, tw, tf1, tf2, R, A, Iy. Source: EN 1993-1-1, 6.2.6(3)a for Av.
void RolledProperties(const SectionSetting& setting, SectionRecord& section);

/// Computes a welded I from its plates: Id "Iu" of unequal flanges, any other of equal ones, whose b2 and tf2 are set
/// to b1 and tf1. In: Id, h, b1, b2, tw, tf1, tf2; out: DisplayName and every property but the classes and resistances.
/// WplZ isn't touched. Source: EN 1993-1-1, 6.2.6(3)d for Av.
void WeldedProperties(const SectionSetting& setting, SectionRecord& section);

/// Adds two plates of depth ReinfD and thickness ReinfT that hang from the tips of the top flange, their tops at its
/// middle plane. The section must just have been rebuilt by one of the procedures above: its values are added to. WplZ,
/// WplZBottom, Weight and Av stay those of the section without plates.
void ReinforcedProperties(const SectionSetting& setting, SectionRecord& section);

}  // namespace borvik

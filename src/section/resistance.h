#pragma once

#include "base/working.h"
#include "section/properties.h"

namespace borvik {

/// Classes and resistances of a section whose geometry is up to date. Plates of a reinforced section are added first.
/// Out: the classes; the effective section where a class is 4; moment resistances fyk W in kNm without a partial factor
/// (the checks divide by GammaM0 or GammaM1); shear resistances in kN with theirs. Source: EN 1993-1-1, 6.2.5
/// and 6.2.6; EN 1993-1-5, 5.2 and 5.3 (without the contribution of the flanges).
void SectionResistance(const SectionSetting& setting, SectionRecord& section, Working working = {});

/// Classes 1 to 4 of flanges, web and section under either sign of the moment, EN 1993-1-1 Table 5.2. Positive moment
/// compresses the top flange.
void Classify(double Epsilon, SectionRecord& section, Working working = {});

/// The effective section of class 4 under either sign of the moment: WeffTopPos, WeffBottomPos, EzEffPos, WeffTopNeg,
/// WeffBottomNeg, EzEffNeg. Source: EN 1993-1-5, 4.4.
void EffectiveSection(double Epsilon, SectionRecord& section, Working working = {});

/// Shear buckling factor chi_w of the web, EN 1993-1-5 Table 5.1.
/// @param lambdaW        slenderness of the web, > 0
[[nodiscard]] double shearBucklingFactor(double lambdaW, double Eta, EndPost endPost);

}  // namespace borvik

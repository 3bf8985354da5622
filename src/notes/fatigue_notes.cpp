#include "notes/fatigue_findings.h"
#include "notes/note_rules.h"

namespace borvik {

namespace {

constexpr auto kFatigue = NoteCheck::Fatigue;
constexpr auto kUnsafe = NoteEffect::Unsafe;
constexpr auto kEither = NoteEffect::Either;

constexpr NoteRule kRules[]{
    {"G1", kFatigue, kUnsafe,
     "With simultaneous action at a constant distance the sum for the weld of top flange and web takes the factors of "
     "crane 2 and of both cranes, which are zero, so that the stress under the wheels nearly vanishes.",
     "with the train checked as one crane", "EN 1993-6 9.4.2", trainCheckedAsThree},
    {"G2", kFatigue, kUnsafe,
     "Class S9 takes 1.32 as damage equivalence factor of direct stress where the table has 1.587.", "with 1.587",
     "EN 1991-3 Table 2.12", classS9},
    {"G3", kFatigue, kUnsafe,
     "The direct stress at a monorail's support is divided by the partial factor of fatigue strength once more instead "
     "of being multiplied by it.",
     "with the factor in its usual place", "EN 1993-1-9 8", dividedByGammaMf},
    {"G4", kFatigue, kUnsafe,
     "The load factor of fatigue stands outside the fifth power of the shear stress, so that it counts once only.",
     "with the factor in the power", "EN 1993-1-9 8", loadFactorOutside},
    {"G5", kFatigue, kUnsafe,
     "The bending of the bottom flange under the wheels is formed without the dynamic factor of fatigue loads; the "
     "beam's own stress and wheels close to each other are not added to it.",
     "with the dynamic factor", "EN 1991-3 2.12.1(7), EN 1993-6 9.3.4", flangeWithoutDynamicFactor},
    {"G6", kFatigue, kUnsafe,
     "Crane 2 alone is walked from the place of crane 1, so that it never comes to the far end of the beam, where it "
     "stands when it works to the right of crane 1.",
     "with crane 2 where it can stand", "", placesOfCrane2},
    {"G7", kFatigue, kUnsafe,
     "Independent cranes add their own damage only; where they meet now and then, the damage of both at once is to be "
     "added, two classes below the lower one.",
     "with both at once", "EN 1993-6 9.4.2", cranesThatMeet},
    {"G8", kFatigue, kUnsafe,
     "The weld of top flange and web is checked for the stress under the wheel and for shear; the beam's own bending "
     "stress along it is not added.",
     "with it, category 160 for a rolled and 100 for a welded section", "EN 1993-1-9 8(3), Tables 8.1, 8.2",
     bendingAtTopWeld},
    {"G9", kFatigue, kUnsafe,
     "At a support where the section changes the stiffener's detail is checked on the stiffer side, which as a rule "
     "has the lower stress.",
     "on the other side", "", strongerSide},
    {"G10", kFatigue, kUnsafe,
     "A splice between two twentieths of its span is checked with the stress of the nearest one.",
     "with the larger stress of the two beside it", "", spliceOffThePoints},
    {"G11", kFatigue, kUnsafe,
     "With simultaneous action the weld of top flange and web mixes factors: the stress under the wheels of crane 1 "
     "has the factor of both cranes, two classes lower, and fillets carry the web's shear without their throats.",
     "with each crane's own factors", "EN 1993-6 9.4.2", mixedFactors},
    {"G12", kFatigue, kEither,
     "With simultaneous action the weld of bottom flange and web is multiplied by tw/(2a) of W1 on top of its own, and "
     "by its own even with full penetration.",
     "with its own throats only", "EN 1993-1-9 5(6)", mixedThroats},
    {"G13", kFatigue, kUnsafe,
     "With simultaneous action the wheel that counts at the top flange is chosen before the dynamic factors are "
     "applied.",
     "with the larger force", "EN 1991-3 2.12.1(7)", heavierWheel},
    {"G14", kFatigue, kUnsafe,
     "A partial factor of fatigue strength below 1.35 rests on regular inspection or on minor consequences of a "
     "failure.",
     "", "EN 1993-1-9 Table 3.1, EN 1993-6 9.2", inspectionAssumed, true},
    {"G15", kFatigue, kUnsafe, "The splice of a flange thicker than 25 mm is checked without the size effect.",
     "with (25/t)^0.2 on the category", "EN 1993-1-9 7.2.2, Table 8.3", sizeEffect},
    {"G18", kFatigue, kEither,
     "At the supports crane 2 and both cranes are checked on fillet throats at the web's foot that a rolled section "
     "does not have.",
     "with the rolled web", "EN 1993-1-9 5", throatsOfRolledWeb},
    {"G19", kFatigue, kUnsafe,
     "Horizontal wheel loads are in no fatigue check; with high classes and large side forces they can govern the "
     "top flange.",
     "", "EN 1991-3 2.12, EN 1993-6 9.3", horizontalLoads},
    {"G20", kFatigue, kEither,
     "The weld of a monorail's bottom flange and web takes its kind from W3 and its throat from W4.",
     "with kind and throat of W4", "EN 1993-1-9 5(6)", kindOfOtherWeld},
    {"G21", kFatigue, kUnsafe,
     "Above class S3 the web also bends under a wheel that stands a quarter of the rail head's width off its middle; "
     "the weld of top flange and web is checked without it.",
     "with it and no stiffeners in the span", "EN 1993-6 5.7.3, 9.3.3, EN 1991-3 2.5.2.1", eccentricWheel},
    {"G22", kFatigue, kEither, "In the run of both cranes crane 1 rolls on the wheel distances of crane 2.",
     "with its own", "EN 1993-6 9.4.2", gapsOfCrane2},
    {"G23", kFatigue, kUnsafe,
     "Two cranes at a constant distance take class and dynamic factor of crane 1 for both, though crane 2 has the "
     "higher ones.",
     "with the higher ones", "EN 1993-6 9.4.2, EN 1991-3 2.12", factorsOfTrain},
    {"G24", kFatigue, kEither,
     "A monorail's splice is read in the span that the overhead crane's splice of the same number names. To mend it, "
     "choose Overhead Crane, give that splice the same span, choose Monorail again and enter the loads anew.",
     "in its own span", "", spanOfOtherSplice},
    {"G25", kFatigue, kUnsafe, "A splice is checked at the bottom flange only.", "at the top flange", "",
     topFlangeOfSplice},
};

}  // namespace

std::span<const NoteRule> fatigueNotes() {
    return kRules;
}

}  // namespace borvik

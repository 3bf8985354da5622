#include "fatigue/details.h"

#include <algorithm>

namespace borvik {

namespace {

constexpr int kDirect = 3;
constexpr int kShear = 5;

constexpr Weld kW1{&Project::W1, &Project::W1a};
constexpr Weld kW2{&Project::W2, &Project::W2a};
constexpr Weld kRW2{&Project::RW2, &Project::RW2a};
constexpr Weld kRW3{&Project::RW3, &Project::RW3a};
/// Detail 6 of a monorail: RW3 holds the kind of the weld, RW4
/// its throat; the kind of RW4 is read by nothing. Note G20.
constexpr Weld kRW3throatRW4{&Project::RW3, &Project::RW4a};

constexpr bool kBracketed = true;

}  // namespace

const SpliceFields kOverheadSplices{&Project::ChkFat5Sp, &Project::Fat5Span, &Project::Fat5d1, &Project::Fat5Span};

/// The stress of a monorail's splice is read at the span that the overhead crane's
/// splice of the same number names, while its point and the printed place follow
/// its own span: note G24. Both fields carry the same span in a sound project.
const SpliceFields kMonorailSplices{&Project::ChkFatR5Sp, &Project::FatR5Span, &Project::FatR5d1, &Project::Fat5Span};

// The labels are printed as they stand, blanks included.
const std::array<Detail, 6> kOverheadDetails{{
    {.name = "Fatigue detail 1, rail to top flange",
     .title = "1 Rail to topflange",
     .checked = &Project::Fat1,
     .result = 1,
     .rows = 1,
     .symbols = {"Cx"},
     .places = Places::SpanPoints,
     .terms = {{{Stress::TopFlange, &Project::Fat1C1, kDirect}}},
     .label = {"1: IR =[dSigE2/dSigc]^3 = ", "1: IR =[dSigE2/dSigc]^3 +[dSigE2/dSigc]^3 = ",
               "1: IR = D1^3 + D2^3 +D12^3 = "}},

    {.name = "Fatigue detail 2, stiffener to bottom flange",
     .title = "2 Stiffener to bottom flange",
     .checked = &Project::Fat2,
     .result = 2,
     .rows = 2,
     .symbols = {"Cx"},
     .places = Places::StrongerSide,
     .terms = {{{Stress::BottomFlange, &Project::Fat2C1, kDirect}}},
     .label = {"2: IR =[dSigE2/dSigc]^3 = ", "2: IR =[dSigE2/dSigc]^3 +[dSigE2/dSigc]^3 = ",
               "2: IR =D1^3 + D2^3 + D12^3 = "}},

    {.name = "Fatigue detail 3, top flange to web",
     .title = "3 Top flange/web",
     .checked = &Project::Fat3,
     .result = 3,
     .rows = 3,
     .symbols = {"Cz", "Ct"},
     .weldShown = kW1,
     .places = Places::SpanPoints,
     .terms = {{{Stress::Wheel, &Project::Fat3C1, kDirect},
                {Stress::WebAndWheel, &Project::Fat3C2, kShear, kW1, Factors::Usual, kBracketed}}},
     .label = {"3: IR = [dSigE2/dSigc]^3+[dTauE2/dTauc]^5 = ", "3: IR = ",
               "3: IR = D1^3 + D1^5 + D2^3 + D2^5 + D12^3 + D12^5 = "},
     .together = Together::TopFlangeWeld},

    // Its rows live in the list of detail 6, which stands behind it and replaces them when it is checked too: note H6.
    // The load factor stands outside the power, though the printed formula shows it inside: note G4.
    {.name = "Fatigue detail 4, bottom flange to web",
     .title = "4 Bottom flange/web",
     .checked = &Project::Fat4,
     .result = 4,
     .rows = 6,
     .symbols = {"Ct"},
     .weldShown = kW2,
     .places = Places::SpanPoints,
     .terms = {{{Stress::Web, &Project::Fat4C1, kShear, kW2, Factors::LoadOutside}}},
     .label = {"4: IR = [dTauE2/dTauc]^5 = ", "4: IR = [dTauE2/dTauc]^5 + [dTauE2/dTauc]^5 = ",
               "4: IR = D1^5 + D2^5 +D12^5 = "},
     .together = Together::BottomFlangeWeld},

    {.name = "Fatigue detail 5, beam splice",
     .title = "5 Beam Splice",
     .checked = &Project::Fat5,
     .result = 5,
     .rows = 5,
     .symbols = {"Cx"},
     .places = Places::Splices,
     .terms = {{{Stress::BottomFlange, &Project::Fat5C1, kDirect}}},
     .label = {"5: IR = [dSigE2/dSigc]^3 = ", "5: IR = [dSigE2/dSigc]^3 +[dSigE2/dSigc]^3 = ",
               "5: IR = D1^3 + D2^3 +D12^3 = "}},

    {.name = "Fatigue detail 6, support point",
     .title = "6 Support Point",
     .inputTitle = "6  Support Point",
     .checked = &Project::Fat6,
     .result = 6,
     .rows = 6,
     .symbols = {"Cz"},
     .weldShown = {&Project::W3, &Project::W3a},
     .plate = {&Project::Fat6d1, &Project::WS1t},
     .places = Places::StrongerSide,
     .terms = {{{Stress::Support, &Project::Fat6C1, kDirect}}},
     .label = {"6: IR = [dSigE2/dSigc]^3 = ", "6: IR = [dSigE2/dSigc]^3 + [dSigE2/dSigc]^3 = ",
               "6: IR = D1^3 + D2^3 +D12^3 = "}},
}};

const std::array<Detail, 6> kMonorailDetails{{
    {.name = "Fatigue detail 1, edge of support",
     .title = "1 Edge of Support",
     .checked = &Project::FatR1,
     .result = 1,
     .rows = 1,
     .symbols = {"Cx"},
     .places = Places::RightOfSupport,
     .terms = {{{Stress::TopFlange, &Project::FatR1C1, kDirect}}},
     .label = {"1: IR =[dSigE2/dSigc]^3 = "}},

    {.name = "Fatigue detail 2, support to top flange",
     .title = "2 Support to top flange",
     .checked = &Project::FatR2,
     .result = 2,
     .rows = 2,
     .symbols = {"Cz"},
     .weldShown = {&Project::RW1, &Project::RW1a},
     .plate = {&Project::RWS1d, &Project::RWS1t},
     .places = Places::RightOfSupport,
     .terms = {{{Stress::Support, &Project::FatR2C1, kDirect}}},
     .label = {"2: IR = [dSigE2/dSigc]^3 = "}},

    // GammaMf divides the direct term's damage instead of raising it, though the printed formula shows the usual form:
    // note G3. The load factor stands outside the power of its shear term: note G4.
    {.name = "Fatigue detail 3, top flange to web at support",
     .title = "3 Top flange/web at support",
     .checked = &Project::FatR3,
     .result = 3,
     .rows = 3,
     .symbols = {"Cz", "Ct"},
     .weldShown = kRW2,
     .places = Places::RightOfSupport,
     .terms = {{{Stress::HangerReaction, &Project::FatR3C1, kDirect, kRW2, Factors::CategoryDivided},
                {Stress::Web, &Project::FatR3C2, kShear, kRW2, Factors::LoadOutside}}},
     .label = {"3: IR = [dSigE2/dSigc]^3 + [dTauE2/dTauc]^5 = "}},

    {.name = "Fatigue detail 4, top flange to web",
     .title = "4 Top flange/web",
     .checked = &Project::FatR4,
     .result = 4,
     .rows = 4,
     .symbols = {"Ct"},
     .weldShown = kRW3,
     .places = Places::SpanPoints,
     .terms = {{{Stress::Web, &Project::FatR4C1, kShear, kRW3, Factors::Usual, kBracketed}}},
     .label = {"4: IR = [dTauE2/dTauc]^5 = "}},

    {.name = "Fatigue detail 5, beam splice",
     .title = "5 Beam Splice",
     .checked = &Project::FatR5,
     .result = 5,
     .rows = 5,
     .symbols = {"Cx"},
     .places = Places::MonorailSplices,
     .terms = {{{Stress::BottomFlange, &Project::FatR5C1, kDirect}}},
     .label = {"5: IR = [dSigE2/dSigc]^3 = "}},

    // One term is the same all along a span; points are ranked by the text of the whole sum against the three decimals
    // of the row so far. So of points that show alike a later one may be named (theory manual, H4).
    {.name = "Fatigue detail 6, bottom flange to web",
     .title = "6 Bottom flange/web",
     .checked = &Project::FatR6,
     .result = 6,
     .rows = 6,
     .symbols = {"Cy", "Ct"},
     .weldShown = {&Project::RW4, &Project::RW4a},
     .places = Places::SpanPoints,
     .terms = {{{Stress::FlangeBending, &Project::FatR6C1, kDirect},
                {Stress::Web, &Project::FatR6C2, kShear, kRW3throatRW4, Factors::Usual, kBracketed}}},
     .label = {"6: IR = [dSigE2/dSigc]^3+[dTauE2/dTauc]^5 = "},
     .rankedByFullDigits = true},
}};

PlaceKind kindOf(Places places) {
    switch (places) {
        case Places::SpanPoints:
            return PlaceKind::Span;
        case Places::StrongerSide:
        case Places::RightOfSupport:
            return PlaceKind::Support;
        case Places::Splices:
        case Places::MonorailSplices:
            break;
    }
    return PlaceKind::Splice;
}

const char* nameOf(PlaceKind kind) {
    constexpr const char* kNames[] = {"Span", "Support", "Splice"};
    return kNames[static_cast<int>(kind)];
}

const std::array<Detail, 6>& detailsOf(const Project& project) {
    return project.CraneType == CraneKind::Monorail ? kMonorailDetails : kOverheadDetails;
}

const char* inputTitleOf(const Detail& detail) {
    return *detail.inputTitle ? detail.inputTitle : detail.title;
}

bool rowsAreReplaced(const Detail& detail, const Project& project) {
    const bool hung = std::any_of(kMonorailDetails.begin(), kMonorailDetails.end(),
                                  [&](const Detail& other) { return &other == &detail; });
    const auto& details = hung ? kMonorailDetails : kOverheadDetails;
    return std::any_of(details.begin(), details.end(), [&](const Detail& other) {
        return other.rows == detail.rows && other.result > detail.result && project.*other.checked;
    });
}

}  // namespace borvik

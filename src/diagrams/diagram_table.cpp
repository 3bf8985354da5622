#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "diagrams/diagram_series.h"
#include "diagrams/sketch_geometry.h"

namespace borvik {
namespace {

// What diagrams of one family share: heights on the screen and on paper.
struct Heights {
    DiagramLayout screen, paper;
};
const Heights kSketch{{{0.0, 140.0}, {80.0}}, {{-10.0, 88.0}, {50.0}}};
const Heights kForces{{{0.0, 276.0}, {76.0, 190.0}, 248.0}, {{-10.0, 215.0}, {59.0, 139.0}, 200.0}};
const Heights kDeflection{{{80.0, 188.0}, {120.0}}, {{-10.0, 88.0}, {20.0}}};
const Heights kStress{{{44.0, 184.0}, {120.0}}, {{-10.0, 124.0}, {66.0}}};
const Heights kRange{{{40.0, 134.0}, {120.0}}, {{-10.0, 88.0}, {70.0}}};
const Heights kReactions{{{80.0, 180.0}, {120.0}, 128.0}, {{-10.0, 88.0}, {20.0}, 27.0}};

std::string sketchTitle(const DiagramKind& kind, const Project& project) {
    std::string title = craneGeometry(project).factor == 1.0 ? kind.title : "Beam Data (mm/kN, Not to scale)";
    if (project.Fixerad) title += " - fixed position of crane";
    return title;
}

/// Titles of the stress diagrams: behind "FLS - " with one crane, behind
/// "FLS - Crane 1" with two. The title of the bottom flange with one crane names the top
/// flange; that text is kept, and the remark behind it tells which flange it is.
struct StressTexts {
    StressQuantity quantity;
    bool range;
    const char* alone;
    const char* oneOfTwo;
    const char* remark;
};
constexpr StressTexts kStressTexts[] = {
    {StressQuantity::Top, false, "Stress in top flange (MPa)", " - Stress in top flange (MPa)", "Max/Min, + tension"},
    {StressQuantity::Top, true, "stress range top flange (MPa)", " - stress range top flange (MPa)", ""},
    {StressQuantity::Bottom, false, "Stress in top flange (MPa)", " - Stress in bottom flange (MPa)",
     "Max/Min in the bottom flange, + tension"},
    {StressQuantity::Bottom, true, "stress range bottom flange (MPa)", " stress range bottom flange (MPa)", ""},
    {StressQuantity::Shear, false, "Shear stress in web (MPa)", " - Shear stress in web (MPa)", "Max/Min"},
    {StressQuantity::Shear, true, "shear stress range in web (MPa)", " shear stress range in web (MPa)", ""},
};

const StressTexts& stressTexts(StressQuantity quantity, bool range) {
    return *std::find_if(std::begin(kStressTexts), std::end(kStressTexts),
                         [&](const StressTexts& texts) { return texts.quantity == quantity && texts.range == range; });
}

std::string stressTitle(const DiagramKind& kind, const Project& project) {
    if (project.NofCranes != 2) return std::string("FLS - ") + kind.title;
    return "FLS - Crane " + std::to_string(kind.crane) + stressTexts(kind.quantity, kind.range).oneOfTwo;
}

DiagramKind stress(Diagram id, const char* name, int crane, StressQuantity quantity) {
    DiagramKind kind{id, name, stressTexts(quantity, false).alone, kStress.screen, kStress.paper, stressTitle};
    kind.panels = stressPanel;
    kind.remark = stressTexts(quantity, false).remark;
    if (quantity == StressQuantity::Shear) kind.signs = {{Sign::Shape::Shear, "+Tau"}};
    kind.crane = crane;
    kind.walk = crane == 1 ? WalkOf::FatigueCrane1 : WalkOf::FatigueCrane2;
    kind.quantity = quantity;
    return kind;
}

DiagramKind stressRange(Diagram id, const char* name, int crane, StressQuantity quantity) {
    DiagramKind kind = stress(id, name, crane, quantity);
    kind.title = stressTexts(quantity, true).alone;
    kind.screen = kRange.screen;
    kind.paper = kRange.paper;
    kind.remark = stressTexts(quantity, true).remark;
    kind.signs.clear();
    kind.range = true;
    return kind;
}

const std::vector<DiagramKind> kDiagrams{
    {.id = Diagram::Sketch,
     .name = "Sketch",
     .title = "Beam Data (mm/kN)",
     .screen = kSketch.screen,
     .paper = kSketch.paper,
     .titleOf = sketchTitle},
    {.id = Diagram::UlsMyVz,
     .name = "UlsMyVz",
     .title = "ULS - My/Vz/Rz (kN/kNm)",
     .screen = kForces.screen,
     .paper = kForces.paper,
     .panels = forcePanels,
     .supportTexts = ulsReactions,
     .remark = "My on the tension side, + sagging below; L from the left support",
     .signs = {{Sign::Shape::Moment, "+My"}, {Sign::Shape::Shear, "+Vz"}}},
    {.id = Diagram::UlsMzVy,
     .name = "UlsMzVy",
     .title = "ULS - Mz/Vy/Ry (kN/kNm)",
     .screen = kForces.screen,
     .paper = kForces.paper,
     .panels = forcePanels,
     .supportTexts = ulsReactions,
     .remark = "Mz on the tension side, + below; L from the left support",
     .signs = {{Sign::Shape::Moment, "+Mz"}, {Sign::Shape::Shear, "+Vy"}},
     .horizontal = true},
    {.id = Diagram::SlsUz,
     .name = "SlsUz",
     .title = "SLS - Uz (mm)",
     .screen = kDeflection.screen,
     .paper = kDeflection.paper,
     .panels = deflectionPanel,
     .remark = "largest magnitude, drawn below the beam",
     .walk = WalkOf::Sls},
    {.id = Diagram::SlsUy,
     .name = "SlsUy",
     .title = "SLS - Uy (mm)",
     .screen = kDeflection.screen,
     .paper = kDeflection.paper,
     .panels = deflectionPanel,
     .remark = "largest magnitude, drawn below the beam",
     .horizontal = true,
     .walk = WalkOf::Sls},
    stress(Diagram::Cr1Top, "Cr1Top", 1, StressQuantity::Top),
    stressRange(Diagram::Cr1TopRange, "Cr1TopRange", 1, StressQuantity::Top),
    stress(Diagram::Cr1Bottom, "Cr1Bottom", 1, StressQuantity::Bottom),
    stressRange(Diagram::Cr1BottomRange, "Cr1BottomRange", 1, StressQuantity::Bottom),
    stress(Diagram::Cr1Shear, "Cr1Shear", 1, StressQuantity::Shear),
    stressRange(Diagram::Cr1ShearRange, "Cr1ShearRange", 1, StressQuantity::Shear),
    stress(Diagram::Cr2Top, "Cr2Top", 2, StressQuantity::Top),
    stressRange(Diagram::Cr2TopRange, "Cr2TopRange", 2, StressQuantity::Top),
    stress(Diagram::Cr2Bottom, "Cr2Bottom", 2, StressQuantity::Bottom),
    stressRange(Diagram::Cr2BottomRange, "Cr2BottomRange", 2, StressQuantity::Bottom),
    stress(Diagram::Cr2Shear, "Cr2Shear", 2, StressQuantity::Shear),
    stressRange(Diagram::Cr2ShearRange, "Cr2ShearRange", 2, StressQuantity::Shear),
    // The reaction at the last support is that of the shear there, as the fatigue walk keeps it.
    {.id = Diagram::FlsReactions,
     .name = "FlsReactions",
     .title = "FLS - Reactions (kN) excluding lamda factor",
     .screen = kReactions.screen,
     .paper = kReactions.paper,
     .supportTexts = flsReactions,
     .remark = "max/min; at the last support with the sign of the shear",
     .walk = WalkOf::FatigueCrane1},
};

const std::vector<PictureKind> kPictures{
    {"MyVz", "My + Vz", "ULS/SLS", "diagram-forces.md", {Diagram::UlsMyVz}},
    {"MzVy", "Mz + Vy", "ULS/SLS", "diagram-forces.md", {Diagram::UlsMzVy}},
    {"Uz", "Uz + Uy", "ULS/SLS", "diagram-deflections.md", {Diagram::SlsUz, Diagram::SlsUy}},
    {"Cr1Sp1", "Cr1-Point 1", "FLS", "diagram-fatigue.md", {Diagram::Cr1Top, Diagram::Cr1TopRange}},
    {"Cr1Sp2", "Cr1-Point 2", "FLS", "diagram-fatigue.md", {Diagram::Cr1Bottom, Diagram::Cr1BottomRange}},
    {"Cr1Sp3", "Cr1-Point 3", "FLS", "diagram-fatigue.md", {Diagram::Cr1Shear, Diagram::Cr1ShearRange}},
    {"Cr2Sp1", "Cr2-Point 1", "FLS", "diagram-fatigue.md", {Diagram::Cr2Top, Diagram::Cr2TopRange}},
    {"Cr2Sp2", "Cr2-Point 2", "FLS", "diagram-fatigue.md", {Diagram::Cr2Bottom, Diagram::Cr2BottomRange}},
    {"Cr2Sp3", "Cr2-Point 3", "FLS", "diagram-fatigue.md", {Diagram::Cr2Shear, Diagram::Cr2ShearRange}},
    {"CrRz", "Reactions", "", "diagram-reactions.md", {Diagram::FlsReactions}},
};

bool hasShown(const DiagramKind& kind, const DiagramData& data) {
    return data.results != nullptr && (!kind.horizontal || data.project.HasLoadsY);
}

}  // namespace

std::span<const DiagramKind> diagramKinds() {
    return kDiagrams;
}

const DiagramKind& diagramKind(Diagram diagram) {
    const auto found = std::find_if(kDiagrams.begin(), kDiagrams.end(),
                                    [diagram](const DiagramKind& kind) { return kind.id == diagram; });
    if (found == kDiagrams.end()) throw std::logic_error("a diagram that has no row");
    return *found;
}

std::span<const PictureKind> pictureKinds() {
    return kPictures;
}

bool DiagramKind::isAvailable(const Project& project) const {
    if (horizontal) return project.HasLoadsY;
    return crane != 2 || project.NofCranes == 2;
}

bool PictureKind::needsLoadsY() const {
    return std::all_of(diagrams.begin(), diagrams.end(),
                       [](Diagram diagram) { return diagramKind(diagram).horizontal; });
}

int PictureKind::crane() const {
    return diagramKind(diagrams.front()).crane;
}

std::vector<Panel> diagramPanels(const DiagramKind& kind, const DiagramData& data) {
    return kind.panels != nullptr && hasShown(kind, data) ? kind.panels(kind, data) : std::vector<Panel>{};
}

SupportTexts supportTexts(const DiagramKind& kind, const DiagramData& data) {
    return kind.supportTexts != nullptr && hasShown(kind, data) ? kind.supportTexts(data, kind.horizontal)
                                                                : SupportTexts{};
}

std::string diagramRemark(const DiagramKind& kind, const DiagramData& data) {
    const bool ofFatigue = kind.crane != 0 || kind.supportTexts == flsReactions;
    const bool oneTrain =
        data.results != nullptr && data.project.NofCranes == 2 && stressSet(data, 1) && !stressSet(data, 2);
    if (!ofFatigue || !oneTrain) return kind.remark;
    if (kind.crane == 2) return "both cranes run as one train: see crane 1";
    return std::string(kind.remark) + (*kind.remark == '\0' ? "" : "; ") + "both cranes run as one train";
}

double largestOf(const Panel& panel, const Project& project) {
    double largest = 0.0;
    for (const Curve& curve : panel.curves)
        for (int span = 1; span <= project.NofSpans; ++span)
            for (int k = 1; k <= kPoints; ++k) largest = std::max(largest, std::abs(curve.at(span, k)));
    return largest == 0.0 ? 1.0 : largest;
}

double offsetOf(const Panel& panel, double value, double largest) {
    const double offset = value / largest * kAmplitude;
    switch (panel.upwards) {
        case Upwards::Positive:
            return -offset;
        case Upwards::Negative:
            return offset;
        case Upwards::Never:
            return std::abs(offset);
    }
    return 0.0;
}

std::string diagramTitle(const DiagramKind& kind, const Project& project) {
    return kind.titleOf != nullptr ? kind.titleOf(kind, project) : kind.title;
}

}  // namespace borvik

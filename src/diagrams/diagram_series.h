#pragma once

#include "diagrams/diagram_kind.h"

namespace borvik {

/// Moment above shear, of the vertical plane or of the horizontal one: kNm, kN.
[[nodiscard]] std::vector<Panel> forcePanels(const DiagramKind& kind, const DiagramData& data);
/// mm
[[nodiscard]] std::vector<Panel> deflectionPanel(const DiagramKind& kind, const DiagramData& data);
/// MPa
[[nodiscard]] std::vector<Panel> stressPanel(const DiagramKind& kind, const DiagramData& data);

/// The ULS reactions, kN.
[[nodiscard]] SupportTexts ulsReactions(const DiagramData& data, bool horizontal);
/// The FLS reactions of each crane and of both, kN.
[[nodiscard]] SupportTexts flsReactions(const DiagramData& data, bool horizontal);

/// The stresses of that crane. Two cranes at a constant distance run as one train, and crane 2 has none of its own.
[[nodiscard]] const std::optional<StressSet>& stressSet(const DiagramData& data, int crane);

}  // namespace borvik

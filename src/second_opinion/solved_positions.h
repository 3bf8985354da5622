#pragma once

#include <map>
#include <optional>
#include <utility>
#include <vector>

#include "analysis/driven_cranes.h"
#include "calculation/session.h"
#include "second_opinion/buckling.h"
#include "second_opinion/second_opinion.h"
#include "second_opinion/torsion.h"
#include "second_opinion/wheel_torques.h"

namespace borvik {

/// The whole beam at one position of the cranes.
struct SolvedBeam {
    double wheel1 = 0;                              ///< mm from the first support
    std::vector<SpanLoading> vertical, horizontal;  ///< [spans] from 0
    std::vector<TorsionState> torsion[2];           ///< vertical loads beside the web on the +y side, on the other
    std::optional<BucklingResult> buckling;
};

/// Solves torsion and buckling at positions of the ultimate limit state, each position once.
class SolvedPositions {
public:
    /// @throws RuntimeFault  where a lateral support is not on the beam, or the beam has no stiffness
    SolvedPositions(const Session& session, const SecondOpinionOptions& options);

    [[nodiscard]] const LineBeam& beam() const { return beam_; }
    [[nodiscard]] const WheelTorques& torques() const { return torques_; }
    [[nodiscard]] std::vector<LargestBimoment> largestBimoments() const;
    [[nodiscard]] const SolvedBeam& at(WalkPosition position);
    /// The span, from 0, to which a state belongs: at a support there is one of each neighbour.
    [[nodiscard]] std::size_t spanOf(const std::vector<TorsionState>& states, std::size_t index) const;

private:
    [[nodiscard]] SpanLoading verticalLoading(int span) const;
    [[nodiscard]] SpanLoading horizontalLoading(int span) const;
    void solveTorsion(SolvedBeam& solved) const;

    const Project& project_;
    const RunLoads& loads_;
    LineBeam beam_;
    WheelTorques torques_;
    std::vector<LateralSupport> supports_;
    DrivenCranes cranes_;
    std::map<std::pair<int, int>, SolvedBeam> solved_;
};

}  // namespace borvik

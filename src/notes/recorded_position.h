#pragma once

#include <optional>

#include "analysis/driven_cranes.h"
#include "calculation/session.h"

namespace borvik {

/// One span at one position of the cranes.
struct SpanAtPosition {
    PointSteps My{};    ///< [1..21], Nmm
    SpanWheels wheels;  ///< vertical loads that stand in the span, N
};

/// Solves again the positions of the cranes that records of the ultimate limit state name.
class RecordedPositions {
public:
    explicit RecordedPositions(const Session& session);

    /// The span at the position of its largest My, MyMaxSpan, or of its most negative support moment, MySupportSpan.
    /// nullopt where no position gave the record.
    [[nodiscard]] std::optional<SpanAtPosition> atLargest(int span);
    [[nodiscard]] std::optional<SpanAtPosition> atSupportMoment(int span);

private:
    [[nodiscard]] std::optional<SpanAtPosition> at(WalkPosition position, int span);

    const UlsPositions& positions_;
    DrivenCranes cranes_;
};

}  // namespace borvik

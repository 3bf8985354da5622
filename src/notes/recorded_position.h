#pragma once

#include <functional>
#include <optional>

#include "analysis/position.h"
#include "analysis/post_process.h"
#include "calculation/session.h"

namespace borvik {

/// One span at one position of the cranes.
struct SpanAtPosition {
    PointSteps My{};    ///< [1..21], Nmm
    SpanWheels wheels;  ///< vertical loads that stand in the span, N
};

/// Finds again the positions of the cranes that records of the ultimate limit state name, and solves them.
class RecordedPositions {
public:
    explicit RecordedPositions(const Session& session);

    /// The span at the position of its largest My, MyMaxSpan, or of its most negative support moment, MySupportSpan.
    /// nullopt where the record is empty, or where no position of the walk gives its moment to the bit.
    [[nodiscard]] std::optional<SpanAtPosition> atLargest(int span) const;
    [[nodiscard]] std::optional<SpanAtPosition> atSupportMoment(int span) const;

private:
    using Gives = std::function<bool(const PointSteps& My)>;
    [[nodiscard]] std::optional<SpanAtPosition> find(const Table<Single>& records, int span, const Gives& gives) const;

    const Session& session_;
    RunLoads loads_;
    LoadedBeam loaded_;
};

}  // namespace borvik

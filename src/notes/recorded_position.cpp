#include "notes/recorded_position.h"

#include <algorithm>

namespace borvik {

RecordedPositions::RecordedPositions(const Session& session)
    : positions_(session.results->Uls.At), cranes_(session.project, session.results->Uls.Loads, false) {}

std::optional<SpanAtPosition> RecordedPositions::at(WalkPosition position, int span) {
    if (!position.isKnown()) return std::nullopt;
    cranes_.standAt(position);
    SpanAtPosition found;
    std::copy(std::begin(cranes_.forces(span).quantity[1]), std::end(cranes_.forces(span).quantity[1]), found.My);
    found.wheels = wheelsInSpan(cranes_.wheels(), span, &Wheel::P);
    return found;
}

std::optional<SpanAtPosition> RecordedPositions::atLargest(int span) {
    return at(positions_.MyMax(span, kWholeSpan), span);
}

std::optional<SpanAtPosition> RecordedPositions::atSupportMoment(int span) {
    return at(positions_.MySupport(span), span);
}

}  // namespace borvik

#include "notes/recorded_position.h"

#include <algorithm>
#include <cmath>

#include "analysis/steps.h"

namespace borvik {

namespace {

constexpr double kStep = 200;  // mm, of the walk

RunLoads ulsLoads(const Session& session) {
    RunLoads loads;
    loads.NCranes = session.project.NofCranes;
    SetUlsLoads(session.project, session.rail(), loads);
    return loads;
}

/// Whether slots `slot` and `slot + 1` of the record, span and distance a, are those of the wheel.
bool standsThere(const Table<Single>& records, int span, int slot, const Wheel& wheel) {
    return records(span, slot) == wheel.span && records(span, slot + 1) == wheel.a;
}

/// A wheel off the beam is recorded as span 1, a = 0.
bool mayBeOff(const Table<Single>& records, int span, int slot) {
    return records(span, slot) == 1 && records(span, slot + 1) == 0;
}

/// Where the wheel of those slots stands on the axis of the wheels, mm.
double globalPosition(const Beam& beam, const Table<Single>& records, int span, int slot) {
    return beam.Cum[static_cast<std::size_t>(records(span, slot)) - 1] + records(span, slot + 1);
}

int stepTo(double from, double to, int last) {
    return static_cast<int>(std::clamp<double>(std::round((to - from) / kStep), 0, last));
}

}  // namespace

RecordedPositions::RecordedPositions(const Session& session)
    : session_(session), loads_(ulsLoads(session)), loaded_(session.project, loads_, false) {}

std::optional<SpanAtPosition> RecordedPositions::find(const Table<Single>& records, int span,
                                                      const Gives& gives) const {
    if (records(span, 5) < 1) return std::nullopt;
    const Project& project = session_.project;
    const WalkSteps steps(project, loads_.NCranes);
    SolvedPosition position;
    const auto tried = [&](int j) -> std::optional<SpanAtPosition> {
        loaded_.placer.PlaceWheels(j, 0, position.wheels);
        if (!standsThere(records, span, 5, position.wheels[1])) return std::nullopt;
        // Crane 2 stands to the right: where wheel 5 is off the beam, the farthest step leaves it there.
        int k = steps.lastK(j);
        if (!mayBeOff(records, span, 7))
            k = stepTo(position.wheels[5].x, globalPosition(loaded_.beam, records, span, 7), k);
        solve(loaded_, j, k, position);
        SpanAtPosition found;
        PointSteps shear;
        const auto i = static_cast<std::size_t>(span);
        found.wheels = wheelsInSpan(position.wheels, span, &Wheel::P);
        loaded_.pointsZ[i].forces(position.momentZ[i - 1], position.momentZ[i], found.wheels, found.My, shear);
        if (!gives(found.My)) return std::nullopt;
        return found;
    };

    if (!mayBeOff(records, span, 5))
        return tried(stepTo(project.Position, globalPosition(loaded_.beam, records, span, 5), steps.N1));
    for (int j = 0; j <= steps.N1; ++j)
        if (auto found = tried(j)) return found;
    return std::nullopt;
}

std::optional<SpanAtPosition> RecordedPositions::atLargest(int span) const {
    const Table<Single>& records = session_.results->Uls.MyMaxSpan;
    return find(records, span, [&](const PointSteps& My) {
        return std::find(My + 1, My + kPoints + 1, records(span, 1).stored()) != My + kPoints + 1;
    });
}

std::optional<SpanAtPosition> RecordedPositions::atSupportMoment(int span) const {
    const Table<Single>& records = session_.results->Uls.MySupportSpan;
    return find(records, span, [&](const PointSteps& My) {
        const float moment = records(span, 1).stored();
        return (My[1] == moment || My[kPoints] == moment) && My[10] == records(span, 2).stored();
    });
}

}  // namespace borvik

#pragma once

#include <optional>

#include "notes/notes.h"

// What the rules of fatigue look for. The sentences that belong to them stand in fatigue_notes.cpp.
namespace borvik {

// Two cranes, crane classes (fatigue_crane_notes.cpp)
std::optional<NoteFinding> trainCheckedAsThree(const Session& session);
std::optional<NoteFinding> classS9(const Session& session);
std::optional<NoteFinding> placesOfCrane2(const Session& session);
std::optional<NoteFinding> cranesThatMeet(const Session& session);
std::optional<NoteFinding> mixedFactors(const Session& session);
std::optional<NoteFinding> mixedThroats(const Session& session);
std::optional<NoteFinding> heavierWheel(const Session& session);
std::optional<NoteFinding> throatsOfRolledWeb(const Session& session);
std::optional<NoteFinding> horizontalLoads(const Session& session);
std::optional<NoteFinding> gapsOfCrane2(const Session& session);
std::optional<NoteFinding> factorsOfTrain(const Session& session);

// Details, categories and partial factors (fatigue_detail_notes.cpp)
std::optional<NoteFinding> dividedByGammaMf(const Session& session);
std::optional<NoteFinding> loadFactorOutside(const Session& session);
std::optional<NoteFinding> flangeWithoutDynamicFactor(const Session& session);
std::optional<NoteFinding> bendingAtTopWeld(const Session& session);
std::optional<NoteFinding> strongerSide(const Session& session);
std::optional<NoteFinding> spliceOffThePoints(const Session& session);
std::optional<NoteFinding> inspectionAssumed(const Session& session);
std::optional<NoteFinding> sizeEffect(const Session& session);
std::optional<NoteFinding> kindOfOtherWeld(const Session& session);
std::optional<NoteFinding> eccentricWheel(const Session& session);
std::optional<NoteFinding> spanOfOtherSplice(const Session& session);
std::optional<NoteFinding> topFlangeOfSplice(const Session& session);

}  // namespace borvik

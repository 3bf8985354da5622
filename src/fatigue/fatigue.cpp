#include "fatigue/fatigue.h"

#include <utility>

#include "base/fault.h"
#include "fatigue/crane_factors.h"
#include "fatigue/detail_checks.h"
#include "fatigue/stress_history.h"

namespace borvik {

namespace {

/// A fatigue load carries no dead load.
void ClearSpanLoad(const FatigueRun& run) {
    for (int i = 1; i <= run.project.NofSpans; ++i) run.loads.SpanLoad(i) = 0.0;
}

CraneFactors factorsOf(int craneClass, int wheels, double PhiFat) {
    CraneFactors factors;
    watched("Fatigue factors of the crane class", 0, [&] { factors = craneFactors(craneClass, wheels, PhiFat); });
    return factors;
}

/// WheelV of wheels 1..4 or 5..8 from the entered loads of a crane, times its dynamic factor.
void loadWheels(const FatigueRun& run, int firstSlot, int crane, double PhiFat) {
    for (int i = 0; i < 4; ++i) {
        run.loads.WheelV(firstSlot + i) = PhiFat * run.project.V((crane == 1 ? 1 : 5) + i);
    }
}

void copyGaps(const FatigueRun& run) {
    for (int i = 1; i <= 6; ++i) run.loads.WheelGap(i) = run.project.Avst(i);
}

/// Crane 1; with the wheels of crane 2 behind it when both form a train.
void loadCrane1(const FatigueRun& run, double PhiFat, bool train) {
    copyGaps(run);
    loadWheels(run, 1, 1, PhiFat);
    loadWheels(run, 5, 2, train ? PhiFat : 0.0);  // a train runs with the factor of crane 1
    run.loads.NCranes = 1;                        // for all fatigue walks: the cranes never move apart
}

/// Crane 2 takes the places of the wheels of crane 1.
void loadCrane2(const FatigueRun& run, double PhiFat) {
    for (int i = 1; i <= 4; ++i) run.loads.WheelH(i) = 0.0;
    for (int i = 1; i <= 3; ++i) run.loads.WheelGap(i) = run.project.Avst(i + 3);
    loadWheels(run, 1, 2, PhiFat);
}

/// Both cranes at the distance MinAvst. The gaps stay as the walk of crane 2 left them, so that crane 1 rolls on the
/// wheel distances of crane 2: note G22.
void loadBoth(const FatigueRun& run, const FatigueFactors& factors) {
    for (int i = 1; i <= 8; ++i) run.loads.WheelH(i) = 0.0;
    loadWheels(run, 1, 1, factors.Cr1.PhiFat);
    loadWheels(run, 5, 2, factors.Cr2.PhiFat);
}

StressSet walk(const FatigueRun& run, const History& history, const CraneFactors& factors) {
    FlsResults fls = RunFls(run.project, run.loads, run.method, run.messages, run.progress);
    StressSet set = stressHistory(history, run.project, fls, factors);
    run.steps = std::move(fls.Steps);
    return set;
}

}  // namespace

FatigueResults RunFatigueOverhead(const FatigueRun& run) {
    const Project& project = run.project;
    const bool train = project.MinDistConst != 0.0;
    const bool twoCranes = project.NofCranes == 2;
    const bool crane2Alone = twoCranes && !train;

    FatigueResults results;
    FatigueFactors& factors = results.Factors;
    ClearSpanLoad(run);
    const int wheels1 = train ? countTrainWheels(project) : countWheels(project, 1);
    factors.Cr1 = factorsOf(project.CraneClass1, wheels1, dynamicFactor(project.PsiV1));
    loadCrane1(run, factors.Cr1.PhiFat, train);
    results.Cr1 = walk(run, StressHistoryCr1, factors.Cr1);

    if (crane2Alone) {
        factors.Cr2 = factorsOf(project.CraneClass2, countWheels(project, 2), dynamicFactor(project.PsiV2));
        loadCrane2(run, factors.Cr2.PhiFat);
        results.Cr2 = walk(run, StressHistoryCr2, factors.Cr2);
    }
    if (crane2Alone && project.TwoCraneMode == TwoCranes::Together) {
        results.ClassOfBoth = classOfBoth(project);
        factors.Cr12 = factorsOf(*results.ClassOfBoth, factors.Cr1.NofWheels + factors.Cr2.NofWheels, 0.0);
        loadBoth(run, factors);
        results.Cr12 = walk(run, StressHistoryCr12, factors.Cr12);
    }

    // A sum over both cranes replaces every result of crane 1 alone. A train is one crane to the independent sum; the
    // sum of three takes it too, with nothing from crane 2 and from both.
    if (crane2Alone && project.TwoCraneMode == TwoCranes::Independent) results.Summed = Cranes::Independent;
    if (twoCranes && project.TwoCraneMode == TwoCranes::Together) results.Summed = Cranes::Together;
    const StressSet none(project.NofSpans);
    checkDetails(kOverheadDetails,
                 {project, run.rail, factors, *results.Cr1, results.Cr2 ? *results.Cr2 : none,
                  results.Cr12 ? *results.Cr12 : none},
                 results.Summed, results);
    return results;
}

FatigueResults RunFatigueMonorail(const FatigueRun& run) {
    const Project& project = run.project;
    FatigueResults results;
    FatigueFactors& factors = results.Factors;
    ClearSpanLoad(run);
    factors.Cr1 = factorsOf(project.CraneClassR, countWheels(project, 1), dynamicFactor(project.PsiV1));
    loadCrane1(run, factors.Cr1.PhiFat, false);
    results.Cr1 = walk(run, StressHistoryMonorail, factors.Cr1);

    const StressSet none(project.NofSpans);
    checkDetails(kMonorailDetails, {project, run.rail, factors, *results.Cr1, none, none}, Cranes::Alone, results);
    return results;
}

}  // namespace borvik

#include "fatigue/fatigue.h"

#include <utility>

#include "base/fault.h"
#include "fatigue/crane_factors.h"
#include "fatigue/detail_checks.h"
#include "fatigue/stress_history.h"

namespace borvik {

namespace {

CraneFactors factorsOf(int craneClass, int wheels, double PhiFat) {
    CraneFactors factors;
    watched("Fatigue factors of the crane class", 0, [&] { factors = craneFactors(craneClass, wheels, PhiFat); });
    return factors;
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
    ClearSpanLoad(project, run.loads);
    const int wheels1 = train ? countTrainWheels(project) : countWheels(project, 1);
    factors.Cr1 = factorsOf(project.CraneClass1, wheels1, dynamicFactor(project.PsiV1));
    setFatigueCrane1(project, factors.Cr1.PhiFat, train, run.loads);
    results.Cr1 = walk(run, StressHistoryCr1, factors.Cr1);

    if (crane2Alone) {
        factors.Cr2 = factorsOf(project.CraneClass2, countWheels(project, 2), dynamicFactor(project.PsiV2));
        setFatigueCrane2(project, factors.Cr2.PhiFat, run.loads);
        results.Cr2 = walk(run, StressHistoryCr2, factors.Cr2);
    }
    if (crane2Alone && project.TwoCraneMode == TwoCranes::Together) {
        results.ClassOfBoth = classOfBoth(project);
        factors.Cr12 = factorsOf(*results.ClassOfBoth, factors.Cr1.NofWheels + factors.Cr2.NofWheels, 0.0);
        setFatigueBoth(project, factors.Cr1.PhiFat, factors.Cr2.PhiFat, run.loads);
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
    ClearSpanLoad(project, run.loads);
    factors.Cr1 = factorsOf(project.CraneClassR, countWheels(project, 1), dynamicFactor(project.PsiV1));
    setFatigueCrane1(project, factors.Cr1.PhiFat, false, run.loads);
    results.Cr1 = walk(run, StressHistoryMonorail, factors.Cr1);

    const StressSet none(project.NofSpans);
    checkDetails(kMonorailDetails, {project, run.rail, factors, *results.Cr1, none, none}, Cranes::Alone, results);
    return results;
}

}  // namespace borvik

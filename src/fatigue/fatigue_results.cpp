#include "fatigue/fatigue_results.h"

#include "analysis/results.h"

namespace borvik {

namespace {

Table<Single> points(int spans) {
    return {spans, kPoints};
}
Table<Single> peaks(int spans) {
    return {spans, 2};
}
Array<Single> supports(int spans) {
    return {1, spans + 1};
}

}  // namespace

StressSet::StressSet(int spans)
    : Sig1Max(points(spans)),
      Sig1Min(points(spans)),
      Sig1Range(points(spans)),
      Sig2Max(points(spans)),
      Sig2Min(points(spans)),
      Sig2Range(points(spans)),
      TauMax(points(spans)),
      TauMin(points(spans)),
      TauRange(points(spans)),
      SigSupMax(supports(spans)),
      SigSupMin(supports(spans)),
      SigSupRange(supports(spans)),
      RzMax(supports(spans)),
      RzMin(supports(spans)),
      Sig1MaxPeak(peaks(spans)),
      Sig1MinPeak(peaks(spans)),
      Sig1RangePeak(peaks(spans)),
      Sig2MaxPeak(peaks(spans)),
      Sig2MinPeak(peaks(spans)),
      Sig2RangePeak(peaks(spans)),
      TauMaxPeak(peaks(spans)),
      TauMinPeak(peaks(spans)),
      TauRangePeak(peaks(spans)) {}

}  // namespace borvik

#pragma once

#include <array>

#include "analysis/lanes.h"
#include "analysis/position.h"
#include "analysis/recorder.h"
#include "analysis/results.h"

namespace borvik {

inline constexpr std::array<Envelope<UlsResults>, 8> kUlsEnvelopes = {{
    {&UlsResults::MyMaxPoint, &UlsResults::MyMaxSpan, &UlsPositions::MyMax, 1, true},
    {&UlsResults::MyMinPoint, &UlsResults::MyMinSpan, &UlsPositions::MyMin, 1, false},
    {&UlsResults::MzMaxPoint, &UlsResults::MzMaxSpan, &UlsPositions::MzMax, 3, true},
    {&UlsResults::MzMinPoint, &UlsResults::MzMinSpan, &UlsPositions::MzMin, 3, false},
    {&UlsResults::VzMaxPoint, &UlsResults::VzMaxSpan, &UlsPositions::VzMax, 2, true},
    {&UlsResults::VzMinPoint, &UlsResults::VzMinSpan, &UlsPositions::VzMin, 2, false},
    {&UlsResults::VyMaxPoint, &UlsResults::VyMaxSpan, &UlsPositions::VyMax, 4, true},
    {&UlsResults::VyMinPoint, &UlsResults::VyMinSpan, &UlsPositions::VyMin, 4, false},
}};

inline constexpr std::array<Envelope<FlsResults>, 4> kFlsEnvelopes = {{
    {&FlsResults::FlsMyMaxPoint, &FlsResults::FlsMyMaxSpan, &FlsPositions::MyMax, 1, true},
    {&FlsResults::FlsMyMinPoint, &FlsResults::FlsMyMinSpan, &FlsPositions::MyMin, 1, false},
    {&FlsResults::FlsVzMaxPoint, &FlsResults::FlsVzMaxSpan, &FlsPositions::VzMax, 2, true},
    {&FlsResults::FlsVzMinPoint, &FlsResults::FlsVzMinSpan, &FlsPositions::VzMin, 2, false},
}};

/// The extremes of the reactions of one plane, and where the cranes stood.
struct ReactionRecords {
    Array<Single>&largest, &smallest;
    Array<WalkPosition>&largestAt, &smallestAt;
};

/// Forces of the spans of one position, and the reactions that follow from them.
class SpanForces {
public:
    explicit SpanForces(const LoadedBeam& loaded);
    /// Computes My, Vz and, where there are horizontal loads, Mz, Vy of span i.
    void compute(const SolvedPosition& position, int i);
    [[nodiscard]] const SpanStep& step(int i) const { return steps_[static_cast<std::size_t>(i)]; }

    /// The reaction of a support, upward positive; at the last one with the sign of the shear.
    /// @param shear  slot of the shear: 2 vertical, 4 horizontal plane
    [[nodiscard]] Single reaction(int support, int shear) const;
    /// Compares the reaction of every support whose neighbouring spans are all in `mask` with its largest and smallest.
    void updateReactions(int shear, SpanMask mask, WalkPosition at, const ReactionRecords& records) const;

private:
    const LoadedBeam& loaded_;
    std::vector<SpanStep> steps_;  ///< [1..n]
};

class UlsPostProcess : public PostProcess {
public:
    static constexpr Quantity quantity = Quantity::Forces;
    UlsPostProcess(const LoadedBeam& loaded, UlsResults& results);
    void record(const SolvedPosition& position, SpanMask mask) override;

private:
    void recordSupportMoment(int i, const SolvedPosition& position);

    const LoadedBeam& loaded_;
    UlsResults& results_;
    SpanForces forces_;
    Recorder<UlsResults, kUlsEnvelopes.size()> recorder_;
};

class FlsPostProcess : public PostProcess {
public:
    static constexpr Quantity quantity = Quantity::Forces;
    FlsPostProcess(const LoadedBeam& loaded, FlsResults& results);
    void record(const SolvedPosition& position, SpanMask mask) override;

private:
    const LoadedBeam& loaded_;
    FlsResults& results_;
    SpanForces forces_;
    Recorder<FlsResults, kFlsEnvelopes.size()> recorder_;
};

class SlsPostProcess : public PostProcess {
public:
    static constexpr Quantity quantity = Quantity::Deflections;
    SlsPostProcess(const LoadedBeam& loaded, SlsResults& results);
    void record(const SolvedPosition& position, SpanMask mask) override;

private:
    static void keep(int i, const PointSteps& U, const SolvedPosition& position, Cube<Single>& point,
                     Table<Single>& span, Table<WalkPosition>& at);

    const LoadedBeam& loaded_;
    SlsResults& results_;
};

}  // namespace borvik

#pragma once

#include <array>

#include "analysis/key_search.h"
#include "analysis/position.h"
#include "analysis/recorder.h"
#include "analysis/results.h"

namespace borvik {

inline constexpr std::array<Envelope<UlsResults>, 8> kUlsEnvelopes = {{
    {&UlsResults::MyMaxPoint, &UlsResults::MyMaxSpan, 1, true},
    {&UlsResults::MyMinPoint, &UlsResults::MyMinSpan, 1, false},
    {&UlsResults::MzMaxPoint, &UlsResults::MzMaxSpan, 3, true},
    {&UlsResults::MzMinPoint, &UlsResults::MzMinSpan, 3, false},
    {&UlsResults::VzMaxPoint, &UlsResults::VzMaxSpan, 2, true},
    {&UlsResults::VzMinPoint, &UlsResults::VzMinSpan, 2, false},
    {&UlsResults::VyMaxPoint, &UlsResults::VyMaxSpan, 4, true},
    {&UlsResults::VyMinPoint, &UlsResults::VyMinSpan, 4, false},
}};

inline constexpr std::array<Envelope<FlsResults>, 4> kFlsEnvelopes = {{
    {&FlsResults::FlsMyMaxPoint, &FlsResults::FlsMyMaxSpan, 1, true},
    {&FlsResults::FlsMyMinPoint, &FlsResults::FlsMyMinSpan, 1, false},
    {&FlsResults::FlsVzMaxPoint, &FlsResults::FlsVzMaxSpan, 2, true},
    {&FlsResults::FlsVzMinPoint, &FlsResults::FlsVzMinSpan, 2, false},
}};

/// Forces of the spans of one position, and the reactions that follow from them.
class SpanForces {
public:
    explicit SpanForces(const LoadedBeam& loaded);
    /// Computes My, Vz and, where there are horizontal loads, Mz, Vy of span i.
    void compute(const SolvedPosition& position, int i);
    [[nodiscard]] const SpanStep& step(int i) const { return steps_[static_cast<std::size_t>(i)]; }

    /// Compares the reaction of every support whose neighbouring spans are all in `mask` with its largest and smallest.
    /// @param shear  slot of the shear: 2 vertical, 4 horizontal plane
    void updateReactions(int shear, SpanMask mask, Array<Single>& largest, Array<Single>& smallest) const;

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
    void recordSupportMoment(int i, const Wheels& wheels);

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
    static void keep(int i, const PointSteps& U, const Wheels& wheels, Cube<Single>& point, Table<Single>& span);

    const LoadedBeam& loaded_;
    SlsResults& results_;
};

}  // namespace borvik

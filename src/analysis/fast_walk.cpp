#include "analysis/fast_walk.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace borvik {

namespace {

/// Share of all positions beyond which the plain walk is as quick.
constexpr double kMostShare = 0.1;

/// A number on a grid of 2^-28 mm: sums of such numbers below 16 km are exact in doubles.
bool onGrid(double x) {
    return std::abs(x) < 0x1p24 && std::fmod(x, 0x1p-28) == 0;
}

/// The method rests on wheels in ascending order and on supports at exact positions.
bool applies(const LoadedBeam& loaded) {
    const Beam& beam = loaded.beam;
    const RunLoads& loads = loaded.placer.loads();
    if (!std::all_of(loads.WheelGap.begin(), loads.WheelGap.end(), [](Single gap) { return gap >= 0; })) return false;
    for (int i = 1; i <= beam.n; ++i)
        if (beam.Cum[i] - beam.Cum[i - 1] != beam.L[i] || beam.L[i] <= 0) return false;
    return loaded.placer.minAvst() >= 0;
}

/// Wheels first..last at the positions of crane 1.
class FirstCrane : public CranePositions {
public:
    FirstCrane(const WheelPlacer& placer, int N1, int lastOfThem) : placer_(placer) {
        last = N1;
        firstWheel = 1;
        lastWheel = lastOfThem;
    }
    [[nodiscard]] int variants(int) const override { return 1; }
    void place(int j, int, Wheels& wheels) const override {
        lastWheel > 4 ? placer_.PlaceWheels(j, 0, wheels) : placer_.placeCrane1(j, wheels);
    }

private:
    const WheelPlacer& placer_;
};

/// Crane 2 at s = j + k. Where the distances are whole millimetres, its position follows from s. Finer ones are rounded
/// on the way to wheel 4, differently for small and for large j, so that a few positions that differ by a rounding
/// share an s.
class SecondCrane : public CranePositions {
public:
    SecondCrane(const WheelPlacer& placer, int N1) : placer_(placer) {
        last = N1;
        firstWheel = 5;
        lastWheel = 8;
        findOffsets();
        if (!exact_) return;
        for (int s = 0; s <= N1; ++s) {
            first_.push_back(x5_.size());
            for (const Offset& offset : offsets_) {
                const double x5 = Single(placer_.minAvst() + offset.x4 + 200.0 * s);
                if (offset.firstJ <= s &&
                    std::find(x5_.begin() + static_cast<std::ptrdiff_t>(first_.back()), x5_.end(), x5) == x5_.end())
                    x5_.push_back(x5);
            }
        }
        first_.push_back(x5_.size());
    }

    /// Whether every sum on the way to wheel 5 is exact, so that its position depends on s and the offset alone.
    [[nodiscard]] bool exact() const { return exact_; }
    [[nodiscard]] int variants(int s) const override {
        return static_cast<int>(first_[static_cast<std::size_t>(s) + 1] - first_[static_cast<std::size_t>(s)]);
    }
    void place(int s, int variant, Wheels& wheels) const override {
        placer_.placeCrane2(x5_[first_[static_cast<std::size_t>(s)] + static_cast<std::size_t>(variant)], wheels);
    }

private:
    struct Offset {
        double x4;   ///< position of wheel 4 less 200 j
        int firstJ;  ///< first position of crane 1 with this offset
    };

    void findOffsets() {
        Wheels wheels;
        exact_ = onGrid(placer_.minAvst());
        for (int j = 0; j <= last && exact_; ++j) {
            placer_.placeCrane1(j, wheels);
            const double x4 = wheels[4].x - 200.0 * j;
            const auto same = [&](const Offset& offset) { return offset.x4 == x4; };
            if (std::none_of(offsets_.begin(), offsets_.end(), same)) offsets_.push_back({x4, j});
            exact_ = onGrid(wheels[4].x) && offsets_.size() <= kMostOffsets;
        }
    }

    static constexpr std::size_t kMostOffsets = 64;
    const WheelPlacer& placer_;
    bool exact_ = false;
    std::vector<Offset> offsets_;
    std::vector<double> x5_;
    std::vector<std::size_t> first_;
};

/// @return false where crane 2's positions can't be told from s
bool search(const Plane& plane, const WalkSteps& steps, const LoadedBeam& loaded, Quantity quantity,
            Candidates& candidates) {
    const FirstCrane one(loaded.placer, steps.N1, steps.secondCraneMoves ? 4 : 8);
    const CraneResponse crane1(plane, one);
    if (!steps.secondCraneMoves) {
        searchPlane(plane, crane1, CraneResponse(plane, steps.N1), steps.N1, quantity, candidates);
        return true;
    }
    const SecondCrane two(loaded.placer, steps.N1);
    if (!two.exact()) return false;
    const CraneResponse crane2(plane, two);
    searchPlane(plane, crane1, crane2, steps.N1, quantity, candidates);
    return true;
}

/// @return false when there are too many, or when the search left the range of the doubles
bool findCandidates(const WalkSteps& steps, const LoadedBeam& loaded, Quantity quantity, Candidates& candidates) {
    try {
        const ArithmeticFlags flags;
        if (!search(Plane::vertical(loaded), steps, loaded, quantity, candidates)) return false;
        if (loaded.horizontal && !candidates.tooMany())
            if (!search(Plane::horizontal(loaded), steps, loaded, quantity, candidates)) return false;
        flags.check();
        return !candidates.tooMany();
    } catch (const RuntimeFault&) {
        return false;
    }
}

}  // namespace

bool walkFast(const WalkSteps& steps, const LoadedBeam& loaded, Quantity quantity, PostProcess& post, Walk walk,
              Progress& progress) {
    if (!applies(loaded)) return false;
    report(progress, walk, 0);
    Candidates candidates(static_cast<std::size_t>(kMostShare * steps.positions()) + 1000);
    if (!findCandidates(steps, loaded, quantity, candidates)) return false;
    SolvedPosition position;
    for (const Candidates::Item& item : candidates.inOrder()) {
        solve(loaded, item.j, item.k, position);
        post.record(position, item.spans);
    }
    report(progress, walk, 100);
    return true;
}

}  // namespace borvik

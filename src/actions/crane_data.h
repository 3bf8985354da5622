#pragma once

#include <numeric>
#include <optional>
#include <vector>

namespace borvik::actions {

enum class HoistingClass { HC1, HC2, HC3, HC4 };
enum class Release { Hook, Grab, Magnet };  ///< how the load, or a share of it, is let go
enum class Drive { Single, Central };       ///< each driven wheel by itself, or both rails by one shaft
enum class Guide { Flanges, Rollers };      ///< what keeps the crane on the rails

/// Wheel system, EN 1991-3 Figure 2.8: the wheels of a pair coupled (C) or independent (I); the bearing of the wheels
/// across the rail fixed on both rails (FF), or fixed on one and movable on the other (FM).
enum class WheelSystem { CFF, IFF, CFM, IFM };
[[nodiscard]] constexpr bool isCoupled(WheelSystem system) {
    return system == WheelSystem::CFF || system == WheelSystem::CFM;
}
[[nodiscard]] constexpr bool isMovable(WheelSystem system) {
    return system == WheelSystem::CFM || system == WheelSystem::IFM;
}

/// An overhead travelling crane as its data sheet has it. Both rails carry the same wheels. "Crab rail" is the rail
/// beside the crab, which stands as near to it as it can; the other is the "far rail". What the maker gives takes the
/// place of what would be calculated.
struct CraneData {
    double bridge = 0;  ///< Qc1, weight of the bridge without the crab, kN
    double crab = 0;    ///< Qc2, weight of the crab, kN
    double hoist = 0;   ///< Qh, hoist load: payload, hook block and attachments, kN
    double span = 0;    ///< l, distance of the rails, m
    double emin = 1.0;  ///< smallest distance of the hook from the crab rail, m; the other rail's own for loads on that

    std::vector<double> spacing;  ///< a_j, distances of the neighbouring wheels on a rail from first to last, m

    HoistingClass hc = HoistingClass::HC2;
    double vh = 0;  ///< steady hoisting speed, m/s
    Release release = Release::Hook;
    double released = 0;         ///< dm/m, share of the hoist load that is let go at once
    std::optional<double> eta;   ///< share of the hoist load that stays when the payload is taken off (group 7)
    double phi1 = 1.1;           ///< hoisting acts on the self-weight
    std::optional<double> phi2;  ///< of the maker
    double phi4 = 1.0;           ///< travelling on rails within the tolerances
    double phi5 = 1.5;           ///< change of the drive force

    Drive drive = Drive::Single;
    int mw = 2;                      ///< number of single drives
    double mu = 0.2;                 ///< friction: 0.2 steel, 0.5 rubber
    std::optional<double> K;         ///< drive force of the maker, kN
    std::optional<double> HT1, HT2;  ///< of the maker, with phi5: acceleration across the far rail, the crab rail, kN
    bool phiOnK =
        false;  ///< K, and in it the place of the centre of mass, with phi1 and phi2; the clause reads without

    WheelSystem system = WheelSystem::IFF;
    int m = 0;  ///< number of coupled wheel pairs
    Guide guide = Guide::Flanges;
    double e1 = 0;                ///< of the first wheel behind the front guide roller, m; flanges: 0
    std::optional<double> aExt;   ///< distance of the outer guides, m; else that of the outer wheels
    double slip = 10;             ///< x, clearance between rail and guide, mm
    double railhead = 50;         ///< b, width of the rail head, mm
    std::optional<double> alpha;  ///< skewing angle of the maker
    std::optional<double> HS;     ///< of the maker: skewing force at the front wheel of either rail, kN

    int S = 3;  ///< class of EN 13001-1 for fatigue, S0 to S9

    /// For end stops: all of them or none.
    std::optional<double> v;    ///< long travel speed, m/s
    std::optional<double> SB;   ///< spring constant of the buffer, kN/m
    std::optional<double> xib;  ///< buffer characteristic: area below the force line over force times travel

    /// Wheels on a rail; 0 without distances.
    [[nodiscard]] int wheels() const { return spacing.empty() ? 0 : static_cast<int>(spacing.size()) + 1; }
    /// Distance of the outer wheels, m.
    [[nodiscard]] double base() const { return std::accumulate(spacing.begin(), spacing.end(), 0.0); }
    /// Distance a of the guides, 2.7.3(3), m.
    [[nodiscard]] double guideDistance() const { return aExt.value_or(base()); }
    /// Distances e_j of the wheels from the front guide, m.
    [[nodiscard]] std::vector<double> e() const;
    [[nodiscard]] double selfWeight() const { return bridge + crab; }
    [[nodiscard]] bool hasBuffer() const { return v && SB && xib; }
};

}  // namespace borvik::actions

#pragma once

#include <string>
#include <vector>

#include "calculation/crane_drive.h"
#include "project/project.h"

namespace borvik {

/// Spans as they are entered, up to the first that is empty. The sketch goes by them: NofSpans is counted only when a
/// calculation starts, and the sketch follows the input before that.
[[nodiscard]] int enteredSpans(const Project& project);

/// The sections of a beam, each once, by name, in the order of first use.
class DistinctSections {
public:
    explicit DistinctSections(const Project& project);
    [[nodiscard]] const std::vector<std::string>& names() const { return names_; }
    /// 1 for the first. 0 for a span without a section.
    [[nodiscard]] int numberOf(int span) const { return numbers_[static_cast<std::size_t>(span - 1)]; }

private:
    std::vector<std::string> names_;
    std::vector<int> numbers_;
};

/// A wheel in the sketch. @param x  units from the left edge, the beam runs from 50 to 950
struct WheelPlace {
    int wheel = 0;  ///< 1..8
    double x = 0.0;
    double toNext = 0.0;  ///< mm to the next wheel of the crane
};

/// The wheels of a sketch, in true scale or with their distances stretched so that they can be told apart.
struct CraneGeometry {
    double factor = 1.0;  ///< on the wheel distances; exactly 1 where the sketch is to scale
    std::vector<WheelPlace> wheels;
};
[[nodiscard]] CraneGeometry craneGeometry(const Project& project);

/// A wheel of driven cranes, those of crane 2 as 5 to 8 also where it walks alone.
struct DrivenWheel {
    int wheel = 0;
    double place = 0.0;  ///< mm from the first support
    bool first = false;  ///< of its crane
};
/// The wheels that the walk loads; of a crane without load none.
[[nodiscard]] std::vector<DrivenWheel> drivenWheels(const CraneDrive& drive);
/// The same in the sketch, in true scale.
[[nodiscard]] CraneGeometry drivenGeometry(const Project& project, const CraneDrive& drive);

/// A beam splice that the fatigue check looks at.
struct SplicePlace {
    int span = 0;
    double position = 0.0;  ///< mm from the left support of the span
};
/// Splices of the crane type at hand that stand on the beam; none where the detail isn't checked.
[[nodiscard]] std::vector<SplicePlace> splicePlaces(const Project& project);

}  // namespace borvik

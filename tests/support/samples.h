#pragma once

#include <string>

#include "calculation/calculation.h"
#include "calculation/session.h"

namespace borvik::testing_support {

/// What the tables, diagrams, reports and workbooks of the tests are made of.
enum class Sample {
    OneCrane,     ///< the default project with the details of a welded girder, its title with letters beyond ASCII
    TwoCranes,    ///< two cranes that act on their own
    Monorail,     ///< a hoist with all details that a rolled girder has
    ThirtySpans,  ///< thirty spans of thirty sections under two cranes, every fatigue detail and four splices
    Overloaded,   ///< one span, ratios below and above 10, vertical loads only, no splices
    Together,  ///< two cranes at a constant distance, a span of unequal flanges and a slender web, no fatigue detail at
               ///< supports
};
inline constexpr Sample kSamples[] = {Sample::OneCrane,    Sample::TwoCranes,  Sample::Monorail,
                                      Sample::ThirtySpans, Sample::Overloaded, Sample::Together};

/// "one-crane", for names of files.
[[nodiscard]] std::string nameOf(Sample sample);

/// A calculated session of that project. The test fails where the calculation does.
Session calculated(Sample sample);
/// The same, calculated once a program.
const Session& sessionOf(Sample sample);
/// The same, saved as a file of this name as well.
Session calculatedAndSaved(Sample sample, const std::string& file);

}  // namespace borvik::testing_support

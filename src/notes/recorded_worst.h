#pragma once

#include <string>

#include "analysis/results.h"
#include "base/number_text.h"
#include "project/project.h"

namespace borvik {

/// The largest ratio among the records of a span, and its point k = 1..21.
struct RecordedWorst {
    double ratio = 0;
    int point = 1;
};

/// Asks a ratio for the forces of every point of every record of the ultimate limit state; each record holds the forces
/// that act together at one position of the cranes.
/// @param ratioOf  of My, Vz and Mz as recorded: Nmm, N, Nmm, with their signs
template <class RatioOf>
[[nodiscard]] RecordedWorst worstRecorded(const UlsResults& uls, int span, RatioOf ratioOf) {
    RecordedWorst worst;
    for (const Cube<Single>* records : {&uls.MyMaxPoint, &uls.MyMinPoint, &uls.VzMaxPoint, &uls.VzMinPoint,
                                        &uls.MzMaxPoint, &uls.MzMinPoint, &uls.VyMaxPoint, &uls.VyMinPoint})
        for (int k = 1; k <= kPoints; ++k) {
            const double ratio = ratioOf((*records)(span, k, 1), (*records)(span, k, 2), (*records)(span, k, 3));
            if (ratio > worst.ratio) worst = {ratio, k};
        }
    return worst;
}

/// ", x = 3000 mm"
[[nodiscard]] inline std::string atPoint(const Project& project, int span, int point) {
    return ", x = " + formatNumber((point - 1) * project.Span(span) / 20.0, "0") + " mm";
}

}  // namespace borvik

#include "actions/crane_data.h"

namespace borvik::actions {

std::vector<double> CraneData::e() const {
    std::vector<double> distances{e1};
    for (const double gap : spacing) distances.push_back(distances.back() + gap);
    return distances;
}

}  // namespace borvik::actions

#include "reactions/parts.h"

namespace borvik {

void setCharacteristicWheels(const Project& project, bool dynamic, RunLoads& loads) {
    for (int w = 1; w <= 8; ++w) {
        loads.WheelV(w) = (!dynamic ? 1.0 : w <= 4 ? double(project.PsiV1) : double(project.PsiV2)) * project.V(w);
        loads.WheelH(w) = (!dynamic ? 1.0 : w <= 4 ? double(project.PsiH1) : double(project.PsiH2)) * project.H(w);
    }
}

RunLoads withoutDeadLoad(RunLoads loads) {
    loads.SpanLoad = {};
    return loads;
}

RunLoads withoutWheels(RunLoads loads) {
    loads.WheelV = {};
    loads.WheelH = {};
    return loads;
}

}  // namespace borvik
